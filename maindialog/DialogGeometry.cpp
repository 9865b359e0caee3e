#include "DialogGeometry.h"

namespace {

// Rectangles are given by their edges, as the toolkit keeps them: right = left + width - 1.
QRect rectOf(int left, int top, QSize size)
{
    return {QPoint(left, top), size};
}

} // namespace

DialogGeometry::DialogGeometry(QSizeF screen, QSize button, int closeWidth)
    : m_width(screen.width())
    , m_height(screen.height())
    , m_button(button)
    , m_closeWidth(closeWidth)
{
}

double DialogGeometry::freeHeight() const
{
    return m_height - m_button.height();
}

QRect DialogGeometry::buttonCell() const
{
    return rectOf(0, int(freeHeight()), m_button);
}

QRect DialogGeometry::cellAt(double left) const
{
    QRect cell = buttonCell();
    cell.moveLeft(int(left));
    return cell;
}

double DialogGeometry::rowStart(int count) const
{
    const int halfRow = count * m_button.width() / 2;
    return (m_width - m_closeWidth) * 0.5 - halfRow;
}

double DialogGeometry::movieRowStart() const
{
    return (m_width - m_closeWidth) * 0.5 - 2 * m_button.width();
}

QSize DialogGeometry::smallButtonSize(QSize own) const
{
    const int half = int(m_button.height() * 0.5);
    if (half >= own.height())
        return own;
    return own.scaled(m_button.width(), half, Qt::KeepAspectRatio);
}

QPoint DialogGeometry::closePosition(QSize close) const
{
    return {int(m_width - close.width()), int(m_height - close.height())};
}

QPoint DialogGeometry::settingsPosition(QSize close, QSize settings) const
{
    return {closePosition(close).x(), int((m_height - close.height()) - settings.height())};
}

QRect DialogGeometry::acceptCell() const
{
    return rectOf(int(m_width * 0.5 - m_button.width()), int(m_height - 2 * m_button.height()),
                  m_button);
}

QRect DialogGeometry::retryCell() const
{
    return rectOf(int(m_width * 0.5), int(m_height - 2 * m_button.height()), m_button);
}

QRect DialogGeometry::videoRect(QSize native) const
{
    const QSize camera = native.width() < 1 || native.height() < 1 ? QSize(1, 1) : native;
    const QSize size = camera.scaled(int(m_width), int(freeHeight()), Qt::KeepAspectRatio);
    return rectOf(int((m_width - size.width()) * 0.5), 0, size);
}

QRect DialogGeometry::halfScreenRect(const QRect &video) const
{
    const QSize size =
        video.size().scaled(int(m_width * 0.5), int(freeHeight()), Qt::KeepAspectRatio);
    return rectOf(0, int((m_height - 2 * m_button.height() - size.height()) * 0.5), size);
}

QRect DialogGeometry::besideHalfScreen(const QRect &half)
{
    return half.translated(half.right() + 1 - half.left(), 0);
}

QRect DialogGeometry::stripRect() const
{
    const double height = freeHeight() / 5.0;
    QRect strip;
    strip.setCoords(0, int(freeHeight() - height), int(m_width) - 1, int(freeHeight()) - 1);
    return strip;
}

QRect DialogGeometry::seriesLiveRect(QSize live, int stripHeight) const
{
    const double halfWidth = m_width * 0.5;
    const double height = freeHeight() - stripHeight;
    const QSize size = live.scaled(int(halfWidth), int(height), Qt::KeepAspectRatio);
    return rectOf(int((halfWidth - size.width()) * 0.5), int((height - size.height()) * 0.5), size);
}

QRect DialogGeometry::seriesPhotoRect(const QRect &seriesLive) const
{
    return seriesLive.translated(int(m_width * 0.5), 0);
}

QRect DialogGeometry::selectionRect(const QRect &video, int stripHeight) const
{
    const double height = video.height() - stripHeight;
    const double width = video.height() > 0 ? video.width() * (height / video.height()) : 0;
    return rectOf(int((m_width - width) * 0.5), 0, QSize(int(width), int(height)));
}

QVector<QRect> DialogGeometry::tileRects(const QRect &video, int count)
{
    QVector<QRect> tiles;
    if (count < 1)
        return tiles;
    // Floating point for a single row, so that its tiles keep the picture's shape to the pixel.
    const int columns = count <= 3 ? count : count == 4 ? 2 : 3;
    QSizeF tile = QSizeF(video.size()) / columns;
    if (count > 3)
        tile = QSizeF(int(tile.width()), int(tile.height()));
    const int rows = (count + columns - 1) / columns;
    const int middle = video.height() / 2;
    const int firstTop = int(middle - rows * tile.height() * 0.5);
    for (int i = 0; i < count; ++i) {
        const int row = i / columns;
        const int column = i % columns;
        tiles.append(rectOf(int(column * tile.width() + video.left()),
                            int(row * tile.height() + firstTop),
                            QSize(int(tile.width()), int(tile.height()))));
    }
    return tiles;
}

QVector<QRect> DialogGeometry::viewPlaces(const QRect &video) const
{
    const QRect half = halfScreenRect(video);
    const QRect strip = stripRect();
    const QRect seriesLive = seriesLiveRect(video.size(), strip.height());
    return {video,
            half,
            besideHalfScreen(half),
            strip,
            selectionRect(video, strip.height()),
            seriesLive,
            seriesPhotoRect(seriesLive)};
}

// The rows before the single cell: where a row begins at the very edge its first place is that
// cell, too, but not on the next screen.
QVector<QRect> DialogGeometry::buttonPlaces() const
{
    QVector<QRect> places;
    const auto addRow = [&](double start, int count) {
        for (int i = 0; i < count; ++i)
            places.append(cellAt(start + i * m_button.width()));
    };
    addRow(rowStart(5), 5);
    addRow(rowStart(3), 3);
    addRow(movieRowStart(), 3);
    places << acceptCell() << retryCell() << buttonCell();
    return places;
}
