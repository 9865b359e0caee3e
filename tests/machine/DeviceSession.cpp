#include "DeviceSession.h"

#include <QDir>
#include <QTest>

static const int movingLimit = 20000; // ms, between two frames on the screen of a slow machine
static const int startLimit = 180000; // ms

DeviceSession::DeviceSession(const QString &executable, QSize cameraSize)
    : Session(executable, QStringLiteral("vivid"), cameraSize)
{
}

bool DeviceSession::startMoving()
{
    program().start();
    if (!waitForMainWindow())
        return false;
    return waitFor(
        [this] {
            if (dialog().isActive)
                desktop().pressKey("Return");
            return movesAt(map().videoRect()) && dialog().id == 0;
        },
        startLimit);
}

bool DeviceSession::isBlackAt(QRect place) const
{
    const QImage seen = seenAt(place).convertToFormat(QImage::Format_Grayscale8);
    for (int y = 0; y < seen.height(); ++y) {
        const uchar *line = seen.constScanLine(y);
        if (std::any_of(line, line + seen.width(), [](uchar grey) { return grey > 16; }))
            return false;
    }
    return true;
}

bool DeviceSession::movesAt(QRect place) const
{
    if (isBlackAt(place))
        return false;
    const QImage first = seenAt(place);
    return waitFor([&] { return seenAt(place) != first; }, movingLimit) && !isBlackAt(place);
}

bool DeviceSession::beginMovie()
{
    // What a movie needs is looked for on the disk the first time, which may take too long here.
    return waitFor(
        [this] {
            if (dialog().isActive)
                desktop().pressKey("Return");
            return waitUntilNoDialog()
                && pressWhenReady(WindowMap::LiveScreen, QStringLiteral("Movie"))
                && waitFor([this] { return dialog().isActive || isRecording(); }, startLimit)
                && isRecording();
        },
        startLimit);
}

bool DeviceSession::endMovie()
{
    return pressWhenReady(WindowMap::RecordingScreen, QStringLiteral("MovieStop"))
        && waitForPressable(WindowMap::MovieScreen, {"Live", "MoviePlay", "List", "Close"});
}

QStringList DeviceSession::movies()
{
    const QDir area(program().temporaryArea());
    QStringList paths;
    for (const QString &name : area.entryList({"movie*.mov"}, QDir::Files))
        paths.append(area.filePath(name));
    return paths;
}

void DeviceSession::keepTraces()
{
    if (!QTest::currentTestFailed())
        return;
    const QString name =
        qEnvironmentVariable("ORVANTA_RESULTS", ".") + '/' + QTest::currentTestFunction();
    desktop().screenshot().save(name + QStringLiteral(".png"));
    qInfo("the screen is in %s.png; the program said: %s", qPrintable(name),
          qPrintable(program().output()));
}

bool DeviceSession::findCameraAgain()
{
    return waitFor(
        [this] {
            return pressWhenReady(WindowMap::LiveScreen, QStringLiteral("List"))
                && pressWhenReady(WindowMap::ListScreen, QStringLiteral("Live"))
                && waitFor([this] { return !isBlackAt(map().videoRect()); }, movingLimit)
                && movesAt(map().videoRect());
        },
        startLimit);
}
