#include "LayoutScale.h"

#include "DesktopFacts.h"

#include <QByteArray>
#include <QtGlobal>

namespace LayoutScale {

int factorFor(QSize screen)
{
    return qMax(1, qMin(screen.width() / 1920, screen.height() / 1080));
}

QSize primaryScreenSize()
{
    return readDesktop().primary().area.size();
}

void apply()
{
    qputenv("QT_SCALE_FACTOR", QByteArray::number(factorFor(primaryScreenSize())));
    qputenv("QT_FONT_DPI", "96");
}

} // namespace LayoutScale
