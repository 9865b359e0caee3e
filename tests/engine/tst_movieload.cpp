#include "GstStart.h"
#include "LabPattern.h"
#include "MovieCompletion.h"
#include "MovieFile.h"
#include "MovieProbe.h"
#include "MovieRecorder.h"
#include "StandInCamera.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <phonon/mediaobject.h>
#include <phonon/videoplayer.h>

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

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
    MovieFile record(const QByteArray &hindrance, QSize size, int rate);
    void verifySpan(const MovieFile &movie, int rate) const;
    void verifySound(const MovieFile &movie, int rate) const;
    void verifyFrames(const MovieFile &movie, int rate) const;

    QTemporaryDir m_folder;
    int m_movies = 0;
    qint64 m_stop = 0; ///< ms that the last stop took
};

static const int length = 6; // s

static MovieEncoding encodingBehind(const QByteArray &hindrance)
{
    return {hindrance
                + "x264enc tune=zerolatency speed-preset=ultrafast bframes=0 key-int-max=30"
                  " bitrate=1000 ! h264parse",
            "avenc_aac bitrate=128000"};
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

MovieFile TestMovieLoad::record(const QByteArray &hindrance, QSize size, int rate)
{
    StandInCamera camera(size, rate);
    const QString path = newPath();
    const std::shared_ptr<MovieRecorder> recorder =
        MovieRecorder::start(path, camera.format(), encodingBehind(hindrance));
    if (!recorder)
        return MovieFile(path);
    camera.send(
        length,
        [&](GstBuffer *frame, GstClockTime captured) { recorder->addFrame(frame, captured); },
        [&](const char *samples, qint64 count, GstClockTime captured) {
            recorder->addSound(samples, count, captured);
        });
    camera.wait();
    QElapsedTimer timer;
    timer.start();
    recorder->finish(seconds(5));
    m_stop = timer.elapsed();
    qInfo("the stop took %lld ms, handing over a frame %.1f ms at most", m_stop,
          double(camera.longestCall()) / 1e6);
    return MovieFile(path);
}

void TestMovieLoad::verifySpan(const MovieFile &movie, int rate) const
{
    const double tolerance = 3.0 / rate;
    QVERIFY2(qAbs(movie.duration() - length) < tolerance,
             qPrintable(QString::number(movie.duration())));
    const MovieProbe probe(movie.path());
    QCOMPARE(probe.complaints(), QString());
    QVERIFY2(qAbs(probe.videoDuration() - length) < tolerance,
             qPrintable(QString::number(probe.videoDuration())));
    QVERIFY2(qAbs(probe.soundDuration() - length) < 0.1,
             qPrintable(QString::number(probe.soundDuration())));
}

// Every tone is where it was.
void TestMovieLoad::verifySound(const MovieFile &movie, int rate) const
{
    const double beat = double(LabPattern::beatFrames) / rate;
    QCOMPARE(movie.tones().size(), qRound(length / beat));
    for (int i = 0; i < movie.tones().size(); ++i)
        QVERIFY2(qAbs(movie.tones().at(i) - i * beat) < 0.04,
                 qPrintable(QString::number(movie.tones().at(i))));
}

// Every frame is shown when it was taken, and none for much longer than the others.
void TestMovieLoad::verifyFrames(const MovieFile &movie, int rate) const
{
    const QVector<MovieFile::Frame> &frames = movie.frames();
    QVERIFY(!movie.counters().contains(-1));
    QVERIFY(frames.size() >= 2);
    double longest = 0;
    for (int i = 0; i < frames.size(); ++i) {
        const double taken = double(frames[i].counter) / rate;
        QVERIFY2(qAbs(frames[i].time - taken) < 2.0 / rate,
                 qPrintable(
                     QStringLiteral("frame %1 at %2").arg(frames[i].counter).arg(frames[i].time)));
        if (i > 0)
            longest = qMax(longest, frames[i].time - frames[i - 1].time);
    }
    const double usual = (frames.last().time - frames.first().time) / (frames.size() - 1);
    qInfo("%d frames, one every %.0f ms, %.0f ms at most", int(frames.size()), usual * 1000,
          longest * 1000);
    QVERIFY2(longest < 3 * usual + 2.0 / rate, qPrintable(QString::number(longest)));
}

void TestMovieLoad::anEncoderThatIsTooSlowGetsFewerFrames_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("percent"); // of the frames that the encoder has time for
    for (const QSize size : {QSize(640, 480), QSize(1920, 1080)})
        for (const int percent : {10, 25, 50})
            QTest::addRow("%dx%d, %d %%", size.width(), size.height(), percent)
                << size << 30 << percent;
    for (const int percent : {10, 25, 50})
        QTest::addRow("60 frames a second, %d %%", percent) << QSize(640, 480) << 60 << percent;
}

void TestMovieLoad::anEncoderThatIsTooSlowGetsFewerFrames()
{
    QFETCH(QSize, size);
    QFETCH(int, rate);
    QFETCH(int, percent);
    const MovieFile movie = record(slowedTo(percent, rate), size, rate);
    verifySpan(movie, rate);
    verifySound(movie, rate);
    verifyFrames(movie, rate);
    QVERIFY2(m_stop < 4000, "the queue was too long");
}

void TestMovieLoad::aMovieOfFewFramesPlays()
{
    const MovieFile movie = record(slowedTo(5, 30), {640, 480}, 30);
    Phonon::VideoPlayer player(Phonon::VideoCategory);
    player.resize(320, 180);
    player.show();
    player.play(Phonon::MediaSource(QUrl::fromLocalFile(movie.path())));
    QTRY_VERIFY_WITH_TIMEOUT(player.isPlaying() && player.totalTime() > 0, 20000);
    QVERIFY(qAbs(double(player.totalTime()) / 1000 - length) < 0.2);
    player.seek(3000);
    QTRY_VERIFY_WITH_TIMEOUT(player.currentTime() >= 2000, 20000);
    QTRY_VERIFY_WITH_TIMEOUT(!player.isPlaying(), 20000);
}

void TestMovieLoad::aMovieOfWhichNoFrameCouldBeEncodedLeavesNoFile()
{
    StandInCamera camera({640, 480}, 30);
    const QString path = newPath();
    const std::shared_ptr<MovieRecorder> recorder = MovieRecorder::start(
        path, camera.format(), encodingBehind("identity drop-probability=1 ! "));
    QVERIFY(recorder);
    camera.send(
        0.5, [&](GstBuffer *frame, GstClockTime captured) { recorder->addFrame(frame, captured); },
        [&](const char *samples, qint64 count, GstClockTime captured) {
            recorder->addSound(samples, count, captured);
        });
    camera.wait();
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
    camera.send(
        length,
        [&](GstBuffer *frame, GstClockTime captured) { recorder->addFrame(frame, captured); },
        [&](const char *samples, qint64 count, GstClockTime captured) {
            recorder->addSound(samples, count, captured);
        });
    camera.wait();
    QVERIFY(!recorder->finish(milliseconds(1)));
    QVERIFY(MovieCompletion::waitForAll(steady_clock::now() + seconds(30)));
    verifySpan(MovieFile(path), 30);
}

QTEST_MAIN(TestMovieLoad)
#include "tst_movieload.moc"
