#ifndef FAKEXLIB_H
#define FAKEXLIB_H

#include <QStringList>

/**
 * Stands in for the X server: the test program defines the few Xlib functions that raising needs,
 * and QX11Info, so they are found before the ones of the libraries. Every call is written down as
 * "function window", e.g. "XMapRaised 7", in the order in which it came.
 */
struct FakeXlib {
    static QStringList calls;
    static bool connected; ///< whether the desktop is an X11 one
    static bool queryFails; ///< as for a window that is gone
    static unsigned long frame; ///< the parent that every window has; 0 for none
    static bool returnsChildren; ///< XQueryTree hands out a list that must be freed

    static void reset();
};

#endif
