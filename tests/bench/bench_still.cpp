// What writing a photo takes, beside the toolkit's own PNG writer.
//
//   bench_still scene FILE         writes what a camera over a desk sees, for a lab camera to send
//   bench_still encode ROUNDS      for each round "encode<TAB>ms<TAB>ms of the toolkit's writer"
//   bench_still size               for each kind of picture "NAME<TAB>MB<TAB>MB at libpng's level
//   6" bench_still toolkit PHOTO      "ms" that the toolkit's writer takes for the same photo
//
// The toolkit's writer is told its quality 80, the quickest whose files are no larger than 1.3 of
// those that it writes untold, at libpng's level 6.

#include "DeskPicture.h"
#include "StillWriter.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>

namespace {

const QSize size(1920, 1080);
constexpr int quickQuality = 80; // the toolkit's
constexpr int usualNoise = 4; // of a webcam's picture in a lit room

double millisecondsOf(const std::function<bool()> &action)
{
    QElapsedTimer timer;
    timer.start();
    if (!action())
        qFatal("A photo cannot be written.");
    return double(timer.nsecsElapsed()) / 1e6;
}

double megabytes(const QString &path)
{
    return double(QFileInfo(path).size()) / 1e6;
}

void compareEncoding(const QString &folder, int rounds)
{
    const QImage picture = deskPicture(size, usualNoise);
    const QImage screenPicture = picture.convertToFormat(QImage::Format_RGB32);
    const QString ours = folder + QStringLiteral("/ours.png");
    const QString toolkits = folder + QStringLiteral("/toolkits.png");
    for (int round = 0; round < rounds; ++round) {
        const double mine = millisecondsOf([&] { return writeStill(picture, ours); });
        const double theirs =
            millisecondsOf([&] { return screenPicture.save(toolkits, "PNG", quickQuality); });
        std::printf("encode\t%.4f\t%.4f\n", mine, theirs);
    }
    if (QImage(ours) != screenPicture)
        qFatal("A photo is not what was written.");
}

void compareSizes(const QString &folder)
{
    const struct {
        const char *name;
        QImage picture;
    } kinds[] = {{"page of text", pageOfText(size)},
                 {"desk, no noise", deskPicture(size, 0)},
                 {"desk, noise 2", deskPicture(size, 2)},
                 {"desk, noise 4", deskPicture(size, 4)},
                 {"desk, noise 8", deskPicture(size, 8)}};
    const QString ours = folder + QStringLiteral("/ours.png");
    const QString toolkits = folder + QStringLiteral("/toolkits.png");
    for (const auto &kind : kinds) {
        if (!writeStill(kind.picture, ours)
            || !kind.picture.convertToFormat(QImage::Format_RGB32).save(toolkits, "PNG"))
            qFatal("A photo cannot be written.");
        std::printf("%s\t%.4f\t%.4f\n", kind.name, megabytes(ours), megabytes(toolkits));
    }
}

void measureToolkit(const QString &folder, const QString &photo)
{
    const QImage picture = QImage(photo).convertToFormat(QImage::Format_RGB32);
    const QString path = folder + QStringLiteral("/toolkits.png");
    std::printf("%.4f\n", millisecondsOf([&] { return picture.save(path, "PNG", quickQuality); }));
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString what = QGuiApplication::arguments().value(1);
    const QString value = QGuiApplication::arguments().value(2);
    if (what == QLatin1String("scene"))
        return deskPicture(size, usualNoise).save(value, "PNG", quickQuality) ? 0 : 1;
    if (what == QLatin1String("encode"))
        compareEncoding(folder.path(), qMax(1, value.toInt()));
    else if (what == QLatin1String("size"))
        compareSizes(folder.path());
    else if (what == QLatin1String("toolkit"))
        measureToolkit(folder.path(), value);
    else
        return 2;
    return 0;
}
