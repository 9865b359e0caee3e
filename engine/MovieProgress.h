#ifndef MOVIEPROGRESS_H
#define MOVIEPROGRESS_H

#include "GstHandles.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

/**
 * How far the pipeline of a movie has come, heard on its bus and counted at its pads. Outlives the
 * movie in a pipeline that hangs.
 *
 * Threads: any.
 */
class MovieProgress {
public:
    /// @p failed is called once, on a thread of the pipeline's, when the movie cannot go on.
    explicit MovieProgress(std::function<void()> failed);

    /// Hears of everything that happens in @p pipeline, as MoviePipeline makes it, from now on and
    /// for as long as it lives. Also has its threads that convert and encode yield to others.
    static void watch(const std::shared_ptr<MovieProgress> &progress, GstElement *pipeline);

    /// Failures from now on are told to nobody. One that is being told has been told on return.
    void beSilent();

    bool hasFailed() const;
    bool encoderFailed() const; ///< it was the encoder of the picture that made the movie fail

    int encoded() const { return m_encoded; } ///< frames
    /// Grows as long as anything goes on.
    int steps() const { return m_written + m_encoded; }

    /// Waits for the end of the stream, for as long as anything goes on; true when the file is
    /// whole.
    bool waitForEnd();

private:
    void fail(GstMessage *message);
    void end();
    static GstBusSyncReply onMessage(GstBus *bus, GstMessage *message, gpointer shared);

    std::atomic<int> m_written{0}; ///< pieces of the file
    std::atomic<int> m_encoded{0}; ///< frames

    mutable std::mutex m_mutex; ///< guards everything below
    std::condition_variable m_changed;
    std::function<void()> m_onFailure; ///< null once it was called, or nobody wants to know
    bool m_ended = false;
    bool m_failed = false;
    bool m_encoderFailed = false;
};

#endif
