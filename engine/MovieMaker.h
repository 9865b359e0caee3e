#ifndef MOVIEMAKER_H
#define MOVIEMAKER_H

#include "EncoderSearch.h"
#include "FrameTap.h"
#include "MicrophoneFinder.h"

#include <gst/video/video.h>

#include <QSize>
#include <QString>

#include <functional>
#include <memory>

/// How the last attempt to begin a movie ended.
enum class MovieOutcome {
    None, ///< there was none, or something has changed since
    Begun,
    NoCamera,
    NoMicrophone,
    NoEncoder, ///< for the picture or the sound
    NoFile, ///< it cannot be made, or encoder or disk did not begin in time
};

/**
 * The movies of one engine: finds out how they can be written before one begins, and brings camera,
 * microphone and file together while one is recorded.
 *
 * A movie begins with record() and goes on until stop(). One that cannot go on, because the disk is
 * full or its encoder fails, still counts as being recorded: stop() completes what there is.
 *
 * GUI thread only; every wait has a limit, and ends with that of the operation that it is part of
 * (PatientCall).
 */
class MovieMaker {
public:
    /// @p ended is called when a movie that is being recorded cannot go on, once for each such
    /// movie, from the event loop and never from within an operation. @p microphones must outlive
    /// this.
    MovieMaker(MicrophoneFinder &microphones, std::function<void()> ended);
    /// Completes a movie that is being recorded, and waits a while for files that are still being
    /// completed.
    ~MovieMaker();
    MovieMaker(const MovieMaker &) = delete;
    MovieMaker &operator=(const MovieMaker &) = delete;

    /// For the pipeline of the next camera.
    std::shared_ptr<FrameTap> tap() const { return m_tap; }

    /// A camera is opened: looks for a way to write its movies, on the side. What was found for a
    /// size (px) and rate (frames a second) holds as long as they do.
    void prepare(const QSize &size, double rate);

    /// Begins a movie of frames like @p format in the new file @p path, unless one is being
    /// recorded; outcome() then says how that went. Leaves no file when it does not begin. For a
    /// start that is slow or hangs the limit is the operation's.
    void record(const QString &path, const GstVideoInfo &format);
    /// A movie was asked for that cannot begin, @p why, without having been tried.
    void refuse(MovieOutcome why);

    /// Completes the movie. Waits 4 s for the file, which is then completed on the side
    /// (MovieCompletion), and 1 s for the microphone to close. Nothing without a movie.
    void stop();

    /// Of the last record(), until stop() or devicesChanged().
    MovieOutcome outcome() const { return m_outcome; }
    bool isRecording() const { return m_recorder != nullptr; }
    void devicesChanged(); ///< what could not be opened may work now

private:
    class Watch;

    MovieOutcome begin(const QString &path, const GstVideoInfo &format);

    MicrophoneFinder &m_microphones;
    const std::shared_ptr<FrameTap> m_tap;
    std::unique_ptr<EncoderSearch> m_search; ///< null until the first camera
    QSize m_searchedSize;
    double m_searchedRate = 0;
    const std::unique_ptr<Watch> m_watch;
    std::shared_ptr<MovieRecorder> m_recorder; ///< null while no movie is recorded
    std::shared_ptr<Microphone> m_microphone; ///< likewise
    QByteArray m_encoder; ///< that the picture of the last movie was written with
    MovieOutcome m_outcome = MovieOutcome::None;
};

#endif
