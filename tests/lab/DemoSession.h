#ifndef DEMOSESSION_H
#define DEMOSESSION_H

#include "Session.h"

// A person at the program with its demonstration camera. Knows its picture by the desk, and that it
// is live by the pencil and the clock.
class DemoSession : public Session {
public:
    // The program that is started is told to offer that camera.
    explicit DemoSession(const QString &executable);

    bool isPicture(const QImage &seen) const override;
    bool isLiveAt(QRect place) const override;
    bool isStillAt(QRect place) const override;

private:
    const QImage m_desk;
};

#endif // DEMOSESSION_H
