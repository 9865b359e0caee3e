#include "DesktopFacts.h"

#include <QX11Info>

#include <algorithm>
#include <memory>

// Xlib defines macros as common as Bool and None: it comes after every header of Qt.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/Xrandr.h>

static constexpr long longestName = 256; // letters; in fours, as the X server counts

namespace {
struct XFreeMemory {
    void operator()(void *memory) const { XFree(memory); }
};

/// A property of a window as it comes from the server.
struct Property {
    std::unique_ptr<unsigned char, XFreeMemory> data; ///< null when there is none of that type
    unsigned long count = 0;
};

// A window manager may end between two questions. That would be an error, which ends the process.
class ErrorsIgnored {
public:
    ErrorsIgnored()
        : m_before(XSetErrorHandler([](Display *, XErrorEvent *) { return 0; }))
    {
    }
    ~ErrorsIgnored() { XSetErrorHandler(m_before); }
    ErrorsIgnored(const ErrorsIgnored &) = delete;
    ErrorsIgnored &operator=(const ErrorsIgnored &) = delete;

private:
    XErrorHandler m_before;
};
} // namespace

static Property propertyOf(Display *display, Window window, const char *name, Atom type)
{
    Atom actualType = None;
    int format = 0;
    unsigned long left = 0;
    unsigned char *data = nullptr;
    Property property;
    XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, longestName / 4,
                       False, type, &actualType, &format, &property.count, &left, &data);
    property.data.reset(data);
    if (actualType != type || property.count == 0)
        property.data.reset();
    return property;
}

// The window manager has a window of its own, which names it and points to itself; one that has
// ended may have left its number behind.
static QString windowManagerOf(Display *display)
{
    Window window = DefaultRootWindow(display);
    for (int step = 0; step < 2; ++step) {
        const Property check = propertyOf(display, window, "_NET_SUPPORTING_WM_CHECK", XA_WINDOW);
        if (!check.data)
            return {};
        window = *reinterpret_cast<const Window *>(check.data.get());
    }
    const Property name =
        propertyOf(display, window, "_NET_WM_NAME", XInternAtom(display, "UTF8_STRING", False));
    const auto *text = reinterpret_cast<const char *>(name.data.get());
    return text ? QString::fromUtf8(text, int(name.count)) : QStringLiteral("without a name");
}

static QString serverOf(Display *display)
{
    const int release = VendorRelease(display);
    return QStringLiteral("%1 %2.%3.%4.%5")
        .arg(QString::fromUtf8(ServerVendor(display)))
        .arg(release / 10000000)
        .arg(release / 100000 % 100)
        .arg(release / 1000 % 100)
        .arg(release % 1000);
}

static QVector<DesktopScreen> screensOf(Display *display)
{
    QVector<DesktopScreen> screens;
    int event = 0;
    int error = 0;
    int count = 0;
    XRRMonitorInfo *monitors = XRRQueryExtension(display, &event, &error)
        ? XRRGetMonitors(display, DefaultRootWindow(display), True /* active ones */, &count)
        : nullptr;
    for (int i = 0; i < count; ++i) {
        const XRRMonitorInfo &monitor = monitors[i];
        const std::unique_ptr<char, XFreeMemory> name(XGetAtomName(display, monitor.name));
        screens.append({QString::fromUtf8(name.get()),
                        {monitor.x, monitor.y, monitor.width, monitor.height},
                        {monitor.mwidth, monitor.mheight},
                        monitor.primary != 0});
    }
    if (monitors)
        XRRFreeMonitors(monitors);
    const QSize whole(DisplayWidth(display, DefaultScreen(display)),
                      DisplayHeight(display, DefaultScreen(display)));
    if (screens.isEmpty())
        screens.append({QString(), QRect(QPoint(), whole), QSize(), true});
    return screens;
}

// Before version 23.1 it is told by the names of its screens alone.
static bool isOnWayland(Display *display, const QVector<DesktopScreen> &screens)
{
    int opcode = 0;
    int event = 0;
    int error = 0;
    return XQueryExtension(display, "XWAYLAND", &opcode, &event, &error)
        || std::any_of(screens.begin(), screens.end(), [](const DesktopScreen &screen) {
               return screen.name.startsWith(QLatin1String("XWAYLAND"));
           });
}

DesktopScreen DesktopFacts::primary() const
{
    const auto found = std::find_if(screens.begin(), screens.end(),
                                    [](const DesktopScreen &screen) { return screen.isPrimary; });
    return found != screens.end() ? *found : screens.value(0);
}

DesktopFacts ownDesktop()
{
    return QX11Info::isPlatformX11() ? readDesktop() : DesktopFacts();
}

DesktopFacts readDesktop()
{
    DesktopFacts facts;
    Display *display = XOpenDisplay(nullptr);
    if (!display)
        return facts;
    const ErrorsIgnored ignored;
    facts.isThere = true;
    facts.server = serverOf(display);
    facts.screens = screensOf(display);
    facts.isOnWayland = isOnWayland(display, facts.screens);
    facts.windowManager = windowManagerOf(display);
    facts.isComposited =
        XGetSelectionOwner(display, XInternAtom(display, "_NET_WM_CM_S0", False)) != None;
    facts.textDpi = QString::fromUtf8(XGetDefault(display, "Xft", "dpi"));
    XCloseDisplay(display);
    return facts;
}
