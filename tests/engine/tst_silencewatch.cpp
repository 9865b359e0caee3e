#include "SilenceWatch.h"

#include <QTest>

using std::chrono::milliseconds;

class TestSilenceWatch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aCameraMayPauseForThreeSecondsOrFifteenFrames_data();
    void aCameraMayPauseForThreeSecondsOrFifteenFrames();
    void aFrameEndsThePause();
    void theTimeInWhichTheProcessStoodStillIsNoSilence();
};

static const milliseconds patience(50);

// How long a camera has been silent when it is given up.
static milliseconds givenUpAfter(SilenceWatch watch)
{
    while (!watch.isOver())
        watch.lookedInVain(patience, patience);
    return watch.silence();
}

void TestSilenceWatch::aCameraMayPauseForThreeSecondsOrFifteenFrames_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<int>("pause");
    QTest::newRow("30 frames a second") << 30.0 << 3000;
    QTest::newRow("5 frames a second") << 5.0 << 3000;
    QTest::newRow("3 frames a second") << 3.0 << 5000;
    QTest::newRow("a frame in two seconds") << 0.5 << 30000;
    QTest::newRow("an unknown rate") << 0.0 << 3000;
}

void TestSilenceWatch::aCameraMayPauseForThreeSecondsOrFifteenFrames()
{
    QFETCH(double, rate);
    QFETCH(int, pause);
    const milliseconds silence = givenUpAfter(SilenceWatch(rate));
    QVERIFY(silence > milliseconds(pause));
    QVERIFY(silence <= milliseconds(pause) + patience);
}

void TestSilenceWatch::aFrameEndsThePause()
{
    SilenceWatch watch(30);
    for (int i = 0; i < 200; ++i) {
        watch.lookedInVain(patience, patience);
        if (i % 50 == 49)
            watch.frameCame();
        QVERIFY(!watch.isOver());
    }
}

void TestSilenceWatch::theTimeInWhichTheProcessStoodStillIsNoSilence()
{
    SilenceWatch watch(30);
    watch.lookedInVain(milliseconds(600000), patience);
    QVERIFY(!watch.isOver());
    QCOMPARE(watch.silence(), 2 * patience);
}

QTEST_APPLESS_MAIN(TestSilenceWatch)
#include "tst_silencewatch.moc"
