#include "QtSingleApplication.h"

#include "PrivateFolder.h"

#include <QDir>

#include <unistd.h>

namespace {

// Copies would fight over what was captured, so they meet where that lies. The session's own folder
// is no such place: a user who is logged in twice, or starts a copy by "su", has two or none.
QString meetingPlace()
{
    return QDir::tempPath() + "/orvanta-" + QString::number(geteuid());
}

} // namespace

QtSingleApplication::QtSingleApplication(const QString &id, int &argc, char **argv)
    : QApplication(argc, argv)
    , m_channel(id, PrivateFolder::ensure(meetingPlace()))
{
    connect(&m_channel, &InstanceChannel::messageReceived, this,
            &QtSingleApplication::messageReceived);
    m_channel.becomeFirst();
}

bool QtSingleApplication::sendMessage(const QString &message, int timeout)
{
    return m_channel.send(message, timeout);
}

bool QtSingleApplication::isFirst()
{
    return m_channel.becomeFirst();
}

bool QtSingleApplication::isRunning()
{
    return m_channel.isTaken();
}
