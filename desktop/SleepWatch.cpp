#include "SleepWatch.h"

#include <utility>

#include <ctime>

static constexpr int lookPeriod = 10000; // ms
static constexpr qint64 shortestSleep = 1000; // ms; what is less may be the two clocks' own
static constexpr qint64 wakingTime = 30000; // ms, in which buses and drivers find their devices

static qint64 milliseconds(clockid_t clock)
{
    timespec time = {};
    clock_gettime(clock, &time);
    return qint64(time.tv_sec) * 1000 + time.tv_nsec / 1000000;
}

// The one clock runs on while the machine sleeps, the other one does not.
static qint64 timeAsleep()
{
    return milliseconds(CLOCK_BOOTTIME) - milliseconds(CLOCK_MONOTONIC);
}

SleepWatch::SleepWatch(QObject *parent)
    : QObject(parent)
    , m_timeAsleep(timeAsleep)
    , m_lastTimeAsleep(timeAsleep())
{
    m_looks.setTimerType(Qt::VeryCoarseTimer);
    m_looks.callOnTimeout(this, &SleepWatch::look);
    m_looks.start(lookPeriod);
}

bool SleepWatch::isJustAwake()
{
    look();
    return m_sinceWaking.isValid() && m_sinceWaking.elapsed() < wakingTime;
}

void SleepWatch::setClock(std::function<qint64()> timeAsleep)
{
    m_timeAsleep = std::move(timeAsleep);
    m_lastTimeAsleep = m_timeAsleep();
}

void SleepWatch::look()
{
    const qint64 now = m_timeAsleep();
    if (now - m_lastTimeAsleep > shortestSleep)
        m_sinceWaking.start();
    m_lastTimeAsleep = now;
}
