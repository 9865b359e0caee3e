#include "ScreenInhibition.h"

#include "DesktopLog.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>

#include <array>

static constexpr int answerLimit = 5000; // ms, for a service that is there and busy
static constexpr uint idleness = 8; // GNOME's flag for "the session counts as idle"

// A connection of its own: the promise ends with it, and whatever else the toolkit asks over its
// own one does not wait behind a service that hangs.
static QString connectionName()
{
    return QStringLiteral("orvanta-screen");
}

struct ScreenInhibition::Service {
    const char *name;
    const char *path;
    const char *interface;
    const char *asking;
    const char *givingBack;
    bool isGnomes;

    QDBusMessage call(const char *method) const
    {
        QDBusMessage message =
            QDBusMessage::createMethodCall(QLatin1String(name), QLatin1String(path),
                                           QLatin1String(interface), QLatin1String(method));
        // A desktop without a screen saver is not to get one because of us.
        message.setAutoStartService(false);
        return message;
    }
};

// The library's own search would start a bus where there is none.
QString ScreenInhibition::busAddress()
{
    QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (!address.isEmpty())
        return address;
    const QString usual = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    return QFile::exists(usual) ? QStringLiteral("unix:path=") + usual : QString();
}

static QDBusConnection connected(const QString &address)
{
    QDBusConnection kept(connectionName());
    if (kept.isConnected() || address.isEmpty())
        return kept;
    QDBusConnection::disconnectFromBus(connectionName()); // of a bus that has ended
    return QDBusConnection::connectToBus(address, connectionName());
}

ScreenInhibition ScreenInhibition::ask(const QString &bus, const QString &program,
                                       const QString &reason)
{
    static constexpr std::array<Service, 2> services{{
        {"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver",
         "org.freedesktop.ScreenSaver", "Inhibit", "UnInhibit", false},
        {"org.gnome.SessionManager", "/org/gnome/SessionManager", "org.gnome.SessionManager",
         "Inhibit", "Uninhibit", true},
    }};
    ScreenInhibition result;
    const QDBusConnection connection = connected(bus);
    if (!connection.isConnected())
        return result;
    for (const Service &service : services) {
        QDBusMessage question = service.call(service.asking);
        if (service.isGnomes)
            question << program << uint(0) /* no window in particular */ << reason << idleness;
        else
            question << program << reason;
        const QDBusMessage answer = connection.call(question, QDBus::Block, answerLimit);
        const QVariant cookie = answer.arguments().value(0);
        if (answer.type() == QDBusMessage::ReplyMessage && cookie.userType() == QMetaType::UInt) {
            result.m_service = &service;
            result.m_cookie = cookie.toUInt();
            return result;
        }
        qCInfo(desktopLog, "%s does not keep the screen awake: %s", service.name,
               qPrintable(answer.errorMessage()));
    }
    return result;
}

void ScreenInhibition::giveBack()
{
    if (!isValid())
        return;
    QDBusMessage message = m_service->call(m_service->givingBack);
    message << m_cookie;
    QDBusConnection(connectionName()).send(message);
    m_service = nullptr;
}
