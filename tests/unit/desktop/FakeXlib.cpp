#include "FakeXlib.h"

#include <QX11Info>
#include <cstdlib>

#include <X11/Xlib.h>

QStringList FakeXlib::calls;
bool FakeXlib::connected = true;
bool FakeXlib::queryFails = false;
unsigned long FakeXlib::frame = 0;
bool FakeXlib::returnsChildren = false;

void FakeXlib::reset()
{
    calls.clear();
    connected = true;
    queryFails = false;
    frame = 0;
    returnsChildren = false;
}

namespace {

void note(const char *function, unsigned long window, const char *detail = "")
{
    FakeXlib::calls << QString("%1 %2%3").arg(function).arg(window).arg(detail);
}

} // namespace

bool QX11Info::isPlatformX11()
{
    return FakeXlib::connected;
}

Display *QX11Info::display()
{
    static char server;
    return reinterpret_cast<Display *>(&server);
}

extern "C" {

Status XQueryTree(Display *, Window window, Window *root, Window *parent, Window **children,
                  unsigned int *childCount)
{
    note("XQueryTree", window);
    if (FakeXlib::queryFails)
        return 0;
    *root = 1;
    *parent = FakeXlib::frame;
    *childCount = FakeXlib::returnsChildren ? 1 : 0;
    *children =
        FakeXlib::returnsChildren ? static_cast<Window *>(calloc(1, sizeof(Window))) : nullptr;
    return 1;
}

int XFree(void *data)
{
    FakeXlib::calls << QStringLiteral("XFree");
    free(data);
    return 1;
}

int XChangeWindowAttributes(Display *, Window window, unsigned long mask,
                            XSetWindowAttributes *attributes)
{
    note("XChangeWindowAttributes", window,
         mask != CWOverrideRedirect          ? " other"
             : attributes->override_redirect ? " override"
                                             : " managed");
    return 1;
}

int XMapRaised(Display *, Window window)
{
    note("XMapRaised", window);
    return 1;
}

int XRaiseWindow(Display *, Window window)
{
    note("XRaiseWindow", window);
    return 1;
}

int XFlush(Display *)
{
    FakeXlib::calls << QStringLiteral("XFlush");
    return 1;
}

} // extern "C"
