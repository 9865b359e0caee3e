#include "StoreFolders.h"
#include "WebcamUtil.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <QTest>

class WebcamUtilDiskTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void moreThan300MegabytesAreEnough_data();
    void moreThan300MegabytesAreEnough();
    void theTemporaryAreasFileSystemIsAsked();
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
    // bytesAvailable() leaves out what is kept for root, too.
    const qint64 available = QStorageInfo(folders.temporary()).bytesAvailable();
    const qint64 needed = qint64(300) * 1024 * 1024;
    QVERIFY2(available > 2 * needed, "needs 600 MB of free space in the build folder");
    QVERIFY(WebcamUtil::chkdiskFreeSpace());
    QVERIFY(QFileInfo(folders.area()).isDir());
    QCOMPARE(WebcamUtil::m_pictureDataPath, folders.area());

    // The process file system has no room at all, and it can be asked.
    WebcamUtil::m_pictureDataPath = "/proc";
    QVERIFY(!WebcamUtil::chkdiskFreeSpace());
    QCOMPARE(WebcamUtil::m_pictureDataPath, QString("/proc"));
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
