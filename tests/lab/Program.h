#ifndef PROGRAM_H
#define PROGRAM_H

#include "Desktop.h"

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <csignal>

// One run, or several runs after each other, of the camera program for one user of the lab: home
// and temporary folder are this object's own, so what a test finds on disk comes from its own
// clicks. The program is ended, with kill if need be, when the object goes.
class Program {
public:
    explicit Program(const QString &executable);
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    void setEnvironment(const QString &name, const QString &value);

    // The language that the user's whiteboard application is set to, for the next start.
    void setLanguage(const QString &code);

    // Starts the program without waiting for a window.
    void start();
    // As the session does it when the user logs out.
    void terminate() { m_process.terminate(); }
    // As a machine that has no time for it, and then has again.
    void stop() const { ::kill(pid_t(pid()), SIGSTOP); }
    void goOn() const { ::kill(pid_t(pid()), SIGCONT); }
    // As the machine does it when memory runs out.
    void kill();
    bool isRunning() const;
    // True when the program has ended by itself within the limit.
    bool hasEndedWithin(int milliseconds);
    // Of one that has crashed, the signal.
    int exitStatus() const { return m_process.exitCode(); }
    bool hasCrashed() const { return m_process.exitStatus() != QProcess::NormalExit; }
    qint64 pid() const { return m_process.processId(); }
    QString output() { return QString::fromUtf8(m_process.readAll()); }

    // Shared with another object's program, it is the same user's.
    QString temporaryFolder() const { return m_folder.filePath("tmp"); }
    QString home() const { return m_folder.filePath("home"); }
    QString settingsFile() const { return home() + "/.halcyra_orvantacc.ini"; }
    // Where everything captured lies until it is saved.
    QString temporaryArea() const;
    // File names in the temporary area, hidden ones too; the oldest first.
    QStringList captured() const;
    // What "Paste" left for the whiteboard software last; empty when there is nothing.
    QByteArray handedOver() const;
    // Lines such as "AutoShoot=0", for the next start.
    bool writeSettings(const QByteArray &lines) const;
    // Where "Yes" puts things today when nothing else is set.
    QString saveFolder() const;

private:
    QTemporaryDir m_folder;
    QString m_executable;
    QProcessEnvironment m_environment;
    QProcess m_process;
};

#endif // PROGRAM_H
