#include "JpegPainter.h"

#include "LabPattern.h"

#include <QBuffer>
#include <QImage>

#include <iterator>

static constexpr int stripeLines = 16; // what the encoder takes at once, with halved colours
static constexpr int quality = 90;
static constexpr int bandCount = int(std::size(LabPattern::bandEdges)) - 1;
static constexpr int lastBand = bandCount - 1;

// Marks of a JPEG file, each after a byte 0xff.
static constexpr uchar startOfFrame = 0xc0;
static constexpr uchar firstRestart = 0xd0;
static constexpr uchar startOfScan = 0xda;
static constexpr char endOfPicture[] = "\xff\xd9";

static int bandAt(double y)
{
    int band = 0;
    while (band < lastBand && y >= LabPattern::bandEdges[band + 1])
        ++band;
    return band;
}

static int twoBytes(const QByteArray &bytes, int at)
{
    return uchar(bytes[at]) << 8 | uchar(bytes[at + 1]);
}

static QByteArray asTwoBytes(int value)
{
    return QByteArray(1, char(value >> 8)) + char(value);
}

JpegPainter::JpegPainter(QSize size, QRgb ground)
    : m_size(size)
    , m_ground(ground)
{
    const Parts bars = stripe(0, 0);
    m_head = headForAll(bars.head);
    m_bars = bars.scan;
    m_plain = stripe(lastBand, 0).scan;
}

QByteArray JpegPainter::paint(quint32 counter) const
{
    QByteArray scans[bandCount];
    scans[0] = m_bars;
    scans[lastBand] = m_plain;
    for (int band = 1; band < lastBand; ++band)
        scans[band] = stripe(band, counter).scan;
    QByteArray jpeg = m_head;
    const int stripes = (m_size.height() + stripeLines - 1) / stripeLines;
    for (int i = 0; i < stripes; ++i) {
        if (i > 0) {
            jpeg += '\xff';
            jpeg += char(firstRestart + (i - 1) % 8);
        }
        jpeg += scans[bandAt((i + 0.5) * stripeLines / m_size.height())];
    }
    return jpeg + endOfPicture;
}

JpegPainter::Parts JpegPainter::stripe(int band, quint32 counter) const
{
    const double y = (LabPattern::bandEdges[band] + LabPattern::bandEdges[band + 1]) / 2;
    QImage picture(m_size.width(), stripeLines, QImage::Format_RGB32);
    auto *first = reinterpret_cast<QRgb *>(picture.scanLine(0));
    for (int x = 0; x < picture.width(); ++x)
        first[x] = LabPattern::colourAt((x + 0.5) / picture.width(), y, counter, m_ground);
    for (int line = 1; line < stripeLines; ++line)
        std::copy(first, first + picture.width(), reinterpret_cast<QRgb *>(picture.scanLine(line)));
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    picture.save(&buffer, "JPG", quality);
    return takeApart(jpeg);
}

JpegPainter::Parts JpegPainter::takeApart(const QByteArray &jpeg)
{
    int at = 2; // behind the start of the picture: segments with their lengths
    while (at + 4 < jpeg.size()) {
        const bool isLast = uchar(jpeg[at + 1]) == startOfScan;
        at += 2 + twoBytes(jpeg, at + 2);
        if (isLast)
            return {jpeg.left(at), jpeg.mid(at, jpeg.size() - at - 2)};
    }
    return {};
}

// The stripe's own head, with the height of the whole picture and the restarts announced.
QByteArray JpegPainter::headForAll(const QByteArray &head) const
{
    QByteArray all = head;
    int at = 2;
    while (at + 4 < all.size() && uchar(all[at + 1]) != startOfScan) {
        if (uchar(all[at + 1]) == startOfFrame)
            all.replace(at + 5, 2, asTwoBytes(m_size.height()));
        at += 2 + twoBytes(all, at + 2);
    }
    const int blocks = (m_size.width() + stripeLines - 1) / stripeLines;
    return all.insert(at, QByteArray("\xff\xdd\x00\x04", 4) + asTwoBytes(blocks));
}
