#include "LabCommands.h"
#include "LiveVideoData.h"
#include "MovieFile.h"
#include "MovieProbe.h"
#include "Opening.h"
#include "Patience.h"
#include "SpareTime.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>

// Movies of all kinds of cameras: fast, slow, compressed, falling silent.
class TestMovieCameras : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void everyCameraMakesAMovie_data();
    void everyCameraMakesAMovie();
    void aCameraThatSlowsDownInTheDarkMakesAMovie();
    void aMovieWithoutAPictureLeavesNoFile();
    void aMovieThatIsRefusedLeavesNothingBehind();

private:
    void plug(const QStringList &options);
    double record(int milliseconds);
    void verifySpan(const MovieFile &movie, double length, int rate) const;

    QTemporaryDir m_folder;
    QString m_path;
    std::unique_ptr<LiveVideoData> m_engine;
    double m_lateness = 0; ///< s, that the machine may be to blame for, see SpareTime
};

void TestMovieCameras::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    m_path = m_folder.filePath("movie.mov");
}

void TestMovieCameras::cleanup()
{
    m_engine.reset();
    labctl({"unplug", "camera"});
    QFile::remove(m_path);
}

void TestMovieCameras::plug(const QStringList &options)
{
    QVERIFY(labctl(QStringList{"plug", "camera"} + options + QStringList{"--beep", "micfeed"}));
    m_engine = std::make_unique<LiveVideoData>();
    QTRY_COMPARE(m_engine->GetVideoDeviceList(), QStringList{"camera"});
    QVERIFY(opens(*m_engine));
    QTRY_VERIFY(m_engine->IsValidAudioDevice());
}

// How long the movie should be, in s.
double TestMovieCameras::record(int milliseconds)
{
    const SpareTime time;
    if (!records(*m_engine, m_path))
        return -1;
    QElapsedTimer timer;
    timer.start();
    QTest::qWait(milliseconds); // nothing to wait for: the movie's length
    const double length = double(timer.elapsed()) / 1000;
    m_engine->RecordStop();
    m_lateness = time.lateness();
    return length;
}

void TestMovieCameras::verifySpan(const MovieFile &movie, double length, int rate) const
{
    QVERIFY(length > 0);
    const MovieProbe probe(movie.path());
    QCOMPARE(probe.complaints(), QString());
    // From the first frame on, which may just have been missed.
    QVERIFY2(probe.duration() > length - 2.5 / rate - 0.1 - m_lateness
                 && probe.duration() < length + 1.5 / rate + 0.1 + m_lateness,
             qPrintable(QStringLiteral("%1 of %2").arg(probe.duration()).arg(length)));
    QVERIFY2(qAbs(movie.soundDuration() - movie.duration()) < 0.1,
             qPrintable(QString::number(movie.soundDuration())));
    QVERIFY(!movie.counters().contains(-1));
}

void TestMovieCameras::everyCameraMakesAMovie_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<int>("rate");
    for (const int rate : {10, 15, 25, 60})
        QTest::addRow("%d frames a second", rate)
            << QStringList{"640x480", "--rate", QString::number(rate)} << rate;
    QTest::newRow("MJPEG") << QStringList{"1280x720", "--format", "MJPG"} << 30;
}

void TestMovieCameras::everyCameraMakesAMovie()
{
    QFETCH(QStringList, options);
    QFETCH(int, rate);
    plug(options);
    // Long enough for a marked frame, with its tone, and something on both sides of it.
    const double length = record(qMax(5000, 70000 / rate));
    const MovieFile movie(m_path);
    verifySpan(movie, length, rate);
    const int frames = movie.frames().size();
    qInfo("%d frames, %d missing", frames, movie.missingFrames());
    // All of them, unless the machine has too much to do; then the servers lose sound, too.
    const bool hadTime = m_lateness == 0;
    QVERIFY2(frames > length * rate * (hadTime ? 0.4 : 0.1), qPrintable(QString::number(frames)));
    QVector<double> delays = movie.soundDelays();
    QVERIFY(!hadTime || !movie.tones().isEmpty());
    if (!delays.isEmpty()) { // the marked frame may have been left out
        std::sort(delays.begin(), delays.end());
        const double usual = delays[delays.size() / 2];
        QVERIFY2(qAbs(usual) < 0.12 + 0.5 / rate + m_lateness, qPrintable(QString::number(usual)));
    }
}

void TestMovieCameras::aCameraThatSlowsDownInTheDarkMakesAMovie()
{
    plug({"640x480", "--dims-to", "10"});
    const double length = record(6000);
    const MovieFile movie(m_path);
    verifySpan(movie, length, 10);
    const QVector<MovieFile::Frame> &frames = movie.frames();
    QVERIFY(frames.size() > 20);
    const double first = frames[1].time - frames[0].time;
    double longest = 0;
    for (int i = 1; i < frames.size(); ++i)
        longest = qMax(longest, frames[i].time - frames[i - 1].time);
    qInfo("%d frames, %.0f ms at first, %.0f ms at most", int(frames.size()), first * 1000,
          longest * 1000);
    QVERIFY2(longest > 0.09, "the camera did not slow down");
    QVERIFY2(longest < 0.5, qPrintable(QString::number(longest)));
}

void TestMovieCameras::aMovieWithoutAPictureLeavesNoFile()
{
    plug({"640x480"});
    QVERIFY(labctl({"freeze", "camera"}));
    QVERIFY(records(*m_engine, m_path));
    const SpareTime spare;
    QElapsedTimer timer;
    timer.start();
    m_engine->RecordStop();
    QVERIFY2(double(timer.elapsed()) < 2500 + 1000 * spare.lateness(),
             qPrintable(QString::number(timer.elapsed())));
    QVERIFY(!QFile::exists(m_path));
    QVERIFY(!m_engine->IsRecording());
}

void TestMovieCameras::aMovieThatIsRefusedLeavesNothingBehind()
{
    plug({"640x480"});
    m_engine->Record(m_folder.filePath("missing/movie.mov"));
    QVERIFY(!m_engine->IsRecording());
    QVERIFY(m_engine->IsValidVideoDevice());
    QVERIFY(m_engine->IsValidAudioDevice());
    QVERIFY(m_engine->created);
    m_engine->RecordStop();
    m_engine->Release();
    QVERIFY(opens(*m_engine));
    const double length = record(1000);
    verifySpan(MovieFile(m_path), length, 30);
}

QTEST_MAIN(TestMovieCameras)
#include "tst_moviecameras.moc"
