#include "OrdinaryUser.h"
#include "StoreFolders.h"
#include "WebcamUtil.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

class WebcamUtilPathsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theHomeFolderIsGivenAsAnAbsolutePath();
    void aMissingHomeFolderIsMade();
    void aHomeFolderThatCannotBeMadeIsEmptyAndTriedAgain();
    void theHomeFolderIsKeptOnceFound();
    void theDocumentsFolderIsTheHomeFolderOfTheMoment();
    void theTemporaryAreaBelongsToTheUser();
    void theTemporaryAreaLiesInTmpWithoutTmpdir();
    void aTemporaryFolderThatIsMissingIsMade();
    void anAreaOfAnEarlierRunIsFoundWithItsFiles();
    void anAreaThatCannotBeMadeIsEmptyAndTriedAgain();
    void theAreaIsClosedToOtherUsers_data();
    void theAreaIsClosedToOtherUsers();
    void anAreaThatIsALinkIsNone();
    void anAreaOfSomebodyElseIsNone();
    void aNewFileTakesThePlaceOfWhatIsThere_data();
    void aNewFileTakesThePlaceOfWhatIsThere();
    void aNewFileThatCannotBeMadeIsNotOpen();
    void deletingAnEmptyAreaRemovesItAndItsEmptyParents();
    void deletingAnAreaWithAPhotoOnlyForgetsIt();
    void deletingAnUnknownAreaLooksForOneWithoutTheUser();
    void writeAccess_data();
    void writeAccess();
    void aFolderThatIsReadOnlyCountsAsNotWritable();
};

void WebcamUtilPathsTest::theHomeFolderIsGivenAsAnAbsolutePath()
{
    const StoreFolders folders;
    QVERIFY(WebcamUtil::m_apppath.isEmpty());
    QCOMPARE(WebcamUtil::getAppPath(), folders.home());
    QCOMPARE(WebcamUtil::m_apppath, folders.home());
}

void WebcamUtilPathsTest::aMissingHomeFolderIsMade()
{
    const StoreFolders folders;
    const QString home = folders.root() + "/users/pupil/home";
    qputenv("HOME", QFile::encodeName(home));
    QCOMPARE(WebcamUtil::getAppPath(), home);
    QVERIFY(QFileInfo(home).isDir());
}

void WebcamUtilPathsTest::aHomeFolderThatCannotBeMadeIsEmptyAndTriedAgain()
{
    const StoreFolders folders;
    const QString file = folders.root() + "/plainfile";
    QVERIFY(StoreFolders::write(file));
    qputenv("HOME", QFile::encodeName(file + "/home"));
    QCOMPARE(WebcamUtil::getAppPath(), QString());
    QVERIFY(QFile::remove(file));
    QCOMPARE(WebcamUtil::getAppPath(), file + "/home");
    QVERIFY(QFileInfo(file + "/home").isDir());
}

void WebcamUtilPathsTest::theHomeFolderIsKeptOnceFound()
{
    const StoreFolders folders;
    QCOMPARE(WebcamUtil::getAppPath(), folders.home());
    qputenv("HOME", QFile::encodeName(folders.target()));
    QCOMPARE(WebcamUtil::getAppPath(), folders.home());
}

void WebcamUtilPathsTest::theDocumentsFolderIsTheHomeFolderOfTheMoment()
{
    const StoreFolders folders;
    QCOMPARE(WebcamUtil::getDocumentPath(), folders.home());
    const QString missing = folders.root() + "/missing";
    qputenv("HOME", QFile::encodeName(missing));
    QCOMPARE(WebcamUtil::getDocumentPath(), missing);
    QVERIFY(!QFileInfo::exists(missing));
}

void WebcamUtilPathsTest::theTemporaryAreaBelongsToTheUser()
{
    const StoreFolders folders;
    QVERIFY(!QFileInfo::exists(folders.area()));
    QCOMPARE(WebcamUtil::getTemporaryPath(), folders.area());
    QCOMPARE(WebcamUtil::m_pictureDataPath, folders.area());
    QVERIFY(QFileInfo(folders.area()).isDir());
}

void WebcamUtilPathsTest::theTemporaryAreaLiesInTmpWithoutTmpdir()
{
    const StoreFolders folders;
    qunsetenv("TMPDIR");
    const QString expected = "/tmp/TavelinCamera_" + QString::number(geteuid());
    const bool existedBefore = QFileInfo::exists(expected);
    QCOMPARE(WebcamUtil::getTemporaryPath(), expected);
    QVERIFY(QFileInfo(expected).isDir());
    if (!existedBefore)
        QDir().rmdir(expected);
}

void WebcamUtilPathsTest::aTemporaryFolderThatIsMissingIsMade()
{
    const StoreFolders folders;
    qputenv("TMPDIR", QFile::encodeName(folders.root() + "/not/there"));
    const QString area = WebcamUtil::getTemporaryPath();
    QVERIFY2(area.startsWith(folders.root() + "/not/there/"), qPrintable(area));
    QVERIFY(QFileInfo(area).isDir());
}

void WebcamUtilPathsTest::anAreaOfAnEarlierRunIsFoundWithItsFiles()
{
    const StoreFolders folders;
    QVERIFY(StoreFolders::write(folders.area() + "/photo1.png", "kept"));
    QCOMPARE(WebcamUtil::getTemporaryPath(), folders.area());
    QCOMPARE(StoreFolders::read(folders.area() + "/photo1.png"), QByteArray("kept"));
}

void WebcamUtilPathsTest::anAreaThatCannotBeMadeIsEmptyAndTriedAgain()
{
    StoreFolders folders;
    folders.makeAreaImpossible();
    QCOMPARE(WebcamUtil::getTemporaryPath(), QString());
    qputenv("TMPDIR", QFile::encodeName(folders.temporary()));
    QCOMPARE(WebcamUtil::getTemporaryPath(), folders.area());
}

void WebcamUtilPathsTest::theAreaIsClosedToOtherUsers_data()
{
    QTest::addColumn<int>("mode"); // as it was found; 0 if it was not there
    QTest::newRow("made now") << 0;
    QTest::newRow("of an earlier version") << 0755;
    QTest::newRow("open to everybody") << 0777;
}

void WebcamUtilPathsTest::theAreaIsClosedToOtherUsers()
{
    QFETCH(int, mode);
    const StoreFolders folders;
    const QByteArray area = QFile::encodeName(folders.area());
    if (mode != 0) {
        QVERIFY(StoreFolders::write(folders.area() + "/photo1.png"));
        QCOMPARE(chmod(area.constData(), mode_t(mode)), 0);
    }
    QCOMPARE(WebcamUtil::getTemporaryPath(), folders.area());
    struct stat entry = {};
    QCOMPARE(stat(area.constData(), &entry), 0);
    QCOMPARE(entry.st_mode & 07777, 0700U);
    QCOMPARE(WebcamUtil::getTempPhotoNameList().size(), mode == 0 ? 0 : 1);
}

void WebcamUtilPathsTest::anAreaThatIsALinkIsNone()
{
    const StoreFolders folders;
    QVERIFY(StoreFolders::write(folders.target() + "/photo1.png", "somebody's"));
    QVERIFY(QFile::link(folders.target(), folders.area()));
    QCOMPARE(WebcamUtil::getTemporaryPath(), QString());
    QVERIFY(!WebcamUtil::chkdiskFreeSpace());
    WebcamUtil::deleteData();
    WebcamUtil::deleteUnfinished(QDateTime::currentDateTime());
    QCOMPARE(StoreFolders::read(folders.target() + "/photo1.png"), QByteArray("somebody's"));
    // Without the link there is room for an area again.
    QVERIFY(QFile::remove(folders.area()));
    QCOMPARE(WebcamUtil::getTemporaryPath(), folders.area());
}

void WebcamUtilPathsTest::anAreaOfSomebodyElseIsNone()
{
    QVERIFY2(geteuid() == 0, "only root can give a folder away");
    const StoreFolders folders;
    QVERIFY(StoreFolders::write(folders.area() + "/photo1.png"));
    QCOMPARE(chown(QFile::encodeName(folders.area()).constData(), 65534, 65534), 0);
    QCOMPARE(WebcamUtil::getTemporaryPath(), QString());
    QVERIFY(!WebcamUtil::chkdiskFreeSpace());
    WebcamUtil::deleteData();
    QVERIFY(QFileInfo::exists(folders.area() + "/photo1.png"));
}

void WebcamUtilPathsTest::aNewFileTakesThePlaceOfWhatIsThere_data()
{
    QTest::addColumn<QString>("isThere");
    QTest::newRow("nothing") << "nothing";
    QTest::newRow("an older file") << "file";
    QTest::newRow("a link to a file") << "link";
    QTest::newRow("a link to nowhere") << "dangling";
}

void WebcamUtilPathsTest::aNewFileTakesThePlaceOfWhatIsThere()
{
    QFETCH(QString, isThere);
    const StoreFolders folders;
    const QString letter = folders.root() + "/letter.txt";
    const QString path = folders.root() + "/note";
    if (isThere == "file")
        QVERIFY(StoreFolders::write(path, "a much longer note"));
    if (isThere == "link")
        QVERIFY(StoreFolders::write(letter, "of somebody"));
    if (isThere == "link" || isThere == "dangling")
        QVERIFY(QFile::link(letter, path));
    QFile file;
    QVERIFY(WebcamUtil::openNewFile(file, path));
    QCOMPARE(file.write("a note"), qint64(6));
    file.close();
    QCOMPARE(StoreFolders::read(path), QByteArray("a note"));
    QVERIFY(!QFileInfo(path).isSymLink());
    QCOMPARE(StoreFolders::read(letter), QByteArray(isThere == "link" ? "of somebody" : ""));
    QCOMPARE(QFileInfo::exists(letter), isThere == "link");
}

void WebcamUtilPathsTest::aNewFileThatCannotBeMadeIsNotOpen()
{
    const StoreFolders folders;
    QFile file;
    QVERIFY(!WebcamUtil::openNewFile(file, folders.root() + "/missing/note"));
    QVERIFY(!file.isOpen());
    QVERIFY(!WebcamUtil::openNewFile(file, folders.target()));
    QVERIFY(QFileInfo(folders.target()).isDir());
}

void WebcamUtilPathsTest::deletingAnEmptyAreaRemovesItAndItsEmptyParents()
{
    const StoreFolders folders;
    QVERIFY(StoreFolders::write(folders.root() + "/other"));
    QCOMPARE(WebcamUtil::getTemporaryPath(), folders.area());
    WebcamUtil::deleteTemporaryPath();
    QVERIFY(!QFileInfo::exists(folders.temporary()));
    QVERIFY(QFileInfo::exists(folders.root()));
    QCOMPARE(WebcamUtil::m_pictureDataPath, QString());
}

void WebcamUtilPathsTest::deletingAnAreaWithAPhotoOnlyForgetsIt()
{
    const StoreFolders folders;
    const QString photo = WebcamUtil::getTemporaryPath() + "/photo1.png";
    QVERIFY(StoreFolders::write(photo));
    WebcamUtil::deleteTemporaryPath();
    QVERIFY(QFileInfo::exists(photo));
    QCOMPARE(WebcamUtil::m_pictureDataPath, QString());
    QCOMPARE(WebcamUtil::getTemporaryPath(), folders.area());
}

void WebcamUtilPathsTest::deletingAnUnknownAreaLooksForOneWithoutTheUser()
{
    const StoreFolders folders;
    const QString withoutUser = folders.temporary() + "/TavelinCamera";
    QVERIFY(QDir().mkpath(folders.area()));
    QVERIFY(QDir().mkpath(withoutUser));
    WebcamUtil::deleteTemporaryPath();
    QVERIFY(!QFileInfo::exists(withoutUser));
    QVERIFY(QFileInfo::exists(folders.area()));
    QCOMPARE(WebcamUtil::m_pictureDataPath, QString());
}

void WebcamUtilPathsTest::writeAccess_data()
{
    QTest::addColumn<QString>("path"); // below the test's folder, unless it is absolute
    QTest::addColumn<bool>("writable");
    QTest::newRow("a folder") << "lesson" << true;
    QTest::newRow("a folder, with a slash at the end") << "lesson/" << true;
    QTest::newRow("a folder, by a detour") << "lesson/../lesson" << true;
    QTest::newRow("a hidden folder") << ".lesson" << true;
    QTest::newRow("another letter case") << "LESSON" << false;
    QTest::newRow("a missing folder") << "missing" << false;
    QTest::newRow("a file") << "file" << false;
    QTest::newRow("a link to a folder") << "link" << false;
    QTest::newRow("a folder below a link") << "link/inside" << true;
    QTest::newRow("the root") << "/" << false;
    QTest::newRow("the root, by a detour") << "/tmp/.." << false;
}

void WebcamUtilPathsTest::writeAccess()
{
    QFETCH(QString, path);
    QFETCH(bool, writable);
    const StoreFolders folders;
    QVERIFY(QDir(folders.root()).mkpath("lesson/inside"));
    QVERIFY(QDir(folders.root()).mkpath(".lesson"));
    QVERIFY(StoreFolders::write(folders.root() + "/file"));
    QVERIFY(QFile::link(folders.root() + "/lesson", folders.root() + "/link"));
    QCOMPARE(WebcamUtil::hasWriteAccess(QDir(folders.root()).filePath(path)), writable);
}

void WebcamUtilPathsTest::aFolderThatIsReadOnlyCountsAsNotWritable()
{
    // Where any user can look, whoever owns the build folder.
    const QTemporaryDir open("/tmp/tst_webcamutilpaths-XXXXXX");
    const QString lesson = open.filePath("lesson");
    QVERIFY(QDir().mkpath(lesson));
    QCOMPARE(chmod(QFile::encodeName(open.path()).constData(), 0755), 0);
    const auto writableWithMode = [&lesson](mode_t mode) {
        if (chmod(QFile::encodeName(lesson).constData(), mode) != 0)
            return -1;
        const OrdinaryUser user;
        return user.isOrdinary() ? int(WebcamUtil::hasWriteAccess(lesson)) : -2;
    };
    QCOMPARE(writableWithMode(0777), 1);
    QCOMPARE(writableWithMode(0555), 0);
}

QTEST_GUILESS_MAIN(WebcamUtilPathsTest)
#include "tst_webcamutilpaths.moc"
