#include "FramePacer.h"

#include <QRandomGenerator>
#include <QTest>

#include <functional>

namespace {

constexpr qint64 millisecond = 1000000; // ns
constexpr double period = 1000.0 / 30; // ms

/// When frame number n of a camera arrives, in ms.
using Camera = std::function<double(int)>;

QVector<qint64> slotsOf(const Camera &camera, int frames)
{
    FramePacer pacer(30, 1);
    QVector<qint64> taken;
    for (int i = 0; i < frames; ++i)
        taken.append(pacer.slotOf(qint64((5000 + camera(i)) * double(millisecond))));
    return taken;
}

/// A different delay for each frame, up to @p limit ms, the same in every run.
double jitter(int frame, int limit)
{
    return QRandomGenerator(quint32(frame)).bounded(limit);
}

} // namespace

class TestFramePacer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyFrameOfASteadyCameraIsKept_data();
    void everyFrameOfASteadyCameraIsKept();
    void aFirstFrameThatWasHeldUpMovesTheBegin();
    void aBurstAfterADelayLosesNoFrame();
    void aBurstAfterAGapDoesNotRunAhead();
    void aGapIsLeftAsLongAsItWas();
    void aSlightlyFastCameraLosesAFrameNowAndThen();
    void aSlightlySlowCameraSkipsASlotNowAndThen();
    void aFrameThatNeverCameLeavesItsSlotEmpty();
    void aCameraAtHalfItsRateTakesEverySecondSlot();
    void slotsBeginAtTheirExactTimes();
};

void TestFramePacer::everyFrameOfASteadyCameraIsKept_data()
{
    QTest::addColumn<int>("delay");
    QTest::newRow("exact") << 1;
    QTest::newRow("a few ms late") << 9;
    QTest::newRow("up to a frame late") << 33;
    QTest::newRow("up to a frame and a half late") << 50;
}

void TestFramePacer::everyFrameOfASteadyCameraIsKept()
{
    QFETCH(int, delay);
    // The first frame is as late as any: no luck is needed.
    const QVector<qint64> taken =
        slotsOf([delay](int i) { return i * period + jitter(i + 3, delay); }, 18000);
    int lost = 0;
    for (int i = 1; i < taken.size(); ++i)
        lost += taken[i] != taken[i - 1] + 1;
    QCOMPARE(lost, 0);
    QCOMPARE(taken.last(), qint64(17999));
}

void TestFramePacer::aFirstFrameThatWasHeldUpMovesTheBegin()
{
    FramePacer pacer(30, 1);
    QCOMPARE(pacer.begin(), qint64(-1));
    for (int i = 0; i < 40; ++i) {
        const double arrival = 5000 + (i == 0 ? 60 : i * period + 10);
        const qint64 slot = pacer.slotOf(qint64(qMax(arrival, 5060.0) * double(millisecond)));
        QCOMPARE(slot, qint64(i));
    }
    QVERIFY(qAbs(pacer.begin() - 5010 * millisecond) < millisecond);
}

void TestFramePacer::aBurstAfterADelayLosesNoFrame()
{
    // Frames 100 to 105 are all held up until the machine has time for frame 105.
    const QVector<qint64> taken = slotsOf(
        [](int i) { return i >= 100 && i < 105 ? 105 * period + (i - 100) : i * period; }, 300);
    for (int i = 0; i < taken.size(); ++i)
        QCOMPARE(taken[i], qint64(i));
}

void TestFramePacer::aBurstAfterAGapDoesNotRunAhead()
{
    // The machine stood still: of frames 100 to 190 the last ten come, all at once.
    const QVector<qint64> taken = slotsOf(
        [](int i) { return i < 100 ? i * period : (i < 110 ? 190 : i + 80) * period; }, 300);
    for (int i = 100; i < taken.size(); ++i)
        QVERIFY2(taken[i] <= qMax(190, i + 80) + 3, qPrintable(QString::number(taken[i])));
    QVERIFY2(qAbs(taken.last() - 379) <= 1, qPrintable(QString::number(taken.last())));
}

void TestFramePacer::aGapIsLeftAsLongAsItWas()
{
    const QVector<qint64> taken =
        slotsOf([](int i) { return (i < 100 ? i : i + 20) * period; }, 300);
    QCOMPARE(taken[99], qint64(99));
    QCOMPARE(taken[100], qint64(120));
    QCOMPARE(taken.last(), qint64(319));
}

void TestFramePacer::aSlightlyFastCameraLosesAFrameNowAndThen()
{
    const QVector<qint64> taken = slotsOf([](int i) { return i * period * 0.99; }, 3000);
    const int leftOut = int(taken.count(-1));
    QVERIFY2(leftOut >= 26 && leftOut <= 31, qPrintable(QString::number(leftOut)));
}

void TestFramePacer::aSlightlySlowCameraSkipsASlotNowAndThen()
{
    const QVector<qint64> taken = slotsOf([](int i) { return i * period * 1.01; }, 3000);
    QVERIFY(!taken.contains(-1));
    QVERIFY2(qAbs(taken.last() - qRound(2999 * 1.01)) <= 1,
             qPrintable(QString::number(taken.last())));
}

// One slot, as soon as all of the latest frames say so: picture and sound stay together.
void TestFramePacer::aFrameThatNeverCameLeavesItsSlotEmpty()
{
    const QVector<qint64> taken =
        slotsOf([](int frame) { return (frame + (frame >= 60 ? 1 : 0)) * period; }, 120);
    QCOMPARE(taken.at(59), qint64(59));
    QCOMPARE(taken.last(), qint64(120));
}

void TestFramePacer::aCameraAtHalfItsRateTakesEverySecondSlot()
{
    const QVector<qint64> taken = slotsOf([](int i) { return i * period * 2; }, 200);
    QVERIFY(!taken.contains(-1));
    for (int i = 20; i < taken.size(); ++i) {
        const qint64 early = taken[i] - 2 * qint64(i);
        QVERIFY2(qAbs(early) <= 1, qPrintable(QString::number(early)));
    }
}

void TestFramePacer::slotsBeginAtTheirExactTimes()
{
    const FramePacer pacer(30000, 1001);
    QCOMPARE(pacer.timeOf(0), qint64(0));
    QCOMPARE(pacer.timeOf(30000), 1001 * qint64(1000000000));
    QCOMPARE(FramePacer(30, 1).timeOf(1), qint64(33333333));
    QCOMPARE(FramePacer(30, 1).timeOf(18000), 600 * qint64(1000000000));
}

QTEST_GUILESS_MAIN(TestFramePacer)
#include "tst_framepacer.moc"
