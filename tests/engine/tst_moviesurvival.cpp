#include "LabCommands.h"
#include "MovieFile.h"
#include "MovieProbe.h"
#include "Patience.h"
#include "Recording.h"
#include "SmallDisk.h"
#include "SpareTime.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVector>

#include <phonon/mediaobject.h>
#include <phonon/videoplayer.h>

#include <memory>
#include <vector>

// Movies whose program or disk does not live to see their end, as the program's player plays them.
class TestMovieSurvival : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aKilledProgramLeavesAMovie_data();
    void aKilledProgramLeavesAMovie();
    void aFullDiskEndsTheMovieAndLeavesItPlayable();
    void aFileThatMayNotGrowIsPlayable();
    void aMovieOfAProgramThatStoodStillSpansTheWholeTime();

private:
    QString newPath();
    void playAndSeek(const QString &path, double from, double to);
    void verifyEveryPlayerTakes(const QString &path, double from, double to) const;

    QTemporaryDir m_folder;
    std::unique_ptr<SpareTime> m_time; ///< of the running test
    int m_movies = 0;
};

void TestMovieSurvival::initTestCase()
{
    qputenv("PHONON_GST_VIDEOMODE", "software");
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    QVERIFY(labctl({"plug", "beeper", "1280x720", "--beep", "micfeed"}));
}

void TestMovieSurvival::init()
{
    m_time = std::make_unique<SpareTime>();
}

void TestMovieSurvival::cleanup()
{
    m_time.reset();
}

QString TestMovieSurvival::newPath()
{
    return m_folder.filePath(QStringLiteral("movie%1.mov").arg(++m_movies));
}

void TestMovieSurvival::playAndSeek(const QString &path, double from, double to)
{
    Phonon::VideoPlayer player(Phonon::VideoCategory);
    player.resize(320, 180);
    player.show();
    // A short one is at its end before a busy machine looks at it.
    const QSignalSpy ends(&player, &Phonon::VideoPlayer::finished);
    player.play(Phonon::MediaSource(QUrl::fromLocalFile(path)));
    QTRY_VERIFY((player.isPlaying() || ends.count() > 0) && player.totalTime() > 0);
    const double length = double(player.totalTime()) / 1000;
    QVERIFY2(length >= from && length <= to, qPrintable(QString::number(length)));
    QVERIFY(player.mediaObject()->isSeekable());
    const qint64 middle = player.totalTime() / 2;
    player.seek(middle);
    QTRY_VERIFY((player.currentTime() >= middle - 1000 && player.currentTime() > 0)
                || ends.count() > 0);
    QVERIFY(player.isPlaying() || ends.count() > 0);
    player.stop();
}

void TestMovieSurvival::verifyEveryPlayerTakes(const QString &path, double from, double to) const
{
    const MovieProbe probe(path);
    QCOMPARE(probe.complaints(), QString());
    QCOMPARE(probe.videoCodec(), QString("h264"));
    QCOMPARE(probe.soundCodec(), QString("aac"));
    QVERIFY2(probe.duration() >= from && probe.duration() <= to,
             qPrintable(QString::number(probe.duration())));
    // A busy machine leaves most out, and has begun when it could.
    const int leastRate = m_time->isPlenty() ? 5 : 1;
    QVERIFY2(probe.frames() <= probe.videoDuration() * 30 + 2
                 && probe.frames() >= probe.videoDuration() * leastRate,
             qPrintable(QString::number(probe.frames())));
}

void TestMovieSurvival::aKilledProgramLeavesAMovie_data()
{
    // Of programs that record at the same time.
    QTest::addColumn<QVector<int>>("moments"); // ms
    QTest::newRow("at once") << QVector<int>{900, 1300, 1900};
    QTest::newRow("soon") << QVector<int>{2710, 3040, 3370};
    QTest::newRow("later") << QVector<int>{3700, 4030, 4360};
    QTest::newRow("late") << QVector<int>{5100, 6200, 7500};
}

void TestMovieSurvival::aKilledProgramLeavesAMovie()
{
    QFETCH(QVector<int>, moments);
    std::vector<std::unique_ptr<Recording>> recordings;
    for (const int moment : qAsConst(moments)) {
        recordings.push_back(std::make_unique<Recording>("beeper", newPath()));
        recordings.back()->killAt(moment);
    }
    for (const auto &recording : recordings) {
        QTRY_VERIFY_WITH_TIMEOUT(recording->hasEnded(), 2 * patience);
        const double length = recording->length();
        QVERIFY(length > 0);
        // An encoder without time is behind by what waits for it, and so is the index.
        const double least = m_time->isPlenty() ? length - 2 : qMin(length - 2, length / 3);
        // The test may be late to hear that the movie has begun.
        const double most = length + 0.3 + m_time->lateness();
        playAndSeek(recording->path(), least, most);
        verifyEveryPlayerTakes(recording->path(), least, most);
        QFile::remove(recording->path());
    }
}

void TestMovieSurvival::aFullDiskEndsTheMovieAndLeavesItPlayable()
{
    SmallDisk disk(m_folder.filePath("small"), 64);
    QVERIFY2(disk.isThere(), "no small disk can be made here, not even in a name space of its own");
    Recording recording("beeper", disk.path() + "/movie.mov", disk.entrance());
    QTRY_VERIFY(recording.hasBegun());
    QTRY_COMPARE(disk.bytesAvailable(), qint64(0));
    QVERIFY2(recording.isRunning(), "the camera must go on when the disk is full");
    QTRY_COMPARE(recording.failures(), 1);
    QVERIFY(recording.stop());
    QCOMPARE(recording.failures(), 1);
    const QString path = newPath();
    QVERIFY(QFile::copy(disk.seenFromOutside() + "/movie.mov", path));
    playAndSeek(path, 1, 8);
    verifyEveryPlayerTakes(path, 1, 8);
    QVERIFY(MovieFile(path).frames().size() > 10);
}

void TestMovieSurvival::aFileThatMayNotGrowIsPlayable()
{
    const QString path = newPath();
    // A write beyond the limit fails; the signal that comes with it would end the program. In
    // blocks of 512 bytes; the index takes 3100 of them.
    Recording recording("beeper", path,
                        {"sh", "-c", "trap '' XFSZ; ulimit -f 3200; exec \"$@\"", "sh"});
    QTRY_VERIFY(recording.hasBegun());
    QTRY_COMPARE(QFileInfo(path).size(), qint64(3200 * 512));
    QVERIFY2(recording.isRunning(), "the camera must go on when the file is full");
    QTRY_COMPARE(recording.failures(), 1);
    QVERIFY(recording.stop());
    QCOMPARE(recording.failures(), 1);
    playAndSeek(path, 1, 8);
    verifyEveryPlayerTakes(path, 1, 8);
}

void TestMovieSurvival::aMovieOfAProgramThatStoodStillSpansTheWholeTime()
{
    Recording recording("beeper", newPath());
    QTRY_VERIFY(recording.hasBegun());
    QTest::qWait(1500); // nothing to wait for: the movie's length so far
    recording.halt();
    QTest::qWait(3000); // nothing to wait for: the time it stands still
    recording.goOn();
    QTest::qWait(2500); // nothing to wait for: the rest of the movie's length
    const double length = recording.age();
    QVERIFY(recording.stop());
    QCOMPARE(recording.failures(), 0);
    // It counts a picture when it gets round to it.
    const double late = m_time->lateness();
    verifyEveryPlayerTakes(recording.path(), length - 0.4 - late, length + 0.2 + late);
    const MovieFile movie(recording.path());
    QVERIFY2(qAbs(movie.soundDuration() - movie.duration()) < 0.1,
             qPrintable(QString::number(movie.soundDuration())));
    // There are pictures from both sides of the gap.
    const QVector<MovieFile::Frame> &frames = movie.frames();
    QVERIFY(frames.first().time < 0.3 + late && frames.last().time > length - 1 - late);
    const int missed = frames.last().counter - frames.first().counter + 1 - frames.size();
    QVERIFY2(missed > 60, "the program did not stand still");
    // Shown when it was taken, by the camera's own count.
    const double taken = (frames.last().counter - frames.first().counter) / 30.0;
    const double shown = frames.last().time - frames.first().time;
    QVERIFY2(qAbs(shown - taken) < 0.3 + late,
             qPrintable(QStringLiteral("%1 of %2, held up %3").arg(shown).arg(taken).arg(late)));
}

QTEST_MAIN(TestMovieSurvival)
#include "tst_moviesurvival.moc"
