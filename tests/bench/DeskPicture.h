#ifndef DESKPICTURE_H
#define DESKPICTURE_H

#include <QImage>
#include <QSize>

/// What a camera over a desk sees: soft light, a sheet with writing, hands, and the sensor's noise,
/// which is what makes photos large. @p noise is the most that a colour is off, of 255.
QImage deskPicture(QSize size, int noise);

/// What a camera sees of a printed A4 page that fills its height: text of ten points, black on
/// white. Without noise.
QImage pageOfText(QSize size);

#endif
