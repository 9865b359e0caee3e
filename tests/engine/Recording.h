#ifndef RECORDING_H
#define RECORDING_H

#include <QElapsedTimer>
#include <QProcess>
#include <QStringList>
#include <QTimer>

/// Another program (moviemaker), which records a movie until it is ended in some way.
class Recording {
public:
    /// @p launcher is a command that is put before the program.
    Recording(const QString &camera, const QString &path, const QStringList &launcher = {});
    ~Recording(); ///< kills it
    Recording(const Recording &) = delete;
    Recording &operator=(const Recording &) = delete;

    /// Kills it as soon as the movie is @p moment ms old and its file knows of a picture, which a
    /// busy machine takes its time for.
    void killAt(int moment) { m_moment = moment; }
    /// Lets the program run for so many percent of the time only.
    void throttle(int percent);
    void halt(); ///< stops the program where it is
    void goOn();

    QString path() const { return m_path; }
    bool hasBegun() const { return m_begun; }
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    bool hasEnded() const { return m_begun && m_process.state() == QProcess::NotRunning; }
    /// How often the program said that the movie cannot go on.
    int failures() const { return int(m_said.count("ended")); }
    double age() const { return double(m_timer.elapsed()) / 1000; } ///< s, since it has begun
    /// In seconds, how old the movie was when it was killed.
    double length() const { return m_length; }

    /// Ends the movie; the program ends by itself then.
    void end();
    /// Ends the movie and waits for the end of the program. False when that is none in order.
    bool stop();

private:
    void read();
    void begin();
    bool hasIndex() const;
    void killWhenIndexed();

    const QString m_path;
    QProcess m_process;
    QByteArray m_said;
    bool m_begun = false;
    int m_moment = 0; ///< ms
    int m_percent = 0;
    QTimer m_cycle;
    QTimer m_pause;
    QElapsedTimer m_timer;
    double m_length = 0;
};

#endif
