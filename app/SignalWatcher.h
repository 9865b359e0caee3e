#ifndef SIGNALWATCHER_H
#define SIGNALWATCHER_H

#include <QObject>
#include <memory>

class QSocketNotifier;

/**
 * Turns the end of a session into an ordinary one: SIGTERM and SIGINT arrive as a Qt signal, so the
 * window can close as if the user had closed it and a recording is finished first.
 *
 * A second signal of the same kind ends the program at once, as without a watcher. One object at a
 * time, on the GUI thread. Without the pipe (no file descriptor left) the signals keep their usual
 * effect.
 */
class SignalWatcher : public QObject {
    Q_OBJECT

public:
    explicit SignalWatcher(QObject *parent = nullptr);
    ~SignalWatcher() override;

signals:
    /// Leaves from the event loop, never from inside the signal handler.
    void terminationRequested();

private:
    void drain();

    int m_readEnd = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

#endif
