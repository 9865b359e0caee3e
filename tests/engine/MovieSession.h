#ifndef MOVIESESSION_H
#define MOVIESESSION_H

#include "LiveVideoData.h"
#include "MovieFile.h"
#include "SpareTime.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>

/**
 * The engine in front of a lab camera that beeps into the microphone, for tests that make movies
 * with it. What goes wrong in here fails the running test.
 */
class MovieSession {
protected:
    MovieSession() = default;
    ~MovieSession() = default;
    Q_DISABLE_COPY(MovieSession)

    /// Plugs a camera of @p size in, for all tests of a program.
    void setUpCamera(const QString &size = QStringLiteral("1280x720"));
    /// A new engine with its camera open.
    void open();
    /// Both are unplugged and plugged in again: without its microphone the camera's beep has lost
    /// its way. Ends the engine.
    void plugMicrophoneIn();

    QString newPath(); ///< becomes m_path
    void begin(); ///< a movie in a new path
    void end();
    void record(int milliseconds); ///< a movie in a new path, that long
    /// The whole file can be played, by two families of players, and lasts so many seconds; more
    /// or less by what the machine was late.
    void verifyPlayable(const MovieFile &movie, double from, double to) const;
    /// Seconds since open(); 0 on a machine that has time.
    double lateness() const { return m_time ? m_time->lateness() : 0; }
    /// Frames that may be missing: of an encoder without time, which gets every second one or
    /// fewer; else none.
    int leftOut(const MovieFile &movie) const { return lateness() > 0 ? movie.frames().size() : 0; }

    std::unique_ptr<LiveVideoData> m_engine;
    QTemporaryDir m_folder;
    QString m_path; ///< of the newest movie

private:
    QString m_size; ///< of the camera's picture, as "WIDTHxHEIGHT"
    std::unique_ptr<SpareTime> m_time;
    int m_movies = 0;
};

#endif
