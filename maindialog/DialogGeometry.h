#ifndef DIALOGGEOMETRY_H
#define DIALOGGEOMETRY_H

#include <QRect>
#include <QSize>
#include <QVector>

/**
 * Where everything in the main window stands, as plain arithmetic: screen, button and camera sizes
 * in, rectangles out. All sizes and places are pixels of the layout, each of which may be several
 * device pixels wide (LayoutScale), measured from the window's top left corner. Halvings multiply
 * by 0.5, and what becomes an integer is cut toward zero.
 */
class DialogGeometry {
public:
    static constexpr int mostTiles = 9; ///< three rows of three

    DialogGeometry() = default;
    /// @p closeWidth is the width of the small buttons' column at the bottom right.
    DialogGeometry(QSizeF screen, QSize button, int closeWidth = 0);

    /// The bottom-left cell of the button row, one button large.
    QRect buttonCell() const;
    /// @p cell's rectangle for a button whose left edge is @p left.
    QRect cellAt(double left) const;
    /// Left edge of a row of @p count cells, centred in what the small buttons' column leaves.
    double rowStart(int count) const;
    /// Left edge of the playback row, which makes room for four cells and fills three.
    double movieRowStart() const;

    /// Size of a small button: at most half a button high, with the aspect of its own bitmap.
    QSize smallButtonSize(QSize own) const;
    /// Top left corner of "Close", flush with the screen's bottom right corner.
    QPoint closePosition(QSize close) const;
    /// Top left corner of "Settings", directly above "Close".
    QPoint settingsPosition(QSize close, QSize settings) const;
    /// "Accept" and "Retry" meet at the centre of the screen, just above the bottom row.
    QRect acceptCell() const;
    QRect retryCell() const;

    /// The largest picture of the camera's shape above the buttons, centred, glued to the top.
    /// A camera without a size (below 1 px in a direction) counts as 1 by 1.
    QRect videoRect(QSize native) const;
    /// @p video shrunk to half the screen's width, at the left, above two rows of buttons.
    QRect halfScreenRect(const QRect &video) const;
    /// The rectangle to the right of halfScreenRect(), of the same size.
    static QRect besideHalfScreen(const QRect &half);

    /// The strip of thumbnails: a fifth of the free height, directly above the buttons.
    QRect stripRect() const;
    /// During a series: the live picture (of size @p live) centred in the left half above a strip
    /// of @p stripHeight.
    QRect seriesLiveRect(QSize live, int stripHeight) const;
    /// The last photo of the series, centred in the right half.
    QRect seriesPhotoRect(const QRect &seriesLive) const;
    /// The picture shown above the strip while thumbnails are being selected.
    QRect selectionRect(const QRect &video, int stripHeight) const;

    /// Tiles for @p count pictures inside @p video: one row up to three, two by two for four, three
    /// columns from five on. Empty for no picture.
    static QVector<QRect> tileRects(const QRect &video, int count);

    /// Every place that a view but a tile can have with this @p video, and every one of a button in
    /// a row or above it, in an order that is always the same: so places of two screens find each
    /// other.
    QVector<QRect> viewPlaces(const QRect &video) const;
    QVector<QRect> buttonPlaces() const;

private:
    double freeHeight() const;

    double m_width = 0;
    double m_height = 0;
    QSize m_button;
    int m_closeWidth = 0;
};

#endif
