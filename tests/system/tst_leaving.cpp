#include "LabPattern.h"
#include "Patience.h"
#include "Session.h"

#include <QDir>

#include <memory>

// The ways out of the program, and what each leaves on the disk.
class TestLeaving : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void exitWithNothingCapturedClosesAtOnce();
    void cancelKeepsTheProgramAndThePhoto();
    void yesMovesThePhotosToTodaysFolder();
    void noDeletesThePhotos();
    void yesWithNothingToMoveSaysSoAndLeaves();
    void closingTheWindowAsksNothingAndKeepsThePhotos();
    void terminatingTheProcessKeepsThePhotos();
    void aKilledProgramStartsAgainWithItsPhotos();
    void photosInTheFolderItWasStartedInAreNotItsOwn();
    void theNextStartSweepsWhatAKilledProgramLeftHalfDone();

private:
    void takeAndAccept();

    std::unique_ptr<Session> m_user;
};

void TestLeaving::init()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(m_user->startLive());
}

void TestLeaving::cleanup()
{
    m_user.reset();
}

void TestLeaving::takeAndAccept()
{
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Live"));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
}

void TestLeaving::exitWithNothingCapturedClosesAtOnce()
{
    m_user->press(WindowMap::LiveScreen, "Close");
    QVERIFY(m_user->program().hasEndedWithin(4000));
    QVERIFY(!m_user->program().hasCrashed());
    QCOMPARE(m_user->program().exitStatus(), 0);
}

void TestLeaving::cancelKeepsTheProgramAndThePhoto()
{
    takeAndAccept();
    const QStringList files = m_user->program().captured();
    m_user->press(WindowMap::LiveScreen, "Close");
    QVERIFY(m_user->answerExitQuestion("Cancel"));
    QVERIFY(m_user->waitUntilNoDialog());
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QCOMPARE(m_user->program().captured(), files);
}

void TestLeaving::yesMovesThePhotosToTodaysFolder()
{
    takeAndAccept();
    takeAndAccept();
    const QStringList files = m_user->program().captured();
    m_user->press(WindowMap::LiveScreen, "Close");
    QVERIFY(m_user->answerExitQuestion("Yes"));
    QVERIFY(m_user->program().hasEndedWithin(4000));
    QCOMPARE(m_user->program().exitStatus(), 0);
    QCOMPARE(m_user->program().captured(), QStringList());
    const QDir saved(m_user->program().saveFolder());
    QCOMPARE(saved.entryList(QDir::Files, QDir::Name), files);
    const QImage photo(saved.filePath(files.first()));
    QCOMPARE(photo.size(), QSize(1280, 720));
    QVERIFY(LabPattern::counterOf(photo) >= 0);
    QVERIFY(LabPattern::worstDifference(photo, m_user->ground()) < 12);
}

void TestLeaving::noDeletesThePhotos()
{
    takeAndAccept();
    m_user->press(WindowMap::LiveScreen, "Close");
    QVERIFY(m_user->answerExitQuestion("No"));
    QVERIFY(m_user->program().hasEndedWithin(4000));
    QCOMPARE(m_user->program().exitStatus(), 0);
    QCOMPARE(m_user->program().captured(), QStringList());
    QVERIFY(!QDir(m_user->program().saveFolder()).exists());
}

void TestLeaving::yesWithNothingToMoveSaysSoAndLeaves()
{
    QFile stray(m_user->program().temporaryArea() + "/notes.txt");
    QVERIFY(stray.open(QIODevice::WriteOnly));
    stray.close();
    m_user->press(WindowMap::LiveScreen, "Close");
    QVERIFY(m_user->answerExitQuestion("Yes"));
    QVERIFY(m_user->messageSays("Save failed."));
    QVERIFY(m_user->confirmMessage());
    QVERIFY(m_user->program().hasEndedWithin(4000));
    QVERIFY(stray.exists());
}

void TestLeaving::closingTheWindowAsksNothingAndKeepsThePhotos()
{
    takeAndAccept();
    const QStringList files = m_user->program().captured();
    m_user->desktop().closeWindow(m_user->mainWindow().id);
    QVERIFY(m_user->program().hasEndedWithin(4000));
    QVERIFY(!m_user->program().hasCrashed());
    QCOMPARE(m_user->program().exitStatus(), 0);
    QCOMPARE(m_user->program().captured(), files);
}

void TestLeaving::terminatingTheProcessKeepsThePhotos()
{
    takeAndAccept();
    const QStringList files = m_user->program().captured();
    m_user->program().terminate();
    QVERIFY(m_user->program().hasEndedWithin(4000));
    QVERIFY(!m_user->program().hasCrashed());
    QCOMPARE(m_user->program().captured(), files);
}

void TestLeaving::aKilledProgramStartsAgainWithItsPhotos()
{
    takeAndAccept();
    const QStringList files = m_user->program().captured();
    m_user->program().kill();
    QVERIFY(m_user->startLive());
    QCOMPARE(m_user->program().captured(), files);
}

// Without a folder for captures of its own it has none.
void TestLeaving::photosInTheFolderItWasStartedInAreNotItsOwn()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    m_user->program().setEnvironment("TMPDIR", "/dev/null/nowhere");
    const QString photo = m_user->program().home() + "/photo20240229101500000.png";
    QVERIFY(QImage(64, 48, QImage::Format_RGB32).save(photo));
    m_user->program().start();
    QTRY_VERIFY(m_user->dialog().isActive);
    QVERIFY(
        m_user->messageSays("The disk free space is insufficient.\n"
                            "Taking a picture is discontinued. Please secure the free space. "));
    QVERIFY(m_user->confirmMessage());
    QVERIFY(m_user->waitForMainWindow());
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Close"));
    // It asks where there are files in the folder that it works in instead.
    QTRY_VERIFY(!m_user->program().isRunning() || m_user->dialog().isActive);
    if (m_user->program().isRunning())
        QVERIFY(m_user->answerExitQuestion("No"));
    QVERIFY(m_user->program().hasEndedWithin(patience));
    QVERIFY(QFile::exists(photo));
}

void TestLeaving::theNextStartSweepsWhatAKilledProgramLeftHalfDone()
{
    takeAndAccept();
    const QStringList photos = m_user->program().captured();
    m_user->program().kill();
    QFile half(m_user->program().temporaryArea() + "/.photo20090304090507042.png");
    QVERIFY(half.open(QIODevice::WriteOnly));
    QVERIFY(half.write("half a photo") > 0);
    half.close();
    QVERIFY(m_user->startLive());
    QCOMPARE(m_user->program().captured(), photos);
}

QTEST_MAIN(TestLeaving)
#include "tst_leaving.moc"
