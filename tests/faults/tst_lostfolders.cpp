#include "DiskLesson.h"
#include "FaultTrial.h"
#include "OwnDisks.h"
#include "Patience.h"

#include <QDir>

#include <memory>

// The folders of the captures go away, or let nothing be written into them, and so does the one
// that they are saved to.
class TestLostFolders : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(hasOwnMounts, "no disks of our own can be had here"); }
    void cleanup();
    void aCleanerTakesTheTemporaryAreaDuringASeries();
    void theTemporaryAreaLetsNothingBeWritten();
    void theSaveFolderIsPulledOutMidway();
    void theSaveFolderKnowsNoExclusiveRename();

public:
    bool hasOwnMounts = false;

private:
    std::unique_ptr<DiskLesson> m_lesson;
    std::unique_ptr<ShrinkingDisk> m_small; // these go before the folder that they cover
    std::unique_ptr<TroubledDisk> m_troubled;
};

void TestLostFolders::cleanup()
{
    m_small.reset();
    m_troubled.reset();
    m_lesson.reset();
}

// The self-timer takes them, so that nobody looks at the disk before.
void TestLostFolders::aCleanerTakesTheTemporaryAreaDuringASeries()
{
    FaultTrial trial("the temporary area is deleted during a series", 1, 20);
    while (trial.next()) {
        m_lesson = std::make_unique<DiskLesson>();
        QVERIFY(m_lesson->program().writeSettings("AutoShoot=1\nAutoShootTime=1\n"
                                                  "ContinuShootCount=9\n"));
        QVERIFY(m_lesson->startLive());
        QVERIFY(m_lesson->pressWhenReady(WindowMap::LiveScreen, "PhotoMulti"));
        QTRY_VERIFY(!m_lesson->photos().isEmpty());
        QTest::qWait(trial.upTo(500)); // nothing to wait for: some moment between two photos
        QDir area(m_lesson->program().temporaryArea());
        // A photo that is just being written may be laid in meanwhile.
        QTRY_VERIFY(area.removeRecursively());
        // By itself, and not open to others.
        QTRY_VERIFY(!m_lesson->photos().isEmpty());
        const QFileInfo anew(area.path());
        QCOMPARE(anew.permissions() & (QFile::ReadGroup | QFile::ReadOther),
                 QFileDevice::Permissions());
        QVERIFY(m_lesson->program().isRunning());
    }
}

void TestLostFolders::theTemporaryAreaLetsNothingBeWritten()
{
    FaultTrial trial("the temporary area becomes read-only", 1, 20);
    while (trial.next()) {
        m_small.reset();
        m_lesson = std::make_unique<DiskLesson>();
        QVERIFY(QDir().mkpath(m_lesson->program().temporaryArea()));
        m_small = std::make_unique<ShrinkingDisk>(m_lesson->program().temporaryArea());
        QVERIFY(m_small->isThere());
        QVERIFY(m_lesson->startLive());
        QVERIFY(m_lesson->takeAndAccept());
        const QStringList before = m_lesson->photos();
        QCOMPARE(before.size(), 1);
        QVERIFY(m_small->forbidWriting());
        m_lesson->press(WindowMap::LiveScreen, "Photo");
        QVERIFY(m_lesson->messageSays("Save failed."));
        QVERIFY(m_lesson->confirmMessage());
        QVERIFY(m_lesson->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
        QVERIFY(m_lesson->pressWhenReady(WindowMap::PhotoScreen, "Close"));
        // They can be copied, and not be taken away from here.
        QVERIFY(m_lesson->answerExitQuestion("Yes"));
        QVERIFY(m_lesson->messageSays("Save failed."));
        QVERIFY(m_lesson->confirmMessage());
        QVERIFY(m_lesson->program().hasEndedWithin(patience));
        QCOMPARE(m_lesson->photos(), before);
        trial.addLost(m_lesson->lostOf(before));
    }
}

void TestLostFolders::theSaveFolderIsPulledOutMidway()
{
    FaultTrial trial("the save folder's stick is pulled out while saving", 1, 20);
    while (trial.next()) {
        m_troubled.reset();
        m_lesson = std::make_unique<DiskLesson>();
        const QString share = m_lesson->otherSaveFolder();
        m_troubled = std::make_unique<TroubledDisk>(share);
        QVERIFY(m_troubled->isThere());
        QVERIFY(m_lesson->startLive());
        for (int i = 0; i < 3; ++i)
            QVERIFY(m_lesson->takeAndAccept());
        const QStringList before = m_lesson->photos();
        QVERIFY(m_lesson->askAtExit());
        // Each of the writes and flushes: three photos take about a second.
        QVERIFY(m_troubled->slowDown("write", 100) && m_troubled->slowDown("fsync", 200));
        QVERIFY(m_lesson->answerExitQuestion("Yes"));
        QTest::qWait(trial.upTo(400)); // nothing to wait for: some moment of the save
        m_troubled->vanish();
        QVERIFY(m_lesson->messageSays("Save failed."));
        QVERIFY(m_lesson->confirmMessage());
        QVERIFY(m_lesson->program().hasEndedWithin(patience));
        const QString saved = m_troubled->behind();
        trial.addLost(m_lesson->lostOf(before, saved));
        QCOMPARE(m_lesson->damaged(saved), QStringList());
    }
}

void TestLostFolders::theSaveFolderKnowsNoExclusiveRename()
{
    FaultTrial trial("the save folder's disk knows no exclusive rename", 1, 20);
    while (trial.next()) {
        m_troubled.reset();
        m_lesson = std::make_unique<DiskLesson>();
        // The temporary area too, so that the files are renamed from one to the other.
        m_troubled = std::make_unique<TroubledDisk>(QFileInfo(m_lesson->program().home()).path());
        QVERIFY(m_troubled->isThere());
        QVERIFY(m_troubled->knowNoExclusiveRename());
        QVERIFY(QDir().mkpath(m_lesson->home()) && QDir().mkpath(m_lesson->temporaryFolder()));
        QVERIFY(m_lesson->startLive());
        QVERIFY(m_lesson->takeAndAccept());
        QVERIFY(m_lesson->takeAndAccept());
        const QStringList before = m_lesson->photos();
        // Saved before, the older stays as it is.
        const QString saved = DiskLesson::dayFolder(m_lesson->home());
        QVERIFY(QDir().mkpath(saved));
        QVERIFY(QFile::copy(m_lesson->program().temporaryArea() + '/' + before.first(),
                            saved + '/' + before.last()));
        QVERIFY(m_lesson->askAtExit());
        QVERIFY(m_lesson->answerExitQuestion("Yes"));
        QVERIFY(m_lesson->program().hasEndedWithin(patience));
        trial.addLost(m_lesson->lostOf(before, m_lesson->home()));
        QCOMPARE(QDir(saved).entryList(QDir::Files | QDir::Hidden, QDir::Name), before);
        QCOMPARE(m_lesson->program().captured(), QStringList());
    }
}

int main(int argc, char **argv)
{
    TestLostFolders test;
    test.hasOwnMounts = enterOwnMounts();
    const QApplication application(argc, argv);
    return QTest::qExec(&test, argc, argv);
}
#include "tst_lostfolders.moc"
