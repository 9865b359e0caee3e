#include "FakeDisk.h"
#include "FileMove.h"
#include "OpenFolder.h"
#include "OrdinaryUser.h"
#include "SavingPlaces.h"
#include "StoreFolders.h"
#include "WebcamUtil.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <atomic>
#include <cerrno>
#include <memory>

namespace {

const QDateTime lesson({2009, 3, 4}, {9, 5, 7});

// No valid UTF-8, as of a file that came from a machine of another time.
const QByteArray notText("photo2\xff\xe4.png");

// What the toolkit cannot spell it cannot open either.
bool writeBytes(const QString &folder, const QByteArray &name, const QByteArray &contents)
{
    const QByteArray path = QFile::encodeName(folder) + '/' + name;
    const int file = open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const bool isWritten =
        write(file, contents.constData(), size_t(contents.size())) == contents.size();
    return close(file) == 0 && isWritten;
}

QByteArray readBytes(const QString &folder, const QByteArray &name)
{
    const QByteArray path = QFile::encodeName(folder) + '/' + name;
    const int file = open(path.constData(), O_RDONLY | O_CLOEXEC);
    QByteArray contents(100, '\0');
    contents.resize(int(qMax(ssize_t(0), read(file, contents.data(), size_t(contents.size())))));
    close(file);
    return contents;
}

} // namespace

/** What becomes of the captured files when the disks do not do as they should. */
class FileMoveTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNameThatIsNoTextIsSavedAsItIs_data();
    void aNameThatIsNoTextIsSavedAsItIs();
    void aNameThatIsNoTextIsDeleted();
    void aDiskThatIsFullOnlyAtTheEndLosesNothing_data();
    void aDiskThatIsFullOnlyAtTheEndLosesNothing();
    void aPhotoThatTheDiskRefusesStaysWhereItIs();
    void aDiskThatKnowsNoFlushingIsWrittenAllTheSame();
    void aCapturedFileThatCannotBeRemovedIsAFailure();
    void aReadOnlyDaysFolderLeavesAllFiles();
    void aFolderThatVanishesMidwayLosesNothing();
    void noFileIsRemovedBeforeTheFolderKnowsAllCopies();
    void aLessonOfManyPhotosIsSavedWhole_data();
    void aLessonOfManyPhotosIsSavedWhole();
    void halfCopiesOfASaveThatWasCutOffAreRemoved();
    void aMoveThatIsGivenUpLeavesTheRestWhereItIs();
};

void FileMoveTest::aNameThatIsNoTextIsSavedAsItIs_data()
{
    QTest::addColumn<bool>("isElsewhere");
    QTest::newRow("on the same disk") << false;
    QTest::newRow("on another disk") << true;
}

void FileMoveTest::aNameThatIsNoTextIsSavedAsItIs()
{
    QFETCH(bool, isElsewhere);
    const StoreFolders folders;
    std::unique_ptr<AreaElsewhere> elsewhere;
    if (isElsewhere) {
        elsewhere = std::make_unique<AreaElsewhere>(folders);
        QVERIFY2(elsewhere->isOther(), "needs a second file system at /dev/shm");
    }
    const QString area = WebcamUtil::getTemporaryPath();
    QVERIFY(StoreFolders::write(area + "/photo1.png", "older", lesson));
    QVERIFY(writeBytes(area, notText, "newer"));
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    const QString saved = folders.target() + "/TavelinCamera/20090304";
    QCOMPARE(StoreFolders::read(saved + "/photo1.png"), QByteArray("older"));
    QCOMPARE(readBytes(saved, notText), QByteArray("newer"));
    QVERIFY(QDir(area).isEmpty());
    // The test's folder cannot be removed with it.
    QCOMPARE(unlink(QByteArray(QFile::encodeName(saved) + '/' + notText).constData()), 0);
}

void FileMoveTest::aNameThatIsNoTextIsDeleted()
{
    const StoreFolders folders;
    QVERIFY(writeBytes(WebcamUtil::getTemporaryPath(), notText, "newer"));
    QVERIFY(WebcamUtil::isSaveFile());
    WebcamUtil::deleteData();
    QVERIFY(!WebcamUtil::isSaveFile());
}

void FileMoveTest::aDiskThatIsFullOnlyAtTheEndLosesNothing_data()
{
    QTest::addColumn<QByteArray>("told"); // how the end of the path is at which the disk is full
    QTest::addColumn<bool>("atClosing");
    QTest::newRow("told when the copy is flushed") << QByteArray("/.photo1.png.part") << false;
    QTest::newRow("told when the copy is closed") << QByteArray("/.photo1.png.part") << true;
    QTest::newRow("told when the folder is flushed") << QByteArray("/20090304") << false;
}

void FileMoveTest::aDiskThatIsFullOnlyAtTheEndLosesNothing()
{
    QFETCH(QByteArray, told);
    QFETCH(bool, atClosing);
    const StoreFolders folders;
    const AreaElsewhere elsewhere(folders);
    QVERIFY2(elsewhere.isOther(), "needs a second file system at /dev/shm");
    const QString photo = WebcamUtil::getTemporaryPath() + "/photo1.png";
    QVERIFY(StoreFolders::write(photo, "a photo"));
    const QString saved = folders.target() + "/TavelinCamera/20090304";
    bool isStillThere = false;
    {
        const FakeDisk disk;
        (atClosing ? FakeDisk::onClose : FakeDisk::onFlush) = [&](const QByteArray &path) {
            isStillThere = QFile::exists(photo);
            return path.endsWith(told) ? ENOSPC : 0;
        };
        QVERIFY(!WebcamUtil::saveData(folders.target(), lesson));
    }
    QVERIFY(isStillThere);
    QCOMPARE(StoreFolders::read(photo), QByteArray("a photo"));
    QCOMPARE(filesIn(saved), QStringList());
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    QCOMPARE(StoreFolders::read(saved + "/photo1.png"), QByteArray("a photo"));
}

void FileMoveTest::aPhotoThatTheDiskRefusesStaysWhereItIs()
{
    const StoreFolders folders;
    const QString photo = WebcamUtil::getTemporaryPath() + "/photo1.png";
    const QString saved = folders.target() + "/TavelinCamera/20090304";
    QVERIFY(StoreFolders::write(photo, "a photo"));
    QByteArrayList flushed;
    {
        const FakeDisk disk;
        FakeDisk::onFlush = [&](const QByteArray &path) {
            flushed << path;
            return EIO;
        };
        QVERIFY(!WebcamUtil::saveData(folders.target(), lesson));
        QVERIFY(!flushed.isEmpty() && flushed.constFirst().endsWith("/photo1.png"));
        QCOMPARE(StoreFolders::read(photo), QByteArray("a photo"));
        QCOMPARE(filesIn(saved), QStringList());

        FakeDisk::onFlush = [&](const QByteArray &path) {
            flushed << path;
            return 0;
        };
        flushed.clear();
        QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    }
    // First what is in it, and in the end where it is now.
    QCOMPARE(flushed,
             (QByteArrayList{QFile::encodeName(saved + "/photo1.png"), QFile::encodeName(saved)}));
    QCOMPARE(StoreFolders::read(saved + "/photo1.png"), QByteArray("a photo"));
}

void FileMoveTest::aDiskThatKnowsNoFlushingIsWrittenAllTheSame()
{
    const StoreFolders folders;
    const AreaElsewhere elsewhere(folders);
    QVERIFY2(elsewhere.isOther(), "needs a second file system at /dev/shm");
    QVERIFY(StoreFolders::write(WebcamUtil::getTemporaryPath() + "/photo1.png", "a photo"));
    const FakeDisk disk;
    FakeDisk::onFlush = [](const QByteArray &) { return EINVAL; };
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    QCOMPARE(filesIn(folders.target() + "/TavelinCamera/20090304"), QStringList("photo1.png"));
}

void FileMoveTest::aCapturedFileThatCannotBeRemovedIsAFailure()
{
    const OrdinaryUser user;
    QVERIFY(user.isOrdinary());
    const FoldersForAll folders;
    const QString area = WebcamUtil::getTemporaryPath();
    QVERIFY(StoreFolders::write(area + "/photo1.png", "older", lesson));
    QVERIFY(StoreFolders::write(area + "/photo2.png", "newer"));
    QCOMPARE(chmod(QFile::encodeName(area).constData(), 0500), 0);
    const bool saved = WebcamUtil::saveData(folders.target(), lesson);
    QCOMPARE(chmod(QFile::encodeName(area).constData(), 0700), 0);
    QVERIFY(!saved);
    QCOMPARE(filesIn(area), QStringList({"photo1.png", "photo2.png"}));
    // They are copied, and removed here as soon as that can be.
    const QString day = folders.target() + "/TavelinCamera/20090304";
    QCOMPARE(StoreFolders::read(day + "/photo1.png"), QByteArray("older"));
    QCOMPARE(StoreFolders::read(day + "/photo2.png"), QByteArray("newer"));
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    QCOMPARE(filesIn(area), QStringList());
}

void FileMoveTest::aReadOnlyDaysFolderLeavesAllFiles()
{
    const OrdinaryUser user;
    QVERIFY(user.isOrdinary());
    const FoldersForAll folders;
    const QString area = WebcamUtil::getTemporaryPath();
    QVERIFY(StoreFolders::write(area + "/photo1.png", "older", lesson));
    QVERIFY(StoreFolders::write(area + "/photo2.png", "newer"));
    const QString day = folders.target() + "/TavelinCamera/20090304";
    QVERIFY(QDir().mkpath(day));
    QCOMPARE(chmod(QFile::encodeName(day).constData(), 0555), 0);
    const bool saved = WebcamUtil::saveData(folders.target(), lesson);
    QCOMPARE(chmod(QFile::encodeName(day).constData(), 0755), 0);
    QVERIFY(!saved);
    QCOMPARE(filesIn(day), QStringList());
    QCOMPARE(StoreFolders::read(area + "/photo1.png"), QByteArray("older"));
    QCOMPARE(StoreFolders::read(area + "/photo2.png"), QByteArray("newer"));
}

void FileMoveTest::aFolderThatVanishesMidwayLosesNothing()
{
    const StoreFolders folders;
    const AreaElsewhere elsewhere(folders);
    QVERIFY2(elsewhere.isOther(), "needs a second file system at /dev/shm");
    const QString area = WebcamUtil::getTemporaryPath();
    QVERIFY(StoreFolders::write(area + "/photo1.png", "oldest", lesson));
    QVERIFY(StoreFolders::write(area + "/photo2.png", "older", lesson.addSecs(1)));
    QVERIFY(StoreFolders::write(area + "/photo3.png", "newest", lesson.addSecs(2)));
    const QString day = folders.target() + "/TavelinCamera/20090304";
    {
        const FakeDisk disk;
        FakeDisk::onFlush = [&](const QByteArray &path) {
            if (path.endsWith("/.photo2.png.part"))
                QDir(day).removeRecursively();
            return 0;
        };
        QVERIFY(!WebcamUtil::saveData(folders.target(), lesson));
    }
    QCOMPARE(filesIn(area), QStringList({"photo1.png", "photo2.png", "photo3.png"}));
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    QCOMPARE(StoreFolders::read(day + "/photo1.png"), QByteArray("oldest"));
    QCOMPARE(StoreFolders::read(day + "/photo2.png"), QByteArray("older"));
    QCOMPARE(StoreFolders::read(day + "/photo3.png"), QByteArray("newest"));
}

void FileMoveTest::noFileIsRemovedBeforeTheFolderKnowsAllCopies()
{
    const StoreFolders folders;
    const AreaElsewhere elsewhere(folders);
    QVERIFY2(elsewhere.isOther(), "needs a second file system at /dev/shm");
    const QString area = WebcamUtil::getTemporaryPath();
    for (int i = 0; i < 20; ++i)
        QVERIFY(StoreFolders::write(area + QString("/photo%1.png").arg(i, 2, 10, QChar('0')), "x"));
    const QString day = folders.target() + "/TavelinCamera/20090304";
    const QStringList all = filesIn(area);
    QStringList captured;
    QStringList copied;
    {
        const FakeDisk disk;
        FakeDisk::onFlush = [&](const QByteArray &path) {
            if (path.endsWith("/20090304") && captured.isEmpty()) {
                captured = filesIn(area);
                copied = filesIn(day);
            }
            return 0;
        };
        QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    }
    QCOMPARE(captured, all);
    QCOMPARE(copied, all);
    QCOMPARE(filesIn(area), QStringList());
}

void FileMoveTest::aLessonOfManyPhotosIsSavedWhole_data()
{
    aNameThatIsNoTextIsSavedAsItIs_data();
}

void FileMoveTest::aLessonOfManyPhotosIsSavedWhole()
{
    QFETCH(bool, isElsewhere);
    constexpr int photos = 600; // more than are on their way together
    const StoreFolders folders;
    std::unique_ptr<AreaElsewhere> elsewhere;
    if (isElsewhere) {
        elsewhere = std::make_unique<AreaElsewhere>(folders);
        QVERIFY2(elsewhere->isOther(), "needs a second file system at /dev/shm");
    }
    const QString area = WebcamUtil::getTemporaryPath();
    const auto name = [](int number) { return QString("/photo%1.png").arg(number); };
    for (int i = 0; i < photos; ++i)
        QVERIFY(StoreFolders::write(area + name(i), QByteArray::number(i)));
    const int open = QDir("/proc/self/fd").entryList(QDir::AllEntries).size();
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    QCOMPARE(int(QDir("/proc/self/fd").entryList(QDir::AllEntries).size()), open);
    QCOMPARE(filesIn(area), QStringList());
    const QString day = folders.target() + "/TavelinCamera/20090304";
    QCOMPARE(filesIn(day).size(), photos);
    for (int i = 0; i < photos; ++i)
        QCOMPARE(StoreFolders::read(day + name(i)), QByteArray::number(i));
}

void FileMoveTest::halfCopiesOfASaveThatWasCutOffAreRemoved()
{
    const StoreFolders folders;
    const QString day = folders.target() + "/TavelinCamera/20090304";
    QVERIFY(StoreFolders::write(WebcamUtil::getTemporaryPath() + "/photo9.png"));
    for (const char *name : {".photo1.png.part", ".movie1.mov.part", ".notes.part", ".photo2.png",
                             "photo3.png.part", ".photo4.png.part", ".part"})
        QVERIFY(StoreFolders::write(day + "/" + name, "half of it", lesson));
    QVERIFY(QFile::link(day + "/.notes.part", day + "/.photo5.png.part"));
    // The copy of somebody who is saving into the same folder at the moment.
    const WrittenFile held(day + "/.photo4.png.part");
    QVERIFY(held.isHeld());
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    QCOMPARE(filesIn(day),
             QStringList({".notes.part", ".part", ".photo2.png", ".photo4.png.part",
                          ".photo5.png.part", "photo3.png.part", "photo9.png"}));
}

// With the copy made, and the disk awake again after the user was told that it failed.
void FileMoveTest::aMoveThatIsGivenUpLeavesTheRestWhereItIs()
{
    const StoreFolders folders;
    const AreaElsewhere elsewhere(folders);
    QVERIFY2(elsewhere.isOther(), "needs a second file system at /dev/shm");
    const QString area = WebcamUtil::getTemporaryPath();
    QVERIFY(StoreFolders::write(area + "/photo1.png", "a photo"));
    QVERIFY(QDir().mkpath(folders.target()));
    std::atomic<bool> goesOn(true);
    const FakeDisk disk;
    FakeDisk::onFlush = [&](const QByteArray &) {
        goesOn = false;
        return 0;
    };
    const std::vector<QByteArray> left = moveFiles(OpenFolder(area), OpenFolder(folders.target()),
                                                   {"photo1.png"}, [&] { return bool(goesOn); });
    QCOMPARE(left.size(), size_t(1));
    QCOMPARE(StoreFolders::read(area + "/photo1.png"), QByteArray("a photo"));
}

QTEST_MAIN(FileMoveTest)
#include "tst_filemove.moc"
