#include "DiskLesson.h"
#include "FaultTrial.h"
#include "MovieProbe.h"
#include "OwnDisks.h"
#include "Patience.h"

#include <QDir>

#include <memory>

static constexpr qint64 block = 4096; // bytes

// The disk of the captures has no more room, from some moment on.
class TestFullDisk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(hasOwnMounts, "no disks of our own can be had here"); }
    void theProgramStartsAndTakesPhotosOnceThereIsRoom();
    void aPhotoIsTakenWholeOrNotAtAll();
    void aMovieThatBeginsIsToldToBeImpossible();
    void aMovieEndsWhereTheRoomEnds();

public:
    bool hasOwnMounts = false;

private:
    bool beginLesson();

    std::unique_ptr<DiskLesson> m_lesson;
    std::unique_ptr<ShrinkingDisk> m_disk; // goes before the folder that it covers
};

bool TestFullDisk::beginLesson()
{
    m_disk.reset();
    m_lesson = std::make_unique<DiskLesson>();
    m_disk = std::make_unique<ShrinkingDisk>(m_lesson->temporaryFolder());
    return m_disk->isThere();
}

void TestFullDisk::theProgramStartsAndTakesPhotosOnceThereIsRoom()
{
    FaultTrial trial("the program is started on a full disk", 1, 20);
    while (trial.next()) {
        QVERIFY(beginLesson());
        QVERIFY(m_disk->leave(trial.upTo(3) * block));
        m_lesson->program().start();
        QVERIFY(m_lesson->messageSays(DiskLesson::fullText));
        QVERIFY(m_lesson->confirmMessage());
        QVERIFY(m_disk->giveRoom());
        QVERIFY(m_lesson->pressWhenReady(WindowMap::LiveScreen, "List"));
        QVERIFY(m_lesson->pressWhenReady(WindowMap::ListScreen, "Live"));
        QVERIFY(m_lesson->takeAndAccept());
    }
}

void TestFullDisk::aPhotoIsTakenWholeOrNotAtAll()
{
    FaultTrial trial("the disk is full at some moment of a photo", 2, 20);
    while (trial.next()) {
        QVERIFY(beginLesson());
        QVERIFY(m_lesson->startLive());
        QVERIFY(m_lesson->takeAndAccept());
        const QStringList before = m_lesson->photos();
        m_lesson->press(WindowMap::LiveScreen, "Photo");
        QTest::qWait(trial.upTo(40)); // nothing to wait for: some moment of the photo
        QVERIFY(m_disk->leave(trial.upTo(2) * block));
        QTRY_VERIFY(m_lesson->dialog().id != 0 || m_lesson->photos().size() > before.size());
        if (m_lesson->photos().size() == before.size()) {
            QVERIFY(m_lesson->messageSays(DiskLesson::fullText));
            QVERIFY(m_lesson->confirmMessage());
        }
        trial.addLost(m_lesson->lostOf(before));
        QCOMPARE(m_lesson->damaged(), QStringList());
        QVERIFY(m_lesson->program().isRunning());
    }
}

void TestFullDisk::aMovieThatBeginsIsToldToBeImpossible()
{
    FaultTrial trial("the disk is full when a movie begins", 1, 20);
    while (trial.next()) {
        QVERIFY(beginLesson());
        QVERIFY(m_lesson->startLive());
        QVERIFY(m_lesson->takeAndAccept());
        const QStringList before = m_lesson->photos();
        m_lesson->press(WindowMap::LiveScreen, "Movie");
        QTest::qWait(trial.upTo(80)); // nothing to wait for: some moment of the beginning
        QVERIFY(m_disk->leave(trial.upTo(30) * block));
        QVERIFY(m_lesson->messageSays(DiskLesson::fullText));
        QVERIFY(m_lesson->confirmMessage());
        trial.addLost(m_lesson->lostOf(before));
        QCOMPARE(m_lesson->damaged(), QStringList());
        QVERIFY(m_lesson->program().isRunning());
    }
}

void TestFullDisk::aMovieEndsWhereTheRoomEnds()
{
    FaultTrial trial("the disk is full in the middle of a movie", 1, 20);
    while (trial.next()) {
        QVERIFY(beginLesson());
        QVERIFY(m_lesson->startLive());
        const bool isBegun = m_lesson->beginMovie();
        if (!isBegun && !trial.evidence().isNull())
            m_lesson->desktop().screenshot().save(trial.evidence() + "/nomovie.png");
        QVERIFY(isBegun);
        const QDir area(m_lesson->program().temporaryArea());
        QTRY_COMPARE(area.entryList({"movie*"}, QDir::Files).size(), 2); // with its still picture
        QTest::qWait(1500 + trial.upTo(1500)); // nothing to wait for: the movie's length
        QVERIFY(m_disk->leave(trial.upTo(5) * block));
        QVERIFY(m_lesson->messageSays(DiskLesson::fullText));
        QVERIFY(m_lesson->confirmMessage());
        const QStringList movies = area.entryList({"movie*.mov"}, QDir::Files);
        QCOMPARE(movies.size(), 1);
        const MovieProbe movie(area.filePath(movies.first()));
        QCOMPARE(movie.complaints(), QString());
        trial.addLost(movie.duration() < 1);
        QVERIFY2(movie.duration() >= 1, qPrintable(QString::number(movie.duration())));
    }
}

int main(int argc, char **argv)
{
    TestFullDisk test;
    test.hasOwnMounts = enterOwnMounts();
    const QApplication application(argc, argv);
    return QTest::qExec(&test, argc, argv);
}
#include "tst_fulldisk.moc"
