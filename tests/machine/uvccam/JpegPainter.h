#ifndef JPEGPAINTER_H
#define JPEGPAINTER_H

#include <QByteArray>
#include <QColor>
#include <QSize>

/**
 * Paints the lab's test picture as JPEG, cheaply enough for a camera that runs in an emulated
 * machine: the picture has only five different rows, so of each one stripe of sixteen lines is
 * encoded, and what came out is repeated down the picture with restart marks in between.
 */
class JpegPainter {
public:
    JpegPainter(QSize size, QRgb ground);

    QByteArray paint(quint32 counter) const;

private:
    /// A JPEG file taken apart.
    struct Parts {
        QByteArray head; ///< all up to the picture's own bytes
        QByteArray scan; ///< these, without the end of the file
    };

    Parts stripe(int band, quint32 counter) const;
    static Parts takeApart(const QByteArray &jpeg);
    QByteArray headForAll(const QByteArray &head) const;

    QSize m_size;
    QRgb m_ground;
    QByteArray m_head;
    QByteArray m_bars; ///< the scans of the two bands that never change
    QByteArray m_plain;
};

#endif
