#ifndef UVCPLUG_H
#define UVCPLUG_H

#include <QProcess>
#include <QString>
#include <QStringList>

/**
 * A camera that is a program, in the hand of a test: plugged into one of the ports of the kernel
 * that the test runs on and pulled out again. Every wait has a limit, which is meant for an
 * emulated machine; a false means that what was waited for did not come.
 */
class UvcPlug {
public:
    /// @p modes as "MJPG:640x480:30".
    UvcPlug(const QString &serial, const QStringList &modes);
    /// Pulls it out and ends it.
    ~UvcPlug();
    UvcPlug(const UvcPlug &) = delete;
    UvcPlug &operator=(const UvcPlug &) = delete;

    /// Until both its nodes are there.
    bool plugIn(int port);
    /// Until its nodes are gone; one that is held open goes all the same.
    bool pullOut();
    /// See UvcCamera; until it has heard it.
    bool command(const QString &line);
    /// Whether it has said, or does soon, such a line since the last command.
    bool says(const QString &line);

    /// "video0", the picture's first; empty while it is not plugged in.
    QStringList nodes() const;

private:
    bool waitFor(const QString &line, int limit);

    QProcess m_process;
    QStringList m_said; ///< since the last command
    int m_port = -1;
};

#endif
