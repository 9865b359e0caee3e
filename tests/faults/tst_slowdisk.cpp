#include "DiskLesson.h"
#include "FaultTrial.h"
#include "MovieProbe.h"
#include "OwnDisks.h"
#include "Patience.h"

#include <QDir>

#include <memory>

static constexpr int longestStandstill = 2000; // ms, of a picture that moves thirty times a second

// The captures' disk takes its time for everything that is written.
class TestSlowDisk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(hasOwnMounts, "no disks of our own can be had here"); }
    void thePictureMovesOnWhileAPhotoIsWritten();
    void thePictureMovesOnWhileAMovieIsWritten();

public:
    bool hasOwnMounts = false;

private:
    bool beginLesson();

    std::unique_ptr<DiskLesson> m_lesson;
    std::unique_ptr<TroubledDisk> m_disk; // goes before the folder that it covers
};

bool TestSlowDisk::beginLesson()
{
    m_disk.reset();
    m_lesson = std::make_unique<DiskLesson>();
    m_disk = std::make_unique<TroubledDisk>(m_lesson->temporaryFolder());
    return m_disk->isThere();
}

void TestSlowDisk::thePictureMovesOnWhileAPhotoIsWritten()
{
    FaultTrial trial("a photo on a disk that takes seconds for it", 1, 20);
    while (trial.next()) {
        QVERIFY(beginLesson());
        QVERIFY(m_lesson->startLive());
        const int delay = 500 + trial.upTo(700); // ms
        QVERIFY(m_disk->slowDown("write", delay) && m_disk->slowDown("fsync", delay));
        QVERIFY(m_lesson->pressWhenReady(WindowMap::LiveScreen, "Photo"));
        QTRY_VERIFY(m_lesson->counterAt(m_lesson->map().previewPhotoRect()) >= 0);
        const qint64 still =
            m_lesson->longestStandstill(m_lesson->map().previewLiveRect(), 2 * delay);
        trial.addStandstill(still);
        QVERIFY2(still < longestStandstill, qPrintable(QString::number(still)));
        QVERIFY(m_lesson->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
        const QStringList taken = m_lesson->photos();
        QCOMPARE(taken.size(), 1);
        m_lesson->program().terminate();
        QVERIFY(m_lesson->program().hasEndedWithin(patience));
        trial.addLost(m_lesson->lostOf(taken));
        QCOMPARE(m_lesson->damaged(), QStringList());
    }
}

// Its index waits for the disk most: at the beginning that takes longer than the film it stands
// for.
void TestSlowDisk::thePictureMovesOnWhileAMovieIsWritten()
{
    FaultTrial trial("a movie on a disk that takes seconds for it", 1, 20);
    while (trial.next()) {
        QVERIFY(beginLesson());
        QVERIFY(m_lesson->startLive());
        QVERIFY(m_lesson->beginMovie());
        QElapsedTimer length;
        length.start();
        QVERIFY(m_disk->slowDown("fsync", 1500 + trial.upTo(500)));
        const qint64 still = m_lesson->longestStandstill(m_lesson->map().videoRect(), 4000);
        trial.addStandstill(still);
        QVERIFY2(still < longestStandstill, qPrintable(QString::number(still)));
        const qint64 filmed = length.elapsed();
        QVERIFY(m_lesson->pressWhenReady(WindowMap::RecordingScreen, "MovieStop"));
        QVERIFY(m_lesson->waitForPressable(WindowMap::MovieScreen,
                                           {"Live", "MoviePlay", "List", "Close"}));
        m_lesson->program().terminate();
        QVERIFY(m_lesson->program().hasEndedWithin(patience));
        const QDir area(m_lesson->program().temporaryArea());
        const MovieProbe movie(area.filePath(area.entryList({"movie*.mov"}, QDir::Files).value(0)));
        QCOMPARE(movie.complaints(), QString());
        const bool isWhole = movie.duration() > double(filmed) / 1000 - 1;
        trial.addLost(!isWhole);
        QVERIFY2(isWhole, qPrintable(QString("%1 s of %2 ms").arg(movie.duration()).arg(filmed)));
    }
}

int main(int argc, char **argv)
{
    TestSlowDisk test;
    test.hasOwnMounts = enterOwnMounts();
    const QApplication application(argc, argv);
    return QTest::qExec(&test, argc, argv);
}
#include "tst_slowdisk.moc"
