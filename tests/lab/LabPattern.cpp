#include "LabPattern.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>

namespace LabPattern {

namespace {

constexpr double blockWidth = 0.1;

// A cell counts by the grey of its middle, so scaled and slightly blurred pictures can be read too.
bool looksWhite(QRgb colour)
{
    return qGray(colour) > 127;
}

QRgb pixelAt(const QImage &picture, double x, double y)
{
    return picture.pixel(std::min(picture.width() - 1, int(x * picture.width())),
                         std::min(picture.height() - 1, int(y * picture.height())));
}

int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

} // namespace

QRgb groundOf(const QString &cameraName)
{
    uint sum = 0;
    for (const QChar c : cameraName)
        sum = sum * 31 + c.unicode();
    return QColor::fromHsv(int(sum * 67 % 360), 130, 140).rgb();
}

QRgb barColour(int bar)
{
    constexpr QRgb bars[barCount] = {0xffffffff, 0xffffff00, 0xff00ffff, 0xff00ff00,
                                     0xffff00ff, 0xffff0000, 0xff0000ff, 0xff000000};
    return bars[std::clamp(bar, 0, barCount - 1)];
}

QRgb blockColour()
{
    return 0xffff8000;
}

double blockCentre(quint32 counter)
{
    const double way = double(counter % blockSteps) / (blockSteps - 1);
    return blockWidth / 2 + way * (1.0 - blockWidth);
}

bool cellIsWhite(int cell, quint32 counter)
{
    constexpr int firstBit = 2;
    constexpr int check = firstBit + counterBits;
    if (cell < firstBit)
        return cell == 0;
    if (cell < check)
        return ((counter >> (check - 1 - cell)) & 1U) != 0;
    bool odd = false;
    for (int bit = 0; bit < counterBits; ++bit)
        odd ^= ((counter >> bit) & 1U) != 0;
    return cell == check ? odd : !odd;
}

QRgb colourAt(double x, double y, quint32 counter, QRgb ground)
{
    if (y < bandEdges[1])
        return barColour(int(x * barCount));
    if (y < bandEdges[2])
        return cellIsWhite(int(x * cellCount), counter) ? 0xffffffff : 0xff000000;
    if (y < bandEdges[3])
        return counter % beatFrames == 0 ? 0xffffffff : ground;
    const bool blockRow = y >= bandEdges[3] && y < bandEdges[4];
    if (blockRow && std::abs(x - blockCentre(counter)) < blockWidth / 2)
        return blockColour();
    return ground;
}

int counterOf(const QImage &picture)
{
    if (picture.isNull())
        return -1;
    const auto readCell = [&picture](int cell) {
        return looksWhite(pixelAt(picture, (cell + 0.5) / cellCount, 0.5));
    };
    quint32 counter = 0;
    for (int cell = 2; cell < 2 + counterBits; ++cell)
        counter = counter << 1 | quint32(readCell(cell));
    for (const int cell : {0, 1, cellCount - 2, cellCount - 1})
        if (readCell(cell) != cellIsWhite(cell, counter))
            return -1;
    return int(counter);
}

bool isMarked(const QImage &picture)
{
    constexpr double strip = (bandEdges[2] + bandEdges[3]) / 2;
    const auto isWhite = [&picture](double x) {
        const QRgb colour = pixelAt(picture, x, strip);
        return std::min({qRed(colour), qGreen(colour), qBlue(colour)}) > 200;
    };
    return !picture.isNull() && isWhite(0.25) && isWhite(0.5) && isWhite(0.75);
}

QImage frame(int width, int height, quint32 counter, QRgb ground)
{
    QImage picture(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        auto *row = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < width; ++x)
            row[x] = colourAt((x + 0.5) / width, (y + 0.5) / height, counter, ground);
    }
    return picture;
}

int worstDifference(const QImage &picture, QRgb ground)
{
    if (picture.isNull())
        return 255;
    int worst = 0;
    for (int bar = 0; bar < barCount; ++bar) {
        const QRgb seen = pixelAt(picture, (bar + 0.5) / barCount, 1.0 / 6);
        worst = std::max(worst, difference(seen, barColour(bar)));
    }
    return std::max(worst, difference(pixelAt(picture, 0.5, 0.96), ground));
}

} // namespace LabPattern
