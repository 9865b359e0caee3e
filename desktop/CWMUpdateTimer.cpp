#include "CWMUpdateTimer.h"

#include "CWMUpdateCallback.h"

#include <QTimerEvent>

CWMUpdateTimer::CWMUpdateTimer(int periodMs, CWMUpdateCallback *callback)
    : m_callback(callback)
{
    start(periodMs);
}

void CWMUpdateTimer::start(int periodMs)
{
    stop();
    m_timerId = startTimer(periodMs);
}

void CWMUpdateTimer::stop()
{
    if (m_timerId != 0) {
        killTimer(m_timerId);
        m_timerId = 0;
    }
}

void CWMUpdateTimer::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == m_timerId && m_callback)
        m_callback->update_window();
}
