#ifndef FRAMEFEED_H
#define FRAMEFEED_H

#include "FrameQueue.h"

#include <gst/app/gstappsrc.h>

#include <chrono>
#include <memory>
#include <mutex>

/**
 * Gives the frames that wait to a pipeline, one at a time, whenever it has worked off the one
 * before. Lives as long as the pipeline's source: what waits when the recording is over still goes
 * into the file.
 *
 * Threads: any.
 */
class FrameFeed {
public:
    /// Feeds @p source with frames of @p bytes that come every @p period ns.
    static std::shared_ptr<FrameFeed> attach(GstAppSrc *source, qint64 period, qint64 bytes);

    bool wants(qint64 slot) const; ///< whether to add the frame in this slot
    bool isHungry() const; ///< the next frame is worked on at once
    void add(qint64 slot, GstMiniHandle<GstBuffer> frame);
    /// The last frame, wanted or not (null for none): the stream ends when what waits is done.
    void end(qint64 slot, GstMiniHandle<GstBuffer> frame);
    void stop(); ///< nothing can be worked on any more: forgets what waits

    qint64 newestKept() const; ///< slot of the newest frame that will be seen, -1 without one
    int fed() const; ///< frames that the pipeline got

private:
    FrameFeed(GstAppSrc *source, qint64 period, qint64 bytes);
    static void onHungry(GstAppSrc *source, guint, gpointer feed);
    void giveOne();

    GstAppSrc *const m_source; ///< keeps this alive, not the other way round

    mutable std::mutex m_mutex; ///< guards everything below
    FrameQueue m_queue;
    bool m_hungry = false; ///< the source asked when no frame waited
    bool m_ending = false;
    bool m_stopped = false;
    int m_fed = 0;
    std::chrono::steady_clock::time_point m_fedAt; ///< when it got its last frame
};

#endif
