#ifndef CONTRAST_H
#define CONTRAST_H

#include <QColor>

#include <cmath>

/// How well something can be made out on its ground, as the guidelines for readable text measure
/// it.

/// Relative luminance of sRGB, 0 (black) to 1 (white).
inline double luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour))
        + 0.0722 * linear(qBlue(colour));
}

/// 1 (the same) to 21 (black on white).
inline double contrast(QRgb a, QRgb b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (qMax(la, lb) + 0.05) / (qMin(la, lb) + 0.05);
}

#endif
