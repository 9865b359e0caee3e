#include "Session.h"

#include <QElapsedTimer>
#include <QTest>

#include <memory>

// One camera, one program: what a second start does.
class TestStartingTwice : public QObject {
    Q_OBJECT

private slots:
    void theSecondStartEndsSoonAndShowsNothing();
    void theSecondStartEndsWhileTheFirstAsksSomething();
    void afterAKillTheNextStartIsAFirstOne();
};

void TestStartingTwice::theSecondStartEndsSoonAndShowsNothing()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    const Desktop::Window before = user.mainWindow();
    Program second(ORVANTA_PROGRAM);
    QElapsedTimer timer;
    timer.start();
    second.start();
    const qint64 pid = second.pid();
    while (!second.hasEndedWithin(50) && timer.elapsed() < 5000)
        QVERIFY(user.desktop().windowsOf(pid).isEmpty());
    QVERIFY(!second.isRunning());
    QVERIFY(!second.hasCrashed());
    QCOMPARE(second.exitStatus(), 0);
    QCOMPARE(user.mainWindow().id, before.id);
    QVERIFY(user.isLiveAt(user.map().videoRect()));
}

void TestStartingTwice::theSecondStartEndsWhileTheFirstAsksSomething()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    user.press(WindowMap::LiveScreen, "Settings");
    QVERIFY(user.waitForDialog("Settings"));
    Program second(ORVANTA_PROGRAM);
    second.start();
    QVERIFY(second.hasEndedWithin(5000));
    QCOMPARE(second.exitStatus(), 0);
    QCOMPARE(user.dialog().title, QString("Settings"));
}

void TestStartingTwice::afterAKillTheNextStartIsAFirstOne()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    user.program().kill();
    QVERIFY(user.startLive());
}

QTEST_MAIN(TestStartingTwice)
#include "tst_startingtwice.moc"
