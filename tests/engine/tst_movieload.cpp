#include "GstStart.h"
#include "LabPattern.h"
#include "MovieCompletion.h"
#include "MovieFile.h"
#include "MovieProbe.h"
#include "MovieRecorder.h"
#include "Patience.h"
#include "SpareTime.h"
#include "StandInCamera.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include <phonon/mediaobject.h>
#include <phonon/videoplayer.h>

#include <memory>
#include <vector>

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

namespace {

/// What the machine had no time for at the right moment, in s.
struct Lateness {
    double sound; ///< see StandInCamera::soundLate()
    double end; ///< of the movie, after the camera's
    double encoder; ///< that one of its threads may have waited for a processor; 0 with plenty
};

} // namespace

Q_DECLARE_METATYPE(std::vector<int>)

// Movies whose encoder is too slow for the camera: the movie spans the whole time with all of its
// sound, and the frames that are left out lie evenly between the others.
class TestMovieLoad : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void anEncoderThatIsTooSlowGetsFewerFrames_data();
    void anEncoderThatIsTooSlowGetsFewerFrames();
    void aMovieOfFewFramesPlays();
    void aMovieOfWhichNoFrameCouldBeEncodedLeavesNoFile();
    void aFileThatIsNotCompleteInTimeIsCompletedOnTheSide();

private:
    QString newPath();
    void judge(const QString &path, int rate, int length, const Lateness &late) const;
    void verifySpan(const MovieFile &movie, int rate, double shortest, double longest) const;
    void verifySound(const MovieFile &movie, int rate, int length, double late) const;
    void verifyFrames(const MovieFile &movie, int rate, const Lateness &late) const;

    QTemporaryDir m_folder;
    int m_movies = 0;
};

static const int briefLength = 2; // s
static const milliseconds longestStop(4000); // of a movie with a queue of a second
static const double longestSoundWait = 1; // s, the recorder's, for sound that may be lost or late

static MovieEncoding encodingBehind(const QByteArray &hindrance)
{
    return {hindrance
                + "x264enc tune=zerolatency speed-preset=ultrafast bframes=0 key-int-max=30"
                  " bitrate=1000 ! h264parse",
            "avenc_aac bitrate=128000 aac-ms=0"};
}

// Lets so many percent of the camera's frames through.
static QByteArray slowedTo(int percent, int rate)
{
    return "identity sleep-time=" + QByteArray::number(1000000 * 100 / (rate * percent)) + " ! ";
}

void TestMovieLoad::initTestCase()
{
    qputenv("PHONON_GST_VIDEOMODE", "software");
    QVERIFY(startGstreamer());
}

QString TestMovieLoad::newPath()
{
    return m_folder.filePath(QStringLiteral("movie%1.mov").arg(++m_movies));
}

// A camera and a microphone for @p length seconds, which all the recorders see and hear.
static void show(StandInCamera &camera, double length,
                 const std::vector<std::shared_ptr<MovieRecorder>> &recorders)
{
    camera.send(
        length,
        [&](GstBuffer *frame, GstClockTime captured) {
            for (const auto &recorder : recorders)
                recorder->addFrame(frame, captured);
        },
        [&](const char *samples, qint64 count, GstClockTime captured) {
            for (const auto &recorder : recorders)
                recorder->addSound(samples, count, captured);
        });
    camera.wait();
}

// All of it from @p shortest to @p longest seconds.
void TestMovieLoad::verifySpan(const MovieFile &movie, int rate, double shortest,
                               double longest) const
{
    const double tolerance = 3.0 / rate;
    const auto isOfLength = [&](double length, double most) {
        return length > shortest - most && length < longest + most;
    };
    QVERIFY2(isOfLength(movie.duration(), tolerance),
             qPrintable(QString::number(movie.duration())));
    const MovieProbe probe(movie.path());
    QCOMPARE(probe.complaints(), QString());
    QVERIFY2(isOfLength(probe.videoDuration(), tolerance),
             qPrintable(QString::number(probe.videoDuration())));
    QVERIFY2(isOfLength(probe.soundDuration(), 0.1),
             qPrintable(QString::number(probe.soundDuration())));
}

// Every tone is where it was. When sound was heard is told from when it arrives: nobody could know
// better than by so many seconds that all of it was handed over late, a tone that came in two parts
// may be heard as two, and what is later than the recorder waits for is silence.
void TestMovieLoad::verifySound(const MovieFile &movie, int rate, int length, double late) const
{
    const double beat = double(LabPattern::beatFrames) / rate;
    if (late > 0.9 * longestSoundWait)
        return;
    QSet<int> heard;
    for (const double tone : movie.tones()) {
        const int nearest = qRound(tone / beat);
        QVERIFY2(qAbs(tone - nearest * beat) < 0.04 + late, qPrintable(QString::number(tone)));
        QVERIFY(late > 0.04 || !heard.contains(nearest));
        heard.insert(nearest);
    }
    QCOMPARE(heard.size(), qRound(length / beat));
}

// Every frame is shown when it was taken, the last one again at the end, and none for much longer
// than the others, but for what the encoder was late.
void TestMovieLoad::verifyFrames(const MovieFile &movie, int rate, const Lateness &late) const
{
    const QVector<MovieFile::Frame> &frames = movie.frames();
    QVERIFY(!movie.counters().contains(-1));
    QVERIFY(frames.size() >= 2);
    double longest = 0;
    for (int i = 0; i < frames.size(); ++i) {
        const double taken = double(frames[i].counter) / rate;
        const double end = i + 1 < frames.size() ? 0 : late.end;
        QVERIFY2(qAbs(frames[i].time - taken) < 2.0 / rate + end,
                 qPrintable(
                     QStringLiteral("frame %1 at %2").arg(frames[i].counter).arg(frames[i].time)));
        if (i > 0)
            longest = qMax(longest, frames[i].time - frames[i - 1].time);
    }
    const double usual = (frames.last().time - frames.first().time) / (frames.size() - 1);
    qInfo("%d frames, one every %.0f ms, %.0f ms at most", int(frames.size()), usual * 1000,
          longest * 1000);
    QVERIFY2(longest < 4 * usual + 2.0 / rate + late.encoder, qPrintable(QString::number(longest)));
}

void TestMovieLoad::judge(const QString &path, int rate, int length, const Lateness &late) const
{
    const MovieFile movie(path);
    verifySpan(movie, rate, length, length + late.end);
    verifySound(movie, rate, length, late.sound);
    verifyFrames(movie, rate, late);
}

void TestMovieLoad::anEncoderThatIsTooSlowGetsFewerFrames_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("length"); // s; three beats or more
    QTest::addColumn<std::vector<int>>("percents"); // of the frames that the encoder has time for
    QTest::newRow("small") << QSize(640, 480) << 30 << 6 << std::vector<int>{10, 25, 50};
    QTest::newRow("Full HD") << QSize(1920, 1080) << 30 << 6 << std::vector<int>{25, 50};
    QTest::newRow("Full HD, very slow") << QSize(1920, 1080) << 30 << 6 << std::vector<int>{10};
    QTest::newRow("60 frames a second")
        << QSize(640, 480) << 60 << 4 << std::vector<int>{10, 25, 50};
}

// Encoders beside each other, as they spend their time waiting.
void TestMovieLoad::anEncoderThatIsTooSlowGetsFewerFrames()
{
    QFETCH(QSize, size);
    QFETCH(int, rate);
    QFETCH(int, length);
    QFETCH(std::vector<int>, percents);
    StandInCamera camera(size, rate);
    QStringList paths;
    std::vector<std::shared_ptr<MovieRecorder>> recorders;
    for (const int percent : percents) {
        paths.append(newPath());
        recorders.push_back(MovieRecorder::start(paths.last(), camera.format(),
                                                 encodingBehind(slowedTo(percent, rate))));
        QVERIFY(recorders.back());
    }
    const SpareTime time;
    show(camera, length, recorders);
    // All at the same moment, which is the end of each movie.
    for (const auto &recorder : recorders)
        recorder->finish(milliseconds(0));
    const Lateness late{camera.soundLate(), camera.sinceEnd(),
                        time.isPlenty() ? 0 : double(time.longestWait()) / 1000};
    QVERIFY2(MovieCompletion::waitForAll(steady_clock::now() + longestStop),
             "the queue was too long");
    qInfo("handing over a frame took %.1f ms at most, sound was %.0f ms late, the end %.0f ms",
          double(camera.longestCall()) / 1e6, late.sound * 1000, late.end * 1000);
    for (std::size_t i = 0; i < percents.size() && !QTest::currentTestFailed(); ++i) {
        qInfo("an encoder for %d %% of the frames:", percents[i]);
        judge(paths.at(int(i)), rate, length, late);
    }
}

void TestMovieLoad::aMovieOfFewFramesPlays()
{
    StandInCamera camera({640, 480}, 30);
    const QString path = newPath();
    const std::shared_ptr<MovieRecorder> recorder =
        MovieRecorder::start(path, camera.format(), encodingBehind(slowedTo(5, 30)));
    QVERIFY(recorder);
    show(camera, briefLength, {recorder});
    recorder->finish(seconds(5));
    QVERIFY(MovieCompletion::waitForAll(steady_clock::now() + milliseconds(patience)));
    const double longest = briefLength + camera.sinceEnd();
    Phonon::VideoPlayer player(Phonon::VideoCategory);
    player.resize(320, 180);
    player.show();
    player.play(Phonon::MediaSource(QUrl::fromLocalFile(path)));
    QTRY_VERIFY_WITH_TIMEOUT(player.isPlaying() && player.totalTime() > 0, 20000);
    const double told = double(player.totalTime()) / 1000;
    QVERIFY2(told > briefLength - 0.2 && told < longest + 0.2, qPrintable(QString::number(told)));
    const qint64 middle = player.totalTime() / 2;
    player.seek(middle);
    QTRY_VERIFY_WITH_TIMEOUT(player.currentTime() >= middle - 1000 && player.currentTime() > 0,
                             20000);
    QTRY_VERIFY_WITH_TIMEOUT(!player.isPlaying(), 20000);
}

void TestMovieLoad::aMovieOfWhichNoFrameCouldBeEncodedLeavesNoFile()
{
    StandInCamera camera({640, 480}, 30);
    const QString path = newPath();
    const std::shared_ptr<MovieRecorder> recorder = MovieRecorder::start(
        path, camera.format(), encodingBehind("identity drop-probability=1 ! "));
    QVERIFY(recorder);
    show(camera, 0.5, {recorder});
    QVERIFY(QFile::exists(path));
    recorder->finish(seconds(5));
    QTRY_VERIFY(!QFile::exists(path));
}

void TestMovieLoad::aFileThatIsNotCompleteInTimeIsCompletedOnTheSide()
{
    StandInCamera camera({640, 480}, 30);
    const QString path = newPath();
    const std::shared_ptr<MovieRecorder> recorder =
        MovieRecorder::start(path, camera.format(), encodingBehind(slowedTo(10, 30)));
    QVERIFY(recorder);
    show(camera, briefLength, {recorder});
    QVERIFY(!recorder->finish(milliseconds(1)));
    const double late = camera.sinceEnd();
    QVERIFY(MovieCompletion::waitForAll(steady_clock::now() + seconds(30)));
    verifySpan(MovieFile(path), 30, briefLength, briefLength + late);
}

QTEST_MAIN(TestMovieLoad)
#include "tst_movieload.moc"
