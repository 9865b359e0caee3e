// Watches the screen of the lab and says when which picture of a lab camera came to be seen.
//
//   bench_eyes NAME=X,Y,WIDTHxHEIGHT...     a place of the screen
//   bench_eyes NAME=WIDTHxHEIGHT...         whatever is drawn in this size, wherever it stands
//
// Prints "watching" and then, at each change, a line "NAME TIME NUMBER": the monotonic clock's time
// in ns, and the camera's number of the frame, or -1 for something that is no whole picture of it.
// The X server tells of each drawing, so that nothing is asked of it between two pictures. Runs
// until its input ends.

#include "LabPattern.h"

#include <QImage>
#include <QRect>
#include <QRegularExpression>
#include <QString>
#include <QVector>

#include <cstdio>
#include <cstring>
#include <ctime>
#include <poll.h>

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xdamage.h>

namespace {

struct Place {
    QString name;
    QSize size; ///< px
    QRect rect; ///< px of the screen; what was drawn last of it, when that may be anywhere
    bool isAnywhere = false;
    bool isTouched = false;
    int number = -2; ///< of the frame seen last; -2: not looked at yet
    QImage row; ///< what was seen last, to know other changes by
};

qint64 nanosecondsNow()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}

QVector<Place> placesIn(int count, char **arguments)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\w+)=(?:(-?\\d+),(-?\\d+),)?(\\d+)x(\\d+)$"));
    QVector<Place> places;
    for (int i = 0; i < count; ++i) {
        const auto found = form.match(QString::fromLocal8Bit(arguments[i]));
        if (!found.hasMatch())
            return {};
        Place place;
        place.name = found.captured(1);
        place.isAnywhere = found.captured(2).isEmpty();
        place.size = QSize(found.captured(4).toInt(), found.captured(5).toInt());
        place.rect =
            QRect(QPoint(found.captured(2).toInt(), found.captured(3).toInt()), place.size);
        places.append(place);
    }
    return places;
}

// The frame of a window may push some of it over the edge of the screen.
bool isNearly(QSize drawn, QSize wanted)
{
    return drawn.width() <= wanted.width() && drawn.height() <= wanted.height()
        && drawn.width() * 40 >= wanted.width() * 39 && drawn.height() * 10 >= wanted.height() * 9;
}

void touch(Place *place, const QRect &drawn)
{
    if (place->isAnywhere && drawn != place->rect && isNearly(drawn.size(), place->size))
        place->rect = drawn;
    if (place->isAnywhere ? drawn == place->rect : drawn.intersects(place->rect))
        place->isTouched = true;
}

// One row of the screen tells the number; the others here are copies of it.
QImage rowAt(Display *display, const QRect &place)
{
    const QRect screen(0, 0, DisplayWidth(display, DefaultScreen(display)),
                       DisplayHeight(display, DefaultScreen(display)));
    if (!screen.contains(place))
        return {};
    XImage *row = XGetImage(display, DefaultRootWindow(display), place.x(), place.center().y(),
                            unsigned(place.width()), 1, AllPlanes, ZPixmap);
    if (!row)
        return {};
    QImage picture(place.width(), 3, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        std::memcpy(picture.scanLine(y), row->data, size_t(picture.bytesPerLine()));
    XDestroyImage(row);
    return picture;
}

void look(Display *display, QVector<Place> *places)
{
    for (Place &place : *places) {
        if (!place.isTouched)
            continue;
        place.isTouched = false;
        const QImage row = rowAt(display, place.rect);
        const int number = row.isNull() ? -1 : LabPattern::counterOf(row);
        if (number == place.number && (number >= 0 || row == place.row))
            continue;
        place.number = number;
        place.row = row;
        std::printf("%s %lld %d\n", qPrintable(place.name),
                    static_cast<long long>(nanosecondsNow()), number);
        std::fflush(stdout);
    }
}

void watch(Display *display, int damageEvent, QVector<Place> places)
{
    pollfd inputs[] = {{ConnectionNumber(display), POLLIN, 0}, {fileno(stdin), POLLIN, 0}};
    while (inputs[1].revents == 0) {
        while (XPending(display) > 0) {
            XEvent event = {};
            XNextEvent(display, &event);
            if (event.type != damageEvent)
                continue;
            const XRectangle &area = reinterpret_cast<XDamageNotifyEvent *>(&event)->area;
            for (Place &place : places)
                touch(&place, QRect(area.x, area.y, area.width, area.height));
        }
        look(display, &places);
        if (XPending(display) == 0)
            poll(inputs, 2, -1);
    }
}

} // namespace

int main(int argc, char **argv)
{
    QVector<Place> places = placesIn(argc - 1, argv + 1);
    Display *display = XOpenDisplay(nullptr);
    int damageEvent = 0;
    int damageError = 0;
    if (places.isEmpty() || !display
        || !XDamageQueryExtension(display, &damageEvent, &damageError)) {
        std::fprintf(stderr, "bench_eyes: nothing to watch\n");
        return 2;
    }
    XDamageCreate(display, DefaultRootWindow(display), XDamageReportRawRectangles);
    XSync(display, False);
    for (Place &place : places)
        place.isTouched = !place.isAnywhere; // what is there already
    std::printf("watching\n");
    std::fflush(stdout);
    watch(display, damageEvent + XDamageNotify, std::move(places));
    XCloseDisplay(display);
    return 0;
}
