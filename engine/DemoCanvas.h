#ifndef DEMOCANVAS_H
#define DEMOCANVAS_H

#include <QImage>
#include <QRect>
#include <QRegion>

#include <vector>

/**
 * A picture as cameras send it: I420, BT.709 in limited range. Both sides are multiples of 8, so
 * that planes follow each other without gaps, as they do in a GStreamer buffer.
 */
class DemoCanvas {
public:
    DemoCanvas(int width, int height);

    uchar *pixels() { return m_pixels.data(); }
    size_t size() const { return m_pixels.size(); } ///< bytes

    /// Converts all of @p picture, of Format_RGB32, to @p corner. Corner and sides are even.
    void put(const QImage &picture, QPoint corner);

    /// Takes what @p other has in an even rectangle; it is of the same size.
    void take(const DemoCanvas &other, QRect place);

    /// The smallest rectangle around @p place with even corner and sides that @p size contains.
    static QRect even(QRect place, QSize size);

    QRegion stale; ///< where it is not yet what it is to be; for whoever paints it

private:
    uchar *plane(int number) { return m_pixels.data() + offset(number); }
    size_t offset(int number) const; ///< 0 luma, 1 and 2 chroma
    int stride(int number) const { return number == 0 ? m_width : m_width / 2; }

    int m_width;
    int m_height;
    std::vector<uchar> m_pixels;
};

#endif
