#include "SoundClock.h"

#include <algorithm>

static const qint64 millisecond = 1000000; // ns
// What arrives late for longer than this is taken for sound with a gap before it.
static const qint64 patience = 1000 * millisecond;
// Before the first piece. A movie has no index, and is lost when the program is killed, until there
// is sound in it.
static const qint64 firstPatience = 200 * millisecond;
static const qint64 inaudible = 15 * millisecond;

void SoundClock::add(const QByteArray &samples, qint64 counted, qint64 length, qint64 arrived)
{
    m_waiting.push_back({samples, counted, arrived, arrived - counted - length});
    m_countedUntil = counted + length;
}

bool SoundClock::isHeardUntil(qint64 time) const
{
    return m_begun && m_waiting.empty() && m_countedUntil + m_offset >= time;
}

qint64 SoundClock::leastDelay() const
{
    return std::min_element(
               m_waiting.cbegin(), m_waiting.cend(),
               [](const Arrival &a, const Arrival &b) { return a.delay < b.delay; })
        ->delay;
}

// Later arrivals can only say that a piece was heard earlier.
bool SoundClock::isPlaced(qint64 delay) const
{
    const qint64 waited = m_waiting.back().arrived - m_waiting.front().arrived;
    if (!m_begun)
        return waited >= firstPatience;
    return delay <= m_offset + inaudible || waited >= patience;
}

SoundClock::Piece SoundClock::takeFirst()
{
    const qint64 least = leastDelay();
    if (!m_begun || qAbs(least - m_offset) > inaudible)
        m_offset = least;
    m_begun = true;
    Piece piece{m_waiting.front().samples, m_waiting.front().counted + m_offset};
    m_waiting.pop_front();
    return piece;
}

QVector<SoundClock::Piece> SoundClock::take()
{
    QVector<Piece> pieces;
    while (!m_waiting.empty() && isPlaced(leastDelay()))
        pieces.append(takeFirst());
    return pieces;
}

QVector<SoundClock::Piece> SoundClock::takeAll()
{
    QVector<Piece> pieces;
    while (!m_waiting.empty())
        pieces.append(takeFirst());
    return pieces;
}
