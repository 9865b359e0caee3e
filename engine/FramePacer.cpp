#include "FramePacer.h"

#include <algorithm>
#include <cmath>

static const qint64 second = 1000000000; // ns
static const int remembered = 20; // frames; of so many one came without delay
static const double tolerance = 0.75; // frame periods that picture and clock may differ
static const double longestDelay = 8; // frame periods that a busy machine may hold frames up
static const double farAhead = 2.5; // frame periods; what held up frames is over when they come
static const double longInterval = 1.5; // frame periods
static const int slowAfter = 8; // long intervals in a row; frames that were held up come in a burst

FramePacer::FramePacer(int numerator, int denominator)
    : m_numerator(numerator)
    , m_denominator(denominator)
{
}

qint64 FramePacer::timeOf(qint64 slot) const
{
    return slot * second * m_denominator / m_numerator;
}

qint64 FramePacer::slotAt(qint64 time) const
{
    return qMax(qint64(0), time - m_begin) / m_denominator * m_numerator / second;
}

qint64 FramePacer::skip(qint64 count)
{
    m_next += count;
    m_lags.clear();
    return m_next++;
}

qint64 FramePacer::slotOf(qint64 captured)
{
    const double period = double(second) * m_denominator / m_numerator;
    if (m_begin < 0)
        m_begin = m_previous = captured;
    const double interval = double(captured - m_previous) / period;
    m_previous = captured;
    m_longIntervals = interval > longInterval ? m_longIntervals + 1 : 0;
    const double lag = double(captured - m_begin) / period - double(m_next);
    if (lag > longestDelay || (m_longIntervals >= slowAfter && lag > tolerance))
        return skip(std::lround(lag));
    if (m_begun && lag < -farAhead)
        return -1;

    m_lags.append(lag);
    if (m_lags.size() < remembered)
        return m_next++;
    const double least = *std::min_element(m_lags.cbegin(), m_lags.cend());
    if (!m_begun) {
        // The first frame was held up itself: the movie began earlier.
        m_begun = true;
        m_begin += qint64(qMin(least, 0.0) * period);
        m_lags.clear();
        return m_next++;
    }
    if (least > tolerance)
        return skip(std::lround(least));
    if (least < -tolerance) {
        m_lags.clear();
        return -1;
    }
    m_lags.removeFirst();
    return m_next++;
}
