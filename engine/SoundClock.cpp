#include "SoundClock.h"

#include <algorithm>

static const qint64 millisecond = 1000000; // ns
static const qint64 remembered = 2000 * millisecond;
static const qint64 inaudible = 15 * millisecond;

qint64 SoundClock::heardAt(qint64 counted, qint64 length, qint64 arrived)
{
    const bool isFirst = m_delays.empty();
    m_delays.push_back({arrived, arrived - counted - length});
    while (m_delays.front().arrived < arrived - remembered)
        m_delays.pop_front();
    const qint64 least =
        std::min_element(m_delays.cbegin(), m_delays.cend(), [](const Delay &a, const Delay &b) {
            return a.delay < b.delay;
        })->delay;
    if (isFirst || qAbs(least - m_offset) > inaudible)
        m_offset = least;
    return counted + m_offset;
}
