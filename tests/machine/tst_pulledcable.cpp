#include "DeviceSession.h"
#include "Devices.h"
#include "MovieProbe.h"
#include "Patience.h"
#include "SpareTime.h"

#include <QTest>

// With its trailing blank.
static const char lostText[] = "The video device is invalid. Please confirm whether the device is "
                               "correctly connected. ";
static const int movieLength = 4000; // ms
static const int reactionLimit = 90000; // ms, of a slow machine
static const int nextPhoto = 9000; // ms; the self-timer's six seconds and some for the machine

/**
 * The cable is pulled while the user is busy with something: there is one message, nothing that was
 * captured is lost, and "List" and "Live" lead back to the picture. All of it is one lesson, so
 * each finds what those before it have captured.
 */
class TestPulledCable : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void withAPhotoToAccept();
    void inTheMiddleOfASeries();
    void whileRecording();
    void duringPlayback();
    void withTheSettingsOpen();
    void cleanupTestCase();

private:
    void pullTheCable();
    void expectTheWayBack();
    QStringList captured() { return m_user->program().captured(); }

    std::unique_ptr<TestCameras> m_cameras;
    std::unique_ptr<LoopCard> m_card;
    std::unique_ptr<DeviceSession> m_user;
};

void TestPulledCable::initTestCase()
{
    m_cameras = std::make_unique<TestCameras>(QList<TestCameras::Kind>{TestCameras::Kind::Webcam});
    m_card = std::make_unique<LoopCard>();
    QVERIFY(m_cameras->isLoaded() && m_card->isLoaded());
    QVERIFY(m_card->play());
}

// After a failure the next one begins anew.
void TestPulledCable::init()
{
    if (m_user)
        return;
    m_user = std::make_unique<DeviceSession>(ORVANTA_PROGRAM);
    QVERIFY(m_user->startMoving());
}

void TestPulledCable::cleanup()
{
    if (!QTest::currentTestFailed()) {
        QVERIFY(m_user->program().isRunning());
        return;
    }
    m_user->keepTraces();
    m_user.reset();
    TestCameras::plugIn();
}

void TestPulledCable::cleanupTestCase()
{
    m_user.reset();
    m_card.reset();
    m_cameras.reset();
}

// Up to the message, which stays open.
void TestPulledCable::pullTheCable()
{
    QVERIFY(TestCameras::pullOut());
    QVERIFY(m_user->messageSays(lostText));
}

void TestPulledCable::expectTheWayBack()
{
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, {"List", "Close"}));
    QVERIFY(TestCameras::plugIn());
    QVERIFY2(m_user->dialog().id == 0, "a second message");
    QVERIFY(m_user->findCameraAgain());
}

void TestPulledCable::withAPhotoToAccept()
{
    QVERIFY(m_user->takePhotoForPreview());
    const QStringList before = captured();
    pullTheCable();
    QVERIFY(m_user->confirmMessage());
    expectTheWayBack();
    QCOMPARE(captured(), before);
}

void TestPulledCable::inTheMiddleOfASeries()
{
    const int before = captured().size();
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "PhotoMulti"));
    // Hidden while it is being written.
    QTRY_VERIFY_WITH_TIMEOUT(captured().size() > before && captured().last().startsWith("photo"),
                             reactionLimit);
    pullTheCable();
    const QStringList photos = captured();
    QVERIFY(m_user->confirmMessage());
    expectTheWayBack();
    QTest::qWait(nextPhoto); // nothing to wait for: a photo that must not be taken
    QCOMPARE(captured(), photos);
}

void TestPulledCable::whileRecording()
{
    const int before = m_user->movies().size();
    QVERIFY(m_user->beginMovie());
    QTest::qWait(movieLength); // nothing to wait for: the movie's length
    const SpareTime spare;
    pullTheCable();
    QVERIFY(m_user->confirmMessage());
    expectTheWayBack();
    QCOMPARE(m_user->movies().size(), before + 1);
    const MovieProbe movie(m_user->movies().last());
    QCOMPARE(movie.complaints(), QString());
    QVERIFY2(movie.videoDuration() > 1, qPrintable(QString::number(movie.videoDuration())));
    // The sound ends when the loss is noticed.
    QVERIFY2(qAbs(movie.soundDuration() - movie.videoDuration()) < 0.5 + spare.lateness(),
             qPrintable(QString("a picture of %1 s, sound of %2 s")
                            .arg(movie.videoDuration())
                            .arg(movie.soundDuration())));
}

void TestPulledCable::duringPlayback()
{
    QVERIFY(m_user->beginMovie());
    QTest::qWait(movieLength); // nothing to wait for: the movie's length
    QVERIFY(m_user->endMovie());
    const QStringList before = captured();
    QVERIFY(m_user->pressWhenReady(WindowMap::MovieScreen, "MoviePlay"));
    QTRY_VERIFY_WITH_TIMEOUT(m_user->movesAt(m_user->map().videoRect()), reactionLimit);
    pullTheCable();
    QVERIFY(m_user->confirmMessage());
    expectTheWayBack();
    QCOMPARE(captured(), before);
}

void TestPulledCable::withTheSettingsOpen()
{
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Settings"));
    QVERIFY(m_user->waitForDialog("Settings"));
    pullTheCable();
    m_user->desktop().pressKey("Return");
    QVERIFY(m_user->clickInSettings("btnCancel"));
    QVERIFY(m_user->waitUntilNoDialog());
    expectTheWayBack();
}

QTEST_MAIN(TestPulledCable)
#include "tst_pulledcable.moc"
