#ifndef SCREENINHIBITION_H
#define SCREENINHIBITION_H

#include <QString>

/**
 * A desktop's promise neither to blank nor to lock the screen, got over the session's message bus:
 * from the screen saver's common name or, where nobody has that, from GNOME's session manager. The
 * desktop forgets it by itself when the program ends, however it ends.
 */
class ScreenInhibition {
public:
    /// No promise.
    ScreenInhibition() = default;

    /// Where the session's bus is; empty where there is none. For the GUI thread, which is the one
    /// that may change the environment.
    static QString busAddress();

    /// Asks for one at @p bus, in the name of @p program and telling the user @p reason. Waits for
    /// a bus or a service that hangs, half a minute at most: not for the GUI thread. One thread at
    /// a time.
    static ScreenInhibition ask(const QString &bus, const QString &program, const QString &reason);

    /// False when there is no bus, or nobody on it makes promises of that kind.
    bool isValid() const { return m_service != nullptr; }

    /// Gives the promise back, without waiting for anybody. Does nothing without one. Any thread.
    void giveBack();

private:
    struct Service;

    const Service *m_service = nullptr; ///< who promised
    uint m_cookie = 0; ///< by which the service knows the promise
};

#endif
