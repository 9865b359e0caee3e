#ifndef FAKEDESKTOP_H
#define FAKEDESKTOP_H

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

/// A session's message bus of the test's own, which the environment names.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    QString address() const;
    bool start(); ///< also again, at the same address
    void end();
    void hang() const; ///< answers nobody any more, until goOn()
    void goOn() const;

private:
    QTemporaryDir m_folder{"/tmp/bus-XXXXXX"}; ///< sockets have room for a short path only
    QProcess m_daemon;
};

/**
 * What a desktop offers on the bus to keep its screen awake. Every call is written down with its
 * arguments: "Inhibit Orvanta, Live picture", "UnInhibit 7".
 */
class FakeDesktop : public QDBusVirtualObject {
public:
    /// Is known on the bus by that name, at the path that goes with it.
    FakeDesktop(const PrivateBus &bus, const QString &name);
    ~FakeDesktop() override;

    bool isKnown() const { return m_isKnown; }
    void refuse() { m_refuses = true; }
    /// Takes its time for an answer, until answer().
    void hesitate() { m_hesitates = true; }
    void answer();

    QStringList calls;

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override;

private:
    QDBusConnection m_bus;
    bool m_isKnown = false;
    bool m_refuses = false;
    bool m_hesitates = false;
    QDBusMessage m_unanswered;
};

#endif
