#include "LayoutScale.h"

#include "DesktopFacts.h"

#include <QByteArray>
#include <QtGlobal>

#include <array>

static constexpr double plainDpi = 96; // what the layout was designed with
static constexpr double mostEnlarged = 2;
// px of the layout; on a screen of that width every box fits in every language with texts as large.
static constexpr double widthForMost = 1366;

namespace LayoutScale {

int factorFor(QSize screen)
{
    return qMax(1, qMin(screen.width() / 1920, screen.height() / 1080));
}

int textDpiFor(const QString &desktopDpi, QSize screen)
{
    const int factor = factorFor(screen);
    const double mostThatFits =
        qBound(1.0, mostEnlarged * screen.width() / factor / widthForMost, mostEnlarged);
    const double wanted = desktopDpi.trimmed().toDouble() / plainDpi / factor;
    return qRound(plainDpi * (wanted > 1 ? qMin(wanted, mostThatFits) : 1));
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
    const DesktopFacts desktop = readDesktop();
    const QSize screen = desktop.primary().area.size();
    qputenv("QT_SCALE_FACTOR", QByteArray::number(factorFor(screen)));
    qputenv("QT_FONT_DPI", QByteArray::number(textDpiFor(desktop.textDpi, screen)));
}

} // namespace LayoutScale
