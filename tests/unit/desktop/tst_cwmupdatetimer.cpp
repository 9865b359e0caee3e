#include "CWMUpdateCallback.h"
#include "CWMUpdateTimer.h"
#include "Patience.h"

#include <QElapsedTimer>
#include <QTimerEvent>

namespace {

class TickCounter final : public CWMUpdateCallback {
public:
    void update_window() override { ++ticks; }
    int ticks = 0;
};

} // namespace

class tst_CWMUpdateTimer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ticksFromConstructionOn();
    void stoppedItTicksNoMore();
    void startingAgainReplacesTheOldPeriod();
    void otherTimersOfTheObjectAreNoTicks();
    void withoutACallbackATickDoesNothing();
};

void tst_CWMUpdateTimer::ticksFromConstructionOn()
{
    TickCounter counter;
    CWMUpdateTimer timer(5, &counter);
    QTRY_VERIFY(counter.ticks >= 3);
}

void tst_CWMUpdateTimer::stoppedItTicksNoMore()
{
    TickCounter counter;
    CWMUpdateTimer timer(5, &counter);
    QTRY_VERIFY(counter.ticks >= 1);
    timer.stop();
    timer.stop();
    const int before = counter.ticks;
    QTest::qWait(50); // nothing to wait for: a tick that must not come
    QCOMPARE(counter.ticks, before);
    timer.start(5);
    QTRY_VERIFY(counter.ticks > before);
}

void tst_CWMUpdateTimer::startingAgainReplacesTheOldPeriod()
{
    TickCounter counter;
    CWMUpdateTimer timer(5, &counter);
    timer.start(60000);
    QTest::qWait(50); // nothing to wait for: a tick that must not come
    QCOMPARE(counter.ticks, 0);
}

void tst_CWMUpdateTimer::otherTimersOfTheObjectAreNoTicks()
{
    TickCounter counter;
    CWMUpdateTimer timer(60000, &counter);
    const int foreign = timer.startTimer(60000);
    QTimerEvent event(foreign);
    QCoreApplication::sendEvent(&timer, &event);
    QCOMPARE(counter.ticks, 0);
}

void tst_CWMUpdateTimer::withoutACallbackATickDoesNothing()
{
    // A missing check would be a crash by the time the second timer has ticked.
    CWMUpdateTimer timer(1, nullptr);
    TickCounter counter;
    CWMUpdateTimer witness(5, &counter);
    QTRY_VERIFY(counter.ticks >= 3);
}

QTEST_GUILESS_MAIN(tst_CWMUpdateTimer)
#include "tst_cwmupdatetimer.moc"
