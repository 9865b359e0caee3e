#include "SoundTrack.h"

#include <QTest>

namespace {

/// @p count samples, all of one value.
QByteArray sound(int count, char value)
{
    return QByteArray(count * SoundTrack::bytesPerSampleFrame, value);
}

void add(SoundTrack &track, int count, char value, qint64 position)
{
    track.add(sound(count, value).constData(), count, position);
}

/// "500x1 20x0": how many samples of which value follow each other.
QString runsOf(const QByteArray &samples)
{
    QStringList runs;
    int count = 0;
    for (int i = 0; i < samples.size(); i += SoundTrack::bytesPerSampleFrame) {
        ++count;
        const int next = i + SoundTrack::bytesPerSampleFrame;
        if (next >= samples.size() || samples[next] != samples[i]) {
            runs.append(QStringLiteral("%1x%2").arg(count).arg(int(samples[i])));
            count = 0;
        }
    }
    return runs.join(QLatin1Char(' '));
}

} // namespace

class TestSoundTrack : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void soundIsLaidInWhereItWasHeard_data();
    void soundIsLaidInWhereItWasHeard();
    void onlyWhatLiesBeforeThePositionIsTaken();
    void soundForAPlaceThatWasTakenIsLeftOut();
    void silenceCoversWhatIsMissing();
    void positionsFollowTime();
};

void TestSoundTrack::soundIsLaidInWhereItWasHeard_data()
{
    QTest::addColumn<int>("position"); // of the second of two pieces of 1000 samples
    QTest::addColumn<QString>("runs");
    QTest::newRow("right behind") << 1000 << "1000x1 1000x2";
    QTest::newRow("inaudibly late") << 1480 << "1000x1 1000x2";
    QTest::newRow("inaudibly early") << 520 << "1000x1 1000x2";
    QTest::newRow("late") << 1500 << "1000x1 500x0 1000x2";
    QTest::newRow("early") << 400 << "1000x1 400x2";
    QTest::newRow("heard before") << -5000 << "1000x1";
}

void TestSoundTrack::soundIsLaidInWhereItWasHeard()
{
    QFETCH(int, position);
    QFETCH(QString, runs);
    SoundTrack track;
    add(track, 1000, 1, 0);
    add(track, 1000, 2, position);
    QCOMPARE(runsOf(track.take(100000)), runs);
}

void TestSoundTrack::onlyWhatLiesBeforeThePositionIsTaken()
{
    SoundTrack track;
    add(track, 1000, 1, 0);
    QCOMPARE(runsOf(track.take(300)), QString("300x1"));
    QCOMPARE(track.taken(), qint64(300));
    QCOMPARE(track.end(), qint64(1000));
    QCOMPARE(track.take(200), QByteArray());
    QCOMPARE(runsOf(track.take(5000)), QString("700x1"));
    QCOMPARE(track.taken(), qint64(1000));
}

void TestSoundTrack::soundForAPlaceThatWasTakenIsLeftOut()
{
    SoundTrack track;
    track.coverUntil(2000);
    QCOMPARE(runsOf(track.take(2000)), QString("2000x0"));
    add(track, 3000, 1, 0);
    QCOMPARE(runsOf(track.take(5000)), QString("1000x1"));
}

void TestSoundTrack::silenceCoversWhatIsMissing()
{
    SoundTrack track;
    add(track, 100, 1, 0);
    track.coverUntil(50);
    QCOMPARE(track.end(), qint64(100));
    track.coverUntil(400);
    QCOMPARE(runsOf(track.take(400)), QString("100x1 300x0"));
}

void TestSoundTrack::positionsFollowTime()
{
    QCOMPARE(SoundTrack::positionAt(0), qint64(0));
    QCOMPARE(SoundTrack::positionAt(10000000), qint64(480));
    QCOMPARE(SoundTrack::positionAt(600 * qint64(1000000000)), qint64(28800000));
}

QTEST_GUILESS_MAIN(TestSoundTrack)
#include "tst_soundtrack.moc"
