#include "BoundedTask.h"
#include "DesktopFacts.h"
#include "LayoutScale.h"
#include "Report.h"
#include "Sections.h"

static QString variable(const char *name)
{
    return QString::fromLocal8Bit(qgetenv(name));
}

static void writeScreens(Report &report, const DesktopFacts &desktop)
{
    report.number("screens", desktop.screens.size());
    int number = 0;
    for (const DesktopScreen &screen : desktop.screens) {
        report.fact(QStringLiteral("screen %1").arg(++number), screen.name);
        report.publicFact("pixels",
                          QStringLiteral("%1x%2 at (%3, %4)")
                              .arg(screen.area.width())
                              .arg(screen.area.height())
                              .arg(screen.area.x())
                              .arg(screen.area.y()),
                          1);
        report.publicFact("millimetres",
                          QStringLiteral("%1x%2")
                              .arg(screen.millimetres.width())
                              .arg(screen.millimetres.height()),
                          1);
        report.answer("primary", screen.isPrimary, 1);
    }
    report.number("scale of the window", LayoutScale::factorFor(desktop.primary().area.size()));
}

void Sections::writeDisplay(Report &report, std::chrono::steady_clock::time_point deadline)
{
    report.beginSection("Display");
    report.fact("session", variable("XDG_SESSION_TYPE"));
    report.fact("desktop", variable("XDG_CURRENT_DESKTOP"));
    const BoundedTask reading(readDesktop);
    const std::optional<DesktopFacts> desktop = reading.waitUntil(deadline);
    if (!desktop) {
        report.unknown("X server", "the X server does not answer");
        return;
    }
    report.publicFact("X server", desktop->isThere ? desktop->server : QStringLiteral("none"));
    if (!desktop->isThere)
        return;
    report.answer("guest on a Wayland desktop", desktop->isOnWayland);
    report.fact("window manager",
                desktop->windowManager.isEmpty() ? QStringLiteral("none") : desktop->windowManager);
    report.answer("composited", desktop->isComposited);
    report.fact("size of texts (dpi)", desktop->textDpi);
    writeScreens(report, *desktop);
}
