#ifndef FRAMEQUEUE_H
#define FRAMEQUEUE_H

#include "GstHandles.h"

#include <QtGlobal>

#include <array>
#include <deque>

/**
 * The frames that wait for an encoder, and the decision which of them it gets.
 *
 * An encoder that keeps up gets every frame. One that falls behind gets every second, every third
 * and so on, as many as it has time for, and what already waits is thinned out alike: the frames
 * that are left out lie evenly between those that are kept, and the encoder never works on a
 * picture that is much older than the live one. An encoder that stands still finds, when it goes
 * on, frames from all over the time in between. The queue holds one second and 64 MB at most.
 *
 * Frames are known by their slot, counted in frame periods from the movie's begin; slots grow.
 * One thread at a time.
 */
class FrameQueue {
public:
    struct Waiting {
        qint64 slot;
        GstMiniHandle<GstBuffer> frame;
    };

    /// Of a camera that sends a frame of @p bytes every @p period ns, both greater than 0.
    FrameQueue(qint64 period, qint64 bytes);

    /// Whether the frame in @p slot is one that the encoder should get.
    bool wants(qint64 slot) const;

    /// Takes a frame that is wanted over; this may thin out what waits, never the new one alone.
    void add(qint64 slot, GstMiniHandle<GstBuffer> frame);

    /// The last frame of the movie, which is kept whether it is wanted or not.
    void addLast(qint64 slot, GstMiniHandle<GstBuffer> frame);

    /// The oldest frame, which goes to the encoder now. Only when there is one.
    Waiting take();

    /// The encoder had to work on its last frame for so many nanoseconds.
    void worked(qint64 time);

    bool isEmpty() const { return m_waiting.empty(); }
    int size() const { return int(m_waiting.size()); }
    qint64 newest() const { return m_newest; } ///< slot of the last frame kept, -1 without one
    int stride() const { return m_stride; } ///< every how manieth frame is wanted; 1 is every one

private:
    qint64 timePerFrame() const;
    void widen(int stride);
    void narrow(qint64 slot);

    const qint64 m_period;
    const int m_most; ///< frames
    std::deque<Waiting> m_waiting;
    int m_stride = 1;
    qint64 m_taken = -1; ///< slot of the last frame that was taken
    qint64 m_newest = -1; ///< slot of the last frame that was kept
    qint64 m_changed = 0; ///< slot at which the stride was changed last
    std::array<qint64, 7> m_times = {}; ///< ns that the encoder worked on its latest frames
    size_t m_timed = 0;
};

#endif
