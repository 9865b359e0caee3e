#ifndef FRAMEPACER_H
#define FRAMEPACER_H

#include <QVector>

/**
 * Gives each frame of a camera its slot in a movie of constant rate.
 *
 * Frames arrive late by varying amounts when the machine is busy, so one arrival says little.
 * Were each frame rounded to the nearest slot, then a camera whose frames happen to come midway
 * between two slots would lose and repeat one with every little jitter. Instead frames take one
 * slot after the other, and the frame that was delayed least among the last few tells whether movie
 * and clock have drifted apart; a slot is skipped or a frame left out only then. Real gaps, longer
 * than a camera can catch up on, are followed at once, and so is a camera that slows down in the
 * dark.
 *
 * Times are nanoseconds. One thread at a time.
 */
class FramePacer {
public:
    /// @p numerator / @p denominator frames per second, both greater than 0.
    FramePacer(int numerator, int denominator);

    /// The slot of a frame that was taken at @p captured, counted from 0 for the first; -1 when it
    /// is to be left out. Slots grow, and those that are skipped belong to the frame before.
    qint64 slotOf(qint64 captured);

    /// When the movie began, by the camera's time: usually when its first frame was taken. May
    /// still move by a fraction of a frame period while the first frames come; -1 before.
    qint64 begin() const { return m_begin; }

    /// When the frame in @p slot begins, from the movie's begin; the end of the one before.
    qint64 timeOf(qint64 slot) const;

    /// The slot that stands for @p time (by the camera's time, not before the begin).
    qint64 slotAt(qint64 time) const;

    /// The first slot that is still free: as many frames long is the movie.
    qint64 nextSlot() const { return m_next; }

private:
    qint64 skip(qint64 count);

    int m_numerator;
    int m_denominator;
    qint64 m_begin = -1;
    bool m_begun = false; ///< m_begin is settled
    qint64 m_previous = -1;
    qint64 m_next = 0;
    int m_longIntervals = 0; ///< in a row
    QVector<double> m_lags; ///< of the latest frames behind their slots, in frame periods
};

#endif
