#ifndef CWMUPDATETIMER_H
#define CWMUPDATETIMER_H

#include <QObject>

class CWMUpdateCallback;

/**
 * The clock of the window raising: calls update_window() of its callback once per period.
 *
 * Running from construction on. GUI thread only; the ticks come from the event loop. The callback
 * is not owned and must outlive the timer.
 */
class CWMUpdateTimer : public QObject {
public:
    CWMUpdateTimer(int periodMs, CWMUpdateCallback *callback);

    /// The period given here holds from now on, also when the timer is already running.
    void start(int periodMs);
    void stop();

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    int m_timerId = 0; ///< 0 when stopped
    CWMUpdateCallback *m_callback;
};

#endif
