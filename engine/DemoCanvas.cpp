#include "DemoCanvas.h"

#include <cstring>

// BT.709 in limited range, in parts of 65536: what red, green and blue add.
static constexpr int ofLuma[] = {11966, 40254, 4064};
static constexpr int ofBlueChroma[] = {-6596, -22189, 28785};
static constexpr int ofRedChroma[] = {28784, -26145, -2639};

DemoCanvas::DemoCanvas(int width, int height)
    : m_width(width)
    , m_height(height)
    , m_pixels(size_t(width) * size_t(height) * 3 / 2)
{
}

size_t DemoCanvas::offset(int number) const
{
    const size_t luma = size_t(m_width) * size_t(m_height);
    return number == 0 ? 0 : luma + size_t(number - 1) * luma / 4;
}

static uchar lumaOf(QRgb pixel)
{
    return uchar((ofLuma[0] * qRed(pixel) + ofLuma[1] * qGreen(pixel) + ofLuma[2] * qBlue(pixel)
                  + (16 << 16) + (1 << 15))
                 >> 16);
}

namespace {
/// Four pixels together, which share their chroma.
struct Sum {
    int red;
    int green;
    int blue;

    uchar weighed(const int (&shares)[3]) const
    {
        return uchar(
            (shares[0] * red + shares[1] * green + shares[2] * blue + (128 << 18) + (1 << 17))
            >> 18);
    }
};
} // namespace

static Sum sumOf(const QRgb *upper, const QRgb *lower)
{
    return {qRed(upper[0]) + qRed(upper[1]) + qRed(lower[0]) + qRed(lower[1]),
            qGreen(upper[0]) + qGreen(upper[1]) + qGreen(lower[0]) + qGreen(lower[1]),
            qBlue(upper[0]) + qBlue(upper[1]) + qBlue(lower[0]) + qBlue(lower[1])};
}

void DemoCanvas::put(const QImage &picture, QPoint corner)
{
    for (int y = 0; y < picture.height(); y += 2) {
        const auto *upper = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        const auto *lower = reinterpret_cast<const QRgb *>(picture.constScanLine(y + 1));
        uchar *luma = plane(0) + size_t(corner.y() + y) * size_t(m_width) + corner.x();
        const size_t chroma =
            size_t((corner.y() + y) / 2) * size_t(stride(1)) + size_t(corner.x() / 2);
        for (int x = 0; x < picture.width(); ++x) {
            luma[x] = lumaOf(upper[x]);
            luma[m_width + x] = lumaOf(lower[x]);
        }
        for (int x = 0; x < picture.width(); x += 2) {
            const Sum sum = sumOf(upper + x, lower + x);
            plane(1)[chroma + size_t(x / 2)] = sum.weighed(ofBlueChroma);
            plane(2)[chroma + size_t(x / 2)] = sum.weighed(ofRedChroma);
        }
    }
}

void DemoCanvas::take(const DemoCanvas &other, QRect place)
{
    for (int number = 0; number < 3; ++number) {
        const int divisor = number == 0 ? 1 : 2;
        const size_t bytes = size_t(place.width() / divisor);
        for (int y = place.top() / divisor; y <= place.bottom() / divisor; ++y) {
            const size_t at = offset(number) + size_t(y) * size_t(stride(number))
                + size_t(place.left() / divisor);
            std::memcpy(m_pixels.data() + at, other.m_pixels.data() + at, bytes);
        }
    }
}

QRect DemoCanvas::even(QRect place, QSize size)
{
    const int left = place.left() & ~1;
    const int top = place.top() & ~1;
    const QRect grown(left, top, (place.right() - left + 2) & ~1, (place.bottom() - top + 2) & ~1);
    return grown & QRect({0, 0}, size);
}
