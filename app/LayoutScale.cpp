#include "LayoutScale.h"

#include <QByteArray>
#include <QtGlobal>

#include <X11/Xlib.h>
#include <X11/extensions/Xrandr.h>

namespace LayoutScale {

int factorFor(QSize screen)
{
    return qMax(1, qMin(screen.width() / 1920, screen.height() / 1080));
}

QSize primaryScreenSize()
{
    Display *display = XOpenDisplay(nullptr);
    if (!display)
        return {};
    QSize size(DisplayWidth(display, DefaultScreen(display)),
               DisplayHeight(display, DefaultScreen(display)));
    int count = 0;
    // The primary monitor, or the first one when none is primary.
    XRRMonitorInfo *monitors =
        XRRGetMonitors(display, DefaultRootWindow(display), True /* active ones */, &count);
    if (monitors) {
        for (int i = 0; i < count; ++i)
            if (i == 0 || monitors[i].primary)
                size = QSize(monitors[i].width, monitors[i].height);
        XRRFreeMonitors(monitors);
    }
    XCloseDisplay(display);
    return size;
}

void apply()
{
    qputenv("QT_SCALE_FACTOR", QByteArray::number(factorFor(primaryScreenSize())));
    qputenv("QT_FONT_DPI", "96");
}

} // namespace LayoutScale
