#include "FramePainter.h"

#include "LabPattern.h"

#include <QBuffer>
#include <QImage>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

namespace {

constexpr int bandCount = int(std::size(LabPattern::bandEdges)) - 1;
constexpr int numberBand = 1; // from the top

QRgb mixed(QRgb a, QRgb b)
{
    return qRgb((qRed(a) + qRed(b)) / 2, (qGreen(a) + qGreen(b)) / 2, (qBlue(a) + qBlue(b)) / 2);
}

} // namespace

bool FramePainter::formatFromName(const std::string &name, Format *format)
{
    const char *names[] = {"UYVY", "YUY2", "RGB", "BGRx", "NV12", "MJPG"};
    const auto *const found = std::find(std::begin(names), std::end(names), name);
    *format = Format(found - std::begin(names));
    return found != std::end(names);
}

FramePainter::FramePainter(Format format, QSize size, QRgb ground)
    : m_format(format)
    , m_size(size)
    , m_ground(ground)
    , m_redWeight(size.height() > 576 ? 0.2126 : 0.299)
    , m_blueWeight(size.height() > 576 ? 0.0722 : 0.114)
{
}

int FramePainter::stride() const
{
    switch (m_format) {
    case UYVY:
    case YUY2:
        return m_size.width() * 2;
    case RGB:
        return (m_size.width() * 3 + 3) / 4 * 4;
    case BGRx:
        return m_size.width() * 4;
    case NV12:
        return m_size.width();
    case MJPG:
        break;
    }
    return 0;
}

int FramePainter::frameBytes() const
{
    if (m_format == MJPG)
        return m_size.width() * m_size.height();
    const int rows = m_format == NV12 ? m_size.height() * 3 / 2 : m_size.height();
    return stride() * rows;
}

void FramePainter::setScene(const QImage &scene)
{
    if (m_format == MJPG || m_format == RGB)
        return;
    const QImage picture = scene.scaled(m_size).convertToFormat(QImage::Format_RGB32);
    QByteArray chroma;
    for (int y = 0; y < m_size.height(); ++y) {
        const auto *pixels = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        Row row(m_size.width());
        std::copy(pixels, pixels + row.size(), row.begin());
        m_scene += m_format == NV12 ? lumaRow(row) : packed(row);
        if (m_format == NV12 && y % 2 == 0)
            chroma += chromaRow(row);
    }
    m_scene += chroma;
}

// The cells must be found in the middle row of a picture scaled to any size.
int FramePainter::paintScene(uchar *target, quint32 counter) const
{
    const Row cells = colours(numberBand, counter);
    const QByteArray row = m_format == NV12 ? lumaRow(cells) : packed(cells);
    const int first = m_size.height() / 2 - m_size.height() / 50;
    const int end = m_size.height() / 2 + m_size.height() / 50;
    std::memcpy(target, m_scene.constData(), size_t(m_scene.size()));
    for (int y = first; y < end; ++y)
        std::memcpy(target + qptrdiff(y) * stride(), row.constData(), size_t(stride()));
    return int(m_scene.size());
}

int FramePainter::paint(uchar *target, quint32 counter) const
{
    if (!m_scene.isEmpty())
        return paintScene(target, counter);
    if (m_format == MJPG)
        return paintJpeg(target, counter);
    QByteArray rows[bandCount];
    QByteArray chromaRows[bandCount];
    for (int band = 0; band < bandCount; ++band) {
        const Row row = colours(band, counter);
        rows[band] = m_format == NV12 ? lumaRow(row) : packed(row);
        if (m_format == NV12)
            chromaRows[band] = chromaRow(row);
    }
    int used = paintPlane(target, m_size.height(), stride(), rows);
    if (m_format == NV12)
        used += paintPlane(target + used, m_size.height() / 2, stride(), chromaRows);
    return used;
}

int FramePainter::bandOfRow(double y)
{
    int band = 0;
    while (band < bandCount - 1 && y >= LabPattern::bandEdges[band + 1])
        ++band;
    return band;
}

FramePainter::Row FramePainter::colours(int band, quint32 counter) const
{
    const double y = (LabPattern::bandEdges[band] + LabPattern::bandEdges[band + 1]) / 2;
    Row row(m_size.width());
    for (int x = 0; x < row.size(); ++x)
        row[x] = LabPattern::colourAt((x + 0.5) / row.size(), y, counter, m_ground);
    return row;
}

QByteArray FramePainter::packed(const Row &row) const
{
    QByteArray bytes(stride(), '\0');
    auto *out = reinterpret_cast<uchar *>(bytes.data());
    if (m_format == RGB) {
        for (const QRgb colour : row) {
            *out++ = uchar(qRed(colour));
            *out++ = uchar(qGreen(colour));
            *out++ = uchar(qBlue(colour));
        }
        return bytes;
    }
    if (m_format == BGRx) {
        std::memcpy(out, row.constData(), size_t(row.size()) * sizeof(QRgb));
        return bytes;
    }
    const int lumaAt = m_format == UYVY ? 1 : 0;
    for (int x = 0; x + 1 < row.size(); x += 2, out += 4) {
        const QRgb both = mixed(row[x], row[x + 1]);
        out[lumaAt] = uchar(luma(row[x]));
        out[lumaAt + 2] = uchar(luma(row[x + 1]));
        out[1 - lumaAt] = uchar(blueChroma(both));
        out[3 - lumaAt] = uchar(redChroma(both));
    }
    return bytes;
}

QByteArray FramePainter::lumaRow(const Row &row) const
{
    QByteArray bytes(stride(), '\0');
    std::transform(row.begin(), row.end(), bytes.begin(),
                   [this](QRgb colour) { return char(luma(colour)); });
    return bytes;
}

QByteArray FramePainter::chromaRow(const Row &row) const
{
    QByteArray bytes(stride(), '\0');
    for (int x = 0; x + 1 < row.size(); x += 2) {
        const QRgb both = mixed(row[x], row[x + 1]);
        bytes[x] = char(blueChroma(both));
        bytes[x + 1] = char(redChroma(both));
    }
    return bytes;
}

int FramePainter::paintPlane(uchar *target, int rows, int bytes, const QByteArray *bands) const
{
    for (int y = 0; y < rows; ++y) {
        const QByteArray &row = bands[bandOfRow((y + 0.5) / rows)];
        std::memcpy(target + qptrdiff(y) * bytes, row.constData(), size_t(bytes));
    }
    return rows * bytes;
}

int FramePainter::paintJpeg(uchar *target, quint32 counter) const
{
    QImage picture(m_size, QImage::Format_RGB32);
    Row bands[bandCount];
    for (int band = 0; band < bandCount; ++band)
        bands[band] = colours(band, counter);
    for (int y = 0; y < picture.height(); ++y) {
        const Row &row = bands[bandOfRow((y + 0.5) / picture.height())];
        std::memcpy(picture.scanLine(y), row.constData(), size_t(row.size()) * sizeof(QRgb));
    }
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    picture.save(&buffer, "JPG", 90);
    const int used = std::min(jpeg.size(), frameBytes());
    std::memcpy(target, jpeg.constData(), size_t(used));
    return used;
}

int FramePainter::luma(QRgb colour) const
{
    const double light = m_redWeight * qRed(colour)
        + (1.0 - m_redWeight - m_blueWeight) * qGreen(colour) + m_blueWeight * qBlue(colour);
    return int(std::lround(16 + light * 219 / 255));
}

int FramePainter::blueChroma(QRgb colour) const
{
    const double light = m_redWeight * qRed(colour)
        + (1.0 - m_redWeight - m_blueWeight) * qGreen(colour) + m_blueWeight * qBlue(colour);
    return int(std::lround(128 + (qBlue(colour) - light) * 112 / 255 / (1.0 - m_blueWeight)));
}

int FramePainter::redChroma(QRgb colour) const
{
    const double light = m_redWeight * qRed(colour)
        + (1.0 - m_redWeight - m_blueWeight) * qGreen(colour) + m_blueWeight * qBlue(colour);
    return int(std::lround(128 + (qRed(colour) - light) * 112 / 255 / (1.0 - m_redWeight)));
}
