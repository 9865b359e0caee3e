#include "PatientWait.h"

#include <QElapsedTimer>
#include <QTest>
#include <QWidget>

#include <memory>
#include <thread>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

class TestPatientWait : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void aShortWaitShowsNothing();
    void aLongWaitShowsTheCursorUntilTheOperationReturns();
    void theWindowsArePaintedAgainWhileItWaits();
    void severalShortWaitsOfOneOperationAreOneLongOne();
    void theWaitsOfOneOperationEndAtItsLimit();
    void anOperationWithinAnotherCountsWithIt();
    void whatHasArrivedIsReportedAtOnce();
    void anotherThreadWaitsAsLongAsItWants();
    void theInterruptionIsAskedForOnTheGuiThreadOnly();
    void somethingElseIsDoneMeanwhile();
    void withoutAScreenNothingIsShown();
};

namespace {

// Nothing comes: sleeps as long as it may, as a condition variable does.
bool nothingComes(steady_clock::time_point until)
{
    std::this_thread::sleep_until(until);
    return false;
}

bool waitFor(milliseconds time)
{
    return waitPatiently(steady_clock::now() + time, nothingComes);
}

bool cursorIsShown()
{
    return QGuiApplication::overrideCursor()
        && QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor;
}

// Notes when it is painted, and whether the wait cursor was there.
class PaintedWindow : public QWidget {
public:
    int paints = 0;
    int paintsWithCursor = 0;

protected:
    void paintEvent(QPaintEvent *) override
    {
        ++paints;
        paintsWithCursor += cursorIsShown();
    }
};

} // namespace

void TestPatientWait::cleanup()
{
    QVERIFY2(!QGuiApplication::overrideCursor(), "the wait cursor was left behind");
    PatientCall::setInterruption(nullptr);
}

void TestPatientWait::aShortWaitShowsNothing()
{
    bool wasShown = false;
    const PatientCall call;
    const auto soon = steady_clock::now() + milliseconds(20);
    QVERIFY(waitPatiently(soon + milliseconds(500), [&](steady_clock::time_point) {
        std::this_thread::sleep_until(soon);
        wasShown = wasShown || cursorIsShown();
        return true;
    }));
    QVERIFY(!wasShown);
    QVERIFY(!cursorIsShown());
}

void TestPatientWait::aLongWaitShowsTheCursorUntilTheOperationReturns()
{
    {
        const PatientCall call;
        QVERIFY(!waitFor(milliseconds(400)));
        QVERIFY(cursorIsShown());
    }
    QVERIFY(!cursorIsShown());
}

void TestPatientWait::theWindowsArePaintedAgainWhileItWaits()
{
    PaintedWindow window;
    PaintedWindow hidden;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.paints = 0;
    QVERIFY(!waitFor(milliseconds(1200)));
    QVERIFY2(window.paints >= 3, qPrintable(QString::number(window.paints)));
    QCOMPARE(window.paintsWithCursor, window.paints);
    QCOMPARE(hidden.paints, 0);
}

void TestPatientWait::severalShortWaitsOfOneOperationAreOneLongOne()
{
    const PatientCall call;
    QVERIFY(!waitFor(milliseconds(150)));
    QVERIFY(!waitFor(milliseconds(150)));
    QVERIFY(cursorIsShown());
}

void TestPatientWait::theWaitsOfOneOperationEndAtItsLimit()
{
    QElapsedTimer timer;
    timer.start();
    const PatientCall call(milliseconds(300));
    QVERIFY(!waitFor(milliseconds(60000)));
    QVERIFY(!waitFor(milliseconds(60000)));
    QVERIFY(timer.elapsed() >= 299);
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
}

void TestPatientWait::anOperationWithinAnotherCountsWithIt()
{
    const PatientCall outer(milliseconds(1500)); // a while after the cursor, on a busy machine too
    QElapsedTimer timer;
    timer.start();
    {
        const PatientCall inner(milliseconds(60000));
        QVERIFY(!waitFor(milliseconds(60000)));
    }
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY2(cursorIsShown(), "the inner operation took the outer one's cursor away");
}

void TestPatientWait::whatHasArrivedIsReportedAtOnce()
{
    const PatientCall call(milliseconds(0));
    QVERIFY(waitPatiently(steady_clock::now(), [](steady_clock::time_point) { return true; }));
}

void TestPatientWait::anotherThreadWaitsAsLongAsItWants()
{
    const PatientCall call(milliseconds(0));
    QElapsedTimer timer;
    timer.start();
    std::thread([] { waitFor(milliseconds(400)); }).join();
    QVERIFY(timer.elapsed() >= 399);
    QVERIFY(!cursorIsShown());
}

void TestPatientWait::theInterruptionIsAskedForOnTheGuiThreadOnly()
{
    QVERIFY(!PatientCall::isInterrupted());
    PatientCall::setInterruption([] { return true; });
    QVERIFY(PatientCall::isInterrupted());
    bool elsewhere = true;
    std::thread([&elsewhere] { elsewhere = PatientCall::isInterrupted(); }).join();
    QVERIFY(!elsewhere);
}

void TestPatientWait::somethingElseIsDoneMeanwhile()
{
    int done = 0;
    PatientCall::setMeanwhile([&done] { ++done; });
    QVERIFY(!waitFor(milliseconds(100)));
    QCOMPARE(done, 0); // nobody notices that
    QVERIFY(!waitFor(milliseconds(1000)));
    PatientCall::setMeanwhile(nullptr);
    QVERIFY2(done > 1 && done < 6, qPrintable(QString::number(done)));
    QVERIFY(!waitFor(milliseconds(600)));
    QVERIFY(done < 6);
}

// The last test: there is no way back.
void TestPatientWait::withoutAScreenNothingIsShown()
{
    PaintedWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    PatientCall::showNothing();
    window.paints = 0;
    const PatientCall call;
    QVERIFY(!waitFor(milliseconds(600)));
    QVERIFY(!cursorIsShown());
    QCOMPARE(window.paints, 0);
}

QTEST_MAIN(TestPatientWait)
#include "tst_patientwait.moc"
