#ifndef LESSON_H
#define LESSON_H

#include "Session.h"
#include "SpareTime.h"

#include <QElapsedTimer>
#include <QHash>
#include <QTemporaryDir>

#include <memory>

class FaultTrial;

/**
 * A lesson that is brought to a moment at which something goes wrong, and what must be true of the
 * captures ever after. One object goes through several lessons of one teacher, one after the other.
 * Every complaint is a sentence, and none an empty string.
 *
 * Needs a lab with the camera cam1:640x480.
 */
class Lesson {
public:
    enum Moment { Live, PhotoBeingWritten, Recording, Series, Playback, SavingAtExit };
    static constexpr int moments = SavingAtExit + 1;
    static const char *nameOf(Moment moment);

    Lesson();

    Session &user() { return *m_user; }
    Program &program() { return m_user->program(); }

    /// Starts the program, with captures of an earlier lesson in its area, up to the live picture.
    /// It must be the first copy, whatever the one before it came to.
    QString begin();
    /// Goes on to somewhere within the moment.
    QString goTo(Moment moment, FaultTrial &trial);
    Moment moment() const { return m_moment; }

    /// To be called right before the fault comes, after which a movie may be over.
    void faultComes();
    /// Once the program has ended: no process of it is left, every capture that was complete is in
    /// its place, and what is there is whole. A program that was killed may lack the last moment of
    /// a movie, and a photo of that moment.
    QString check(FaultTrial &trial, bool isKilled);

private:
    QStringList filesKept() const;
    QString findKept(const QString &name) const;
    void noteCaptures();
    void addManyPhotos();
    bool startPlaying();
    QString takePhoto();
    QString checkSeenPhoto() const;
    QString record(FaultTrial &trial);
    QString takeSeries(FaultTrial &trial);
    QString play(FaultTrial &trial);
    QString saveAtExit(FaultTrial &trial);
    QString checkMovie(bool isKilled) const;
    QString orphans() const;
    void tidyUp();

    std::unique_ptr<QTemporaryDir> m_saved; ///< on another disk than what is captured
    std::unique_ptr<Session> m_user;
    QTemporaryDir m_earlier; ///< the captures of an earlier lesson
    int m_lessons = 0;
    Moment m_moment = Live;
    QHash<QString, QByteArray> m_complete; ///< contents of captures, by their names
    int m_seenPhoto = -1; ///< the camera's number of a photo that was seen; -1 without one
    QString m_movie; ///< that is being recorded; bare name
    QElapsedTimer m_sincePress; ///< of "Movie"
    QElapsedTimer m_sinceBegun; ///< since it was seen that it is being recorded
    double m_lengthAtFault = 0; ///< s, at least
    std::unique_ptr<SpareTime> m_time;
};

#endif
