#include "ScreenReader.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QDBusReply>
#include <QDBusVariant>

#include <array>

static constexpr int answerLimit = 10000; // ms, for the answer of a busy program
static constexpr int deepest = 20; // boxes in boxes; more is a circle
static const QString busName = QStringLiteral("orvanta_accessibility");
static const QString alert = QStringLiteral("alert message");
static const QString accessible = QStringLiteral("org.a11y.atspi.Accessible");
static const QString properties = QStringLiteral("org.freedesktop.DBus.Properties");
static const QString objectEvents = QStringLiteral("org.a11y.atspi.Event.Object");

using Variables = QMap<QString, QString>;
Q_DECLARE_METATYPE(Variables)

namespace {

struct State {
    int bit; // in the two words that a program answers with
    const char *name;
};

constexpr std::array<State, 8> knownStates{{{1, "active"},
                                            {4, "checked"},
                                            {8, "enabled"},
                                            {11, "focusable"},
                                            {12, "focused"},
                                            {23, "selected"},
                                            {24, "sensitive"},
                                            {25, "showing"}}};

// As a desktop does at its start: the bus for accessibility is to name itself on this screen, where
// programs find it at once.
void tellTheScreen()
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("UpdateActivationEnvironment"));
    qDBusRegisterMetaType<Variables>();
    const Variables variables{{"DISPLAY", QString::fromLatin1(qgetenv("DISPLAY"))}};
    message << QVariant::fromValue(variables);
    QDBusConnection::sessionBus().call(message);
}

// Of the session's bus: where the bus for accessibility is, once somebody asks for it.
QString addressOfTheBus()
{
    tellTheScreen();
    const QDBusReply<QString> reply =
        QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
            QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
            QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")));
    return reply.isValid() ? reply.value() : QString();
}

// Tells all programs of the session whether somebody listens.
void setEnabled(bool isEnabled)
{
    QDBusMessage message = QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"),
                                                          QStringLiteral("/org/a11y/bus"),
                                                          properties, QStringLiteral("Set"));
    message << QStringLiteral("org.a11y.Status") << QStringLiteral("ScreenReaderEnabled")
            << QVariant::fromValue(QDBusVariant(isEnabled));
    QDBusConnection::sessionBus().call(message);
}

} // namespace

ScreenReader::ScreenReader()
    : m_bus(QDBusConnection::connectToBus(addressOfTheBus(), busName))
{
    if (!m_bus.isConnected())
        return;
    setEnabled(true);
    const Reference registry{QStringLiteral("org.a11y.atspi.Registry"),
                             QStringLiteral("/org/a11y/atspi/registry")};
    m_isListening = true;
    for (const char *event : {"object:property-change", "object:state-changed"}) {
        const QDBusMessage answer =
            ask(registry, QStringLiteral("org.a11y.atspi.Registry"),
                QStringLiteral("RegisterEvent"), {QString::fromLatin1(event)});
        m_isListening = m_isListening && answer.type() == QDBusMessage::ReplyMessage;
    }
    for (const char *event : {"PropertyChange", "StateChanged"})
        m_bus.connect(QString(), QString(), objectEvents, QString::fromLatin1(event), this,
                      SLOT(hear(QDBusMessage)));
}

ScreenReader::~ScreenReader()
{
    if (m_isListening)
        setEnabled(false);
    QDBusConnection::disconnectFromBus(busName);
}

QDBusMessage ScreenReader::ask(const Reference &whom, const QString &interface,
                               const QString &operation, const QVariantList &arguments) const
{
    QDBusMessage message =
        QDBusMessage::createMethodCall(whom.service, whom.path, interface, operation);
    message.setArguments(arguments);
    return m_bus.call(message, QDBus::Block, answerLimit);
}

QVariant ScreenReader::property(const Reference &whom, const QString &name) const
{
    const QDBusMessage answer = ask(whom, properties, QStringLiteral("Get"), {accessible, name});
    return answer.arguments().value(0).value<QDBusVariant>().variant();
}

QVector<ScreenReader::Reference> ScreenReader::childrenOf(const Reference &whom) const
{
    QVector<Reference> children;
    const QDBusMessage answer = ask(whom, accessible, QStringLiteral("GetChildren"));
    if (answer.type() != QDBusMessage::ReplyMessage)
        return children;
    const auto list = answer.arguments().value(0).value<QDBusArgument>();
    list.beginArray();
    while (!list.atEnd()) {
        Reference child;
        QDBusObjectPath path;
        list.beginStructure();
        list >> child.service >> path;
        list.endStructure();
        child.path = path.path();
        children.append(child);
    }
    list.endArray();
    return children;
}

bool ScreenReader::follow(qint64 pid)
{
    const Reference desktop{QStringLiteral("org.a11y.atspi.Registry"),
                            QStringLiteral("/org/a11y/atspi/accessible/root")};
    for (const Reference &application : childrenOf(desktop)) {
        const QDBusReply<uint> owner = m_bus.interface()->servicePid(application.service);
        if (owner.isValid() && qint64(owner.value()) == pid)
            m_program = application;
    }
    return !m_program.path.isEmpty();
}

ScreenReader::Thing ScreenReader::describe(const Reference &whom) const
{
    Thing thing;
    thing.service = whom.service;
    thing.path = whom.path;
    thing.name = property(whom, QStringLiteral("Name")).toString();
    thing.description = property(whom, QStringLiteral("Description")).toString();
    thing.role =
        ask(whom, accessible, QStringLiteral("GetRoleName")).arguments().value(0).toString();
    const auto words = qdbus_cast<QList<uint>>(
        ask(whom, accessible, QStringLiteral("GetState")).arguments().value(0));
    for (const State &state : knownStates)
        if (words.value(0) & (1U << unsigned(state.bit)))
            thing.states.append(QString::fromLatin1(state.name));
    const uint onScreen = 0;
    const QDBusMessage extents = ask(whom, QStringLiteral("org.a11y.atspi.Component"),
                                     QStringLiteral("GetExtents"), {onScreen});
    if (extents.type() == QDBusMessage::ReplyMessage) {
        const auto numbers = extents.arguments().value(0).value<QDBusArgument>();
        int x = 0;
        int y = 0;
        int width = 0;
        int height = 0;
        numbers.beginStructure();
        numbers >> x >> y >> width >> height;
        numbers.endStructure();
        thing.place = QRect(x, y, width, height);
    }
    return thing;
}

void ScreenReader::walk(const Reference &whom, const QString &within, int depth,
                        QVector<Thing> *found) const
{
    Thing thing = describe(whom);
    if (!thing.is(QStringLiteral("showing")))
        return;
    thing.within = within;
    // A hidden list is told by the toolkit as any other, but it is nowhere.
    if (thing.place.isEmpty() && thing.role != alert)
        return;
    found->append(thing);
    if (depth < deepest)
        for (const Reference &child : childrenOf(whom))
            walk(child, thing.name, depth + 1, found);
}

QVector<ScreenReader::Thing> ScreenReader::shown() const
{
    QVector<Thing> found;
    for (const Reference &window : childrenOf(m_program))
        walk(window, QString(), 0, &found);
    return found;
}

ScreenReader::Thing ScreenReader::find(const QString &role, const QString &name) const
{
    for (const Thing &thing : shown())
        if (thing.role == role && thing.name == name)
            return thing;
    return {};
}

bool ScreenReader::press(const Thing &thing) const
{
    const int first = 0;
    return ask({thing.service, thing.path}, QStringLiteral("org.a11y.atspi.Action"),
               QStringLiteral("DoAction"), {first})
               .type()
        == QDBusMessage::ReplyMessage;
}

void ScreenReader::forget()
{
    m_said.clear();
    m_renamed.clear();
}

void ScreenReader::hear(const QDBusMessage &message)
{
    const QString kind = message.arguments().value(0).toString();
    // The test's own windows are on the bus as well, and cannot answer while it asks.
    if (message.service() != m_program.service)
        return;
    const Reference teller{message.service(), message.path()};
    if (message.member() == QLatin1String("PropertyChange")) {
        if (kind == QLatin1String("accessible-name"))
            m_renamed.append(property(teller, QStringLiteral("Name")).toString());
        return;
    }
    const bool begins = message.arguments().value(1).toInt() == 1;
    if (kind != QLatin1String("showing") || !begins)
        return;
    const Thing thing = describe(teller);
    if (thing.role == alert)
        m_said.append(thing.name);
}
