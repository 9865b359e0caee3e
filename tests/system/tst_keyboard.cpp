#include "Patience.h"
#include "Session.h"

#include <memory>

// The program without a mouse.
class TestKeyboard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tabMarksAButtonAndSpacePressesIt();
    void theMouseLeavesNoMark();

private:
    static bool isMarked(Session *user, const QString &button);
};

// The mark lies on the whole edge of the button, so its icon part is no longer the bare bitmap.
bool TestKeyboard::isMarked(Session *user, const QString &button)
{
    const QRgb mark = qRgb(255, 214, 0);
    const QImage seen = user->seenAt(user->map().button(WindowMap::LiveScreen, button));
    for (int x = 0; x < 10; ++x)
        if (seen.pixel(x, seen.height() / 2) == mark)
            return true;
    return false;
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
