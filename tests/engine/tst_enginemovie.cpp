#include "LabCommands.h"
#include "LabPattern.h"
#include "LiveVideoData.h"
#include "MovieFile.h"
#include "MovieProbe.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

// Movies of a lab camera with a microphone that beeps with every 60th frame.
class TestEngineMovie : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void pictureAndSoundAreCompleteAndInStep();
    void theFileIsOneThatPlayersCanRead();
    void aMovieStoppedAtOnceIsAMovie();
    void aSecondStartChangesNothing();
    void aSecondStopDoesNothing();
    void twentyMoviesInARowAreAllComplete();
    void aPhotoDuringAMovieIsTakenAndTheMovieGoesOn();
    void withoutAMicrophoneNothingIsRecorded();
    void aMicrophonePulledOutLeavesSilence();
    void aCameraPulledOutLeavesTheMovieUntilThen();
    void closingTheCameraCompletesTheMovie();
    void theEngineCompletesTheMovieWhenItIsDestroyed();
    void aFolderThatCannotBeWrittenIsKnownAfterTheStart();
    void theCameraGoesOnWhileAMovieStartsAndStops();

private:
    QString newPath();
    void plugMicrophoneIn();
    void record(int milliseconds);
    void verifyPlayable(const MovieFile &movie, double from, double to) const;

    std::unique_ptr<LiveVideoData> m_engine;
    QTemporaryDir m_folder;
    QString m_path;
    int m_movies = 0;
};

// How long the long movie is; the build with sanitizers makes it shorter, the long test longer.
static const int seconds = qEnvironmentVariableIntValue("ORVANTA_MOVIE_SECONDS");

void TestEngineMovie::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    QVERIFY(labctl({"plug", "beeper", "1280x720", "--beep", "micfeed"}));
}

void TestEngineMovie::init()
{
    m_engine = std::make_unique<LiveVideoData>();
    QTRY_COMPARE(m_engine->GetVideoDeviceList(), QStringList{"beeper"});
    m_engine->Create();
    QVERIFY(m_engine->created);
    QTRY_VERIFY(m_engine->IsValidVideoDevice());
    QTRY_VERIFY(m_engine->IsValidAudioDevice());
}

void TestEngineMovie::cleanup()
{
    m_engine.reset();
}

QString TestEngineMovie::newPath()
{
    m_path = m_folder.filePath(QStringLiteral("movie%1.mov").arg(++m_movies));
    return m_path;
}

// The camera's beep has lost its way to the microphone, so the camera comes back as well.
void TestEngineMovie::plugMicrophoneIn()
{
    m_engine.reset();
    QVERIFY(labctl({"microphone", "on"}));
    QVERIFY(labctl({"unplug", "beeper"}));
    QVERIFY(labctl({"plug", "beeper", "1280x720", "--beep", "micfeed"}));
}

void TestEngineMovie::record(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    m_engine->Record(newPath());
    QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(m_engine->IsValidVideoDevice());
    QVERIFY(m_engine->IsValidAudioDevice());
    timer.start();
    QTest::qWait(milliseconds);
    QVERIFY(timer.restart() < milliseconds + 1000);
    m_engine->RecordStop();
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

void TestEngineMovie::verifyPlayable(const MovieFile &movie, double from, double to) const
{
    QVERIFY2(movie.complaints().isEmpty(), qPrintable(movie.complaints().join('\n')));
    QVERIFY2(movie.duration() >= from && movie.duration() <= to,
             qPrintable(QString::number(movie.duration())));
    const MovieProbe probe(movie.path());
    QCOMPARE(probe.complaints(), QString());
    QCOMPARE(probe.frames(), movie.frames().size());
    QVERIFY2(qAbs(probe.duration() - movie.duration()) < 0.1,
             qPrintable(QString::number(probe.duration())));
    QVERIFY(!movie.frames().isEmpty());
    QVERIFY(!movie.counters().contains(-1));
    QVERIFY(qAbs(movie.frames().last().time - movie.duration()) < 0.1);
}

void TestEngineMovie::pictureAndSoundAreCompleteAndInStep()
{
    const int length = seconds > 0 ? seconds : 60;
    record(length * 1000);
    const MovieFile movie(m_path);
    verifyPlayable(movie, length - 0.2, length + 0.2);
    const QVector<int> counters = movie.counters();
    QVERIFY(std::is_sorted(counters.begin(), counters.end()));
    qInfo("%d frames, %d missing, longest repeat %d", int(counters.size()), movie.missingFrames(),
          movie.longestRepeat());
    QVERIFY(movie.missingFrames() <= qMax(1, counters.size() / 1000));
    QVERIFY(movie.longestRepeat() <= 2);
    QVERIFY(qAbs(movie.soundDuration() - movie.duration()) < 0.1);
    const QVector<double> delays = movie.soundDelays();
    QVERIFY2(delays.size() >= length / 2 - 1, qPrintable(QString::number(delays.size())));
    qInfo("sound after picture: %.1f ms at the start, %.1f ms at the end", delays.first() * 1000,
          delays.last() * 1000);
    const auto worst = std::minmax_element(delays.begin(), delays.end());
    qInfo("%.1f to %.1f ms in between", *worst.first * 1000, *worst.second * 1000);
    QVERIFY(*worst.first > -0.04);
    QVERIFY(*worst.second < 0.04);
}

void TestEngineMovie::theFileIsOneThatPlayersCanRead()
{
    record(1500);
    const MovieFile movie(m_path);
    verifyPlayable(movie, 1.3, 1.8);
    QCOMPARE(movie.boxes().count("moov"), 1);
    QCOMPARE(movie.boxes().count("mdat"), 1);
    QCOMPARE(movie.boxes().first(), QString("ftyp"));
    QVERIFY2(movie.videoFormat().contains("video/x-h264"), qPrintable(movie.videoFormat()));
    QVERIFY2(movie.videoFormat().contains("width=(int)1280"), qPrintable(movie.videoFormat()));
    const MovieProbe probe(m_path);
    QCOMPARE(probe.videoCodec(), QString("h264"));
    QCOMPARE(probe.pixelFormat(), QString("yuv420p"));
    QCOMPARE(probe.frameRate(), QString("30/1"));
    QCOMPARE(probe.soundCodec(), QString("aac"));
    QVERIFY(qAbs(probe.videoDuration() - movie.duration()) < 0.05);
    QVERIFY(qAbs(probe.soundDuration() - probe.videoDuration()) < 0.1);
    // What the probe finds nothing wrong with, it must have looked at.
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(file.size() - 20000)
            && file.write(QByteArray(10000, 'x')) == 10000 && file.flush());
    QVERIFY(!MovieProbe(m_path).complaints().isEmpty());
}

void TestEngineMovie::aMovieStoppedAtOnceIsAMovie()
{
    for (const int pause : {0, 40, 90}) {
        record(pause);
        const MovieFile movie(m_path);
        verifyPlayable(movie, 0.01, 0.6);
    }
}

void TestEngineMovie::aSecondStartChangesNothing()
{
    m_engine->Record(newPath());
    const QString other = m_folder.filePath("other.mov");
    m_engine->Record(other);
    QVERIFY(m_engine->IsValidVideoDevice());
    QTest::qWait(700);
    m_engine->RecordStop();
    verifyPlayable(MovieFile(m_path), 0.5, 1.2);
    QVERIFY(!QFile::exists(other));
}

void TestEngineMovie::aSecondStopDoesNothing()
{
    record(500);
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray first = file.readAll();
    m_engine->RecordStop();
    file.seek(0);
    QVERIFY(file.readAll() == first);
    verifyPlayable(MovieFile(m_path), 0.3, 0.9);
}

void TestEngineMovie::twentyMoviesInARowAreAllComplete()
{
    QStringList paths;
    for (int i = 0; i < 20; ++i) {
        record(250);
        paths.append(m_path);
    }
    for (const QString &path : qAsConst(paths))
        verifyPlayable(MovieFile(path), 0.1, 0.8);
}

void TestEngineMovie::aPhotoDuringAMovieIsTakenAndTheMovieGoesOn()
{
    m_engine->Record(newPath());
    const QString still = m_folder.filePath("still.png");
    QVERIFY(m_engine->SaveBitmap(still));
    QTest::qWait(1500);
    m_engine->RecordStop();
    const MovieFile movie(m_path);
    verifyPlayable(movie, 1.3, 2.2);
    const int photographed = LabPattern::counterOf(QImage(still));
    QVERIFY(photographed > 0);
    QVERIFY(qAbs(movie.frames().first().counter - photographed) <= 5);
    QVERIFY(movie.missingFrames() <= 1);
}

void TestEngineMovie::withoutAMicrophoneNothingIsRecorded()
{
    QVERIFY(labctl({"microphone", "off"}));
    QTRY_VERIFY(!m_engine->IsValidAudioDevice());
    m_engine->Record(newPath());
    QVERIFY(m_engine->IsValidVideoDevice());
    QVERIFY(!m_engine->IsValidAudioDevice());
    QTest::qWait(200);
    m_engine->RecordStop();
    QVERIFY(!QFile::exists(m_path));
    plugMicrophoneIn();
}

void TestEngineMovie::aMicrophonePulledOutLeavesSilence()
{
    QElapsedTimer timer;
    timer.start();
    m_engine->Record(newPath());
    QTest::qWait(3000);
    QVERIFY(labctl({"microphone", "off"}));
    const double pulledOut = double(timer.elapsed()) / 1000;
    QTest::qWait(4000);
    m_engine->RecordStop();
    const double length = double(timer.elapsed()) / 1000;
    plugMicrophoneIn();
    const MovieFile movie(m_path);
    verifyPlayable(movie, length - 0.7, length + 0.2);
    QVERIFY2(qAbs(movie.soundDuration() - movie.duration()) < 0.1,
             qPrintable(QString::number(movie.soundDuration())));
    QVERIFY(!movie.tones().isEmpty());
    QVERIFY(movie.tones().last() < pulledOut);
    QVERIFY(movie.missingFrames() <= 2);
}

void TestEngineMovie::aCameraPulledOutLeavesTheMovieUntilThen()
{
    const QSignalSpy lost(m_engine.get(), &LiveVideoData::disconnectDevice);
    QElapsedTimer timer;
    timer.start();
    m_engine->Record(newPath());
    QTest::qWait(2000);
    const double length = double(timer.elapsed()) / 1000;
    QVERIFY(labctl({"unplug", "beeper"}));
    QTRY_COMPARE(lost.count(), 1);
    const MovieFile movie(m_path);
    verifyPlayable(movie, length - 0.5, length + 0.5);
    QVERIFY(!m_engine->IsValidVideoDevice());
    m_engine->Release();
    QVERIFY(labctl({"plug", "beeper", "1280x720", "--beep", "micfeed"}));
}

void TestEngineMovie::closingTheCameraCompletesTheMovie()
{
    m_engine->Record(newPath());
    QTest::qWait(1000);
    m_engine->Release();
    verifyPlayable(MovieFile(m_path), 0.7, 1.6);
}

void TestEngineMovie::theEngineCompletesTheMovieWhenItIsDestroyed()
{
    m_engine->Record(newPath());
    QTest::qWait(1000);
    m_engine.reset();
    verifyPlayable(MovieFile(m_path), 0.7, 1.6);
}

void TestEngineMovie::aFolderThatCannotBeWrittenIsKnownAfterTheStart()
{
    m_engine->Record(m_folder.filePath("missing/movie.mov"));
    QVERIFY(!m_engine->IsValidVideoDevice());
    record(300);
    verifyPlayable(MovieFile(m_path), 0.1, 0.9);
}

// The newest frame is asked for again and again: it must never be an old one.
void TestEngineMovie::theCameraGoesOnWhileAMovieStartsAndStops()
{
    int stops = 0;
    m_engine->Record(newPath());
    QElapsedTimer timer;
    timer.start();
    int last = -1;
    qint64 lastChange = 0;
    const QString still = m_folder.filePath("look.bmp");
    while (timer.elapsed() < 2000) {
        QVERIFY(m_engine->SaveBitmap(still));
        const int counter = LabPattern::counterOf(QImage(still));
        if (counter != last) {
            stops += last >= 0 && timer.elapsed() - lastChange > 250;
            last = counter;
            lastChange = timer.elapsed();
        }
        QTest::qWait(1);
    }
    m_engine->RecordStop();
    QCOMPARE(stops, 0);
}

QTEST_MAIN(TestEngineMovie)
#include "tst_enginemovie.moc"
