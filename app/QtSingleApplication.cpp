#include "QtSingleApplication.h"

#include "PrivateFolder.h"

#include <QDir>

QtSingleApplication::QtSingleApplication(const QString &id, int &argc, char **argv)
    : QApplication(argc, argv)
    , m_channel(id, PrivateFolder::find(qEnvironmentVariable("XDG_RUNTIME_DIR"), QDir::tempPath()))
{
    connect(&m_channel, &InstanceChannel::messageReceived, this,
            &QtSingleApplication::messageReceived);
    m_channel.becomeFirst();
}

bool QtSingleApplication::sendMessage(const QString &message, int timeout)
{
    return m_channel.send(message, timeout);
}

bool QtSingleApplication::isRunning()
{
    return m_channel.isTaken();
}
