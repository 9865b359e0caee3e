// How long a photo takes, as a ratio to what Qt's own PNG writer takes with its default settings
// for the same picture in the same run. Also how much larger the file is.

#include "StillWriter.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QVector>

#include <algorithm>
#include <cstdio>

namespace {

const QSize size(1920, 1080);
const int rounds = 5;

struct Measure {
    double milliseconds = 0;
    qint64 bytes = 0;
};

// What a camera over a desk sees: soft light, a sheet with writing, hands, and the sensor's noise.
QImage deskPicture(int noise)
{
    QImage image(size, QImage::Format_RGB888);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient light(0, 0, size.width(), size.height());
    light.setColorAt(0, QColor(150, 120, 90));
    light.setColorAt(1, QColor(70, 60, 50));
    painter.fillRect(image.rect(), light);
    painter.translate(350, 120);
    painter.rotate(4);
    painter.fillRect(0, 0, 1100, 800, QColor(235, 232, 222));
    painter.setFont(QFont(QStringLiteral("Liberation Sans"), 26));
    painter.setPen(QColor(30, 30, 60));
    for (int line = 0; line < 14; ++line)
        painter.drawText(60, 80 + line * 50, QStringLiteral("The quick brown fox jumps over it"));
    painter.resetTransform();
    QRadialGradient skin(1450, 800, 330);
    skin.setColorAt(0, QColor(220, 170, 140));
    skin.setColorAt(1, QColor(150, 100, 80));
    painter.setPen(Qt::NoPen);
    painter.setBrush(skin);
    painter.drawEllipse(QPoint(1450, 800), 300, 180);
    painter.end();
    if (noise == 0)
        return image;
    QRandomGenerator random(1);
    for (int y = 0; y < size.height(); ++y) {
        uchar *row = image.scanLine(y);
        for (int i = 0; i < size.width() * 3; ++i)
            row[i] = uchar(qBound(0, int(row[i]) + random.bounded(-noise, noise + 1), 255));
    }
    return image;
}

template <typename Write> Measure measure(const QString &path, Write write)
{
    QElapsedTimer timer;
    timer.start();
    if (!write(path))
        return {};
    return {double(timer.nsecsElapsed()) / 1e6, QFileInfo(path).size()};
}

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

bool compare(const QString &folder, int noise)
{
    const QImage picture = deskPicture(noise);
    const QImage screenPicture = picture.convertToFormat(QImage::Format_RGB32);
    QVector<double> ours;
    QVector<double> baseline;
    qint64 ourBytes = 0;
    qint64 baselineBytes = 0;
    for (int round = 0; round < rounds; ++round) {
        const Measure mine = measure(
            folder + "/ours.png", [&](const QString &path) { return writeStill(picture, path); });
        const Measure theirs = measure(folder + "/baseline.png", [&](const QString &path) {
            return screenPicture.save(path, "PNG");
        });
        ours.append(mine.milliseconds);
        baseline.append(theirs.milliseconds);
        ourBytes = mine.bytes;
        baselineBytes = theirs.bytes;
    }
    if (ourBytes == 0 || baselineBytes == 0 || QImage(folder + "/ours.png") != screenPicture)
        return false;
    std::printf("photo 1920x1080, noise %d: %.0f ms against %.0f ms, ratio %.3f; "
                "%.2f MB against %.2f MB, ratio %.2f\n",
                noise, median(ours), median(baseline), median(ours) / median(baseline),
                double(ourBytes) / 1e6, double(baselineBytes) / 1e6,
                double(ourBytes) / double(baselineBytes));
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    for (const int noise : {0, 2, 4, 8, 16}) {
        if (!compare(folder.path(), noise)) {
            std::fprintf(stderr, "a photo could not be written and read back\n");
            return 1;
        }
    }
    return 0;
}
