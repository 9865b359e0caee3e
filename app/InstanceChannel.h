#ifndef INSTANCECHANNEL_H
#define INSTANCECHANNEL_H

#include "InstanceLock.h"
#include "OpenFolder.h"

#include <QLocalServer>
#include <QObject>
#include <QString>

class QDeadlineTimer;
class QLocalSocket;

/**
 * How the copies of the program that one user starts find each other: whoever gets the lock is the
 * first and listens on a local socket, every other one can send it a message.
 *
 * On the wire a message is its length in bytes (32 bits, high byte first) and its UTF-8 text; the
 * first answers "ok" once it has all of it. It never trusts what comes in: messages are limited in
 * length, clients in number and in time.
 *
 * GUI thread only. The first listens from the moment it becomes first, but answers from its event
 * loop, or when it is told to.
 */
class InstanceChannel : public QObject {
    Q_OBJECT

public:
    static constexpr int maxMessageBytes = 64 * 1024;
    static constexpr int maxClients = 16;
    static constexpr int clientTimeMs = 5000; ///< what a client may take for its message

    /// id names the program; it becomes part of file names. An empty folder is one where nobody can
    /// be met: this copy is then neither first nor second. So is one where nothing can be locked.
    InstanceChannel(const QString &id, const QString &folder);

    /// True when this copy is the first, as it may become by this very call.
    bool becomeFirst();
    /// True when another copy is the first.
    bool isTaken();
    /// True only when the first has answered that it has the message. Waits up to timeoutMs for
    /// that, also for a first that has its lock but does not listen yet. False at once when there
    /// is no other copy, and then this one is the first.
    bool send(const QString &message, int timeoutMs);

    /// Answers, in the first, whoever waits for it now. Does not wait, and handles no event.
    void answerWaiting();

Q_SIGNALS:
    /// In the first only: somebody's message has come in and was answered.
    void messageReceived(const QString &message);

private:
    void listen();
    void welcomeClients();
    void readFrom(QLocalSocket *client);
    static bool deliver(QLocalSocket &first, const QByteArray &message,
                        const QDeadlineTimer &deadline);

    QString m_folder;
    OpenFolder m_open; // outlives the server, whose socket may have its path through it
    QString m_socketPath;
    InstanceLock m_lock; // outlives the server: the next first finds no socket that is still in use
    QLocalServer m_server;
};

#endif
