#include "DiskLesson.h"

#include "LabPattern.h"

#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QTest>

static const QSize cameraSize(640, 480);

// With its trailing blank.
const char DiskLesson::fullText[] =
    "The disk free space is insufficient.\n"
    "Taking a picture is discontinued. Please secure the free space. ";

static bool isWhole(const QString &path)
{
    return LabPattern::counterOf(QImage(path)) >= 0;
}

DiskLesson::DiskLesson()
    : Session(ORVANTA_PROGRAM, "cam1", cameraSize)
{
}

QString DiskLesson::dayFolder(const QString &saved)
{
    return saved + "/TavelinCamera/" + QDate::currentDate().toString("yyyyMMdd");
}

QString DiskLesson::otherSaveFolder()
{
    const QString folder = QFileInfo(home()).path() + "/share";
    const bool isMade = QDir().mkpath(folder)
        && program().writeSettings("SaveDirectory=" + QFile::encodeName(folder) + '\n');
    return isMade ? folder : QString();
}

bool DiskLesson::isLiveAgain()
{
    return waitForPressable(WindowMap::LiveScreen,
                            {"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"});
}

bool DiskLesson::takeAndAccept()
{
    return takePhotoForPreview() && pressWhenReady(WindowMap::PreviewScreen, "Apply")
        && pressWhenReady(WindowMap::PhotoScreen, "Live") && isLiveAgain();
}

bool DiskLesson::askAtExit()
{
    return pressWhenReady(WindowMap::LiveScreen, "Close") && waitForDialog("Orvanta");
}

QStringList DiskLesson::photos()
{
    const QDir area(program().temporaryArea());
    QStringList whole;
    for (const QString &name : area.entryList({"photo*"}, QDir::Files))
        if (isWhole(area.filePath(name)))
            whole.append(name);
    return whole;
}

int DiskLesson::lostOf(const QStringList &names, const QString &saved)
{
    int count = 0;
    for (const QString &name : names)
        count += !isWhole(program().temporaryArea() + '/' + name)
            && !isWhole(dayFolder(saved) + '/' + name);
    return count;
}

QStringList DiskLesson::damaged(const QString &saved)
{
    QStringList found;
    for (const QString &folder : {program().temporaryArea(), dayFolder(saved)})
        for (const QString &name : QDir(folder).entryList({"photo*"}, QDir::Files))
            if (!isWhole(folder + '/' + name))
                found.append(folder + '/' + name);
    return found;
}

qint64 DiskLesson::longestStandstill(QRect place, int time)
{
    QElapsedTimer all;
    QElapsedTimer since;
    all.start();
    since.start();
    qint64 longest = 0;
    int last = -1;
    while (all.elapsed() < time) {
        const int now = counterAt(place);
        longest = qMax(longest, since.elapsed());
        if (now >= 0 && now != last) {
            last = now;
            since.restart();
        }
        QTest::qWait(10); // nothing to wait for: the screen tells nobody that it changes
    }
    return longest;
}
