#ifndef TEXTSIZE_H
#define TEXTSIZE_H

#include <QtGlobal>

/**
 * How much larger than designed all texts are, for those who have the desktop show large ones. The
 * toolkit enlarges every font that is given in points; here is what has a fixed size, or room for
 * so much text and no more.
 */
namespace TextSize {

/** 1 for texts as designed, or more. It is what the toolkit was told before it began. */
inline double factor()
{
    static constexpr double plainDpi = 96;
    return qMax(1.0, qEnvironmentVariableIntValue("QT_FONT_DPI") / plainDpi);
}

} // namespace TextSize

#endif
