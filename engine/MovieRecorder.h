#ifndef MOVIERECORDER_H
#define MOVIERECORDER_H

#include "BoundedTask.h"
#include "FrameFeed.h"
#include "FrameFitter.h"
#include "FramePacer.h"
#include "GstHandles.h"
#include "MovieEncoding.h"
#include "MovieProgress.h"
#include "SoundClock.h"
#include "SoundTrack.h"

#include <gst/app/gstappsrc.h>
#include <gst/video/video.h>

#include <QString>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

/// When @p buffer of @p element was captured, on the system's monotonic clock, in nanoseconds.
GstClockTime capturedAt(GstElement *element, GstBuffer *buffer);

/**
 * One movie being written, in a pipeline of its own (MoviePipeline), apart from the camera's and
 * the microphone's: whatever happens in it, a slow encoder, a full disk, stays in it, and the live
 * picture goes on. Frames and sound are handed over with the times at which they were captured, by
 * one clock; the movie begins with the first frame and lasts until finish(). Sound never runs ahead
 * of the picture and is replaced by silence when it stays away.
 *
 * An encoder that is too slow gets fewer frames (FrameQueue); the ones before them are shown for
 * longer. The sound stays complete, and so does the time that the movie spans.
 *
 * The file can be played at any moment: space for its index is kept at the beginning and the index
 * is brought up to date twice a second, so a movie survives a crash or a full disk but for its last
 * moment.
 *
 * States: recording from start(); failed, when the pipeline reports an error; finished, after
 * finish(). What arrives then is ignored.
 *
 * Threads: addFrame() on the camera's thread, addSound() on the microphone's, start() on any, all
 * else on the GUI thread. addFrame() and addSound() return at once, but for a frame that has to be
 * made to fit.
 */
class MovieRecorder {
public:
    /// Begins a movie of frames like @p format in @p path. Null when the file cannot be made. May
    /// hang in the driver of an encoder or of a disk. @p failed is called once, on a thread of the
    /// pipeline's and not after finish(), when the movie cannot go on.
    static std::shared_ptr<MovieRecorder> start(const QString &path, const GstVideoInfo &format,
                                                const MovieEncoding &encoding,
                                                std::function<void()> failed = nullptr);
    ~MovieRecorder(); ///< finishes the movie
    MovieRecorder(const MovieRecorder &) = delete;
    MovieRecorder &operator=(const MovieRecorder &) = delete;

    /// @p caps are those of the frame; null says that they are the movie's. One of another format
    /// is made to fit; one that cannot be read is left out.
    void addFrame(GstBuffer *frame, GstClockTime captured, GstCaps *caps = nullptr);
    /// @p count sample frames as SoundTrack has them, handed over as soon as they were heard;
    /// @p captured is when the first was, by the microphone's own count (ns).
    void addSound(const char *samples, qint64 count, GstClockTime captured);

    /// Completes the file, whose last moment is now: sound of it that is still on its way is
    /// awaited for a moment. Waits for all that up to @p limit, and no longer when nothing goes on;
    /// the file is then completed on the side, see MovieCompletion, and can be played up to its
    /// last moment meanwhile. A movie without a single frame waits a moment for one; the file of
    /// one that stays empty is removed. True when the file is complete. Further calls do nothing.
    bool finish(std::chrono::milliseconds limit);

    /// It was the encoder that made the movie fail, not the file.
    bool encoderFailed() const;

private:
    MovieRecorder(QString path, const GstVideoInfo &format, std::function<void()> failed);
    bool build(const GstVideoInfo &format, const MovieEncoding &encoding);
    GstMiniHandle<GstBuffer> inSlots(GstBuffer *frame, qint64 slot, qint64 end) const;
    void keepEarly(const QVector<SoundClock::Piece> &sound);
    void layIn(const QVector<SoundClock::Piece> &sound);
    void pushSound(qint64 position);
    void awaitSound(std::unique_lock<std::mutex> &lock, qint64 end,
                    std::chrono::steady_clock::time_point deadline);
    void endSound(qint64 end);
    qint64 endOfMovie() const;
    void endPicture(qint64 end);
    BoundedTask<void> completing();
    bool complete(std::chrono::steady_clock::time_point deadline);

    const QString m_path;
    const std::shared_ptr<MovieProgress>
        m_progress; ///< outlives the movie in a pipeline that hangs
    std::shared_ptr<GstElement> m_pipeline;
    GstObjectHandle<GstElement> m_frames;
    GstObjectHandle<GstElement> m_sound;
    std::shared_ptr<FrameFeed> m_feed;
    /// Frames are copied even if they need not wait: the pipeline keeps those that it need not
    /// convert, while the camera needs them back.
    const bool m_copies;

    std::mutex m_mutex; ///< guards everything below
    std::condition_variable m_begun; ///< the first frame came
    std::condition_variable m_heard; ///< a piece of sound came
    bool m_open = false; ///< frames are taken
    bool m_listens = false; ///< sound is taken
    FramePacer m_pacer;
    FrameFitter m_fitter;
    GstMiniHandle<GstBuffer> m_newest; ///< the newest frame that has a slot
    qint64 m_newestSlot = -1;
    qint64 m_newestCaptured = 0; ///< ns
    int m_arrived = 0; ///< frames
    int m_leftOut = 0; ///< of them, by the pacer
    SoundClock m_soundClock;
    qint64 m_soundArrived = -1; ///< ns, when the newest piece of sound came
    QVector<SoundClock::Piece> m_early; ///< sound that came before the first frame
    SoundTrack m_track;
};

#endif
