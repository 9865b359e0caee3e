#include "SleepWatch.h"

#include <QTest>

/** Whether the computer has just been asleep. */
class TestSleepWatch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aComputerThatDidNotSleepIsNotJustAwake();
    void aComputerThatSleptIsJustAwakeForAWhile();
    void theClocksOwnDifferenceIsNoSleep();
};

void TestSleepWatch::aComputerThatDidNotSleepIsNotJustAwake()
{
    SleepWatch watch;
    QVERIFY(!watch.isJustAwake()); // by the machine's own clocks
    watch.setClock([] { return 3600000; });
    QVERIFY(!watch.isJustAwake()); // it slept before the program began
}

void TestSleepWatch::aComputerThatSleptIsJustAwakeForAWhile()
{
    SleepWatch watch;
    qint64 asleep = 0;
    watch.setClock([&] { return asleep; });
    asleep += 5000;
    QVERIFY(watch.isJustAwake());
    QVERIFY(watch.isJustAwake());
}

void TestSleepWatch::theClocksOwnDifferenceIsNoSleep()
{
    SleepWatch watch;
    qint64 asleep = 0;
    watch.setClock([&] { return asleep; });
    for (int look = 0; look < 10; ++look) {
        asleep += 200;
        QVERIFY(!watch.isJustAwake());
    }
}

QTEST_MAIN(TestSleepWatch)
#include "tst_sleepwatch.moc"
