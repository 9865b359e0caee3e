#ifndef FRAMEPAINTER_H
#define FRAMEPAINTER_H

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QSize>
#include <QVector>

#include <string>

// Paints the lab's test picture straight into a camera's frame buffer, cheaply enough for several
// full-HD cameras beside the program under test: the picture has only five different rows, so each
// is converted once per frame and copied down.
class FramePainter {
public:
    enum Format { UYVY, YUY2, RGB, BGRx, NV12, MJPG };

    // False when the name is none of the above.
    static bool formatFromName(const std::string &name, Format *format);

    FramePainter(Format format, QSize size, QRgb ground);

    Format format() const { return m_format; }
    QSize size() const { return m_size; }
    // Bytes per row of the first plane; 0 for MJPG.
    int stride() const;
    // Bytes that a buffer must hold; for MJPG an upper bound.
    int frameBytes() const;
    // The camera sees this picture, as large as its frames, instead of the test picture; of that it
    // keeps the cells with the frame's number in a band across the middle. Not for MJPG and RGB.
    void setScene(const QImage &scene);
    // Paints frame `counter` and returns the bytes used.
    int paint(uchar *target, quint32 counter) const;

private:
    using Row = QVector<QRgb>;

    static int bandOfRow(double y);
    Row colours(int band, quint32 counter) const;
    QByteArray packed(const Row &row) const;
    QByteArray lumaRow(const Row &row) const;
    QByteArray chromaRow(const Row &row) const;
    int paintPlane(uchar *target, int rows, int bytes, const QByteArray *bands) const;
    int paintScene(uchar *target, quint32 counter) const;
    int paintJpeg(uchar *target, quint32 counter) const;

    int luma(QRgb colour) const;
    int blueChroma(QRgb colour) const;
    int redChroma(QRgb colour) const;

    Format m_format;
    QSize m_size;
    QRgb m_ground;
    QByteArray m_scene; // as a frame; empty for the test picture
    double m_redWeight; // the matrix: share of red and of blue in the luma
    double m_blueWeight;
};

#endif // FRAMEPAINTER_H
