#include "Patience.h"
#include "Session.h"

#include <memory>

// The program without a mouse.
class TestKeyboard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tabMarksAButtonAndSpacePressesIt();
    void theMouseLeavesNoMark();
    void arrowsAndEnterTakeAPhotoAndGoBack();
    void aMovieIsRecordedPlayedAndPausedWithEnterAlone();
    void escapeAnswersABoxAsCancelDoes();

private:
    static bool isMarked(Session *user, const QString &button,
                         WindowMap::Screen screen = WindowMap::LiveScreen);
    static bool goTo(Session *user, const char *key, WindowMap::Screen screen,
                     const QString &button);
};

// The mark lies on the whole edge of the button, so its icon part is no longer the bare bitmap.
bool TestKeyboard::isMarked(Session *user, const QString &button, WindowMap::Screen screen)
{
    const QRgb mark = qRgb(255, 214, 0);
    const QImage seen = user->seenAt(user->map().button(screen, button));
    for (int x = 0; x < 10; ++x)
        if (seen.pixel(x, seen.height() / 2) == mark)
            return true;
    return false;
}

// Presses the key until the button is marked; a row has no more than eight.
bool TestKeyboard::goTo(Session *user, const char *key, WindowMap::Screen screen,
                        const QString &button)
{
    bool reached = isMarked(user, button, screen);
    for (int presses = 0; presses < 8 && !reached; ++presses) {
        user->desktop().pressKey(key);
        reached = QTest::qWaitFor([&] { return isMarked(user, button, screen); }, 300);
    }
    return reached;
}

void TestKeyboard::arrowsAndEnterTakeAPhotoAndGoBack()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    QTRY_VERIFY(user.mainWindow().isActive);
    QVERIFY(goTo(&user, "Right", WindowMap::LiveScreen, "List"));
    QVERIFY(goTo(&user, "Left", WindowMap::LiveScreen, "Photo"));
    user.desktop().pressKey("Return");
    QTRY_COMPARE(user.program().captured().size(), 1);
    // The photo is there to be kept, or thrown away.
    QTRY_VERIFY(isMarked(&user, "Apply", WindowMap::PreviewScreen));
    QVERIFY(goTo(&user, "Right", WindowMap::PreviewScreen, "Retry"));
    QVERIFY(goTo(&user, "Left", WindowMap::PreviewScreen, "Apply"));
    user.desktop().pressKey("KP_Enter");
    QTRY_VERIFY(user.isStillAt(user.map().videoRect()));
    QVERIFY(goTo(&user, "Left", WindowMap::PhotoScreen, "Live"));
    user.desktop().pressKey("Return");
    QTRY_VERIFY(user.isLiveAt(user.map().videoRect()));
    QCOMPARE(user.program().captured().size(), 1);
}

// "Stop" stands where "Movie" stood, "Pause" where "Play" stood, and each has the keyboard.
void TestKeyboard::aMovieIsRecordedPlayedAndPausedWithEnterAlone()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    QTRY_VERIFY(user.mainWindow().isActive);
    QVERIFY(goTo(&user, "Right", WindowMap::LiveScreen, "Movie"));
    user.desktop().pressKey("Return");
    QTRY_VERIFY(isMarked(&user, "MovieStop", WindowMap::RecordingScreen));
    QTRY_VERIFY(user.program().captured().size() > 0);
    QTest::qWait(2000); // nothing to wait for: the movie's length
    user.desktop().pressKey("Return");
    QVERIFY(goTo(&user, "Right", WindowMap::MovieScreen, "MoviePlay"));
    user.desktop().pressKey("Return");
    QTRY_VERIFY(isMarked(&user, "MoviePause", WindowMap::PlayingScreen));
    user.desktop().pressKey("Return");
    QTRY_VERIFY(isMarked(&user, "MoviePlay", WindowMap::MovieScreen));
}

void TestKeyboard::escapeAnswersABoxAsCancelDoes()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.program().writeSettings("PhotoPreview=0\n"));
    QVERIFY(user.startLive());
    QTRY_VERIFY(user.mainWindow().isActive);
    QVERIFY(goTo(&user, "Right", WindowMap::LiveScreen, "Settings"));
    user.desktop().pressKey("Return");
    QVERIFY(user.waitForDialog("Settings"));
    user.desktop().pressKey("Escape");
    QVERIFY(user.waitUntilNoDialog());

    QTRY_VERIFY(user.mainWindow().isActive);
    QVERIFY(goTo(&user, "Left", WindowMap::LiveScreen, "Photo"));
    user.desktop().pressKey("Return");
    QTRY_COMPARE(user.program().captured().size(), 1);
    QTRY_VERIFY(isMarked(&user, "Live", WindowMap::PhotoScreen));
    QVERIFY(goTo(&user, "Right", WindowMap::PhotoScreen, "Close"));
    user.desktop().pressKey("Return");
    QVERIFY(user.waitForDialog("Orvanta"));
    user.desktop().pressKey("Escape");
    QVERIFY(user.waitUntilNoDialog());
    QVERIFY(user.program().isRunning());
    QCOMPARE(user.program().captured().size(), 1);
}

void TestKeyboard::tabMarksAButtonAndSpacePressesIt()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    QTRY_VERIFY(user.mainWindow().isActive);
    QVERIFY(!isMarked(&user, "Photo"));
    bool reached = false;
    for (int presses = 0; presses < 8 && !reached; ++presses) {
        user.desktop().pressKey("Tab");
        reached = QTest::qWaitFor([&] { return isMarked(&user, "Photo"); }, 300);
    }
    QVERIFY(reached);
    QVERIFY(!isMarked(&user, "List"));
    user.desktop().pressKey("space");
    QTRY_COMPARE(user.program().captured().size(), 1);
}

void TestKeyboard::theMouseLeavesNoMark()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    user.press(WindowMap::LiveScreen, "Live");
    QVERIFY(user.isLiveAt(user.map().videoRect()));
    QVERIFY(!isMarked(&user, "Live"));
}

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
