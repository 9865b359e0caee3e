#include "SoundTrack.h"

#include <QtGlobal>

static const qint64 inaudible =
    SoundTrack::rate / 100; // sample frames, 10 ms: a shorter gap or overlap

qint64 SoundTrack::positionAt(qint64 time)
{
    const qint64 second = 1000000000; // ns
    return time / second * rate + time % second * rate / second;
}

void SoundTrack::add(const char *samples, qint64 count, qint64 position)
{
    const qint64 gap = position - end();
    if (gap > inaudible)
        coverUntil(position);
    const qint64 overlap = gap < -inaudible ? qMin(-gap, count) : 0;
    m_waiting.append(samples + overlap * bytesPerSampleFrame,
                     int((count - overlap) * bytesPerSampleFrame));
}

void SoundTrack::coverUntil(qint64 position)
{
    if (position > end())
        m_waiting.append(int((position - end()) * bytesPerSampleFrame), '\0');
}

QByteArray SoundTrack::take(qint64 position)
{
    const qint64 count = qBound(qint64(0), position - m_taken, end() - m_taken);
    QByteArray samples = m_waiting.left(int(count * bytesPerSampleFrame));
    m_waiting.remove(0, samples.size());
    m_taken += count;
    return samples;
}
