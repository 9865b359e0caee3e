#ifndef QTSINGLEAPPLICATION_H
#define QTSINGLEAPPLICATION_H

#include "InstanceChannel.h"

#include <QApplication>

/**
 * An application of which a user runs one copy at a time. It does not enforce this: a second copy
 * learns from sendMessage() that there is a first one, and ends itself.
 *
 * Copies of one id meet per user and temporary folder, whatever display or session they are in. A
 * crashed first copy never stands in the way of the next one.
 */
class QtSingleApplication : public QApplication {
    Q_OBJECT

public:
    QtSingleApplication(const QString &id, int &argc, char **argv);

    /// True when the first copy has acknowledged the message. False after timeout ms when it does
    /// not answer, as when its window is stuck; false at once when this copy is the first.
    bool sendMessage(const QString &message, int timeout = 5000);
    /// In the first copy: answers those who wait for it, as the event loop does, without handling
    /// any event.
    void answerWaiting();
    /// True when another copy is the first.
    bool isRunning();
    /// True when this copy is known to be the first; of several copies one at most.
    bool isFirst();

Q_SIGNALS:
    /// In the first copy: another one has sent this.
    void messageReceived(const QString &message);

private:
    InstanceChannel m_channel;
};

#endif
