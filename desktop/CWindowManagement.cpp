#include "CWindowManagement.h"

#include "CWMUpdateTimer.h"

#include <QWidget>
#include <QWindow>
#include <QX11Info>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include <xcb/xcb.h>

// Xlib defines macros as common as Bool and None: it comes after every header of Qt.
#include <X11/Xlib.h>

namespace {

// Null on every platform but X11. The platform is asked first, because others too may have an X
// connection open, in which our window numbers mean nothing.
//
// A window may vanish between two steps. Raising it is then an X error, which ends a plain Xlib
// program; in ours it does not, because Qt's xcb platform reads the errors of this connection
// itself and has put a handler that carries on in the place of Xlib's own.
Display *xDisplay()
{
    return QX11Info::isPlatformX11() ? QX11Info::display() : nullptr;
}

} // namespace

CWindowManagement::CWindowManagement(QWidget *widget, int periodMs, bool raiseParents,
                                     QString processName)
    : m_widget(widget)
    , m_processName(std::move(processName))
    , m_raiseParents(raiseParents)
{
    if (!m_widget)
        return;
    m_timer = std::make_unique<CWMUpdateTimer>(periodMs, this);
    start_window(periodMs);
}

CWindowManagement::~CWindowManagement()
{
    stop_window();
}

void CWindowManagement::start_window(int periodMs)
{
    if (m_widget && m_timer) {
        m_timer->stop();
        m_timer->start(periodMs);
    }
}

void CWindowManagement::stop_window()
{
    if (m_widget && m_timer)
        m_timer->stop();
}

void CWindowManagement::update_window()
{
    if (!m_widget)
        return;
    if (!m_processName.isEmpty()) {
        std::string name = m_processName.toLocal8Bit().toStdString();
        if (isRunning(name))
            return;
    }
    if (m_widget->isActiveWindow() || !hasBeenOnScreen())
        return;
    if (m_raiseParents)
        raiseParentWidgetTop(m_widget->parentWidget());
    raiseQtWindowTop(m_widget->winId());
    askForTop(m_widget->window()->winId());
}

bool CWindowManagement::hasBeenOnScreen()
{
    if (!m_wasOnScreen) {
        const QWindow *window = m_widget->window()->windowHandle();
        m_wasOnScreen = window && window->isExposed();
    }
    return m_wasOnScreen;
}

void CWindowManagement::raiseParentWidgetTop(QWidget *widget)
{
    if (!widget)
        return;
    raiseParentWidgetTop(widget->parentWidget());
    raiseQtWindowTop(widget->winId());
}

void CWindowManagement::raiseQtWindowTop(unsigned long windowId)
{
    Display *display = xDisplay();
    if (!display)
        return;
    Window root = 0;
    Window frame = 0;
    Window *children = nullptr;
    unsigned int childCount = 0;
    if (!XQueryTree(display, windowId, &root, &frame, &children, &childCount))
        return;
    if (children)
        XFree(children);
    // Without a window manager this is the root window, which raising does not change.
    if (frame)
        raiseWindowTop(frame);
    raiseWindowTop(windowId);
}

// As a taskbar does it: what a program asks for itself may be declined, because it is not the one
// that the user is working with.
void CWindowManagement::askForTop(unsigned long windowId)
{
    static constexpr uint32_t fromTaskbar = 2;
    static constexpr char name[] = "_NET_RESTACK_WINDOW";
    xcb_connection_t *connection = QX11Info::isPlatformX11() ? QX11Info::connection() : nullptr;
    if (!connection)
        return;
    static const xcb_atom_t restack = [connection] {
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&free)> reply(
            xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, sizeof name - 1, name),
                                  nullptr),
            free);
        return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }();
    xcb_client_message_event_t request = {};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = xcb_window_t(windowId);
    request.type = restack;
    request.data.data32[0] = fromTaskbar;
    request.data.data32[2] = XCB_STACK_MODE_ABOVE; // of all, as none is named
    xcb_send_event(connection, 0, xcb_window_t(QX11Info::appRootWindow()),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&request));
    xcb_flush(connection);
}

void CWindowManagement::raiseWindowTop(unsigned long windowId)
{
    Display *display = xDisplay();
    if (!display)
        return;
    // An override-redirect window is mapped and raised by the X server itself; without the flag the
    // window manager would be asked and may decline.
    XSetWindowAttributes attributes = {};
    attributes.override_redirect = True;
    XChangeWindowAttributes(display, windowId, CWOverrideRedirect, &attributes);
    // Mapped twice on purpose: a window manager that answers the first request by restacking has
    // done so by the second one.
    XMapRaised(display, windowId);
    XRaiseWindow(display, windowId);
    XMapRaised(display, windowId);
    attributes.override_redirect = False;
    XChangeWindowAttributes(display, windowId, CWOverrideRedirect, &attributes);
    XFlush(display);
}

bool CWindowManagement::isRunning(std::string &name)
{
    // The first grep finds itself in the list; the second one takes it out again.
    const std::string command = "ps -ef | grep " + name + " | grep -v grep | wc -l";
    FILE *pipe = popen(command.c_str(), "r");
    if (!pipe)
        return false;
    char line[32] = {};
    const bool read = fgets(line, sizeof line, pipe) != nullptr;
    pclose(pipe);
    return read && statesProcesses(line);
}

bool CWindowManagement::statesProcesses(const char *line)
{
    return strtol(line, nullptr, 10) > 0;
}
