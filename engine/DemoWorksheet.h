#ifndef DEMOWORKSHEET_H
#define DEMOWORKSHEET_H

#include <QSizeF>

class QPainter;

/// Of the printed page, in pixels of the demonstration camera's picture.
constexpr QSizeF demoWorksheetSize(740, 1046);

/// The worksheet that lies under the demonstration camera: a title, text, and the section through a
/// volcano. At the painter's origin, which is left as it was.
void drawDemoWorksheet(QPainter &painter);

#endif
