#include "LabCommands.h"
#include "Session.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <memory>
#include <unistd.h>

// One camera, one program: what a second start does, and what belongs to each start.
class TestStartingTwice : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSecondStartEndsSoonAndShowsNothing();
    void theSecondStartEndsWhileTheFirstAsksSomething();
    void theSecondStartEndsWhileTheFirstOpensASlowCamera();
    void theSecondStartEndsInAnotherSession();
    void aStuckFirstHoldsTheSecondUpForFiveSeconds();
    void afterAKillTheNextStartIsAFirstOne();
    void pluginsBesideTheStartAreLookedFor();

private:
    // Lets the other program be one of the same user's.
    static void share(Session &user, Program &other)
    {
        other.setEnvironment("TMPDIR", user.program().temporaryFolder());
    }
};

void TestStartingTwice::theSecondStartEndsSoonAndShowsNothing()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    const Desktop::Window before = user.mainWindow();
    Program second(ORVANTA_PROGRAM);
    share(user, second);
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
    share(user, second);
    second.start();
    QVERIFY(second.hasEndedWithin(5000));
    QCOMPARE(second.exitStatus(), 0);
    QCOMPARE(user.dialog().title, QString("Settings"));
}

// Slow enough that a user starts it once more.
void TestStartingTwice::theSecondStartEndsWhileTheFirstOpensASlowCamera()
{
    QVERIFY(labctl({"freeze", "cam1"}));
    Program first(ORVANTA_PROGRAM);
    first.start();
    const QString socket = QStringLiteral("%1/orvanta-%2/Orvanta.socket");
    const QString path = socket.arg(first.temporaryFolder()).arg(geteuid());
    QVERIFY(QTest::qWaitFor([&] { return QFile::exists(path); }, 20000));
    Program second(ORVANTA_PROGRAM);
    second.setEnvironment("TMPDIR", first.temporaryFolder());
    second.start();
    const bool hasEnded = second.hasEndedWithin(20000);
    QVERIFY(labctl({"thaw", "cam1"}));
    QVERIFY(hasEnded);
    QVERIFY(!second.hasCrashed());
    QCOMPARE(second.exitStatus(), 0);
    QVERIFY(first.isRunning());
}

void TestStartingTwice::theSecondStartEndsInAnotherSession()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    // As "su" leaves it.
    Program second(ORVANTA_PROGRAM);
    share(user, second);
    second.setEnvironment("XDG_RUNTIME_DIR", QString());
    second.start();
    QVERIFY(second.hasEndedWithin(5000));
    QVERIFY(!second.hasCrashed());
    QCOMPARE(second.exitStatus(), 0);
}

void TestStartingTwice::aStuckFirstHoldsTheSecondUpForFiveSeconds()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    user.program().stop();
    // What the first is about to write is not swept away by a copy that runs beside it.
    QFile half(user.program().temporaryArea() + "/.photo20090304090507042.png");
    QVERIFY(half.open(QIODevice::WriteOnly));
    half.close();
    Program second(ORVANTA_PROGRAM);
    share(user, second);
    QElapsedTimer timer;
    timer.start();
    second.start();
    const bool came =
        QTest::qWaitFor([&] { return !user.desktop().windowsOf(second.pid()).isEmpty(); }, 20000);
    const qint64 waited = timer.elapsed();
    user.program().goOn();
    QVERIFY(came);
    QVERIFY(half.exists());
    QVERIFY2(waited >= 5000, qPrintable(QString::number(waited)));
}

void TestStartingTwice::afterAKillTheNextStartIsAFirstOne()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    user.program().kill();
    QVERIFY(user.startLive());
}

void TestStartingTwice::pluginsBesideTheStartAreLookedFor()
{
    // The program is started in the home folder. The toolkit tells where it looks.
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    const QString plugins = user.program().home() + "/plugins";
    QVERIFY(QDir().mkpath(plugins));
    user.program().setEnvironment("QT_DEBUG_PLUGINS", "1");
    QVERIFY(user.startLive());
    QString told;
    QVERIFY(QTest::qWaitFor([&] {
        told += user.program().output();
        return told.contains("checking directory path \"" + plugins);
    }));
}

QTEST_MAIN(TestStartingTwice)
#include "tst_startingtwice.moc"
