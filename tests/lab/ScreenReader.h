#ifndef SCREENREADER_H
#define SCREENREADER_H

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QRect>
#include <QStringList>
#include <QVector>

// Somebody who cannot see the screen: knows a program only by what it tells on the desktop's
// accessibility bus, as a screen reader does. To be made before the program starts, as programs are
// told at their start, or a moment later, that somebody listens.
//
// Calls wait for an answer of the program for a limited time; what does not answer is not there.
class ScreenReader : public QObject {
    Q_OBJECT

public:
    // A control or a text, as it is told.
    struct Thing {
        QString service; // of the program, and its name for this thing
        QString path;
        QString name;
        QString description;
        QString role; // "push button", "check box", ...
        QStringList states; // those of knownStates() that it is in
        QRect place; // px of the screen
        QString within; // the name of what it is a part of

        bool is(const QString &state) const { return states.contains(state); }
        bool isValid() const { return !path.isEmpty(); }
    };

    ScreenReader();
    ~ScreenReader() override;

    // False when this desktop has no accessibility bus.
    bool isListening() const { return m_isListening; }

    // From then on only this process is listened to. False until it is known on the bus.
    bool follow(qint64 pid);
    // All that its windows show now, outer things before what is in them.
    QVector<Thing> shown() const;
    // The first of that role and name that is shown; an invalid one when there is none.
    Thing find(const QString &role, const QString &name) const;
    // As somebody does who has neither mouse nor keyboard. False when it cannot be pressed.
    bool press(const Thing &thing) const;

    // What was said by itself since the last forget(): the texts of alerts, in order.
    QStringList said() const { return m_said; }
    // The names that texts took since then, such as a clock's.
    QStringList renamed() const { return m_renamed; }
    void forget();

private Q_SLOTS:
    void hear(const QDBusMessage &message);

private:
    struct Reference {
        QString service;
        QString path;
    };

    QDBusMessage ask(const Reference &whom, const QString &interface, const QString &operation,
                     const QVariantList &arguments = {}) const;
    QVariant property(const Reference &whom, const QString &name) const;
    QVector<Reference> childrenOf(const Reference &whom) const;
    Thing describe(const Reference &whom) const;
    void walk(const Reference &whom, const QString &within, int depth, QVector<Thing> *found) const;

    QDBusConnection m_bus;
    bool m_isListening = false;
    Reference m_program;
    QStringList m_said;
    QStringList m_renamed;
};

#endif // SCREENREADER_H
