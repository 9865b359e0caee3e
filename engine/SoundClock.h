#ifndef SOUNDCLOCK_H
#define SOUNDCLOCK_H

#include <QtGlobal>

#include <deque>

/**
 * When pieces of sound were heard, told from what the microphone says and from when they arrive.
 *
 * A microphone counts its samples exactly, but by a clock of its own that begins somewhere and
 * drifts. Arrivals go by the right clock, but late by varying amounts when the machine is busy. The
 * piece that was delayed least among those of the last seconds tells how the two clocks lie; a
 * correction is made only when that has changed, so that sound stays in one piece however late it
 * arrives.
 *
 * Times are nanoseconds. One thread at a time.
 */
class SoundClock {
public:
    /// When a piece was heard that by the microphone's count began at @p counted and is @p length
    /// long, and that has arrived at @p arrived.
    qint64 heardAt(qint64 counted, qint64 length, qint64 arrived);

private:
    struct Delay {
        qint64 arrived;
        qint64 delay;
    };

    std::deque<Delay> m_delays; ///< of the last seconds
    qint64 m_offset = 0; ///< of the system's clock before the microphone's
};

#endif
