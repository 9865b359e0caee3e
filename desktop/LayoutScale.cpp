#include "LayoutScale.h"

#include "DesktopFacts.h"

#include <QByteArray>
#include <QtGlobal>

#include <array>

namespace LayoutScale {

int factorFor(QSize screen)
{
    return qMax(1, qMin(screen.width() / 1920, screen.height() / 1080));
}

QSize primaryScreenSize()
{
    return readDesktop().primary().area.size();
}

// What desktops set to enlarge every program: one of them names a factor for each screen, with
// which the captions would get smaller instead of larger.
static const std::array<const char *, 4> otherScalings{
    "QT_SCREEN_SCALE_FACTORS", "QT_AUTO_SCREEN_SCALE_FACTOR", "QT_ENABLE_HIGHDPI_SCALING",
    "QT_DEVICE_PIXEL_RATIO"};

void apply()
{
    for (const char *variable : otherScalings)
        qunsetenv(variable);
    qputenv("QT_SCALE_FACTOR", QByteArray::number(factorFor(primaryScreenSize())));
    qputenv("QT_FONT_DPI", "96");
}

} // namespace LayoutScale
