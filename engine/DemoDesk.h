#ifndef DEMODESK_H
#define DEMODESK_H

#include <QImage>
#include <QTransform>

/**
 * The desk under the demonstration camera with everything on it that rests: a worksheet with a
 * drawing, the notebook that is drawn into, a ruler, a clock without hands, and a note that says
 * that this is a demonstration. Drawn by the program, sharp at the size of the picture.
 *
 * All in pixels of the picture. Takes some tens of milliseconds: called once for a camera. Any
 * thread.
 */
QImage demoDesk();

namespace DemoPlaces {

constexpr int width = 1920; ///< of the picture
constexpr int height = 1080;
constexpr int clockX = 1690; ///< the middle of the clock
constexpr int clockY = 205;
constexpr int clockRadius = 128; ///< of its face

/// From the notebook's page, 600 wide and 740 high, to the picture.
QTransform notebook();

} // namespace DemoPlaces

#endif
