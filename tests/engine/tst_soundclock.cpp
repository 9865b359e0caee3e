#include "SoundClock.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

constexpr qint64 millisecond = 1000000; // ns
constexpr qint64 piece = 10 * millisecond;

} // namespace

class TestSoundClock : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void soundIsPlacedByWhenItArrives();
    void lateArrivalsLeaveItInOnePiece();
    void aClockThatDriftsIsFollowedRarely();
    void lostSamplesLeaveAGap();
};

void TestSoundClock::soundIsPlacedByWhenItArrives()
{
    SoundClock clock;
    for (int i = 0; i < 100; ++i)
        QCOMPARE(clock.heardAt(i * piece, piece, 5000 * millisecond + (i + 1) * piece),
                 5000 * millisecond + i * piece);
}

void TestSoundClock::lateArrivalsLeaveItInOnePiece()
{
    SoundClock clock;
    for (int i = 0; i < 3000; ++i) {
        // The program runs for 10 ms of each 100: what comes meanwhile arrives in one go.
        const qint64 due = (i + 1) * piece;
        const qint64 cycle = 10 * piece;
        const qint64 arrived = (due + cycle - 1) / cycle * cycle
            + QRandomGenerator(quint32(i)).bounded(5) * millisecond;
        const qint64 heard = clock.heardAt(i * piece, piece, arrived);
        if (i > 20)
            QVERIFY2(qAbs(heard - i * piece) <= 15 * millisecond,
                     qPrintable(QString::number((heard - i * piece) / millisecond)));
    }
}

void TestSoundClock::aClockThatDriftsIsFollowedRarely()
{
    SoundClock clock;
    int corrections = 0;
    qint64 offset = 0;
    for (int i = 0; i < 60000; ++i) { // ten minutes, 200 ppm
        const qint64 counted = i * piece * 10002 / 10000;
        const qint64 heard = clock.heardAt(counted, piece, (i + 1) * piece);
        QVERIFY(qAbs(heard - i * piece) < 20 * millisecond);
        corrections += heard - counted != offset;
        offset = heard - counted;
    }
    QVERIFY2(corrections > 3 && corrections < 12, qPrintable(QString::number(corrections)));
}

void TestSoundClock::lostSamplesLeaveAGap()
{
    SoundClock clock;
    QCOMPARE(clock.heardAt(0, piece, piece), qint64(0));
    QCOMPARE(clock.heardAt(50 * piece, piece, 51 * piece), 50 * piece);
}

QTEST_GUILESS_MAIN(TestSoundClock)
#include "tst_soundclock.moc"
