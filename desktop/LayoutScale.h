#ifndef LAYOUTSCALE_H
#define LAYOUTSCALE_H

#include <QSize>
#include <QString>

/**
 * The window is laid out for screens of about full HD, with texts of a fixed point size. On a
 * screen of several times that, each of its pixels is drawn as a block of 2x2 (or more) device
 * pixels, so that captions and boxes are as large to the eye as on any other screen.
 *
 * Who has the desktop show larger texts gets larger ones here, too: in boxes, which grow with them,
 * and on buttons as far as these have room. Pictures and buttons fill the screen in any case.
 */
namespace LayoutScale {

/**
 * Device pixels to one pixel of the layout, in each direction: 1 below 3840x2160, then 2, 3
 * from 5760x3240 and so on. A screen counts by the lesser of its directions, an empty size as 1.
 */
int factorFor(QSize screen);

/**
 * Pixels of the layout to one inch of text on a screen of that size, in device pixels: 96 for texts
 * as they are designed, up to twice that where the desktop asks for larger ones.
 *
 * @p desktopDpi is what the desktop says, in device pixels to the inch (Xft.dpi); empty or nonsense
 * counts as 96. A desktop that enlarges everything says it by the same number: what factorFor()
 * does already is not done again. Texts are never made smaller, nor so large that boxes would not
 * fit the screen.
 */
int textDpiFor(const QString &desktopDpi, QSize screen);

/**
 * Tells the toolkit both for the primary monitor and the desktop as it is now; without an X server,
 * 1 and 96. To be called before the application object is built; the toolkit's own ways to be told
 * by a desktop no longer count.
 */
void apply();

} // namespace LayoutScale

#endif
