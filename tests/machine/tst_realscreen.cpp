#include "DeviceSession.h"
#include "Devices.h"
#include "Patience.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

#include <memory>

// Xlib defines macros as common as Bool and None: it comes after every header of Qt.
#include <X11/Xlib.h>
#include <X11/extensions/dpms.h>
#include <X11/extensions/scrnsaver.h>
#undef Bool
#undef None
#undef Status

static const int reactionLimit = 90000; // ms, of a slow machine
static const int blankAfter = 4; // s without a key or the mouse
static const int switchedOffAfter = 6; // s
static const int longEnough = 15000; // ms, in which the screen would have been switched off

/** The program on a screen of a graphics card's driver, as desks have one. */
class TestRealScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void theWindowFillsTheScreen_data();
    void theWindowFillsTheScreen();
    void theScreenStaysOnWithTheLivePicture();
    void cleanupTestCase();

private:
    bool setSize(QSize size);
    bool isOn() const;

    Display *m_server = nullptr;
    std::unique_ptr<TestCameras> m_cameras;
    std::unique_ptr<DeviceSession> m_user;
};

void TestRealScreen::initTestCase()
{
    m_server = XOpenDisplay(nullptr);
    QVERIFY(m_server);
    QVERIFY2(DPMSCapable(m_server), "a screen that cannot be switched off");
    m_cameras = std::make_unique<TestCameras>(QList<TestCameras::Kind>{TestCameras::Kind::Webcam});
    QVERIFY(m_cameras->isLoaded());
}

void TestRealScreen::cleanup()
{
    if (m_user)
        m_user->keepTraces();
    m_user.reset();
}

void TestRealScreen::cleanupTestCase()
{
    m_cameras.reset();
    XCloseDisplay(m_server);
}

// Before the program starts, as from the desktop's settings; until this process knows it, too,
// which measures the program's buttons by its own.
bool TestRealScreen::setSize(QSize size)
{
    const auto mode = QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
    return run(QStringLiteral("xrandr"), {"--output", "Virtual-1", "--mode", mode})
        && QTest::qWaitFor([&] { return QGuiApplication::primaryScreen()->size() == size; },
                           reactionLimit);
}

void TestRealScreen::theWindowFillsTheScreen_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("of a projector") << QSize(1024, 768);
    QTest::newRow("that was made larger") << QSize(1280, 1024);
}

void TestRealScreen::theWindowFillsTheScreen()
{
    QFETCH(QSize, size);
    QVERIFY(setSize(size));
    m_user = std::make_unique<DeviceSession>(ORVANTA_PROGRAM);
    QVERIFY(m_user->startMoving());
    QCOMPARE(m_user->mainWindow().geometry, QRect(QPoint(0, 0), size));
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Live"));
    QVERIFY(m_user->movesAt(m_user->map().videoRect()));
}

bool TestRealScreen::isOn() const
{
    CARD16 level = 0;
    BOOL isEnabled = 0;
    XScreenSaverInfo saver = {};
    return DPMSInfo(m_server, &level, &isEnabled)
        && XScreenSaverQueryInfo(m_server, DefaultRootWindow(m_server), &saver)
        && level == DPMSModeOn && saver.state != ScreenSaverOn;
}

void TestRealScreen::theScreenStaysOnWithTheLivePicture()
{
    m_user = std::make_unique<DeviceSession>(ORVANTA_PROGRAM);
    m_user->program().setEnvironment("QT_LOGGING_RULES", "orvanta.desktop=true");
    QVERIFY(m_user->startMoving());
    QString said;
    QTRY_VERIFY_WITH_TIMEOUT((said += m_user->program().output()).contains("the X server is asked"),
                             reactionLimit);
    XSetScreenSaver(m_server, blankAfter, 0, PreferBlanking, AllowExposures);
    QVERIFY(DPMSEnable(m_server));
    QVERIFY(DPMSSetTimeouts(m_server, switchedOffAfter, switchedOffAfter, switchedOffAfter));
    XSync(m_server, 0);
    QVERIFY(!QTest::qWaitFor([this] { return !isOn(); }, longEnough));
    m_user.reset();
    QTRY_VERIFY_WITH_TIMEOUT(!isOn(), reactionLimit);
    XForceScreenSaver(m_server, ScreenSaverReset);
    DPMSForceLevel(m_server, DPMSModeOn);
    XSync(m_server, 0);
}

QTEST_MAIN(TestRealScreen)
#include "tst_realscreen.moc"
