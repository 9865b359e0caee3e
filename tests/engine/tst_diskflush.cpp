#include "BoundedTask.h"
#include "DiskFlush.h"
#include "FakeDisk.h"
#include "MovieCompletion.h"
#include "Patience.h"
#include "StillWriter.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QSemaphore>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <cerrno>
#include <memory>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

static bool waitForAll(int limit) // ms
{
    return MovieCompletion::waitForAll(steady_clock::now() + milliseconds(limit));
}

// A disk that takes nothing until it is told to go on, or until this goes.
class BusyDisk {
public:
    BusyDisk()
    {
        FakeDisk::onFlush = [this](const QByteArray &) {
            m_goOn.acquire();
            m_goOn.release();
            return 0;
        };
    }
    ~BusyDisk()
    {
        goOn();
        waitForAll(patience);
    }
    BusyDisk(const BusyDisk &) = delete;
    BusyDisk &operator=(const BusyDisk &) = delete;

    void goOn() { m_goOn.release(); }

private:
    const FakeDisk m_disk; // goes last
    QSemaphore m_goOn;
};

static QImage picture()
{
    QImage image(64, 48, QImage::Format_RGB888);
    image.fill(Qt::darkGreen);
    return image;
}

// A photo is told to be there when no power cut can take it any more.
class TestDiskFlush : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aPhotoIsOnTheDiskBeforeItHasItsNameAndItsNameBeforeItIsTold();
    void whatTheDiskRefusesIsNoPhoto();
    void aPhotoWhoseNameTheDiskRefusesIsKept();
    void aDiskThatKnowsNoFlushingIsWrittenAllTheSame();
    void aSlowDiskIsNotWaitedForButAtTheEnd();
    void ofAClosedFileItIsTheContentsAndThenTheName();
    void theEndWaitsForWhatBeganMeanwhile();

private:
    QString path() const { return m_folder->filePath("photo.png"); }
    QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestDiskFlush::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void TestDiskFlush::aPhotoIsOnTheDiskBeforeItHasItsNameAndItsNameBeforeItIsTold()
{
    QStringList seen; // what was flushed, and the files that were there then
    {
        const FakeDisk disk;
        FakeDisk::onFlush = [&](const QByteArray &flushed) {
            seen << QFileInfo(QFile::decodeName(flushed)).fileName() << files();
            return 0;
        };
        QVERIFY(writeStill(picture(), path(), milliseconds(patience)));
        QVERIFY(waitForAll(patience));
    }
    const QString folder = QFileInfo(m_folder->path()).fileName();
    QCOMPARE(seen, (QStringList{".photo.png", ".photo.png", folder, "photo.png"}));
}

void TestDiskFlush::whatTheDiskRefusesIsNoPhoto()
{
    const FakeDisk disk;
    FakeDisk::onFlush = [](const QByteArray &flushed) {
        return flushed.endsWith("photo.png") ? ENOSPC : 0;
    };
    QVERIFY(!writeStill(picture(), path(), milliseconds(patience)));
    QCOMPARE(files(), QStringList());
}

void TestDiskFlush::aPhotoWhoseNameTheDiskRefusesIsKept()
{
    const FakeDisk disk;
    FakeDisk::onFlush = [](const QByteArray &flushed) {
        return flushed.endsWith("photo.png") ? 0 : EIO;
    };
    QVERIFY(writeStill(picture(), path()));
    QCOMPARE(files(), QStringList("photo.png"));
}

void TestDiskFlush::aDiskThatKnowsNoFlushingIsWrittenAllTheSame()
{
    const FakeDisk disk;
    FakeDisk::onFlush = [](const QByteArray &) { return EINVAL; };
    QVERIFY(writeStill(picture(), path()));
    QCOMPARE(files(), QStringList("photo.png"));
}

// The disk goes on when the photo was told: it must have been before.
void TestDiskFlush::aSlowDiskIsNotWaitedForButAtTheEnd()
{
    BusyDisk disk;
    QVERIFY(writeStill(picture(), path()));
    QCOMPARE(files(), QStringList("photo.png"));
    QVERIFY(!waitForAll(50));
    disk.goOn();
    QVERIFY(waitForAll(patience));
}

void TestDiskFlush::ofAClosedFileItIsTheContentsAndThenTheName()
{
    QVERIFY(picture().save(path()));
    QStringList seen;
    const FakeDisk disk;
    FakeDisk::onFlush = [&](const QByteArray &flushed) {
        seen << QFileInfo(QFile::decodeName(flushed)).fileName();
        return 0;
    };
    DiskFlush::flushClosed(path(), steady_clock::now() + milliseconds(patience));
    QCOMPARE(seen, (QStringList{"photo.png", QFileInfo(m_folder->path()).fileName()}));
}

// A movie is completed, and the disk takes it only then.
void TestDiskFlush::theEndWaitsForWhatBeganMeanwhile()
{
    std::atomic<bool> isTaken(false);
    QSemaphore completed;
    MovieCompletion::goesOnWith(BoundedTask<void>([&] {
        completed.acquire();
        MovieCompletion::goesOnWith(BoundedTask<void>([&] {
            QTest::qSleep(100); // nothing to wait for: how long the disk takes
            isTaken = true;
        }));
    }));
    QVERIFY(!waitForAll(50));
    completed.release();
    QVERIFY(waitForAll(patience));
    QVERIFY(isTaken);
}

QTEST_GUILESS_MAIN(TestDiskFlush)
#include "tst_diskflush.moc"
