#include "WindowMap.h"

#include "CStretchBitmapButton.h"

#include <QAbstractButton>
#include <QDialog>
#include <QVector>

namespace {

constexpr int boxWidth = 16;

// The part of a button that its caption never covers.
QRect iconPart(QRect button)
{
    return {button.topLeft(), QSize(button.width() * 2 / 5, button.height())};
}

} // namespace

WindowMap::WindowMap(QRect area, int scale, QSize camera)
    : m_origin(area.topLeft())
    , m_scale(scale)
{
    const QSize screen = area.size() / scale;
    const QSize main = CStretchBitmapButton("Live", nullptr).size();
    const DialogGeometry withoutColumn(screen, main);
    const QSize close =
        withoutColumn.smallButtonSize(CStretchBitmapButton("Close", nullptr).size());
    m_geometry = DialogGeometry(screen, main, close.width());
    m_close = QRect(m_geometry.closePosition(close), close);
    m_settings = QRect(m_geometry.settingsPosition(close, close), close);
    m_video = m_geometry.videoRect(camera);
    m_half = m_geometry.halfScreenRect(m_video);
}

QRect WindowMap::onScreen(QRect inWindow) const
{
    return inWindow.isNull()
        ? inWindow
        : QRect(m_origin + inWindow.topLeft() * m_scale, inWindow.size() * m_scale);
}

QStringList WindowMap::rowOf(Screen screen) const
{
    switch (screen) {
    case LiveScreen:
        return {"Live", "Photo", "PhotoMulti", "Movie", "List"};
    case PhotoScreen:
        return {"Live", "PutPhoto", "List"};
    case ListScreen:
        return {"Live", "Show", "SwitchMovie"};
    case MovieListScreen:
        return {"Live", "Show", "SwitchPhoto"};
    case RecordingScreen:
        return {"Live", "Photo", "PhotoMulti", "MovieStop", "List"};
    case MovieScreen:
        return {"Live", "MoviePlay", "List"};
    case PlayingScreen:
        return {"Live", "MoviePause", "List"};
    case PreviewScreen:
        break;
    }
    return {};
}

QRect WindowMap::button(Screen screen, const QString &name) const
{
    return onScreen(inWindow(screen, name));
}

QRect WindowMap::inWindow(Screen screen, const QString &name) const
{
    if (name == "Close")
        return m_close;
    if (name == "Settings")
        return screen == LiveScreen || screen == PreviewScreen ? m_settings : QRect();
    if (screen == PreviewScreen) {
        return name == "Apply" ? m_geometry.acceptCell()
            : name == "Retry"  ? m_geometry.retryCell()
                               : QRect();
    }
    const QStringList row = rowOf(screen);
    const int cell = row.indexOf(name);
    if (cell < 0)
        return {};
    const bool isMovie = screen == MovieScreen || screen == PlayingScreen;
    double left = isMovie ? m_geometry.movieRowStart() : m_geometry.rowStart(row.size());
    for (int i = 0; i < cell; ++i)
        left += m_geometry.cellAt(left).width();
    return m_geometry.cellAt(left);
}

WindowMap::Look WindowMap::look(const QImage &screenshot, Screen screen, const QString &name)
{
    const QRect place = button(screen, name);
    if (place.isEmpty())
        return Absent;
    const QImage seen = screenshot.copy(iconPart(place)).convertToFormat(QImage::Format_RGB32);
    const int state = bitmaps(name, place.size() / m_scale).indexOf(seen);
    return state < 0 ? Absent : Look(state);
}

QStringList WindowMap::pressable(const QImage &screenshot, Screen screen)
{
    QStringList names = rowOf(screen);
    if (screen == PreviewScreen) {
        names << "Apply"
              << "Retry";
    }
    names << "Settings"
          << "Close";
    QStringList found;
    for (const QString &name : qAsConst(names))
        if (look(screenshot, screen, name) == Up)
            found.append(name);
    return found;
}

QRect WindowMap::seriesLiveRect() const
{
    return onScreen(m_geometry.seriesLiveRect(m_video.size(), m_geometry.stripRect().height()));
}

QRect WindowMap::seriesPhotoRect() const
{
    return onScreen(m_geometry.seriesPhotoRect(
        m_geometry.seriesLiveRect(m_video.size(), m_geometry.stripRect().height())));
}

QRect WindowMap::thumbnail(int position) const
{
    constexpr int spacing = 10;
    const QRect strip = m_geometry.stripRect();
    const int width = strip.height(); // each is as wide as the strip is high
    return onScreen({spacing + position * (width + spacing), strip.top() + spacing, width,
                     strip.height() * 2 / 3});
}

QRect WindowMap::selectionRect() const
{
    return onScreen(m_geometry.selectionRect(m_video, m_geometry.stripRect().height()));
}

QRect WindowMap::tile(int count, int position) const
{
    return onScreen(DialogGeometry::tileRects(m_video, count).value(position));
}

QPoint WindowMap::cornerButton(QRect tile) const
{
    const QSize size = CStretchBitmapButton("Zoom", nullptr).size() * m_scale;
    return tile.bottomRight() - QPoint(size.width() / 2, size.height() / 2);
}

QPoint WindowMap::inDialog(QDialog *twin, const QWidget *control, QPoint topLeft)
{
    twin->setAttribute(Qt::WA_DontShowOnScreen);
    twin->show();
    QPoint spot = control->rect().center();
    const auto *button = qobject_cast<const QAbstractButton *>(control);
    if (button && button->isCheckable())
        spot.setX(boxWidth / 2); // only the box and the text react, not the room beside them
    const QPoint place = topLeft + control->mapTo(twin, spot) * twin->devicePixelRatio();
    twin->hide();
    return place;
}

// In the order of Look.
const QVector<QImage> &WindowMap::bitmaps(const QString &name, QSize size)
{
    QVector<QImage> &known = m_bitmaps[name];
    if (known.isEmpty()) {
        CStretchBitmapButton button(name, nullptr);
        button.setAttribute(Qt::WA_DontShowOnScreen);
        button.setFocusPolicy(Qt::NoFocus);
        button.resize(size);
        button.show();
        for (const Look state : {Up, Down, Disabled}) {
            button.setDown(state == Down);
            button.setEnabled(state != Disabled);
            const QImage picture = button.grab().toImage();
            known.append(
                picture.copy(iconPart(picture.rect())).convertToFormat(QImage::Format_RGB32));
        }
    }
    return known;
}
