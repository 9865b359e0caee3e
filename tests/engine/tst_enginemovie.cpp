#include "LabPattern.h"
#include "MovieProbe.h"
#include "MovieSession.h"
#include "Opening.h"

#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QTest>

#include <functional>

// Short movies of a lab camera.
class TestEngineMovie : public QObject, private MovieSession {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void theFileIsOneThatPlayersCanRead();
    void aMovieStoppedAtOnceIsAMovie();
    void aSecondStartChangesNothing();
    void aSecondStopDoesNothing();
    void twentyMoviesInARowAreAllComplete();
    void aPhotoDuringAMovieIsTakenAndTheMovieGoesOn();
    void aFolderThatCannotBeWrittenIsKnownAfterTheStart();
    void theCameraGoesOnWhileAMovieStartsAndStops();

private:
    void lookAtCamera();
    void watchCamera(int milliseconds);
    void callAndCountFrames(const char *name, const std::function<void()> &call);

    // Of the watched camera.
    QElapsedTimer m_watch;
    int m_newest = -1; ///< its newest frame's number
    qint64 m_changed = 0; ///< ms, when that was first seen
    qint64 m_longestStop = 0; ///< ms
};

static const int longestFreeze = 250; // ms

void TestEngineMovie::initTestCase()
{
    setUpCamera();
}

void TestEngineMovie::init()
{
    open();
}

void TestEngineMovie::cleanup()
{
    m_engine.reset();
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
    QVERIFY(records(*m_engine, newPath()));
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
    QVERIFY(records(*m_engine, newPath()));
    const QString still = m_folder.filePath("still.png");
    QVERIFY(m_engine->SaveBitmap(still));
    QTest::qWait(1500); // nothing to wait for: the movie's length
    m_engine->RecordStop();
    const MovieFile movie(m_path);
    verifyPlayable(movie, 1.3, 2.2);
    const int photographed = LabPattern::counterOf(QImage(still));
    QVERIFY(photographed > 0);
    QVERIFY(qAbs(movie.frames().first().counter - photographed) <= 5);
    QVERIFY(movie.missingFrames() <= 1 + leftOut(movie));
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
    m_watch.start();
    callAndCountFrames("the start", [this] { m_engine->Record(newPath()); });
    watchCamera(2000);
    callAndCountFrames("the stop", [this] { m_engine->RecordStop(); });
    watchCamera(1000);
    qInfo("the camera stood still for %d ms at most; the machine was %.0f ms late",
          int(m_longestStop), 1000 * lateness());
    QVERIFY(m_longestStop <= longestFreeze + 1000 * lateness());
}

QTEST_MAIN(TestEngineMovie)
#include "tst_enginemovie.moc"
