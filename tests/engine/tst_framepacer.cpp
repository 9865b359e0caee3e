#include "FramePacer.h"

#include <QRandomGenerator>
#include <QTest>

#include <functional>

namespace {

constexpr qint64 millisecond = 1000000; // ns
constexpr double period = 1000.0 / 30; // ms

/// When frame number n of a camera arrives, in ms.
using Camera = std::function<double(int)>;

QVector<qint64> placesOf(const Camera &camera, int frames)
{
    FramePacer pacer(30, 1);
    QVector<qint64> places;
    for (int i = 0; i < frames; ++i)
        places.append(pacer.placeOf(qint64((5000 + camera(i)) * double(millisecond))));
    return places;
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
    void aSlightlySlowCameraSkipsAPlaceNowAndThen();
    void aFrameThatNeverCameLeavesItsPlaceEmpty();
    void aCameraAtHalfItsRateTakesEverySecondPlace();
    void placesBeginAtTheirExactTimes();
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
    const QVector<qint64> places =
        placesOf([delay](int i) { return i * period + jitter(i + 3, delay); }, 18000);
    int lost = 0;
    for (int i = 1; i < places.size(); ++i)
        lost += places[i] != places[i - 1] + 1;
    QCOMPARE(lost, 0);
    QCOMPARE(places.last(), qint64(17999));
}

void TestFramePacer::aFirstFrameThatWasHeldUpMovesTheBegin()
{
    FramePacer pacer(30, 1);
    QCOMPARE(pacer.begin(), qint64(-1));
    for (int i = 0; i < 40; ++i) {
        const double arrival = 5000 + (i == 0 ? 60 : i * period + 10);
        const qint64 place = pacer.placeOf(qint64(qMax(arrival, 5060.0) * double(millisecond)));
        QCOMPARE(place, qint64(i));
    }
    QVERIFY(qAbs(pacer.begin() - 5010 * millisecond) < millisecond);
}

void TestFramePacer::aBurstAfterADelayLosesNoFrame()
{
    // Frames 100 to 105 are all held up until the machine has time for frame 105.
    const QVector<qint64> places = placesOf(
        [](int i) { return i >= 100 && i < 105 ? 105 * period + (i - 100) : i * period; }, 300);
    for (int i = 0; i < places.size(); ++i)
        QCOMPARE(places[i], qint64(i));
}

void TestFramePacer::aBurstAfterAGapDoesNotRunAhead()
{
    // The machine stood still: of frames 100 to 190 the last ten come, all at once.
    const QVector<qint64> places = placesOf(
        [](int i) { return i < 100 ? i * period : (i < 110 ? 190 : i + 80) * period; }, 300);
    for (int i = 100; i < places.size(); ++i)
        QVERIFY2(places[i] <= qMax(190, i + 80) + 3, qPrintable(QString::number(places[i])));
    QVERIFY2(qAbs(places.last() - 379) <= 1, qPrintable(QString::number(places.last())));
}

void TestFramePacer::aGapIsLeftAsLongAsItWas()
{
    const QVector<qint64> places =
        placesOf([](int i) { return (i < 100 ? i : i + 20) * period; }, 300);
    QCOMPARE(places[99], qint64(99));
    QCOMPARE(places[100], qint64(120));
    QCOMPARE(places.last(), qint64(319));
}

void TestFramePacer::aSlightlyFastCameraLosesAFrameNowAndThen()
{
    const QVector<qint64> places = placesOf([](int i) { return i * period * 0.99; }, 3000);
    const int leftOut = int(places.count(-1));
    QVERIFY2(leftOut >= 26 && leftOut <= 31, qPrintable(QString::number(leftOut)));
}

void TestFramePacer::aSlightlySlowCameraSkipsAPlaceNowAndThen()
{
    const QVector<qint64> places = placesOf([](int i) { return i * period * 1.01; }, 3000);
    QVERIFY(!places.contains(-1));
    QVERIFY2(qAbs(places.last() - qRound(2999 * 1.01)) <= 1,
             qPrintable(QString::number(places.last())));
}

// One place, as soon as all of the latest frames say so: picture and sound stay together.
void TestFramePacer::aFrameThatNeverCameLeavesItsPlaceEmpty()
{
    const QVector<qint64> places =
        placesOf([](int frame) { return (frame + (frame >= 60 ? 1 : 0)) * period; }, 120);
    QCOMPARE(places.at(59), qint64(59));
    QCOMPARE(places.last(), qint64(120));
}

void TestFramePacer::aCameraAtHalfItsRateTakesEverySecondPlace()
{
    const QVector<qint64> places = placesOf([](int i) { return i * period * 2; }, 200);
    QVERIFY(!places.contains(-1));
    for (int i = 20; i < places.size(); ++i) {
        const qint64 early = places[i] - 2 * qint64(i);
        QVERIFY2(qAbs(early) <= 1, qPrintable(QString::number(early)));
    }
}

void TestFramePacer::placesBeginAtTheirExactTimes()
{
    const FramePacer pacer(30000, 1001);
    QCOMPARE(pacer.timeOf(0), qint64(0));
    QCOMPARE(pacer.timeOf(30000), 1001 * qint64(1000000000));
    QCOMPARE(FramePacer(30, 1).timeOf(1), qint64(33333333));
    QCOMPARE(FramePacer(30, 1).timeOf(18000), 600 * qint64(1000000000));
}

QTEST_GUILESS_MAIN(TestFramePacer)
#include "tst_framepacer.moc"
