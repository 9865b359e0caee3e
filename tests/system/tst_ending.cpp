#include "LabCommands.h"
#include "LabPattern.h"
#include "Patience.h"
#include "Session.h"

#include <QElapsedTimer>

#include <functional>
#include <memory>

using Step = bool (*)(Session &user);
Q_DECLARE_METATYPE(Step)

/**
 * The session ends, or the user leaves: the program is gone soon, whatever it is doing and whatever
 * a server does to it.
 */
class TestEnding : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void theEndOfTheSessionEndsTheProgramInEveryState_data();
    void theEndOfTheSessionEndsTheProgramInEveryState();
    void aPhotoThatIsSeenIsOnTheDiskAfterTheSession();
    void aServerThatDoesNotAnswerKeepsNothingUp_data();
    void aServerThatDoesNotAnswerKeepsNothingUp();
    void exitEndsItThoughTheMediaServerIsStuck();
    void theEndOfTheSessionInterruptsTheOpeningOfACamera();

private:
    static bool nothing(Session &) { return true; }
    static bool openSettings(Session &user);
    static bool openList(Session &user);
    static bool takePhoto(Session &user) { return user.takePhotoForPreview(); }
    static bool startSeries(Session &user);
    static bool startMovie(Session &user);
    static bool askAtExit(Session &user);
    void endsInTime(int limit = 3000);

    std::unique_ptr<Session> m_user;
};

static constexpr int busy = 1500; // ms that a busy machine may add

void TestEnding::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
}

void TestEnding::init()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(640, 480));
    QVERIFY(m_user->startLive());
}

void TestEnding::cleanup()
{
    m_user.reset();
}

bool TestEnding::openSettings(Session &user)
{
    return user.pressWhenReady(WindowMap::LiveScreen, "Settings") && user.waitForDialog("Settings");
}

bool TestEnding::openList(Session &user)
{
    return user.pressWhenReady(WindowMap::LiveScreen, "List")
        && user.waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"});
}

bool TestEnding::startSeries(Session &user)
{
    return user.pressWhenReady(WindowMap::LiveScreen, "PhotoMulti")
        && user.waitForPressable(WindowMap::LiveScreen, {"Live", "PhotoMulti"});
}

bool TestEnding::startMovie(Session &user)
{
    return user.beginMovie();
}

bool TestEnding::askAtExit(Session &user)
{
    if (!user.takePhotoForPreview() || !user.pressWhenReady(WindowMap::PreviewScreen, "Apply")
        || !user.pressWhenReady(WindowMap::PhotoScreen, "Live")
        || !user.pressWhenReady(WindowMap::LiveScreen, "Close"))
        return false;
    return user.waitForDialog("Orvanta");
}

void TestEnding::endsInTime(int limit)
{
    QElapsedTimer timer;
    timer.start();
    m_user->program().terminate();
    QVERIFY2(m_user->program().hasEndedWithin(15000), "it does not end at all");
    const qint64 elapsed = timer.elapsed();
    qInfo("ended after %lld ms", elapsed);
    QVERIFY2(elapsed < limit + busy, qPrintable(QString::number(elapsed)));
    QVERIFY2(!m_user->program().hasCrashed(), qPrintable(m_user->program().output()));
    QVERIFY2(m_user->program().exitStatus() == 0, qPrintable(m_user->program().output()));
}

void TestEnding::theEndOfTheSessionEndsTheProgramInEveryState_data()
{
    QTest::addColumn<Step>("reach");
    QTest::newRow("live") << Step(nothing);
    QTest::newRow("settings") << Step(openSettings);
    QTest::newRow("list") << Step(openList);
    QTest::newRow("photo") << Step(takePhoto);
    QTest::newRow("series") << Step(startSeries);
    QTest::newRow("recording") << Step(startMovie);
    QTest::newRow("question at exit") << Step(askAtExit);
}

void TestEnding::theEndOfTheSessionEndsTheProgramInEveryState()
{
    QFETCH(Step, reach);
    QVERIFY(reach(*m_user));
    endsInTime();
}

// Its file is written while it is shown already.
void TestEnding::aPhotoThatIsSeenIsOnTheDiskAfterTheSession()
{
    QVERIFY(m_user->waitForPressable(
        WindowMap::LiveScreen,
        {"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"}));
    m_user->press(WindowMap::LiveScreen, "Photo");
    const QRect place = m_user->map().previewPhotoRect();
    QTRY_VERIFY(m_user->counterAt(place) >= 0);
    const int seen = m_user->counterAt(place);
    endsInTime();
    const QStringList files = m_user->program().captured();
    QCOMPARE(files.size(), 1);
    QVERIFY2(files.first().startsWith("photo"), qPrintable(files.first())); // no hidden one
    const QImage photo(m_user->program().temporaryArea() + '/' + files.first());
    QCOMPARE(photo.size(), QSize(640, 480));
    QCOMPARE(LabPattern::counterOf(photo), seen);
}

void TestEnding::aServerThatDoesNotAnswerKeepsNothingUp_data()
{
    QTest::addColumn<QByteArray>("server");
    QTest::addColumn<Step>("reach");
    QTest::newRow("media server, live") << QByteArray("pipewire") << Step(nothing);
    QTest::newRow("media server, recording") << QByteArray("pipewire") << Step(startMovie);
    QTest::newRow("sound server, live") << QByteArray("pipewire-pulse") << Step(nothing);
    QTest::newRow("sound server, recording") << QByteArray("pipewire-pulse") << Step(startMovie);
}

void TestEnding::aServerThatDoesNotAnswerKeepsNothingUp()
{
    QFETCH(QByteArray, server);
    QFETCH(Step, reach);
    QVERIFY(reach(*m_user));
    const StoppedServer stopped(server);
    QVERIFY(stopped.isStopped());
    endsInTime();
}

void TestEnding::exitEndsItThoughTheMediaServerIsStuck()
{
    const StoppedServer stopped("pipewire");
    QVERIFY(stopped.isStopped());
    QElapsedTimer timer;
    timer.start();
    m_user->press(WindowMap::LiveScreen, "Close");
    QVERIFY(m_user->program().hasEndedWithin(15000));
    QVERIFY2(timer.elapsed() < 3000 + busy, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!m_user->program().hasCrashed());
}

void TestEnding::theEndOfTheSessionInterruptsTheOpeningOfACamera()
{
    QVERIFY(labctl({"unplug", "cam1"}));
    QVERIFY(m_user->waitForDialog("Orvanta"));
    m_user->desktop().pressKey("Return");
    QVERIFY(m_user->waitUntilNoDialog());
    QVERIFY(labctl({"plug", "cam1", "640x480"}));
    QVERIFY(labctl({"freeze", "cam1"}));
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "List"));
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "Live"));
    QTest::qWait(500); // nothing to wait for: only the cursor tells that the camera is being opened
    endsInTime(1500);
    QVERIFY(labctl({"thaw", "cam1"}));
}

QTEST_MAIN(TestEnding)
#include "tst_ending.moc"
