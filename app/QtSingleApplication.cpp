#include "QtSingleApplication.h"

#include "PrivateFolder.h"

#include <unistd.h>

namespace {

// Copies would fight over what was captured, so they meet where that lies. The session's own folder
// comes second only: a user who is logged in twice, or starts a copy by "su", has two or none. But
// there nobody else can have taken the place before.
QString meetingPlace()
{
    const QString place = PrivateFolder::ensure(PrivateFolder::temporaryFolder() + "/orvanta-"
                                                + QString::number(geteuid()));
    const QString session = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return place.isEmpty() && !session.isEmpty() ? PrivateFolder::ensure(session + "/orvanta")
                                                 : place;
}

} // namespace

QtSingleApplication::QtSingleApplication(const QString &id, int &argc, char **argv)
    : QApplication(argc, argv)
    , m_channel(id, meetingPlace())
{
    connect(&m_channel, &InstanceChannel::messageReceived, this,
            &QtSingleApplication::messageReceived);
    m_channel.becomeFirst();
}

bool QtSingleApplication::sendMessage(const QString &message, int timeout)
{
    return m_channel.send(message, timeout);
}

void QtSingleApplication::answerWaiting()
{
    m_channel.answerWaiting();
}

bool QtSingleApplication::isFirst()
{
    return m_channel.becomeFirst();
}

bool QtSingleApplication::isRunning()
{
    return m_channel.isTaken();
}
