// How long a photo takes, as a ratio to what Qt's own PNG writer takes with its default settings
// for the same picture in the same run. Also how much larger the file is.

#include "DeskPicture.h"
#include "StillWriter.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
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
    const QImage picture = deskPicture(size, noise);
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
