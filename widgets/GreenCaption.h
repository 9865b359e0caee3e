#ifndef GREENCAPTION_H
#define GREENCAPTION_H

#include "TextSize.h"

#include <QFont>
#include <QPalette>

/**
 * The look of the texts that lie over pictures: large green letters on black, read from the back
 * row, and as thin as the font has them, so that they hide little of the picture.
 */
namespace GreenCaption {

/**
 * Of the normal 50, on the toolkit's scale from 0 to 99: less than any font has, so its thinnest.
 */
constexpr int hairlineWeight = 5;

/** @p base in green on black, for a caption or for a view whose captions take after it. */
inline QPalette palette(QPalette base)
{
    base.setColor(QPalette::Window, Qt::black);
    base.setColor(QPalette::WindowText, Qt::green);
    return base;
}

/** 24 points, also on desktops with large texts: larger ones would hide more than they tell. */
inline QFont font()
{
    QFont font(QStringLiteral("Arial"), 24, hairlineWeight, false);
    font.setPointSizeF(24 / TextSize::factor());
    return font;
}

} // namespace GreenCaption

#endif
