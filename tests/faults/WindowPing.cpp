#include "WindowPing.h"

#include <QElapsedTimer>
#include <QTest>

#include <X11/Xlib.h>

// A window may go between two requests, which is no reason to end.
static int ignoreError(Display *, XErrorEvent *)
{
    return 0;
}

WindowPing::WindowPing()
    : m_display(XOpenDisplay(nullptr))
{
    if (!m_display)
        return;
    // Answers come to the root window; some toolkits send them to who looks after its windows, some
    // to who looks after itself.
    XSelectInput(m_display, DefaultRootWindow(m_display),
                 SubstructureNotifyMask | StructureNotifyMask);
    XSync(m_display, False);
}

WindowPing::~WindowPing()
{
    if (m_display)
        XCloseDisplay(m_display);
}

qint64 WindowPing::ask(quint32 window, int limit)
{
    if (!m_display)
        return -1;
    const auto previous = XSetErrorHandler(ignoreError);
    XEvent question = {};
    question.xclient.type = ClientMessage;
    question.xclient.window = window;
    question.xclient.message_type = XInternAtom(m_display, "WM_PROTOCOLS", False);
    question.xclient.format = 32;
    question.xclient.data.l[0] = long(XInternAtom(m_display, "_NET_WM_PING", False));
    question.xclient.data.l[1] = ++m_number;
    question.xclient.data.l[2] = long(window);
    QElapsedTimer timer;
    timer.start();
    XSendEvent(m_display, window, False, NoEventMask, &question);
    XFlush(m_display);
    const bool answered = QTest::qWaitFor(
        [&] {
            XEvent event;
            while (XCheckTypedEvent(m_display, ClientMessage, &event))
                if (event.xclient.data.l[0] == question.xclient.data.l[0]
                    && event.xclient.data.l[1] == m_number)
                    return true;
            return false;
        },
        limit);
    XSetErrorHandler(previous);
    return answered ? timer.elapsed() : -1;
}
