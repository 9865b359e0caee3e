#include "StoreFolders.h"
#include "WebcamUtil.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

#include <cerrno>
#include <sys/statvfs.h>

extern "C" int __real_statvfs(const char *path, struct statvfs *answer);

namespace {

/** Answers instead of the disk, as the test tells it; a folder that is not there has none. */
struct FakeSpace {
    static void reset()
    {
        answer = {};
        answer.f_bsize = 1 << 20;
        answer.f_frsize = 4096;
        answer.f_bavail = answer.f_bfree = 1 << 20;
        asked.clear();
        fails = isReal = false;
    }

    static struct statvfs answer;
    static QByteArray asked;
    static bool fails;
    static bool isReal;
};

struct statvfs FakeSpace::answer;
QByteArray FakeSpace::asked;
bool FakeSpace::fails;
bool FakeSpace::isReal;

} // namespace

extern "C" int __wrap_statvfs(const char *path, struct statvfs *answer)
{
    FakeSpace::asked = path;
    const int real = __real_statvfs(path, answer);
    if (real != 0 || FakeSpace::isReal)
        return real;
    if (FakeSpace::fails) {
        errno = EIO;
        return -1;
    }
    *answer = FakeSpace::answer;
    return 0;
}

class WebcamUtilDiskTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { FakeSpace::reset(); }

    void moreThan300MegabytesAreEnough_data();
    void moreThan300MegabytesAreEnough();
    void theTemporaryAreasFileSystemIsAsked();
    void theAnswerIsThatOfTheRealDisk();
    void onlyWhatUsersMayFillCounts_data();
    void onlyWhatUsersMayFillCounts();
    void aDiskThatDoesNotAnswerCountsAsFull();
    void whatSomebodyElsePutInTheAreasPlaceCountsAsFull();
    void aVanishedAreaIsMadeAgainBeforeMeasuring();
    void anAreaThatCannotBeMadeCountsAsFull();
    void anAreaThatCannotBeSpelledInLatinLettersCountsAsFull();
};

void WebcamUtilDiskTest::moreThan300MegabytesAreEnough_data()
{
    QTest::addColumn<quint64>("blockSize");
    QTest::addColumn<quint64>("blocks");
    QTest::addColumn<bool>("enough");
    QTest::newRow("exactly 300 MB") << quint64(4096) << quint64(76800) << false;
    QTest::newRow("one block more") << quint64(4096) << quint64(76801) << true;
    QTest::newRow("one block less") << quint64(4096) << quint64(76799) << false;
    QTest::newRow("exactly 300 MB in small blocks") << quint64(512) << quint64(614400) << false;
    QTest::newRow("one small block more") << quint64(512) << quint64(614401) << true;
    QTest::newRow("one byte more") << quint64(1) << quint64(314572801) << true;
    QTest::newRow("a full disk") << quint64(4096) << quint64(0) << false;
    QTest::newRow("4 GB, beyond 32 bits") << quint64(4096) << quint64(1048576) << true;
    QTest::newRow("1 MB more than 4 GB") << quint64(4096) << quint64(1048832) << true;
    QTest::newRow("16 EB, beyond 64 bits") << quint64(65536) << quint64(281474976710656) << true;
}

void WebcamUtilDiskTest::moreThan300MegabytesAreEnough()
{
    QFETCH(quint64, blockSize);
    QFETCH(quint64, blocks);
    QFETCH(bool, enough);
    QCOMPARE(WebcamUtil::isEnoughSpace(blockSize, blocks), enough);
}

void WebcamUtilDiskTest::theTemporaryAreasFileSystemIsAsked()
{
    const StoreFolders folders;
    QVERIFY(WebcamUtil::chkdiskFreeSpace());
    QVERIFY(QFileInfo(folders.area()).isDir());
    QCOMPARE(WebcamUtil::m_pictureDataPath, folders.area());
    QCOMPARE(FakeSpace::asked, QFile::encodeName(folders.area()));
}

void WebcamUtilDiskTest::theAnswerIsThatOfTheRealDisk()
{
    const StoreFolders folders;
    FakeSpace::isReal = true;
    const bool enough = WebcamUtil::chkdiskFreeSpace();
    struct statvfs real = {};
    QCOMPARE(statvfs(QFile::encodeName(folders.area()).constData(), &real), 0);
    QCOMPARE(enough, WebcamUtil::isEnoughSpace(real.f_frsize, real.f_bavail));
}

void WebcamUtilDiskTest::onlyWhatUsersMayFillCounts_data()
{
    QTest::addColumn<quint64>("unit"); // of the counts
    QTest::addColumn<quint64>("forUsers");
    QTest::addColumn<quint64>("forRoot"); // with what is for users
    QTest::addColumn<bool>("enough");
    QTest::newRow("room for all") << quint64(4096) << quint64(76801) << quint64(76801) << true;
    QTest::newRow("room for root alone")
        << quint64(4096) << quint64(0) << quint64(1 << 20) << false;
    QTest::newRow("not quite enough for users")
        << quint64(4096) << quint64(76800) << quint64(1 << 20) << false;
    QTest::newRow("small units in large blocks")
        << quint64(512) << quint64(76801) << quint64(76801) << false;
}

void WebcamUtilDiskTest::onlyWhatUsersMayFillCounts()
{
    QFETCH(quint64, unit);
    QFETCH(quint64, forUsers);
    QFETCH(quint64, forRoot);
    const StoreFolders folders;
    FakeSpace::answer.f_frsize = unit;
    FakeSpace::answer.f_bavail = forUsers;
    FakeSpace::answer.f_bfree = forRoot;
    QTEST(WebcamUtil::chkdiskFreeSpace(), "enough");
}

void WebcamUtilDiskTest::aDiskThatDoesNotAnswerCountsAsFull()
{
    const StoreFolders folders;
    FakeSpace::fails = true;
    QVERIFY(!WebcamUtil::chkdiskFreeSpace());
}

void WebcamUtilDiskTest::whatSomebodyElsePutInTheAreasPlaceCountsAsFull()
{
    const StoreFolders folders;
    QVERIFY(WebcamUtil::chkdiskFreeSpace());
    QVERIFY(QDir(folders.area()).removeRecursively());
    QVERIFY(QFile::link(folders.target(), folders.area()));
    QVERIFY(!WebcamUtil::chkdiskFreeSpace());
    QCOMPARE(WebcamUtil::m_pictureDataPath, QString());
}

void WebcamUtilDiskTest::aVanishedAreaIsMadeAgainBeforeMeasuring()
{
    const StoreFolders folders;
    QVERIFY(WebcamUtil::chkdiskFreeSpace());
    QVERIFY(QDir(folders.area()).removeRecursively());
    QVERIFY(WebcamUtil::chkdiskFreeSpace());
    QVERIFY(QFileInfo(folders.area()).isDir());
}

void WebcamUtilDiskTest::anAreaThatCannotBeMadeCountsAsFull()
{
    StoreFolders folders;
    folders.makeAreaImpossible();
    QVERIFY(!WebcamUtil::chkdiskFreeSpace());
    QCOMPARE(WebcamUtil::m_pictureDataPath, QString());
}

void WebcamUtilDiskTest::anAreaThatCannotBeSpelledInLatinLettersCountsAsFull()
{
    const StoreFolders folders;
    const QString japanese = folders.root() + "/" + QString::fromUtf8("\xe6\x95\x99\xe5\xae\xa4");
    QVERIFY(QDir().mkpath(japanese));
    qputenv("TMPDIR", QFile::encodeName(japanese));
    QVERIFY(WebcamUtil::getTemporaryPath().startsWith(japanese));
    QVERIFY(QFileInfo(WebcamUtil::getTemporaryPath()).isDir());
    QVERIFY(!WebcamUtil::chkdiskFreeSpace());
}

QTEST_GUILESS_MAIN(WebcamUtilDiskTest)
#include "tst_webcamutildisk.moc"
