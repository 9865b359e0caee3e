#include "SavingPlaces.h"
#include "StoreFolders.h"
#include "TimeZone.h"
#include "WebcamUtil.h"

#include <QCursor>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

namespace {

const QDateTime lesson({2009, 3, 4}, {9, 5, 7});

/** No file may grow beyond the limit while it lives: a disk that is full in the middle of a copy.
 */
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
        : m_oldHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_oldLimit);
        const rlimit limit = {bytes, m_oldLimit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_oldLimit);
        std::signal(SIGXFSZ, m_oldHandler);
    }
    Q_DISABLE_COPY(FullDisk)

private:
    void (*m_oldHandler)(int);
    rlimit m_oldLimit = {};
};

// Notes which cursor is shown at the moment the store complains.
Qt::CursorShape cursorAtComplaint = Qt::ArrowCursor;

void noteCursor(QtMsgType, const QMessageLogContext &context, const QString &)
{
    if (qstrcmp(context.category, "orvanta.store") == 0 && QGuiApplication::overrideCursor())
        cursorAtComplaint = QGuiApplication::overrideCursor()->shape();
}

} // namespace

class WebcamUtilSavingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everythingCapturedMovesIntoTheDaysFolder();
    void savingIsDatedByTheDayOfSaving_data();
    void savingIsDatedByTheDayOfSaving();
    void savingTwiceOnADayFillsOneFolder();
    void aFileSavedBeforeIsKeptAndTheCapturedOneRemoved();
    void anEmptyAreaIsNothingToSave();
    void aStrayFileIsNeitherSavedNorDeleted();
    void aPhotoWithAShortNameIsCapturedToo();
    void aNameInAnotherLetterCaseIsNotMoved();
    void aFolderThatCannotBeMadeLeavesAllFiles();
    void whatCannotBeMovedStaysAndTheOthersAreMoved();
    void withoutAnAreaNoForeignFileIsTouched();
    void anotherFileSystemGetsTheWholeCopy();
    void aFullDiskLeavesNoHalfFileAndKeepsTheCaptured();
    void theRestOfABrokenCopyDoesNotHinderTheNext();
    void theWaitCursorIsShownOnlyWhileSaving();
    void deletingLeavesStrayFilesAndTheFolder();
    void deletingOneFileIgnoresAMissingOne();
    void unfinishedCapturesOfAnEarlierRunAreRemoved();
};

void WebcamUtilSavingTest::everythingCapturedMovesIntoTheDaysFolder()
{
    const StoreFolders folders;
    const QString target = folders.root() + "/not/yet/there";
    QVERIFY(StoreFolders::write(folders.area() + "/photo1.png", "a photo"));
    QVERIFY(StoreFolders::write(folders.area() + "/movie1.mov", "a movie"));
    QVERIFY(StoreFolders::write(folders.area() + "/movie1tmp.png", "its picture"));
    QVERIFY(WebcamUtil::saveData(target, lesson));
    const QString saved = target + "/TavelinCamera/20090304";
    QCOMPARE(filesIn(saved), QStringList({"movie1.mov", "movie1tmp.png", "photo1.png"}));
    QCOMPARE(StoreFolders::read(saved + "/photo1.png"), QByteArray("a photo"));
    QCOMPARE(StoreFolders::read(saved + "/movie1.mov"), QByteArray("a movie"));
    QCOMPARE(filesIn(folders.area()), QStringList());
}

void WebcamUtilSavingTest::savingIsDatedByTheDayOfSaving_data()
{
    QTest::addColumn<QByteArray>("zone");
    // One of the two has another day than Greenwich at any moment.
    QTest::newRow("14 hours east of Greenwich") << QByteArray("EAST-14");
    QTest::newRow("12 hours west of Greenwich") << QByteArray("WEST+12");
}

void WebcamUtilSavingTest::savingIsDatedByTheDayOfSaving()
{
    QFETCH(QByteArray, zone);
    const TimeZone there(zone);
    const StoreFolders folders;
    QVERIFY(StoreFolders::write(folders.area() + "/photo20090304090507042.png", "x", lesson));
    const QString before = TimeZone::localStamp().left(8);
    QVERIFY(WebcamUtil::saveData(folders.target()));
    const QString after = TimeZone::localStamp().left(8);
    const QStringList days =
        QDir(folders.target() + "/TavelinCamera").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QCOMPARE(days.size(), 1);
    QVERIFY2(days.constFirst() == before || days.constFirst() == after,
             qPrintable(days.constFirst()));
}

void WebcamUtilSavingTest::savingTwiceOnADayFillsOneFolder()
{
    const StoreFolders folders;
    QVERIFY(StoreFolders::write(folders.area() + "/photo1.png"));
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    QVERIFY(StoreFolders::write(folders.area() + "/photo2.png"));
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson.addSecs(3600)));
    QCOMPARE(filesIn(folders.target() + "/TavelinCamera/20090304"),
             QStringList({"photo1.png", "photo2.png"}));
}

void WebcamUtilSavingTest::aFileSavedBeforeIsKeptAndTheCapturedOneRemoved()
{
    const StoreFolders folders;
    const QString saved = folders.target() + "/TavelinCamera/20090304";
    QVERIFY(StoreFolders::write(saved + "/photo1.png", "saved before"));
    QVERIFY(StoreFolders::write(folders.area() + "/photo1.png", "again", lesson.addSecs(1)));
    QVERIFY(StoreFolders::write(folders.area() + "/photo0.png", "older", lesson));
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    QCOMPARE(StoreFolders::read(saved + "/photo1.png"), QByteArray("saved before"));
    QCOMPARE(StoreFolders::read(saved + "/photo0.png"), QByteArray("older"));
    QCOMPARE(filesIn(folders.area()), QStringList());
}

void WebcamUtilSavingTest::anEmptyAreaIsNothingToSave()
{
    const StoreFolders folders;
    QVERIFY(!WebcamUtil::saveData(folders.target(), lesson));
}

void WebcamUtilSavingTest::aStrayFileIsNeitherSavedNorDeleted()
{
    const StoreFolders folders;
    QVERIFY(StoreFolders::write(folders.area() + "/notes.txt"));
    QVERIFY(WebcamUtil::isSaveFile());
    QVERIFY(!WebcamUtil::saveData(folders.target(), lesson));
    WebcamUtil::deleteData();
    QCOMPARE(filesIn(folders.area()), QStringList("notes.txt"));
    QCOMPARE(filesIn(folders.target() + "/TavelinCamera/20090304"), QStringList());
}

void WebcamUtilSavingTest::aPhotoWithAShortNameIsCapturedToo()
{
    const StoreFolders folders;
    QVERIFY(StoreFolders::write(folders.area() + "/photoX.png"));
    QCOMPARE(WebcamUtil::getTempPhotoNameList(), QStringList("photoX.png"));
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    QCOMPARE(filesIn(folders.target() + "/TavelinCamera/20090304"), QStringList("photoX.png"));
}

void WebcamUtilSavingTest::aNameInAnotherLetterCaseIsNotMoved()
{
    const StoreFolders folders;
    QVERIFY(StoreFolders::write(folders.area() + "/Photo1.png"));
    QVERIFY(StoreFolders::write(folders.area() + "/photo2.png"));
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    QCOMPARE(filesIn(folders.area()), QStringList("Photo1.png"));
}

void WebcamUtilSavingTest::aFolderThatCannotBeMadeLeavesAllFiles()
{
    const StoreFolders folders;
    const QString file = folders.root() + "/plainfile";
    QVERIFY(StoreFolders::write(file, "still a file"));
    QVERIFY(StoreFolders::write(folders.area() + "/photo1.png", "a photo"));
    QVERIFY(!WebcamUtil::saveData(file, lesson));
    QCOMPARE(StoreFolders::read(folders.area() + "/photo1.png"), QByteArray("a photo"));
    QCOMPARE(StoreFolders::read(file), QByteArray("still a file"));
}

void WebcamUtilSavingTest::whatCannotBeMovedStaysAndTheOthersAreMoved()
{
    const StoreFolders folders;
    for (int i : {1, 2, 3})
        QVERIFY(StoreFolders::write(folders.area() + QString("/photo%1.png").arg(i), "a photo",
                                    lesson.addSecs(i)));
    // A folder of the photo's name keeps it out, whoever the user is.
    const QString saved = folders.target() + "/TavelinCamera/20090304";
    QVERIFY(QDir().mkpath(saved + "/photo2.png"));
    QVERIFY(!WebcamUtil::saveData(folders.target(), lesson));
    QCOMPARE(filesIn(saved), QStringList({"photo1.png", "photo3.png"}));
    QCOMPARE(filesIn(folders.area()), QStringList("photo2.png"));
}

void WebcamUtilSavingTest::withoutAnAreaNoForeignFileIsTouched()
{
    StoreFolders folders;
    folders.makeAreaImpossible();
    const QString foreign = folders.root() + "/photo-of-the-class.png";
    QVERIFY(StoreFolders::write(foreign, "not ours"));
    const QString current = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folders.root()));
    const bool saved = WebcamUtil::saveData(folders.target(), lesson);
    WebcamUtil::deleteData();
    QVERIFY(QDir::setCurrent(current));
    QVERIFY(!saved);
    QCOMPARE(StoreFolders::read(foreign), QByteArray("not ours"));
    QCOMPARE(filesIn(folders.target() + "/TavelinCamera/20090304"), QStringList());
}

void WebcamUtilSavingTest::anotherFileSystemGetsTheWholeCopy()
{
    const StoreFolders folders;
    const AreaElsewhere elsewhere(folders);
    QVERIFY2(elsewhere.isOther(), "needs a second file system at /dev/shm");
    const QString photo = WebcamUtil::getTemporaryPath() + "/photo1.png";
    const QByteArray contents = QByteArray("0123456789abcdef").repeated(200 * 1024) + "the end";
    QVERIFY(StoreFolders::write(photo, contents, lesson));
    QVERIFY(QFile::setPermissions(photo, QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));

    const QString saved = folders.target() + "/TavelinCamera/20090304";
    QCOMPARE(filesIn(saved), QStringList("photo1.png"));
    QVERIFY(StoreFolders::read(saved + "/photo1.png") == contents);
    const QFileInfo copy(saved + "/photo1.png");
    QCOMPARE(copy.lastModified(), lesson);
    QVERIFY(!copy.permission(QFile::ReadOther) && !copy.permission(QFile::ReadGroup));
    QCOMPARE(filesIn(WebcamUtil::getTemporaryPath()), QStringList());
}

void WebcamUtilSavingTest::aFullDiskLeavesNoHalfFileAndKeepsTheCaptured()
{
    const StoreFolders folders;
    const AreaElsewhere elsewhere(folders);
    QVERIFY2(elsewhere.isOther(), "needs a second file system at /dev/shm");
    const QString area = WebcamUtil::getTemporaryPath();
    const QByteArray large(3 * 1024 * 1024, 'm');
    QVERIFY(StoreFolders::write(area + "/photo1.png", "oldest", lesson));
    QVERIFY(StoreFolders::write(area + "/movie1.mov", large, lesson.addSecs(1)));
    QVERIFY(StoreFolders::write(area + "/photo2.png", "newest", lesson.addSecs(2)));
    bool saved = true;
    {
        const FullDisk disk(rlim_t(2) * 1024 * 1024);
        saved = WebcamUtil::saveData(folders.target(), lesson);
    }
    QVERIFY(!saved);
    const QString folder = folders.target() + "/TavelinCamera/20090304";
    QCOMPARE(filesIn(folder), QStringList({"photo1.png", "photo2.png"}));
    QCOMPARE(filesIn(area), QStringList("movie1.mov"));
    QVERIFY(StoreFolders::read(area + "/movie1.mov") == large);

    // With room again the next attempt saves what was left.
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    QVERIFY(StoreFolders::read(folder + "/movie1.mov") == large);
    QCOMPARE(filesIn(folder), QStringList({"movie1.mov", "photo1.png", "photo2.png"}));
    QCOMPARE(filesIn(area), QStringList());
}

void WebcamUtilSavingTest::theRestOfABrokenCopyDoesNotHinderTheNext()
{
    const StoreFolders folders;
    const AreaElsewhere elsewhere(folders);
    QVERIFY2(elsewhere.isOther(), "needs a second file system at /dev/shm");
    QVERIFY(StoreFolders::write(WebcamUtil::getTemporaryPath() + "/photo1.png", "short"));
    // What a power cut in the middle of a longer copy would leave.
    const QString folder = folders.target() + "/TavelinCamera/20090304";
    QVERIFY(StoreFolders::write(folder + "/.photo1.png.part", "much longer than the photo"));
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    QCOMPARE(filesIn(folder), QStringList("photo1.png"));
    QCOMPARE(StoreFolders::read(folder + "/photo1.png"), QByteArray("short"));
}

void WebcamUtilSavingTest::theWaitCursorIsShownOnlyWhileSaving()
{
    const StoreFolders folders;
    QVERIFY(StoreFolders::write(folders.area() + "/photo1.png"));
    QVERIFY(QDir().mkpath(folders.target() + "/TavelinCamera/20090304/photo1.png"));
    cursorAtComplaint = Qt::ArrowCursor;
    const QtMessageHandler oldHandler = qInstallMessageHandler(noteCursor);
    const bool saved = WebcamUtil::saveData(folders.target(), lesson);
    qInstallMessageHandler(oldHandler);
    QVERIFY(!saved);
    QCOMPARE(cursorAtComplaint, Qt::WaitCursor);
    QVERIFY(!QGuiApplication::overrideCursor());

    QVERIFY(QDir(folders.target() + "/TavelinCamera").removeRecursively());
    QVERIFY(WebcamUtil::saveData(folders.target(), lesson));
    QVERIFY(!QGuiApplication::overrideCursor());
}

void WebcamUtilSavingTest::deletingLeavesStrayFilesAndTheFolder()
{
    const StoreFolders folders;
    for (const char *name :
         {"photo1.png", "movie1.mov", "movie1tmp.png", "photoX.png", "Photo1.png", "notes.txt"})
        QVERIFY(StoreFolders::write(folders.area() + "/" + name));
    WebcamUtil::deleteData();
    QCOMPARE(filesIn(folders.area()), QStringList({"Photo1.png", "notes.txt"}));
    QVERIFY(QFile::remove(folders.area() + "/Photo1.png"));
    QVERIFY(QFile::remove(folders.area() + "/notes.txt"));
    WebcamUtil::deleteData();
    QVERIFY(QFileInfo(folders.area()).isDir());
}

void WebcamUtilSavingTest::deletingOneFileIgnoresAMissingOne()
{
    const StoreFolders folders;
    const QString photo = folders.area() + "/photo1.png";
    QVERIFY(StoreFolders::write(photo));
    QVERIFY(StoreFolders::write(folders.area() + "/photo2.png"));
    WebcamUtil::deletetmpfile(photo);
    WebcamUtil::deletetmpfile(photo);
    QCOMPARE(filesIn(folders.area()), QStringList("photo2.png"));
}

void WebcamUtilSavingTest::unfinishedCapturesOfAnEarlierRunAreRemoved()
{
    const StoreFolders folders;
    const QString area = WebcamUtil::getTemporaryPath();
    const QDateTime start = lesson.addSecs(60);
    for (const char *name :
         {".photo1.png", ".movie1tmp.png", ".photo2.png", ".notes.png", "photo3.png", "notes.txt"})
        QVERIFY(StoreFolders::write(area + "/" + name, "x", lesson));
    QVERIFY(StoreFolders::write(area + "/.photo4.png", "of this run", start.addMSecs(1)));
    QVERIFY(QFile::link(area + "/notes.txt", area + "/.photo5.png"));
    const WrittenFile held(area + "/.photo2.png");
    QVERIFY(held.isHeld());
    WebcamUtil::deleteUnfinished(start);
    QCOMPARE(filesIn(area),
             QStringList({".notes.png", ".photo2.png", ".photo4.png", ".photo5.png", "notes.txt",
                          "photo3.png"}));
}

QTEST_MAIN(WebcamUtilSavingTest)
#include "tst_webcamutilsaving.moc"
