#include "LabCommands.h"
#include "LayoutScale.h"
#include "Patience.h"
#include "Session.h"

#include <QApplication>
#include <QProcess>
#include <QScreen>

#include <memory>

// The right one of two screens, the primary one, is of twice the usual size in each direction, so
// that the program draws each of its pixels as four; then it becomes as small as screens are.
class TestShrinkingScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theLiveScreenIsWholeOnTheSmallerOneAndTheLargeOneAgain();
    void theSettingsAreWhole();
    void aPhotoIsTakenAndTheQuestionAtExitIsWhole();
    void aMessageIsWhole();

private:
    QRect boxOnTheScreen();

    const QRect m_large{1024, 0, 3840, 2160};
    const QRect m_small{1024, 0, 1024, 768};
    std::unique_ptr<Session> m_user;
};

static QByteArray textOf(const QRect &rect)
{
    const QScopedArrayPointer<char> text(QTest::toString(rect));
    return text.data();
}

static bool setMode(const char *mode)
{
    return QProcess::execute("xrandr", {"--output", "DUMMY1", "--mode", mode}) == 0;
}

void TestShrinkingScreen::init()
{
    m_user.reset();
    QVERIFY(setMode("3840x2160"));
    // The window manager tells what is free of it a moment later.
    QTRY_COMPARE(QGuiApplication::primaryScreen()->availableGeometry().size() * 2, m_large.size());
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(1280, 720), m_large);
    QVERIFY(m_user->startLive());
    QVERIFY(setMode("1024x768"));
    QVERIFY(m_user->waitForMainWindowAt(m_small));
}

void TestShrinkingScreen::theLiveScreenIsWholeOnTheSmallerOneAndTheLargeOneAgain()
{
    const QStringList buttons = {"Live", "Photo",    "PhotoMulti", "Movie",
                                 "List", "Settings", "Close"};
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, buttons));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QVERIFY(setMode("3840x2160"));
    QVERIFY(m_user->waitForMainWindowAt(m_large));
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, buttons));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
}

// With its title bar: where that is cut off, the box cannot be moved.
QRect TestShrinkingScreen::boxOnTheScreen()
{
    static constexpr int titleBar = 19; // px, of the lab's window manager
    return m_user->dialog().geometry.adjusted(0, -titleBar, 0, 0);
}

void TestShrinkingScreen::theSettingsAreWhole()
{
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Settings"));
    QVERIFY(m_user->waitForDialog("Settings"));
    QVERIFY2(m_small.contains(boxOnTheScreen()), textOf(boxOnTheScreen()).constData());
    QVERIFY(m_user->clickInSettings("btnOk"));
    QVERIFY(m_user->waitUntilNoDialog());
}

void TestShrinkingScreen::aPhotoIsTakenAndTheQuestionAtExitIsWhole()
{
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Close"));
    QVERIFY(m_user->waitForDialog("Orvanta"));
    QVERIFY2(m_small.contains(boxOnTheScreen()), textOf(boxOnTheScreen()).constData());
    QVERIFY(m_user->answerExitQuestion("No"));
    QVERIFY(m_user->program().hasEndedWithin(10000));
}

void TestShrinkingScreen::aMessageIsWhole()
{
    QVERIFY(labctl({"unplug", "cam1"}));
    const bool isTold =
        m_user->messageSays("The video device is invalid. Please confirm whether the "
                            "device is correctly connected. ");
    const QRect box = boxOnTheScreen();
    const bool isConfirmed = m_user->confirmMessage();
    QVERIFY(labctl({"plug", "cam1", "1280x720"}));
    QVERIFY(isTold);
    QVERIFY(isConfirmed);
    // In the middle of the desktop, as all messages.
    QVERIFY2(m_user->desktop().screen().contains(box), textOf(box).constData());
}

int main(int argc, char *argv[])
{
    if (!setMode("3840x2160"))
        return 99;
    LayoutScale::apply(); // as the program does it, for the twins of its buttons and boxes
    const QApplication application(argc, argv);
    qunsetenv("QT_SCALE_FACTOR"); // the program finds it out by itself
    TestShrinkingScreen test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_shrinkingscreen.moc"
