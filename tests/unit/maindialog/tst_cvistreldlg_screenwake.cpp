#include "DialogFixture.h"
#include "FakeEngine.h"
#include "Patience.h"
#include "ScreenWake.h"

/** On which screens the computer may blank or lock. There is no desktop: the fixture hides it. */
class ScreenWakeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theLivePictureKeepsTheScreenAwake();
    void withoutACameraTheScreenMayBlank();
    void atTheListTheScreenMayBlank();
    void theLivePictureBesideAPhotoKeepsTheScreenAwake();
    void atAPhotoAloneTheScreenMayBlank();
    void aSeriesKeepsTheScreenAwakeUntilItsTilesAreThere();
    void aRecordingKeepsTheScreenAwake();
    void aMovieKeepsTheScreenAwakeOnlyWhileItPlays();
    void aLostCameraLetsTheScreenBlank();
};

// Built, and awake for its live picture.
class AwakeWindow : public DialogFixture {
public:
    explicit AwakeWindow(const QByteArray &settings = "AutoShoot=0")
    {
        FakeEngine::script().movie = DialogFixture::movieOf(60);
        setSettings(settings);
        build();
        wake().setQuietTime(0);
        wake().lookSoon();
    }

    ScreenWake &wake() const { return child<ScreenWake>(); }
    bool isKept() const { return wake().isKept(); }
};

void ScreenWakeTest::initTestCase()
{
    qputenv("PHONON_GST_VIDEOMODE", "software");
}

void ScreenWakeTest::theLivePictureKeepsTheScreenAwake()
{
    const AwakeWindow window;
    QTRY_VERIFY(window.isKept());
}

void ScreenWakeTest::withoutACameraTheScreenMayBlank()
{
    DialogFixture fixture;
    FakeEngine::script().deviceNames.clear();
    FakeEngine::script().videoPresent = false;
    fixture.build();
    auto &wake = fixture.child<ScreenWake>();
    wake.setQuietTime(0);
    wake.lookSoon();
    QVERIFY(!QTest::qWaitFor([&] { return wake.isKept(); }, 1000));
}

void ScreenWakeTest::atTheListTheScreenMayBlank()
{
    const AwakeWindow window;
    QTRY_VERIFY(window.isKept());
    window.click("List");
    QTRY_VERIFY(!window.isKept());
    window.click("Live");
    QTRY_VERIFY(window.isKept());
}

void ScreenWakeTest::theLivePictureBesideAPhotoKeepsTheScreenAwake()
{
    const AwakeWindow window;
    QTRY_VERIFY(window.isKept());
    window.click("Photo");
    QVERIFY(!QTest::qWaitFor([&] { return !window.isKept(); }, 1000));
}

void ScreenWakeTest::atAPhotoAloneTheScreenMayBlank()
{
    const AwakeWindow window;
    QTRY_VERIFY(window.isKept());
    window.click("Photo");
    window.click("Apply");
    QTRY_VERIFY(!window.isKept());
}

void ScreenWakeTest::aSeriesKeepsTheScreenAwakeUntilItsTilesAreThere()
{
    const AwakeWindow window("AutoShoot=0\nContinuShootCount=2\n");
    window.click("PhotoMulti");
    QTRY_VERIFY(window.isKept());
    window.click("PhotoMulti");
    QTRY_VERIFY(!window.isKept());
}

void ScreenWakeTest::aRecordingKeepsTheScreenAwake()
{
    const AwakeWindow window;
    QTRY_VERIFY(window.isKept());
    window.click("Movie");
    QVERIFY(!QTest::qWaitFor([&] { return !window.isKept(); }, 1000));
    window.click("MovieStop");
    QTRY_VERIFY(!window.isKept());
}

void ScreenWakeTest::aMovieKeepsTheScreenAwakeOnlyWhileItPlays()
{
    const AwakeWindow window;
    window.click("Movie");
    window.click("MovieStop");
    QTRY_VERIFY(!window.isKept());
    window.click("MoviePlay");
    QTRY_VERIFY(window.isKept());
    window.click("MoviePause");
    QTRY_VERIFY(!window.isKept());
    window.click("MoviePlay");
    QTRY_VERIFY(window.isKept());
    QTRY_VERIFY(!window.isKept()); // at its end
}

void ScreenWakeTest::aLostCameraLetsTheScreenBlank()
{
    AwakeWindow window;
    QTRY_VERIFY(window.isKept());
    DialogFixture::boxDuring([&] { window.dialog().changeNodevicemode(); });
    QTRY_VERIFY(!window.isKept());
}

QTEST_MAIN(ScreenWakeTest)
#include "tst_cvistreldlg_screenwake.moc"
