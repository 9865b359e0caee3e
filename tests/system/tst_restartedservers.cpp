#include "LabCommands.h"
#include "Patience.h"
#include "Session.h"

#include <QDir>

#include <memory>

// With its trailing blank.
static const char lostText[] = "The video device is invalid. Please confirm whether the device is "
                               "correctly connected. ";

// The media server crashes in the middle of the lesson, and sound server and session manager go
// with it. The session starts them anew.
class TestRestartedServers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theProgramGoesOnAsIfTheCameraHadBeenUnplugged();
    void aServerThatHangsForEverDoesNotKeepTheProgramFromEnding();
};

void TestRestartedServers::theProgramGoesOnAsIfTheCameraHadBeenUnplugged()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    QVERIFY(labctl({"stop-media-server"}));
    QVERIFY(user.messageSays(lostText));
    QVERIFY(user.confirmMessage());
    QVERIFY(labctl({"start-media-server"}));
    QVERIFY(labctl({"plug", "cam1", "1280x720"}));

    QVERIFY(user.pressWhenReady(WindowMap::LiveScreen, "List"));
    QVERIFY(user.pressWhenReady(WindowMap::ListScreen, "Live"));
    QTRY_VERIFY(user.isLiveAt(user.map().videoRect()));
    QVERIFY(user.beginMovie());
    const QDir area(user.program().temporaryArea());
    QTRY_COMPARE(area.entryList({"movie*.mov"}, QDir::Files).size(), 1);

    user.program().terminate();
    QVERIFY(user.program().hasEndedWithin(patience));
    QVERIFY(!user.program().hasCrashed());
}

void TestRestartedServers::aServerThatHangsForEverDoesNotKeepTheProgramFromEnding()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    QVERIFY(labctl({"hang-media-server"}));
    // From some version on camera and program go on without the server.
    QVERIFY(labctl({"freeze", "cam1"}));
    QVERIFY(user.messageSays(lostText));
    QVERIFY(user.confirmMessage());
    // Opening it fails, and leaves a thread behind that waits for the server.
    QVERIFY(user.pressWhenReady(WindowMap::LiveScreen, "List"));
    QVERIFY(user.pressWhenReady(WindowMap::ListScreen, "Live"));
    QTRY_VERIFY_WITH_TIMEOUT(user.waitForPressable(WindowMap::LiveScreen, {"List", "Close"}),
                             2 * patience);
    user.program().terminate();
    const bool hasEnded = user.program().hasEndedWithin(patience);
    QVERIFY(labctl({"wake-media-server"}));
    QVERIFY(hasEnded);
    QVERIFY(!user.program().hasCrashed());
}

QTEST_MAIN(TestRestartedServers)
#include "tst_restartedservers.moc"
