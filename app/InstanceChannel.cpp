#include "InstanceChannel.h"

#include "AppLog.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>
#include <QThread>
#include <QTimer>
#include <QtEndian>
#include <algorithm>

#include <sys/socket.h>
#include <sys/un.h>

namespace {

constexpr int headerBytes = sizeof(quint32);
constexpr qint64 retryMs = 20; // between two tries to reach a first that does not listen yet
constexpr char answer[] = "ok";
constexpr int answerBytes = sizeof answer - 1;

int left(const QDeadlineTimer &deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

// The path of a socket has room for 107 bytes. A longer one leads through the open folder.
QString socketPathIn(const QString &folder, const OpenFolder &open, const QString &id)
{
    constexpr int longest = sizeof(sockaddr_un::sun_path) - 1;
    // The server makes its socket in a folder of a passing name beside the place where it goes.
    constexpr int passingName = sizeof "XXXXXX/s" - 1;
    const QString name = id + ".socket";
    const int inFolder = std::max(QFile::encodeName(name).size(), passingName);
    const bool isShort = QFile::encodeName(folder).size() + 1 + inFolder <= longest;
    return (isShort ? folder : open.shortPath()) + '/' + name;
}

} // namespace

InstanceChannel::InstanceChannel(const QString &id, const QString &folder)
    : m_folder(folder)
    , m_open(folder)
    , m_socketPath(socketPathIn(folder, m_open, id))
    , m_lock(folder + "/" + id + ".lock")
{
    connect(&m_server, &QLocalServer::newConnection, this, &InstanceChannel::welcomeClients);
}

bool InstanceChannel::becomeFirst()
{
    if (m_folder.isEmpty() || m_lock.tryLock() != InstanceLock::Locked)
        return false;
    if (!m_server.isListening())
        listen();
    return true;
}

bool InstanceChannel::isTaken()
{
    return !becomeFirst() && !m_folder.isEmpty() && m_lock.tryLock() == InstanceLock::Taken;
}

bool InstanceChannel::send(const QString &message, int timeoutMs)
{
    const QByteArray text = message.toUtf8();
    if (text.size() > maxMessageBytes)
        return false;
    const QDeadlineTimer deadline(timeoutMs);
    while (isTaken()) {
        QLocalSocket first;
        first.connectToServer(m_socketPath);
        if (first.waitForConnected(left(deadline)) && deliver(first, text, deadline))
            return true;
        if (deadline.hasExpired())
            return false;
        // Another copy holds the lock and does not answer: it is about to listen or about to end.
        // Neither can be waited for from here, so both are asked for again, within the limit.
        QThread::msleep(static_cast<unsigned long>(std::min(retryMs, deadline.remainingTime())));
    }
    return false;
}

bool InstanceChannel::deliver(QLocalSocket &first, const QByteArray &message,
                              const QDeadlineTimer &deadline)
{
    QByteArray header(headerBytes, '\0');
    qToBigEndian(static_cast<quint32>(message.size()), header.data());
    first.write(header + message);
    while (first.bytesToWrite() > 0)
        if (!first.waitForBytesWritten(left(deadline)))
            return false;
    while (first.bytesAvailable() < answerBytes)
        if (!first.waitForReadyRead(left(deadline)))
            return false;
    return first.readAll() == answer;
}

void InstanceChannel::listen()
{
    // Whatever lies there is from a copy that crashed: a living one would have the lock.
    QLocalServer::removeServer(m_socketPath);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    if (!m_server.listen(m_socketPath))
        qCWarning(appLog) << "no other copy can be answered:" << m_server.errorString();
}

void InstanceChannel::welcomeClients()
{
    while (QLocalSocket *client = m_server.nextPendingConnection()) {
        // Clients that sit there without a word make room for those that come after them.
        const auto clients = m_server.findChildren<QLocalSocket *>();
        if (clients.size() > maxClients)
            delete clients.first();
        client->setReadBufferSize(headerBytes + maxMessageBytes);
        connect(client, &QLocalSocket::readyRead, this, [this, client] { readFrom(client); });
        connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
        auto *patience = new QTimer(client);
        connect(patience, &QTimer::timeout, client, &QObject::deleteLater);
        patience->start(clientTimeMs);
    }
}

void InstanceChannel::answerWaiting()
{
    if (!m_server.isListening())
        return;
    m_server.waitForNewConnection(0);
    const auto clients = m_server.findChildren<QLocalSocket *>();
    for (QLocalSocket *client : clients) {
        client->waitForReadyRead(0);
        client->flush();
    }
}

void InstanceChannel::readFrom(QLocalSocket *client)
{
    if (client->bytesAvailable() < headerBytes)
        return;
    const quint32 length = qFromBigEndian<quint32>(client->peek(headerBytes).constData());
    if (length > maxMessageBytes) {
        qCWarning(appLog) << "a client announced a message of" << length << "bytes";
        client->deleteLater();
        return;
    }
    if (client->bytesAvailable() < headerBytes + qint64(length))
        return;
    client->read(headerBytes);
    const QString message = QString::fromUtf8(client->read(length));
    // One message per client: what follows it is not even looked at.
    disconnect(client, &QLocalSocket::readyRead, this, nullptr);
    client->write(answer);
    client->disconnectFromServer();
    // Queued, since whoever receives it may open a box and stay in there for long.
    QMetaObject::invokeMethod(this, "messageReceived", Qt::QueuedConnection,
                              Q_ARG(QString, message));
}
