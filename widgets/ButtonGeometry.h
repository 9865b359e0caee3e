#ifndef BUTTONGEOMETRY_H
#define BUTTONGEOMETRY_H

#include <QRect>
#include <QSize>
#include <QVector>

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

/**
 * Which of @p places is nearest to @p from in the direction of an arrow key, -1 when none is. What
 * stands straight ahead is nearer than what stands aside.
 */
inline int nearest(const QRect &from, const QVector<QRect> &places, Qt::Key arrow)
{
    int found = -1;
    int shortest = 0;
    for (int i = 0; i < places.size(); ++i) {
        const QPoint way = places[i].center() - from.center();
        const bool isLevel = arrow == Qt::Key_Left || arrow == Qt::Key_Right;
        const bool isBackward = arrow == Qt::Key_Left || arrow == Qt::Key_Up;
        const int ahead = (isLevel ? way.x() : way.y()) * (isBackward ? -1 : 1);
        const int aside = isLevel ? way.y() : way.x();
        const int distance = ahead + 2 * qAbs(aside);
        if (ahead > 0 && qAbs(aside) <= 2 * ahead && (found < 0 || distance < shortest)) {
            found = i;
            shortest = distance;
        }
    }
    return found;
}

} // namespace ButtonGeometry

#endif
