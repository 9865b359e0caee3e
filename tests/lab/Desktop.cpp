#include "Desktop.h"

#include <QColor>
#include <QTest>

#include <algorithm>
#include <iterator>

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace {

constexpr unsigned leftButton = 1;
constexpr long maximumItems = 4096;
constexpr int fingerTime = 25; // ms
constexpr int aimTime = 100; // ms; from where the mouse has stopped to the press

// Windows of other programs may vanish between two requests; that is no reason to end.
int ignoreError(Display *, XErrorEvent *)
{
    return 0;
}

QString textProperty(Display *display, ::Window window, const char *name)
{
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char *data = nullptr;
    XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, maximumItems, False,
                       XInternAtom(display, "UTF8_STRING", False), &type, &format, &count, &left,
                       &data);
    QString text = data ? QString::fromUtf8(reinterpret_cast<char *>(data), int(count)) : QString();
    if (data)
        XFree(data);
    return text;
}

// Empty while the window or the frame around it is not on the screen.
QRect geometryOnScreen(Display *display, ::Window window)
{
    XWindowAttributes attributes = {};
    if (!XGetWindowAttributes(display, window, &attributes) || attributes.map_state != IsViewable)
        return {};
    int x = 0;
    int y = 0;
    ::Window child = 0;
    XTranslateCoordinates(display, window, DefaultRootWindow(display), 0, 0, &x, &y, &child);
    return {x, y, attributes.width, attributes.height};
}

} // namespace

Desktop::Desktop()
    : m_display(XOpenDisplay(nullptr))
    , m_screen(m_display)
{
    XSetErrorHandler(ignoreError);
    const QByteArray screen = qgetenv("ORVANTA_LAB_SCREEN");
    if (m_display && !screen.isEmpty())
        m_screen = XOpenDisplay(screen.constData());
}

Desktop::~Desktop()
{
    if (m_screen && m_screen != m_display)
        XCloseDisplay(m_screen);
    if (m_display)
        XCloseDisplay(m_display);
}

QRect Desktop::screen() const
{
    if (!m_screen)
        return {};
    // Asked, since it may have changed since the connection began.
    XWindowAttributes root = {};
    XGetWindowAttributes(m_screen, DefaultRootWindow(m_screen), &root);
    return {0, 0, root.width, root.height};
}

QImage Desktop::screenshot() const
{
    if (!m_screen)
        return {};
    XImage *shot =
        XGetImage(m_screen, DefaultRootWindow(m_screen), 0, 0, unsigned(screen().width()),
                  unsigned(screen().height()), AllPlanes, ZPixmap);
    if (!shot)
        return {};
    QImage picture;
    if (shot->bits_per_pixel == 32) {
        picture = QImage(reinterpret_cast<uchar *>(shot->data), shot->width, shot->height,
                         shot->bytes_per_line, QImage::Format_RGB32)
                      .copy();
    }
    XDestroyImage(shot);
    return picture;
}

QColor Desktop::pixel(QPoint at) const
{
    const QImage picture = screenshot();
    return picture.valid(at) ? picture.pixelColor(at) : QColor();
}

static ::Window parentOf(Display *display, ::Window window)
{
    ::Window root = 0;
    ::Window parent = 0;
    ::Window *children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(display, window, &root, &parent, &children, &count))
        return 0;
    if (children)
        XFree(children);
    return parent;
}

QVector<quint32> Desktop::childrenOf(quint32 window) const
{
    ::Window root = 0;
    ::Window parent = 0;
    ::Window *children = nullptr;
    unsigned count = 0;
    QVector<quint32> found;
    if (XQueryTree(m_display, window, &root, &parent, &children, &count))
        std::transform(children, children + count, std::back_inserter(found),
                       [](::Window child) { return quint32(child); });
    if (children)
        XFree(children);
    return found;
}

// Of all windows that a program has named as its own, one frame around them looked through.
QVector<quint32> Desktop::stacking() const
{
    const auto root = quint32(DefaultRootWindow(m_display));
    QVector<quint32> listed = cardinals(root, "_NET_CLIENT_LIST_STACKING");
    if (!listed.isEmpty())
        return listed;
    for (const quint32 child : childrenOf(root)) {
        QVector<quint32> both = childrenOf(child);
        both.append(child);
        for (const quint32 window : both)
            if (!cardinals(window, "_NET_WM_PID").isEmpty())
                listed.append(window);
    }
    return listed;
}

// A window manager may name a window before that has the keyboard; keys pressed then go elsewhere.
quint32 Desktop::activeWindow() const
{
    const ::Window root = DefaultRootWindow(m_display);
    ::Window focused = 0;
    int revert = 0;
    XGetInputFocus(m_display, &focused, &revert);
    const QVector<quint32> told = cardinals(quint32(root), "_NET_ACTIVE_WINDOW");
    if (told.isEmpty())
        return quint32(focused);
    while (focused > PointerRoot && focused != root && focused != told.first())
        focused = parentOf(m_display, focused);
    return focused == told.first() ? told.first() : 0;
}

QVector<Desktop::Window> Desktop::windows() const
{
    QVector<Window> found;
    if (!m_display)
        return found;
    const quint32 active = activeWindow();
    for (const quint32 id : stacking()) {
        const Window window = describe(id, active);
        if (!window.geometry.isEmpty())
            found.append(window);
    }
    return found;
}

QVector<Desktop::Window> Desktop::windowsOf(qint64 pid) const
{
    QVector<Window> found;
    for (const Window &window : windows())
        if (window.pid == pid)
            found.append(window);
    return found;
}

Desktop::Window Desktop::topWindowOf(qint64 pid) const
{
    const QVector<Window> found = windowsOf(pid);
    return found.isEmpty() ? Window() : found.last();
}

QVector<QRect> Desktop::popups() const
{
    QVector<QRect> found;
    if (!m_display)
        return found;
    ::Window root = 0;
    ::Window parent = 0;
    ::Window *children = nullptr;
    unsigned count = 0;
    XQueryTree(m_display, DefaultRootWindow(m_display), &root, &parent, &children, &count);
    for (unsigned i = 0; i < count; ++i) {
        XWindowAttributes attributes = {};
        if (XGetWindowAttributes(m_display, children[i], &attributes)
            && attributes.override_redirect && attributes.map_state == IsViewable
            && attributes.c_class == InputOutput)
            found.append(geometryOnScreen(m_display, children[i]));
    }
    if (children)
        XFree(children);
    return found;
}

void Desktop::closeWindow(quint32 id) const
{
    if (!m_display)
        return;
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = id;
    event.xclient.message_type = XInternAtom(m_display, "_NET_CLOSE_WINDOW", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] = CurrentTime;
    event.xclient.data.l[1] = 2; // asked for by the user, not by a program
    XSendEvent(m_display, DefaultRootWindow(m_display), False,
               SubstructureRedirectMask | SubstructureNotifyMask, &event);
    XSync(m_display, False);
}

void Desktop::moveMouse(QPoint to) const
{
    if (m_screen) {
        XTestFakeMotionEvent(m_screen, DefaultScreen(m_screen), to.x(), to.y(), CurrentTime);
        XSync(m_screen, False);
    }
}

void Desktop::pressMouse(QPoint at) const
{
    moveMouse(at);
    if (m_screen) {
        XTestFakeButtonEvent(m_screen, leftButton, True, CurrentTime);
        XSync(m_screen, False);
    }
}

void Desktop::releaseMouse() const
{
    if (m_screen) {
        XTestFakeButtonEvent(m_screen, leftButton, False, CurrentTime);
        XSync(m_screen, False);
    }
}

void Desktop::click(QPoint at) const
{
    if (m_screen != m_display) {
        // A compositor finds out what is below the mouse when it draws, and a press before that
        // goes to what was there.
        moveMouse(at);
        QTest::qWait(aimTime); // nothing to wait for: the time a hand takes
    }
    pressMouse(at);
    QTest::qWait(fingerTime); // nothing to wait for: the time a finger takes
    releaseMouse();
    QTest::qWait(fingerTime); // nothing to wait for: the time a finger takes
}

void Desktop::pressKey(const char *name) const
{
    if (m_screen)
        pressSymbol(XStringToKeysym(name));
}

void Desktop::type(const QString &text) const
{
    for (const QChar c : text)
        if (m_screen && c.unicode() < 128) // the keyboard's symbols are numbered like ASCII
            pressSymbol(c.unicode());
}

void Desktop::pressSymbol(unsigned long symbol) const
{
    const KeyCode code = XKeysymToKeycode(m_screen, symbol);
    const KeyCode shift = XKeysymToKeycode(m_screen, XK_Shift_L);
    const bool shifted = XkbKeycodeToKeysym(m_screen, code, 0, 0) != symbol;
    if (shifted)
        XTestFakeKeyEvent(m_screen, shift, True, CurrentTime);
    XTestFakeKeyEvent(m_screen, code, True, CurrentTime);
    XTestFakeKeyEvent(m_screen, code, False, CurrentTime);
    if (shifted)
        XTestFakeKeyEvent(m_screen, shift, False, CurrentTime);
    XSync(m_screen, False);
}

Desktop::Window Desktop::describe(quint32 id, quint32 activeId) const
{
    Window window;
    window.id = id;
    window.title = textProperty(m_display, id, "_NET_WM_NAME");
    window.pid = cardinals(id, "_NET_WM_PID").value(0);
    window.geometry = geometryOnScreen(m_display, id);
    window.isActive = id == activeId;
    return window;
}

QVector<quint32> Desktop::cardinals(quint32 window, const char *property) const
{
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char *data = nullptr;
    XGetWindowProperty(m_display, window, XInternAtom(m_display, property, False), 0, maximumItems,
                       False, AnyPropertyType, &type, &format, &count, &left, &data);
    QVector<quint32> values;
    if (data && format == 32) { // Xlib hands 32-bit items out as longs
        const auto *items = reinterpret_cast<const unsigned long *>(data);
        for (unsigned long i = 0; i < count; ++i)
            values.append(quint32(items[i]));
    }
    if (data)
        XFree(data);
    return values;
}
