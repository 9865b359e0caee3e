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
    static bool shows(Session *user, WindowMap::Screen screen, const QString &button);
    static QString markedOn(Session *user, WindowMap::Screen screen);
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

// Where buttons of two screens stand in the same place, a mark alone does not tell which of them it
// is: a button that only the new screen has is looked for first.
bool TestKeyboard::shows(Session *user, WindowMap::Screen screen, const QString &button)
{
    return user->map().look(user->desktop().screenshot(), screen, button) == WindowMap::Up;
}

QString TestKeyboard::markedOn(Session *user, WindowMap::Screen screen)
{
    static const QStringList names = {"Live",     "Photo",     "PhotoMulti", "Movie", "MovieStop",
                                      "List",     "Settings",  "Close",      "Apply", "Retry",
                                      "PutPhoto", "MoviePlay", "MoviePause"};
    for (const QString &name : names)
        if (!user->map().button(screen, name).isEmpty() && isMarked(user, name, screen))
            return name;
    return {};
}

// Presses the key until the button is marked; a row has no more than eight. A press is waited for
// before the next: on a busy machine the mark would be past the button before it is seen there.
bool TestKeyboard::goTo(Session *user, const char *key, WindowMap::Screen screen,
                        const QString &button)
{
    QString marked = markedOn(user, screen);
    for (int presses = 0; presses < 8 && marked != button; ++presses) {
        const QString before = marked;
        const auto hasMoved = [&] {
            marked = markedOn(user, screen);
            return !marked.isEmpty() && marked != before;
        };
        user->desktop().pressKey(key);
        if (!QTest::qWaitFor(hasMoved, patience))
            return false;
    }
    return marked == button;
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
    QTRY_VERIFY(shows(&user, WindowMap::PreviewScreen, "Retry"));
    QTRY_VERIFY(isMarked(&user, "Apply", WindowMap::PreviewScreen));
    QVERIFY(goTo(&user, "Right", WindowMap::PreviewScreen, "Retry"));
    QVERIFY(goTo(&user, "Left", WindowMap::PreviewScreen, "Apply"));
    user.desktop().pressKey("KP_Enter");
    QTRY_VERIFY(user.isStillAt(user.map().videoRect()));
    QTRY_VERIFY(shows(&user, WindowMap::PhotoScreen, "PutPhoto"));
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
    QTRY_VERIFY(!user.program().captured().isEmpty());
    QTest::qWait(2000); // nothing to wait for: the movie's length
    user.desktop().pressKey("Return");
    QTRY_VERIFY(shows(&user, WindowMap::MovieScreen, "MoviePlay"));
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
    // The mark comes back with the window; the first press must not be taken for what brought it.
    QTRY_VERIFY(isMarked(&user, "Settings"));
    QVERIFY(goTo(&user, "Left", WindowMap::LiveScreen, "Photo"));
    user.desktop().pressKey("Return");
    QTRY_COMPARE(user.program().captured().size(), 1);
    QTRY_VERIFY(shows(&user, WindowMap::PhotoScreen, "PutPhoto"));
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
    QVERIFY(goTo(&user, "Tab", WindowMap::LiveScreen, "Photo"));
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
