#ifndef MOVIEMAKER_H
#define MOVIEMAKER_H

#include "FrameTap.h"
#include "Microphone.h"
#include "MovieCoding.h"

#include <gst/video/video.h>

#include <QSize>
#include <QString>

#include <memory>

/**
 * The movies of one engine: knows before a movie begins whether one can be made, and brings camera,
 * microphone and file together while one is recorded.
 *
 * GUI thread only; nothing blocks without a limit.
 */
class MovieMaker {
public:
    MovieMaker();
    ~MovieMaker(); ///< completes a movie that is being recorded
    MovieMaker(const MovieMaker &) = delete;
    MovieMaker &operator=(const MovieMaker &) = delete;

    /// For the chain of the next camera.
    std::shared_ptr<FrameTap> tap() const { return m_tap; }

    /// A camera was opened: looks for a way to write its movies, on the side. What was found for a
    /// size (px) and rate (frames a second) holds as long as they do.
    void prepare(const QSize &size, double rate);

    /// Begins a movie of frames like @p format, unless one is being recorded. Does nothing when
    /// there is no way to write it or no microphone; leaves within 1.6 s.
    void record(const QString &path, const GstVideoInfo &format);

    /// Completes the movie, within 5 s.
    void stop();

    bool hasPicture() const; ///< frames can be written; false after a movie that could not begin
    bool hasSound() const; ///< false after a microphone could not be opened
    bool isListening() const; ///< a microphone is open
    void devicesChanged(); ///< what could not be opened may work now

private:
    MovieCoding coding() const;

    const std::shared_ptr<FrameTap> m_tap;
    std::unique_ptr<MovieCodingSearch> m_search; ///< null until the first camera
    QSize m_searchedSize;
    double m_searchedRate = 0;
    std::shared_ptr<MovieRecorder> m_recorder; ///< null while no movie is recorded
    std::unique_ptr<Microphone> m_microphone; ///< likewise
    bool m_pictureFailed = false; ///< no coder was known in time, or no file could be made
    bool m_microphoneFailed = false;
};

#endif
