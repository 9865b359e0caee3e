#ifndef SCREENWAKE_H
#define SCREENWAKE_H

#include "ScreenInhibition.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

/**
 * Keeps the screen from blanking and locking while something moves on it that the class looks at
 * without touching the computer. The desktop is asked for it or, where it does not listen, the X
 * server.
 *
 * The screen is asked about a moment after the last change, and on a thread of its own: neither the
 * start nor a press of a button waits for it, whatever the desktop does. Ends with the object, and
 * with the process, however that ends.
 *
 * GUI thread only.
 */
class ScreenWake : public QObject {
    Q_OBJECT

public:
    /// @p whatMoves is asked whenever it matters what the user is told to be moving; an empty text
    /// is nothing. @p program is the program's name, for the user.
    ScreenWake(QString program, std::function<QString()> whatMoves, QObject *parent = nullptr);
    /// How long (ms) nothing must change before the desktop is asked. Two seconds, left alone:
    /// longer than a start takes, or going through some screens, and much shorter than any desktop
    /// waits before it blanks.
    void setQuietTime(int ms) { m_soon.setInterval(ms); }
    ~ScreenWake() override;

    /// Something began or ceased to move, or may have.
    void lookSoon();

    /// Whether the screen is kept awake now, by the desktop or by the X server.
    bool isKept() const { return m_isKept; }

private:
    class Mailbox;

    void look();
    void ask(const QString &reason);
    Q_INVOKABLE void answered();
    void release();

    QString m_program;
    std::function<QString()> m_whatMoves;
    QTimer m_soon;
    std::shared_ptr<Mailbox> m_mailbox; ///< to which the thread that asks brings the answer
    bool m_isAsking = false;
    bool m_isKept = false;
    ScreenInhibition m_inhibition; ///< without a promise while the X server is suspended instead
};

#endif
