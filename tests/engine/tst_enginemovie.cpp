#include "EncoderSearch.h"
#include "LabCommands.h"
#include "LabPattern.h"
#include "LiveVideoData.h"
#include "MovieFile.h"
#include "MovieProbe.h"
#include "SpareTime.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <functional>
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
    void soundStaysInStepWhenSomeOfItIsLost();
    void theFileIsOneThatPlayersCanRead();
    void aMovieStoppedAtOnceIsAMovie();
    void aSecondStartChangesNothing();
    void aSecondStopDoesNothing();
    void twentyMoviesInARowAreAllComplete();
    void aPhotoDuringAMovieIsTakenAndTheMovieGoesOn();
    void withoutAMicrophoneNothingIsRecorded();
    void theMicrophoneIsHeardAlsoWhenALoudspeakerIsTheDefault();
    void aMicrophonePulledOutLeavesSilence();
    void aCameraPulledOutLeavesTheMovieUntilThen();
    void closingTheCameraCompletesTheMovie();
    void theEngineCompletesTheMovieWhenItIsDestroyed();
    void aFolderThatCannotBeWrittenIsKnownAfterTheStart();
    void theCameraGoesOnWhileAMovieStartsAndStops();

private:
    QString newPath();
    void plugMicrophoneIn();
    void begin();
    void end();
    void record(int milliseconds);
    void verifyPlayable(const MovieFile &movie, double from, double to) const;
    void verifySize(int length) const;
    void verifyInStep(const MovieFile &movie, double length, bool hadTime) const;
    void verifyPicture(const MovieFile &movie, double lateness) const;
    void lookAtCamera();
    void watchCamera(int milliseconds);
    void callAndCountFrames(const char *name, const std::function<void()> &call);

    std::unique_ptr<LiveVideoData> m_engine;
    QTemporaryDir m_folder;
    QString m_path;
    int m_movies = 0;

    // Of the watched camera.
    QElapsedTimer m_watch;
    int m_newest = -1; ///< its newest frame's number
    qint64 m_changed = 0; ///< ms, when that was first seen
    qint64 m_longestStop = 0; ///< ms
};

// How long the long movie is; the build with sanitizers makes it shorter, the long test longer.
static const int seconds = qEnvironmentVariableIntValue("ORVANTA_MOVIE_SECONDS");
static const int settled = 30; // s; what the memory grows by after that it grows by all the time
static const int longestFreeze = 250; // ms
static const int soundBitRate = 128000;
static const double indexSize = 1.6e6; // bytes, kept free at the beginning of the file

// The session manager follows in its own time.
static bool setDefaultSource(const QString &name)
{
    return QProcess::execute("pactl", {"set-default-source", name}) == 0 && QTest::qWaitFor([&] {
               QProcess pactl;
               pactl.start("pactl", {"get-default-source"});
               return pactl.waitForFinished(2000)
                   && QString::fromUtf8(pactl.readAllStandardOutput()).trimmed() == name;
           });
}

// Bytes of the process that are in memory.
static qint64 residentMemory()
{
    QFile file("/proc/self/statm");
    const QByteArray pages =
        file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1) : QByteArray();
    return pages.toLongLong() * sysconf(_SC_PAGESIZE);
}

void TestEngineMovie::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    QVERIFY(labctl({"plug", "beeper", "1280x720", "--beep", "micfeed"}));
    // A source behind the sound server's back, which nobody must ask.
    QFile soundSystem(m_folder.filePath("asound.conf"));
    QVERIFY(soundSystem.open(QIODevice::WriteOnly)
            && soundSystem.write("pcm.!default { type null }\n") > 0);
    qputenv("ALSA_CONFIG_PATH", QFile::encodeName(soundSystem.fileName()));
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

void TestEngineMovie::begin()
{
    QElapsedTimer timer;
    timer.start();
    m_engine->Record(newPath());
    QVERIFY2(timer.elapsed() < 3000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(m_engine->IsRecording());
    QVERIFY(m_engine->IsValidVideoDevice());
    QVERIFY(m_engine->IsValidAudioDevice());
}

void TestEngineMovie::end()
{
    QElapsedTimer timer;
    timer.start();
    m_engine->RecordStop();
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

void TestEngineMovie::record(int milliseconds)
{
    begin();
    QElapsedTimer timer;
    timer.start();
    QTest::qWait(milliseconds); // nothing to wait for: the movie's length
    QVERIFY(timer.elapsed() < milliseconds + 1000);
    end();
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

// The long movie: picture and sound span the whole time and stay in step, and it costs no more than
// it may of memory and disk. On a machine that has the time nothing at all is missing.
void TestEngineMovie::pictureAndSoundAreCompleteAndInStep()
{
    const int wanted = seconds > 0 ? seconds : 60;
    begin();
    const SpareTime time;
    QElapsedTimer timer;
    timer.start();
    QTest::qWait(qMin(wanted, settled) * 1000); // nothing to wait for: the movie's length
    const qint64 memory = residentMemory();
    QTest::qWait(qMax(0, wanted - settled) * 1000); // nothing to wait for: the movie's length
    const qint64 growth = residentMemory() - memory;
    const double length = double(timer.elapsed()) / 1000;
    end();
    const bool hadTime = time.isPlenty();
    const double lateness = time.lateness();
    qInfo("memory grew by %.1f MB in the last %d s; the machine was idle for %.0f %% and held "
          "things up for %d ms",
          double(growth) / 1e6, qMax(0, wanted - settled), time.idleShare() * 100,
          time.longestWait());
    QVERIFY(growth < qint64(hadTime ? 30000000 : 100000000)); // frames may wait

    const MovieFile movie(m_path);
    verifyPlayable(movie, length - 0.2, length + 0.2);
    verifySize(int(std::ceil(length)));
    verifyPicture(movie, lateness);
    QVERIFY(qAbs(movie.soundDuration() - movie.duration()) < 0.1);
    verifyInStep(movie, length, hadTime);
}

void TestEngineMovie::verifyPicture(const MovieFile &movie, double lateness) const
{
    const QVector<int> counters = movie.counters();
    QVERIFY(std::is_sorted(counters.begin(), counters.end()));
    double longest = 0;
    for (int i = 1; i < counters.size(); ++i)
        longest = qMax(longest, movie.frames()[i].time - movie.frames()[i - 1].time);
    const double usual = movie.duration() / counters.size();
    qInfo("%d frames, %d missing, one every %.0f ms, %.0f ms at most", int(counters.size()),
          movie.missingFrames(), usual * 1000, longest * 1000);
    if (lateness == 0) {
        QVERIFY(movie.missingFrames() <= qMax(1, counters.size() / 1000));
        QVERIFY(movie.longestRepeat() <= 2);
    }
    QVERIFY(counters.size() > movie.duration() * 5);
    QVERIFY2(longest < 4 * usual + 0.4 + lateness, qPrintable(QString::number(longest)));
}

void TestEngineMovie::verifySize(int length) const
{
    const double size = double(QFileInfo(m_path).size());
    const double rate = movieBitRate({1280, 720}, 30) + soundBitRate;
    qInfo("%.1f MB, of which %.1f for the index; the encoders may take %.1f", size / 1e6,
          indexSize / 1e6, rate * length / 8e6);
    QVERIFY(size < 1.1 * rate * length / 8 + indexSize);
    QVERIFY(size < 300e6);
}

static double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values[values.size() / 2];
}

// Flash against beep; what a viewer notices begins at 40 ms. A busy machine plays and hears a beep
// late now and then: what counts there is where most of them lie, and that it stays so.
void TestEngineMovie::verifyInStep(const MovieFile &movie, double length, bool hadTime) const
{
    const QVector<double> delays = movie.soundDelays();
    QVERIFY2(delays.size() >= int(length / (hadTime ? 2 : 6)) - 1,
             qPrintable(QString::number(delays.size())));
    const int third = qMax(1, delays.size() / 3);
    const double drift = median(delays.mid(delays.size() - third)) - median(delays.mid(0, third));
    const auto range = std::minmax_element(delays.begin(), delays.end());
    qInfo("sound after picture: %.1f ms mostly, drift %.1f ms; %.1f to %.1f ms in between",
          median(delays) * 1000, drift * 1000, *range.first * 1000, *range.second * 1000);
    if (hadTime) {
        QVERIFY(*range.first > -0.04);
        QVERIFY(*range.second < 0.04);
    }
    const double most = hadTime ? 0.04 : 0.08;
    QVERIFY2(qAbs(median(delays)) < most, qPrintable(QString::number(median(delays))));
    QVERIFY2(qAbs(drift) < 2 * most, qPrintable(QString::number(drift)));
}

// What the sound server does not take in time is lost. A beep that lost its begin is heard late, so
// that only an early one tells of sound that was laid down before its time.
void TestEngineMovie::soundStaysInStepWhenSomeOfItIsLost()
{
    begin();
    for (int i = 0; i < 15; ++i) {
        {
            const StoppedServer server("pipewire-pulse");
            QVERIFY(server.isStopped());
            QTest::qWait(350); // nothing to wait for: this long it takes no sound
        }
        QTest::qWait(450); // nothing to wait for: this long it does
    }
    end();
    const MovieFile movie(m_path);
    verifyPlayable(movie, 11.5, 15);
    QVector<double> delays = movie.soundDelays();
    QVERIFY2(delays.size() >= 2, qPrintable(QString::number(delays.size())));
    std::sort(delays.begin(), delays.end());
    qInfo("sound after picture: %.1f to %.1f ms", delays.first() * 1000, delays.last() * 1000);
    QVERIFY2(delays.first() > -0.08, qPrintable(QString::number(delays.first())));
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
    QTest::qWait(700); // nothing to wait for: the movie's length
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
    const SpareTime time;
    m_engine->Record(newPath());
    const QString still = m_folder.filePath("still.png");
    QVERIFY(m_engine->SaveBitmap(still));
    QTest::qWait(1500); // nothing to wait for: the movie's length
    m_engine->RecordStop();
    const MovieFile movie(m_path);
    verifyPlayable(movie, 1.3, 2.2);
    const int photographed = LabPattern::counterOf(QImage(still));
    QVERIFY(photographed > 0);
    QVERIFY(qAbs(movie.frames().first().counter - photographed) <= 5);
    QVERIFY(movie.missingFrames() <= 1 + 30 * time.lateness());
}

void TestEngineMovie::withoutAMicrophoneNothingIsRecorded()
{
    QVERIFY(labctl({"microphone", "off"}));
    QTRY_VERIFY(!m_engine->IsValidAudioDevice());
    m_engine->Record(newPath());
    QVERIFY(m_engine->IsValidVideoDevice());
    QVERIFY(!m_engine->IsValidAudioDevice());
    QTest::qWait(200); // nothing to wait for: a movie that must not begin
    m_engine->RecordStop();
    QVERIFY(!QFile::exists(m_path));
    plugMicrophoneIn();
}

void TestEngineMovie::theMicrophoneIsHeardAlsoWhenALoudspeakerIsTheDefault()
{
    QVERIFY(setDefaultSource("labspeaker.monitor"));
    QTRY_VERIFY(m_engine->IsValidAudioDevice());
    record(3000); // a beep comes every two seconds
    QVERIFY(setDefaultSource("labmic"));
    const MovieFile movie(m_path);
    verifyPlayable(movie, 2.7, 3.5);
    QVERIFY(!movie.tones().isEmpty());
}

void TestEngineMovie::aMicrophonePulledOutLeavesSilence()
{
    const SpareTime time;
    QElapsedTimer timer;
    timer.start();
    m_engine->Record(newPath());
    QTest::qWait(3000); // nothing to wait for: the movie's length so far
    QVERIFY(labctl({"microphone", "off"}));
    const double pulledOut = double(timer.elapsed()) / 1000;
    QTest::qWait(4000); // nothing to wait for: the rest of the movie's length
    m_engine->RecordStop();
    const double length = double(timer.elapsed()) / 1000;
    plugMicrophoneIn();
    const MovieFile movie(m_path);
    verifyPlayable(movie, length - 0.7, length + 0.2);
    QVERIFY2(qAbs(movie.soundDuration() - movie.duration()) < 0.1,
             qPrintable(QString::number(movie.soundDuration())));
    QVERIFY(!movie.tones().isEmpty());
    QVERIFY(movie.tones().last() < pulledOut);
    QVERIFY(movie.missingFrames() <= 2 + 30 * time.lateness());
}

void TestEngineMovie::aCameraPulledOutLeavesTheMovieUntilThen()
{
    const QSignalSpy lost(m_engine.get(), &LiveVideoData::disconnectDevice);
    QElapsedTimer timer;
    timer.start();
    m_engine->Record(newPath());
    QTest::qWait(2000); // nothing to wait for: the movie's length
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
    QTest::qWait(1000); // nothing to wait for: the movie's length
    m_engine->Release();
    verifyPlayable(MovieFile(m_path), 0.7, 1.6);
}

void TestEngineMovie::theEngineCompletesTheMovieWhenItIsDestroyed()
{
    m_engine->Record(newPath());
    QTest::qWait(1000); // nothing to wait for: the movie's length
    m_engine.reset();
    verifyPlayable(MovieFile(m_path), 0.7, 1.6);
}

void TestEngineMovie::aFolderThatCannotBeWrittenIsKnownAfterTheStart()
{
    m_engine->Record(m_folder.filePath("missing/movie.mov"));
    QVERIFY(!m_engine->IsRecording());
    QVERIFY2(m_engine->IsValidVideoDevice(), "the camera is not to blame");
    record(300);
    verifyPlayable(MovieFile(m_path), 0.1, 0.9);
}

void TestEngineMovie::lookAtCamera()
{
    const QString still = m_folder.filePath("look.bmp");
    QVERIFY(m_engine->SaveBitmap(still));
    const int counter = LabPattern::counterOf(QImage(still));
    m_longestStop = qMax(m_longestStop, m_watch.elapsed() - m_changed);
    if (counter != m_newest)
        m_changed = m_watch.elapsed();
    m_newest = counter;
}

void TestEngineMovie::watchCamera(int milliseconds)
{
    m_changed = m_watch.elapsed();
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) {
        lookAtCamera();
        QTest::qWait(1); // nothing to wait for: it is looked at all the time
    }
}

// Nobody can look during the call itself, but the camera must have gone on.
void TestEngineMovie::callAndCountFrames(const char *name, const std::function<void()> &call)
{
    lookAtCamera();
    const int before = m_newest;
    QElapsedTimer timer;
    timer.start();
    call();
    const int took = int(timer.elapsed());
    m_changed = m_watch.elapsed();
    lookAtCamera();
    const int came = m_newest - before;
    qInfo("%s took %d ms, meanwhile %d frames came", name, took, came);
    QVERIFY(came >= (took - longestFreeze) * 30 / 1000);
}

// The newest frame is asked for again and again: it must never be an old one.
void TestEngineMovie::theCameraGoesOnWhileAMovieStartsAndStops()
{
    const SpareTime time;
    m_watch.start();
    callAndCountFrames("the start", [this] { m_engine->Record(newPath()); });
    watchCamera(2000);
    callAndCountFrames("the stop", [this] { m_engine->RecordStop(); });
    watchCamera(1000);
    qInfo("the camera stood still for %d ms at most, the machine for %d ms", int(m_longestStop),
          time.longestWait());
    QVERIFY(m_longestStop <= longestFreeze + 1000 * time.lateness());
}

QTEST_MAIN(TestEngineMovie)
#include "tst_enginemovie.moc"
