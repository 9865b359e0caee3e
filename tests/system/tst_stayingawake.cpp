#include "Patience.h"
#include "Session.h"

#include <memory>

// Xlib defines macros as common as Bool and None: it comes after every header of Qt.
#include <X11/Xlib.h>
#include <X11/extensions/scrnsaver.h>
#undef Bool
#undef None
#undef Status

static constexpr int blankAfter = 2; // s without a key or the mouse
static constexpr int longEnough = 4000; // ms, in which the screen would have been blanked

// The screen of a desktop that leaves its blanking to the X server.
class TestStayingAwake : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theScreenStaysOnWithTheLivePictureAndBlanksAtAPhoto();
    void theScreenOfAKilledProgramBlanksAgain();

private:
    bool isBlank() const;
    bool isServerAsked();

    Display *m_server = nullptr;
    std::unique_ptr<Session> m_user;
    QString m_output;
};

void TestStayingAwake::init()
{
    m_server = XOpenDisplay(nullptr);
    QVERIFY(m_server);
    int event = 0;
    int error = 0;
    QVERIFY(XScreenSaverQueryExtension(m_server, &event, &error));
    m_output.clear();
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(640, 480));
    m_user->program().setEnvironment("QT_LOGGING_RULES", "orvanta.desktop=true");
    QVERIFY(m_user->startLive());
    QTRY_VERIFY(isServerAsked());
    XSetScreenSaver(m_server, blankAfter, 0, PreferBlanking, AllowExposures);
    XSync(m_server, False);
    QVERIFY(!QTest::qWaitFor([this] { return isBlank(); }, longEnough));
}

void TestStayingAwake::cleanup()
{
    m_user.reset();
    XSetScreenSaver(m_server, 0, 0, PreferBlanking, AllowExposures);
    XForceScreenSaver(m_server, ScreenSaverReset);
    XCloseDisplay(m_server);
}

bool TestStayingAwake::isBlank() const
{
    XScreenSaverInfo info = {};
    return XScreenSaverQueryInfo(m_server, DefaultRootWindow(m_server), &info)
        && info.state == ScreenSaverOn;
}

bool TestStayingAwake::isServerAsked()
{
    m_output += m_user->program().output();
    return m_output.contains("the X server is asked");
}

void TestStayingAwake::theScreenStaysOnWithTheLivePictureAndBlanksAtAPhoto()
{
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QTRY_VERIFY(isBlank());
}

void TestStayingAwake::theScreenOfAKilledProgramBlanksAgain()
{
    m_user->program().kill();
    QTRY_VERIFY(isBlank());
}

QTEST_MAIN(TestStayingAwake)
#include "tst_stayingawake.moc"
