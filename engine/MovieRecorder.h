#ifndef MOVIERECORDER_H
#define MOVIERECORDER_H

#include "BoundedTask.h"
#include "FramePacer.h"
#include "GstHandles.h"
#include "MovieCoding.h"
#include "SoundTrack.h"

#include <gst/app/gstappsrc.h>
#include <gst/video/video.h>

#include <QString>

#include <condition_variable>
#include <memory>
#include <mutex>

/// When @p buffer of @p element was captured, on the system's monotonic clock, in nanoseconds.
GstClockTime capturedAt(GstElement *element, GstBuffer *buffer);

/**
 * One movie being written:
 *
 *   frames ! 4:2:0 ! constant rate ! queue ! coder ! queue \
 *                                              sound ! coder ! QuickTime muxer ! file
 *
 * A chain of its own, apart from the camera's and the microphone's: whatever happens in it, a slow
 * coder, a full disk, stays in it, and the live picture goes on. Frames and sound are handed over
 * with the times at which they were captured, by one clock; the movie begins with the first frame.
 * Sound never runs ahead of the picture and is replaced by silence when it stays away.
 *
 * The file can be played at any moment: space for its index is kept at the beginning and the index
 * is brought up to date twice a second, so a movie survives a crash or a full disk but for its last
 * moment.
 *
 * States: recording from start(); failed, when the chain reports an error, or finished, after
 * finish(): what arrives then is ignored.
 *
 * Threads: addFrame() on the camera's thread, addSound() on the microphone's, all else on the GUI
 * thread. Both return at once: frames that the chain cannot take are dropped, oldest first.
 */
class MovieRecorder {
public:
    /// Begins a movie of frames like @p format in @p path. Null when the file cannot be made.
    static std::shared_ptr<MovieRecorder> start(const QString &path, const GstVideoInfo &format,
                                                const MovieCoding &coding);
    ~MovieRecorder(); ///< finishes the movie
    MovieRecorder(const MovieRecorder &) = delete;
    MovieRecorder &operator=(const MovieRecorder &) = delete;

    void addFrame(GstBuffer *frame, GstClockTime captured);
    /// @p samples as SoundTrack has them.
    void addSound(const char *samples, qint64 count, GstClockTime captured);

    /// Completes the file. When that takes longer than @p limit the file stays as it is, playable
    /// up to its last moment. A movie without a single frame waits a moment for one; the file of
    /// one that stays empty is removed. Further calls do nothing.
    void finish(std::chrono::milliseconds limit);

private:
    struct Progress;

    explicit MovieRecorder(QString path, const GstVideoInfo &format);
    bool build(const GstVideoInfo &format, const MovieCoding &coding);
    void pushSound(qint64 position);

    const QString m_path;
    const std::shared_ptr<Progress> m_progress; ///< outlives the movie in a chain that hangs
    std::shared_ptr<GstElement> m_pipeline;
    GstObjectHandle<GstElement> m_frames;
    GstObjectHandle<GstElement> m_sound;
    bool m_copies; ///< frames would stay in the chain as they are, and the camera needs them back

    std::mutex m_mutex; ///< guards everything below
    std::condition_variable m_begun; ///< the first frame came
    bool m_open = false; ///< frames and sound are taken
    FramePacer m_pacer;
    int m_arrived = 0; ///< frames
    int m_leftOut = 0; ///< of them, by the pacer
    SoundTrack m_track;
};

#endif
