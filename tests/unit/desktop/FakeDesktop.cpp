#include "FakeDesktop.h"

#include <QFile>
#include <QTest>

#include <csignal>

static constexpr uint cookie = 7;

PrivateBus::PrivateBus()
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", address().toLocal8Bit());
}

PrivateBus::~PrivateBus()
{
    end();
}

QString PrivateBus::address() const
{
    return "unix:path=" + m_folder.filePath("bus");
}

bool PrivateBus::start()
{
    QFile::remove(m_folder.filePath("bus"));
    m_daemon.start(
        "dbus-daemon",
        {"--session", "--nofork", "--nopidfile", "--print-address", "--address=" + address()});
    return m_daemon.waitForReadyRead();
}

void PrivateBus::end()
{
    m_daemon.kill();
    m_daemon.waitForFinished();
}

void PrivateBus::hang() const
{
    ::kill(pid_t(m_daemon.processId()), SIGSTOP);
}

void PrivateBus::goOn() const
{
    ::kill(pid_t(m_daemon.processId()), SIGCONT);
}

FakeDesktop::FakeDesktop(const PrivateBus &bus, const QString &name)
    : m_bus(QDBusConnection::connectToBus(bus.address(), name))
{
    m_isKnown = m_bus.registerVirtualObject('/' + QString(name).replace('.', '/'), this)
        && m_bus.registerService(name);
}

FakeDesktop::~FakeDesktop()
{
    QDBusConnection::disconnectFromBus(m_bus.name());
}

void FakeDesktop::answer()
{
    m_hesitates = false;
    m_bus.send(m_unanswered.createReply(cookie));
}

QString FakeDesktop::introspect(const QString &) const
{
    return {};
}

bool FakeDesktop::handleMessage(const QDBusMessage &message, const QDBusConnection &bus)
{
    QStringList arguments;
    for (const QVariant &argument : message.arguments())
        arguments << argument.toString();
    calls << message.member() + ' ' + arguments.join(", ");
    if (m_refuses)
        bus.send(message.createErrorReply(QDBusError::AccessDenied, "not on this desktop"));
    else if (m_hesitates)
        m_unanswered = message;
    else
        bus.send(message.createReply(cookie));
    return true;
}
