#include "CaptureFolder.h"
#include "PictureVersion.h"

#include <QHash>
#include <QTest>

#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

// Gives a file the time stamp of so many nanoseconds ago.
bool backdate(const QString &path, qint64 nanoseconds)
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    const qint64 then = qint64(now.tv_sec) * 1'000'000'000 + now.tv_nsec - nanoseconds;
    timespec stamps[2] = {};
    for (timespec &stamp : stamps) {
        stamp.tv_sec = then / 1'000'000'000;
        stamp.tv_nsec = then % 1'000'000'000;
    }
    return utimensat(AT_FDCWD, QFile::encodeName(path).constData(), stamps, 0) == 0;
}

} // namespace

class TestPictureVersion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anUntouchedFileStaysTheSame();
    void anotherTimeSizeOrNameIsAnotherVersion();
    void aMissingFileHasNoBytes();
    void aFileWrittenJustNowIsNotSettled();

private:
    CaptureFolder m_folder;
};

void TestPictureVersion::anUntouchedFileStaysTheSame()
{
    const QString path = CaptureFolder::path("photo1.png");
    QVERIFY(CaptureFolder::saveBytes("photo1.png", "12345"));
    const PictureVersion version = PictureVersion::of(path);
    QCOMPARE(version.bytes, qint64(5));
    QVERIFY(version.modified > 0);
    QVERIFY(version == PictureVersion::of(path));
    QCOMPARE(qHash(version), qHash(PictureVersion::of(path)));
}

void TestPictureVersion::anotherTimeSizeOrNameIsAnotherVersion()
{
    const QString path = CaptureFolder::path("photo1.png");
    QVERIFY(CaptureFolder::saveBytes("photo1.png", "12345"));
    const PictureVersion version = PictureVersion::of(path);
    QVERIFY(backdate(path, 1'000'000'000));
    QVERIFY(!(version == PictureVersion::of(path)));

    PictureVersion larger = version;
    ++larger.bytes;
    QVERIFY(!(version == larger));
    PictureVersion elsewhere = version;
    elsewhere.path = CaptureFolder::path("photo2.png");
    QVERIFY(!(version == elsewhere));
}

void TestPictureVersion::aMissingFileHasNoBytes()
{
    const PictureVersion missing = PictureVersion::of(CaptureFolder::path("missing.png"));
    QCOMPARE(missing.bytes, qint64(-1));
    QVERIFY(missing.isSettled());
}

void TestPictureVersion::aFileWrittenJustNowIsNotSettled()
{
    const QString path = CaptureFolder::path("photo1.png");
    QVERIFY(CaptureFolder::saveBytes("photo1.png", "12345"));
    QVERIFY(backdate(path, -1'000'000)); // the clock that stamps files may run ahead a little
    QVERIFY(!PictureVersion::of(path).isSettled());
    QVERIFY(backdate(path, 1'000'000'000));
    QVERIFY(PictureVersion::of(path).isSettled());
}

QTEST_GUILESS_MAIN(TestPictureVersion)
#include "tst_pictureversion.moc"
