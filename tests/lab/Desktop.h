#ifndef DESKTOP_H
#define DESKTOP_H

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QVector>

// The lab's desktop as a person in front of it has it: what is on the screen, which windows there
// are, and a mouse and a keyboard. It has its own connection to the X server of $DISPLAY, so it
// sees programs from outside and works with any of them.
//
// Mouse and keys go through the X server and the window manager like those of real devices; the
// calls return when the server has taken them, not when a program has reacted: wait for that with
// QTRY_VERIFY. Positions are pixels of the screen.
//
// Where the programs are guests of a Wayland desktop, their X server shows no screen: eyes and
// hands are at the one of $ORVANTA_LAB_SCREEN.
class Desktop {
public:
    struct Window {
        quint32 id = 0; // 0: no such window
        QString title;
        qint64 pid = 0;
        QRect geometry; // without the frame
        bool isActive = false;
    };

    // Without an X server isOpen() is false and every other call does nothing.
    Desktop();
    ~Desktop();
    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;

    bool isOpen() const { return m_display != nullptr; }
    QRect screen() const;
    QImage screenshot() const;
    QColor pixel(QPoint at) const;

    // The managed windows that are on the screen, the lowest first; without a window manager that
    // lists them, those that name their program.
    QVector<Window> windows() const;
    QVector<Window> windowsOf(qint64 pid) const;
    // Of the windows of a program the highest, or one with id 0.
    Window topWindowOf(qint64 pid) const;
    // Windows that no window manager handles, such as open combo boxes; the lowest first.
    QVector<QRect> popups() const;
    // As the close button of a window's frame does.
    void closeWindow(quint32 id) const;

    void moveMouse(QPoint to) const;
    void pressMouse(QPoint at) const;
    void releaseMouse() const;
    // As long as a finger takes: window managers hold the mouse back for a moment at each press,
    // and lose clicks that no hand could make.
    void click(QPoint at) const;
    // A key by its X name: "Tab", "space", "Return", "Escape", "a".
    void pressKey(const char *name) const;
    // ASCII only.
    void type(const QString &text) const;

private:
    Window describe(quint32 id, quint32 activeId) const;
    void pressSymbol(unsigned long symbol) const;
    QVector<quint32> childrenOf(quint32 window) const;
    QVector<quint32> stacking() const;
    quint32 activeWindow() const;
    QVector<quint32> cardinals(quint32 window, const char *property) const;

    // Xlib's own name for its Display, whose header must not meet Qt's.
    struct _XDisplay *m_display; // of the programs
    struct _XDisplay *m_screen; // of the person; mostly the same
};

#endif // DESKTOP_H
