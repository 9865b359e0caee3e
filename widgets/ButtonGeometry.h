#ifndef BUTTONGEOMETRY_H
#define BUTTONGEOMETRY_H

#include <QSize>

/** The size rules of the bitmap buttons, free of any screen so that every width can be tried. */
namespace ButtonGeometry {

/**
 * The size of a button whose bitmap is @p bitmap: six of them fit side by side on a screen of
 * @p availableWidth px. Bitmaps are only ever shrunk, and keep their shape.
 */
inline QSize fittedBitmapSize(QSize bitmap, int availableWidth)
{
    const int cellWidth = availableWidth / 6;
    const int width = cellWidth > bitmap.width() ? bitmap.width() : cellWidth;
    return bitmap.scaled(width, bitmap.height(), Qt::KeepAspectRatio);
}

/** Points; captions shrink with the buttons on screens narrower than 1024 px. */
inline int captionPointSize(int availableWidth)
{
    return availableWidth < 1024 ? static_cast<int>(availableWidth * (1.0 / 1024) * 11) : 11;
}

} // namespace ButtonGeometry

#endif
