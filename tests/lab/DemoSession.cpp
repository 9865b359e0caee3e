#include "DemoSession.h"

#include "DemoDesk.h"

static const int tick = 1000; // ms; the clock's hand rests no longer than that
static const int fewTicks = 5 * tick; // ms
static constexpr int colourTolerance = 40; // also of a movie, and of small pictures
// Of the desk, where nothing moves: the page's margin, magma, wood.
static const QPoint known[] = {{118, 520}, {470, 738}, {868, 560}};

DemoSession::DemoSession(const QString &executable)
    : Session(executable, QStringLiteral("demonstration"),
              QSize(DemoPlaces::width, DemoPlaces::height))
    , m_desk(demoDesk())
{
    program().setEnvironment(QStringLiteral("ORVANTA_DEMO_CAMERA"), QStringLiteral("1"));
}

bool DemoSession::isPicture(const QImage &seen) const
{
    if (seen.isNull())
        return false;
    for (const QPoint place : known) {
        const QColor wanted = m_desk.pixelColor(place);
        const QColor found = seen.pixelColor(place.x() * seen.width() / m_desk.width(),
                                             place.y() * seen.height() / m_desk.height());
        if (qAbs(wanted.red() - found.red()) > colourTolerance
            || qAbs(wanted.green() - found.green()) > colourTolerance
            || qAbs(wanted.blue() - found.blue()) > colourTolerance)
            return false;
    }
    return true;
}

bool DemoSession::isLiveAt(QRect place) const
{
    const QImage first = seenAt(place);
    return isPicture(first) && waitFor([&] { return seenAt(place) != first; }, fewTicks);
}

bool DemoSession::isStillAt(QRect place) const
{
    const QImage first = seenAt(place);
    return isPicture(first) && !waitFor([&] { return seenAt(place) != first; }, tick + tick / 5);
}
