#include "LabCommands.h"
#include "Patience.h"
#include "Session.h"

// Several cameras, one of them the maker's own document camera, which is not the first of them.
class TestChoosingACamera : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theMakersCameraIsOnTop();
    void theOtherCameraIsTheSecondEntry();
    void aCameraPulledAtTheChooserIsReportedOnce();
};

void TestChoosingACamera::initTestCase()
{
    QVERIFY(labctl({"plug", "own", "800x600", "--description", "Tavelin VX-2K"}));
}

void TestChoosingACamera::theMakersCameraIsOnTop()
{
    Session user(ORVANTA_PROGRAM, "own", QSize(800, 600));
    user.program().start();
    QVERIFY(user.waitForChooser());
    const QRect chooser = user.dialog().geometry;
    QCOMPARE(chooser.width(), 200);
    user.desktop().pressKey("Tab");
    user.desktop().pressKey("space");
    QVERIFY(user.waitForMainWindow());
    QTRY_VERIFY(user.isLiveAt(user.map().videoRect()));
}

void TestChoosingACamera::theOtherCameraIsTheSecondEntry()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    user.program().start();
    QVERIFY(user.waitForChooser());
    user.chooseCamera(1);
    QVERIFY(user.waitForMainWindow());
    QTRY_VERIFY(user.isLiveAt(user.map().videoRect()));
}

void TestChoosingACamera::aCameraPulledAtTheChooserIsReportedOnce()
{
    Session user(ORVANTA_PROGRAM, "own", QSize(800, 600));
    user.program().start();
    QVERIFY(user.waitForChooser());
    QVERIFY(labctl({"unplug", "own"}));
    user.chooseCamera(0);
    QVERIFY(user.waitForMainWindow());
    QVERIFY(user.messageSays("Cannot find Video Devices."));
    QVERIFY(user.confirmMessage());
    QVERIFY(user.waitForPressable(WindowMap::LiveScreen, {"List", "Close"}));
    QVERIFY(!QTest::qWaitFor([&] { return user.dialog().id != 0; }, 1200));

    QVERIFY(labctl({"plug", "own", "800x600", "--description", "Tavelin VX-2K"}));
    QVERIFY(user.pressWhenReady(WindowMap::LiveScreen, "List"));
    QVERIFY(user.pressWhenReady(WindowMap::ListScreen, "Live"));
    QTRY_VERIFY(user.waitForPressable(
        WindowMap::LiveScreen,
        {"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"}));
}

QTEST_MAIN(TestChoosingACamera)
#include "tst_choosingacamera.moc"
