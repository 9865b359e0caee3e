#ifndef DESKTOPFACTS_H
#define DESKTOPFACTS_H

#include <QRect>
#include <QString>
#include <QVector>

/// A screen that shows a part of the desktop.
struct DesktopScreen {
    QString name; ///< of the socket, "HDMI-1"
    QRect area; ///< device pixels of the whole desktop
    QSize millimetres; ///< as the screen says; often nothing, or wrong
    bool isPrimary = false;
};

/**
 * What kind of X11 desktop the window stands on: what it shows, and who has a say in where windows
 * stand and which of them is in front.
 */
struct DesktopFacts {
    bool isThere = false; ///< an X server answers; nothing else says anything without one
    QString server; ///< who made the X server, and its version
    bool isOnWayland = false; ///< the server is a guest on a Wayland desktop (XWayland)
    QString windowManager; ///< what it calls itself; empty when there is none
    bool isComposited = false; ///< somebody puts the windows together, with shadows and the like
    QString textDpi; ///< the desktop's own setting of how large texts are; often empty
    QVector<DesktopScreen> screens;

    /// The primary screen, or the first one when none is primary. Null without any.
    DesktopScreen primary() const;
};

/// The desktop that the program's own windows stand on, which is there on X11 only. For a program
/// with an application object.
DesktopFacts ownDesktop();

/// Asks the X server that DISPLAY names, over a connection of its own. Needs no application object.
/// Waits for a server that hangs as long as that takes. One thread at a time.
DesktopFacts readDesktop();

#endif
