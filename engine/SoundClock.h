#ifndef SOUNDCLOCK_H
#define SOUNDCLOCK_H

#include <QByteArray>
#include <QVector>

#include <deque>

/**
 * When pieces of sound were heard, told from what the microphone says and from when they arrive.
 *
 * A microphone counts its samples exactly, but by a clock of its own that begins somewhere, drifts,
 * and knows nothing of samples that were lost on a busy machine. Arrivals go by the right clock,
 * but late by varying amounts. A piece cannot have been lost before it was heard, nor arrive before
 * that: of a piece and those that come after it, the one that was delayed least tells how the two
 * clocks lay when it was heard. So a piece that seems late waits for a moment, until it is known
 * whether it was, or whether samples before it are missing. A correction is made only when it would
 * be heard, so that sound stays in one piece however late it arrives.
 *
 * Times are nanoseconds. One thread at a time.
 */
class SoundClock {
public:
    struct Piece {
        QByteArray samples;
        qint64 heard; ///< when it began
    };

    /// Takes @p samples that by the microphone's count began at @p counted and last @p length, and
    /// that have just arrived, at @p arrived.
    void add(const QByteArray &samples, qint64 counted, qint64 length, qint64 arrived);

    /// The pieces, oldest first, of which is known by now when they were heard. None waits for
    /// longer than a second of arrivals.
    QVector<Piece> take();

    /// All that wait, placed by what is known: nothing more will come.
    QVector<Piece> takeAll();

    /// All sound up to @p time has arrived, unless it was lost, and was taken.
    bool isHeardUntil(qint64 time) const;

private:
    struct Arrival {
        QByteArray samples;
        qint64 counted;
        qint64 arrived;
        qint64 delay; ///< of the system's clock before the microphone's, as this piece has it
    };

    bool isPlaced(qint64 delay) const;
    qint64 leastDelay() const;
    Piece takeFirst();

    std::deque<Arrival> m_waiting;
    bool m_begun = false;
    qint64 m_offset = 0; ///< of the system's clock before the microphone's, once begun
    qint64 m_countedUntil = 0; ///< by the microphone's count, end of the newest piece
};

#endif
