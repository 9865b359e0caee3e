#include "ScreenFaults.h"

#include <QElapsedTimer>

#include <poll.h>

#include <X11/Xlib.h>

// A window that goes away tells nobody.
static constexpr int betweenLooks = 50; // ms
// So as not to keep it busy with answers.
static constexpr int betweenQuestions = 10; // ms

// Of the requests that come after it went.
static int ignoreError(Display *, XErrorEvent *)
{
    return 0;
}

ScreenFaults::ScreenFaults()
    : m_display(XOpenDisplay(nullptr))
{
    XSetErrorHandler(ignoreError);
    if (m_display)
        XSelectInput(m_display, DefaultRootWindow(m_display),
                     StructureNotifyMask | SubstructureNotifyMask);
}

ScreenFaults::~ScreenFaults()
{
    if (m_display)
        XCloseDisplay(m_display);
}

void ScreenFaults::cutOff(quint32 window)
{
    XKillClient(m_display, window);
    XSync(m_display, False);
}

int ScreenFaults::answerTime(quint32 window, int limit)
{
    ++m_number;
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = window;
    event.xclient.message_type = XInternAtom(m_display, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = long(XInternAtom(m_display, "_NET_WM_PING", False));
    event.xclient.data.l[1] = m_number;
    event.xclient.data.l[2] = long(window);
    QElapsedTimer since;
    poll(nullptr, 0, betweenQuestions);
    since.start();
    XSendEvent(m_display, window, False, NoEventMask, &event);
    XFlush(m_display);
    while (!hasAnswered(m_number)) {
        XWindowAttributes attributes = {};
        if (since.hasExpired(limit))
            return limit;
        if (XGetWindowAttributes(m_display, window, &attributes) == 0)
            return 0;
        pollfd input = {ConnectionNumber(m_display), POLLIN, 0};
        poll(&input, 1, betweenLooks);
    }
    return int(since.elapsed());
}

// The question comes back, sent to the root window.
bool ScreenFaults::hasAnswered(long number)
{
    bool found = false;
    while (XPending(m_display) > 0) {
        XEvent event = {};
        XNextEvent(m_display, &event);
        found = found
            || (event.type == ClientMessage
                && event.xclient.message_type == XInternAtom(m_display, "WM_PROTOCOLS", False)
                && event.xclient.data.l[1] == number);
    }
    return found;
}
