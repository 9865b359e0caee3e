#ifndef CWINDOWMANAGEMENT_H
#define CWINDOWMANAGEMENT_H

#include "CWMUpdateCallback.h"

#include <QString>
#include <memory>
#include <string>

class CWMUpdateTimer;
class QWidget;

/**
 * Keeps a widget in front of the windows of other programs: once per period, unless the widget is
 * the active window, its native window is raised with Xlib.
 *
 * It is meant as a second base class of the widget that is kept in front, so the constructor only
 * stores the widget, which may be half built; the first step is taken by the event loop. The widget
 * is not owned. With a null widget the object does nothing at all.
 *
 * Running from construction on; stop_window() and start_window() may be called freely, in any
 * order. Stop it before a modal box is shown, or the box ends up behind the widget.
 *
 * GUI thread only. Nothing is reported: without an X11 desktop, or when the window is gone by the
 * time it is raised, a step has no effect.
 */
class CWindowManagement : public CWMUpdateCallback {
public:
    /// processName is an external program that suspends the raising while it runs, so that its
    /// windows are not covered; empty for none. It becomes part of a shell command as it stands
    /// (see isRunning()): give a name that the program itself knows, never one that a user typed.
    CWindowManagement(QWidget *widget, int periodMs, bool raiseParents, QString processName);
    CWindowManagement(const CWindowManagement &) = delete;
    CWindowManagement &operator=(const CWindowManagement &) = delete;

    /// Starts the raising, or goes on with a new period.
    void start_window(int periodMs);
    void stop_window();

    /// One step: looks whether the widget is the active window and raises it if it is not.
    void update_window() override;
    virtual ~CWindowManagement();

    /// Raises the windows of the widget's ancestors and of the widget, the outermost one first.
    void raiseParentWidgetTop(QWidget *widget);
    /// Raises a client window together with the window manager's frame around it.
    void raiseQtWindowTop(unsigned long windowId);
    /// Asks the window manager to raise a window of its own. One that puts windows into frames of
    /// several layers, or draws all of the screen itself, goes by its own list of who is in front,
    /// whatever the X server was told. Without one, or with one that does not know the request,
    /// nothing happens.
    static void askForTop(unsigned long windowId);
    /// Raises one X window, whether the window manager agrees or not.
    void raiseWindowTop(unsigned long windowId);

    /// True when a line of the process list matches the name, a grep pattern. Blocks the calling
    /// thread for as long as ps takes, some ten milliseconds; false when the list cannot be had.
    bool isRunning(std::string &name);

    /// True when the line, the output of wc -l, states one process or more.
    static bool statesProcesses(const char *line);

private:
    /// False until the window manager has put the window on the screen. Mapped past it before that,
    /// the window would stand there unmanaged: without the keyboard, and in front of its own boxes.
    bool hasBeenOnScreen();

    QWidget *m_widget;
    std::unique_ptr<CWMUpdateTimer> m_timer;
    QString m_processName;
    bool m_raiseParents;
    bool m_wasOnScreen = false;
};

#endif
