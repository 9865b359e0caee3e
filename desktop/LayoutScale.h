#ifndef LAYOUTSCALE_H
#define LAYOUTSCALE_H

#include <QSize>

/**
 * The window is laid out for screens of about full HD, with texts of a fixed point size. On a
 * screen of several times that, each of its pixels is drawn as a block of 2x2 (or more) device
 * pixels, so that captions and boxes are as large to the eye as on any other screen.
 */
namespace LayoutScale {

/**
 * Device pixels to one pixel of the layout, in each direction: 1 below 3840x2160, then 2, 3
 * from 5760x3240 and so on. A screen counts by the lesser of its directions, an empty size as 1.
 */
int factorFor(QSize screen);

/**
 * px, the primary monitor; empty when the X server cannot be asked. Needs no application object.
 */
QSize primaryScreenSize();

/**
 * Tells the toolkit the factor for the primary monitor. To be called before the application
 * object is built; the desktop's own scaling, of texts or of all, no longer counts: the layout,
 * made of pixels, could not follow.
 */
void apply();

} // namespace LayoutScale

#endif
