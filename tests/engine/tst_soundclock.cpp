#include "SoundClock.h"

#include <QRandomGenerator>
#include <QTest>

namespace {

constexpr qint64 millisecond = 1000000; // ns
constexpr qint64 length = 10 * millisecond; // of a piece of sound

/// A microphone that sends a piece every 10 ms, and what the clock makes of it.
class Recording {
public:
    /// The next piece arrives late, by this many nanoseconds.
    void hear(qint64 lateness = 0)
    {
        m_begins.append(m_now);
        m_now += length;
        m_clock.add(QByteArray(), m_counted, length, m_now + lateness);
        m_counted += m_countedLength;
        m_placed += m_clock.take();
    }

    /// What is heard meanwhile never arrives, and is not counted.
    void lose(qint64 time) { m_now += time; }

    /// From now on its clock shows this for 10 ms.
    void setCountedLength(qint64 counted) { m_countedLength = counted; }

    void end() { m_placed += m_clock.takeAll(); }

    /// All that was heard until @p before ns ago is placed.
    bool isHeard(qint64 before = 0) const { return m_clock.isHeardUntil(m_now - before); }

    int pieces() const { return m_begins.size(); }
    int placed() const { return m_placed.size(); }
    /// How far piece @p i was placed from when it was heard.
    qint64 error(int i) const { return m_placed.at(i).heard - m_begins.at(i); }

private:
    SoundClock m_clock;
    qint64 m_now = 5000 * millisecond;
    qint64 m_counted = 0;
    qint64 m_countedLength = length;
    QVector<qint64> m_begins; ///< when each piece was heard
    QVector<SoundClock::Piece> m_placed;
};

} // namespace

class TestSoundClock : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void soundIsPlacedByWhenItArrives();
    void soundIsAtHandAtOnceUnlessItSeemsLate();
    void lateArrivalsLeaveItInOnePiece();
    void aLateBeginIsCorrected_data();
    void aLateBeginIsCorrected();
    void aClockThatDriftsIsFollowedRarely_data();
    void aClockThatDriftsIsFollowedRarely();
    void lostSamplesLeaveAGapWhereTheyAreMissing();
    void lossesOneAfterTheOtherAreAllFollowed();
    void nothingIsLeftAtTheEnd();
    void itIsKnownUntilWhenAllSoundHasCome();
};

void TestSoundClock::soundIsPlacedByWhenItArrives()
{
    Recording recording;
    for (int i = 0; i < 300; ++i)
        recording.hear();
    recording.end();
    QCOMPARE(recording.placed(), 300);
    for (int i = 0; i < 300; ++i)
        QCOMPARE(recording.error(i), qint64(0));
}

void TestSoundClock::soundIsAtHandAtOnceUnlessItSeemsLate()
{
    Recording recording;
    for (int i = 0; i < 20; ++i)
        recording.hear();
    QCOMPARE(recording.placed(), 0); // any of them may have been late
    for (int i = 0; i < 200; ++i) {
        recording.hear(i % 2 == 0 ? 0 : 5 * millisecond);
        QVERIFY(i < 2 || recording.placed() == recording.pieces());
    }
    for (int i = 0; i < 500; ++i) {
        recording.hear(500 * millisecond);
        QVERIFY(recording.pieces() - recording.placed() <= 101);
    }
}

void TestSoundClock::lateArrivalsLeaveItInOnePiece()
{
    Recording recording;
    for (int i = 0; i < 3000; ++i) {
        // The program runs for 10 ms of each 100: what comes meanwhile arrives in one go.
        const qint64 due = (i + 1) * length;
        const qint64 cycle = 10 * length;
        recording.hear((due + cycle - 1) / cycle * cycle - due
                       + QRandomGenerator(quint32(i)).bounded(5) * millisecond);
    }
    recording.end();
    QCOMPARE(recording.placed(), 3000);
    for (int i = 0; i < 3000; ++i)
        QVERIFY2(qAbs(recording.error(i)) <= 15 * millisecond,
                 qPrintable(QString::number(recording.error(i) / millisecond)));
}

// The first pieces come late, as they do while the machine is busy opening things: those that lie
// in the way of the first one in time are left out by the track.
void TestSoundClock::aLateBeginIsCorrected_data()
{
    QTest::addColumn<int>("late"); // pieces
    QTest::addColumn<int>("wrong"); // of them
    QTest::newRow("a few") << 15 << 0;
    QTest::newRow("many") << 60 << 60;
}

void TestSoundClock::aLateBeginIsCorrected()
{
    QFETCH(int, late);
    QFETCH(int, wrong);
    Recording recording;
    for (int i = 0; i < 160; ++i)
        recording.hear(i < late ? 200 * millisecond : 0);
    recording.end();
    for (int i = wrong; i < 160; ++i)
        QVERIFY2(qAbs(recording.error(i)) <= 15 * millisecond,
                 qPrintable(QString("%1: %2").arg(i).arg(recording.error(i) / millisecond)));
}

void TestSoundClock::aClockThatDriftsIsFollowedRarely_data()
{
    QTest::addColumn<qint64>("counted");
    QTest::newRow("it runs ahead") << length * 10002 / 10000; // 200 ppm
    QTest::newRow("it falls behind") << length * 9998 / 10000;
}

void TestSoundClock::aClockThatDriftsIsFollowedRarely()
{
    QFETCH(qint64, counted);
    Recording recording;
    recording.setCountedLength(counted);
    for (int i = 0; i < 60000; ++i) // ten minutes
        recording.hear();
    recording.end();
    int corrections = 0;
    for (int i = 1; i < 60000; ++i) {
        QVERIFY(qAbs(recording.error(i)) < 20 * millisecond);
        corrections += qAbs(recording.error(i) - recording.error(i - 1)) > millisecond;
    }
    QVERIFY2(corrections > 3 && corrections < 12, qPrintable(QString::number(corrections)));
}

void TestSoundClock::lostSamplesLeaveAGapWhereTheyAreMissing()
{
    Recording recording;
    for (int i = 0; i < 200; ++i)
        recording.hear();
    recording.lose(400 * millisecond);
    for (int i = 0; i < 300; ++i)
        recording.hear();
    recording.end();
    QCOMPARE(recording.placed(), 500);
    for (int i = 0; i < 500; ++i)
        QVERIFY2(qAbs(recording.error(i)) <= 15 * millisecond,
                 qPrintable(QString("%1: %2").arg(i).arg(recording.error(i) / millisecond)));
}

void TestSoundClock::lossesOneAfterTheOtherAreAllFollowed()
{
    Recording recording;
    for (int i = 0; i < 2000; ++i) {
        if (i % 30 == 0)
            recording.lose(40 * millisecond);
        recording.hear(qint64(i % 10) * 2 * millisecond);
    }
    recording.end();
    for (int i = 0; i < 2000; ++i)
        QVERIFY2(qAbs(recording.error(i)) <= 20 * millisecond,
                 qPrintable(QString("%1: %2").arg(i).arg(recording.error(i) / millisecond)));
}

void TestSoundClock::nothingIsLeftAtTheEnd()
{
    Recording recording;
    for (int i = 0; i < 3; ++i)
        recording.hear();
    QCOMPARE(recording.placed(), 0);
    recording.end();
    QCOMPARE(recording.placed(), 3);
    QCOMPARE(recording.error(2), qint64(0));
    recording.end();
    QCOMPARE(recording.placed(), 3);
}

void TestSoundClock::itIsKnownUntilWhenAllSoundHasCome()
{
    Recording recording;
    QVERIFY(!recording.isHeard(1000 * millisecond));
    for (int i = 0; i < 100; ++i)
        recording.hear();
    QVERIFY(recording.isHeard());
    QVERIFY(!recording.isHeard(-length));
    recording.hear(300 * millisecond);
    QVERIFY2(!recording.isHeard(), "it may have been lost samples");
    recording.hear();
    QVERIFY(recording.isHeard());
    recording.lose(400 * millisecond);
    recording.hear();
    QVERIFY2(!recording.isHeard(), "it may have been late");
    for (int i = 0; i < 110; ++i)
        recording.hear();
    QVERIFY(recording.isHeard());
}

QTEST_GUILESS_MAIN(TestSoundClock)
#include "tst_soundclock.moc"
