#include "SpareTime.h"

#include <QFile>

#include <chrono>
#include <sched.h>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

static constexpr double plenty = 0.2; // of the processors' time
static constexpr int noticed = 15; // ms; half the period of a camera at 30 frames a second

SpareTime::SpareTime()
{
    cpu_set_t allowed;
    CPU_ZERO(&allowed);
    sched_getaffinity(0, sizeof(allowed), &allowed);
    for (int i = 0; i < CPU_SETSIZE; ++i)
        if (CPU_ISSET(i, &allowed))
            m_watches.emplace_back(&SpareTime::watch, this, i);
}

SpareTime::~SpareTime()
{
    m_ended = true;
    for (std::thread &watch : m_watches)
        watch.join();
}

void SpareTime::watch(int processor)
{
    cpu_set_t mine;
    CPU_ZERO(&mine);
    CPU_SET(processor, &mine);
    sched_setaffinity(0, sizeof(mine), &mine);
    while (!m_ended) {
        const auto due = steady_clock::now() + milliseconds(5);
        std::this_thread::sleep_until(due);
        const auto late = std::chrono::duration_cast<milliseconds>(steady_clock::now() - due);
        int longest = m_longestWait;
        while (late.count() > longest
               && !m_longestWait.compare_exchange_weak(longest, int(late.count()))) { }
    }
}

bool SpareTime::isPlenty() const
{
    return idleShare() > plenty && longestWait() < noticed;
}

double SpareTime::idleShare() const
{
    const Times now = read();
    return double(now.idle - m_begin.idle) / double(qMax(qint64(1), now.all - m_begin.all));
}

// The first line counts for all processors: user, nice, system, idle, waiting for a disk, and
// interrupts; what a machine around this one took, at the end, was no idle time either. What is
// nice gives way to a test at once, as if nothing ran.
SpareTime::Times SpareTime::read()
{
    QFile file("/proc/stat");
    const QList<QByteArray> fields = file.open(QIODevice::ReadOnly)
        ? file.readLine().simplified().split(' ')
        : QList<QByteArray>();
    Times times;
    for (int i = 1; i < fields.size() && i <= 8; ++i)
        times.all += fields[i].toLongLong();
    times.idle =
        fields.value(2).toLongLong() + fields.value(4).toLongLong() + fields.value(5).toLongLong();
    return times;
}
