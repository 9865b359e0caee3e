#include "DiskLesson.h"
#include "FaultTrial.h"
#include "OwnDisks.h"
#include "Patience.h"

#include <QDir>

#include <memory>

static constexpr qint64 block = 4096; // bytes

// There is no more room where captures are saved, where settings are kept, or where photos are
// handed over.
class TestFullHome : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(hasOwnMounts, "no disks of our own can be had here"); }
    void whatHasNoRoomInTheSaveFolderStaysAndIsTold();
    void settingsThatCannotBeKeptStayAsTheyWere();
    void aPasteThatCannotBeWrittenLeavesNothing();

public:
    bool hasOwnMounts = false;

private:
    std::unique_ptr<DiskLesson> m_lesson;
    std::unique_ptr<ShrinkingDisk> m_disk; // goes before the folder that it covers
};

void TestFullHome::whatHasNoRoomInTheSaveFolderStaysAndIsTold()
{
    FaultTrial trial("the save folder's disk has no room for all", 1, 20);
    while (trial.next()) {
        m_disk.reset();
        m_lesson = std::make_unique<DiskLesson>();
        m_disk = std::make_unique<ShrinkingDisk>(m_lesson->home());
        QVERIFY(m_disk->isThere());
        QVERIFY(m_lesson->startLive());
        for (int i = 0; i < 3; ++i)
            QVERIFY(m_lesson->takeAndAccept());
        const QStringList before = m_lesson->photos();
        QCOMPARE(before.size(), 3);
        QVERIFY(m_lesson->askAtExit());
        const QFileInfo photo(m_lesson->program().temporaryArea() + '/' + before.first());
        QVERIFY(m_disk->leave(trial.upTo(int(2 * photo.size() / block)) * block));
        QVERIFY(m_lesson->answerExitQuestion("Yes"));
        QVERIFY(m_lesson->messageSays("Save failed."));
        QVERIFY(m_lesson->confirmMessage());
        QVERIFY(m_lesson->program().hasEndedWithin(patience));
        const QString saved = m_lesson->home();
        trial.addLost(m_lesson->lostOf(before, saved));
        QCOMPARE(m_lesson->damaged(saved), QStringList());
        QVERIFY(!m_lesson->photos().isEmpty());
        QVERIFY(QDir(DiskLesson::dayFolder(saved))
                    .entryList({".*"}, QDir::Files | QDir::Hidden)
                    .isEmpty());
    }
}

void TestFullHome::settingsThatCannotBeKeptStayAsTheyWere()
{
    FaultTrial trial("the home folder's disk is full when settings are kept", 1, 20);
    while (trial.next()) {
        m_disk.reset();
        m_lesson = std::make_unique<DiskLesson>();
        m_disk = std::make_unique<ShrinkingDisk>(m_lesson->home());
        QVERIFY(m_disk->isThere());
        QVERIFY(m_lesson->program().writeSettings("AutoShoot=0\nContinuShootCount=9\n"));
        const auto settings = [this] {
            QFile file(m_lesson->program().settingsFile());
            return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        };
        const QByteArray before = settings();
        QVERIFY(m_lesson->startLive());
        QVERIFY(m_lesson->pressWhenReady(WindowMap::LiveScreen, "Settings"));
        QVERIFY(m_lesson->clickInSettings("chbAutoShooting"));
        QVERIFY(m_disk->leave(0));
        QVERIFY(m_lesson->clickInSettings("btnOk"));
        QVERIFY(m_lesson->waitUntilNoDialog());
        QVERIFY(m_lesson->isLiveAgain());
        QCOMPARE(settings(), before);
    }
}

void TestFullHome::aPasteThatCannotBeWrittenLeavesNothing()
{
    FaultTrial trial("the disk is full when a photo is pasted", 1, 20);
    while (trial.next()) {
        m_disk.reset();
        m_lesson = std::make_unique<DiskLesson>();
        m_disk = std::make_unique<ShrinkingDisk>(m_lesson->temporaryFolder());
        QVERIFY(m_disk->isThere());
        QVERIFY(m_lesson->startLive());
        QVERIFY(m_lesson->takePhotoForPreview());
        const QStringList before = m_lesson->photos();
        QVERIFY(m_lesson->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
        QVERIFY(m_disk->leave(0));
        QVERIFY(m_lesson->pressWhenReady(WindowMap::PhotoScreen, "PutPhoto"));
        // What comes next is done after the paste.
        QVERIFY(m_lesson->pressWhenReady(WindowMap::PhotoScreen, "List"));
        QVERIFY(m_lesson->pressWhenReady(WindowMap::ListScreen, "Live"));
        const QDir handedOver(m_lesson->program().temporaryArea() + "/tmp");
        QVERIFY(handedOver.exists());
        QCOMPARE(handedOver.entryList(QDir::Files | QDir::Hidden), QStringList());
        trial.addLost(m_lesson->lostOf(before));
    }
}

int main(int argc, char **argv)
{
    TestFullHome test;
    test.hasOwnMounts = enterOwnMounts();
    const QApplication application(argc, argv);
    return QTest::qExec(&test, argc, argv);
}
#include "tst_fullhome.moc"
