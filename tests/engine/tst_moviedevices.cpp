#include "LabCommands.h"
#include "MovieSession.h"
#include "Opening.h"
#include "Patience.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>

#include <algorithm>

// What camera and microphone do to a movie when they go in the middle of it, or were never there.
class TestMovieDevices : public QObject, private MovieSession {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void soundStaysInStepWhenSomeOfItIsLost();
    void withoutAMicrophoneNothingIsRecorded();
    void theMicrophoneIsHeardAlsoWhenALoudspeakerIsTheDefault();
    void aMicrophonePulledOutLeavesSilence();
    void aCameraPulledOutLeavesTheMovieUntilThen();
    void closingTheCameraCompletesTheMovie();
    void theEngineCompletesTheMovieWhenItIsDestroyed();
};

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

void TestMovieDevices::initTestCase()
{
    setUpCamera();
}

void TestMovieDevices::init()
{
    open();
}

void TestMovieDevices::cleanup()
{
    m_engine.reset();
}

// What the sound server does not take in time is lost. A beep that lost its begin is heard late, so
// that only an early one tells of sound that was laid down before its time.
void TestMovieDevices::soundStaysInStepWhenSomeOfItIsLost()
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

void TestMovieDevices::withoutAMicrophoneNothingIsRecorded()
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

void TestMovieDevices::theMicrophoneIsHeardAlsoWhenALoudspeakerIsTheDefault()
{
    QVERIFY(setDefaultSource("labspeaker.monitor"));
    QTRY_VERIFY(m_engine->IsValidAudioDevice());
    record(3000); // a beep comes every two seconds
    QVERIFY(setDefaultSource("labmic"));
    const MovieFile movie(m_path);
    verifyPlayable(movie, 2.7, 3.5);
    QVERIFY(!movie.tones().isEmpty());
}

void TestMovieDevices::aMicrophonePulledOutLeavesSilence()
{
    QElapsedTimer timer;
    QVERIFY(doesPatiently([&] {
        timer.start();
        m_engine->Record(newPath());
        return m_engine->IsRecording();
    }));
    const double begun = double(timer.elapsed()) / 1000;
    QTest::qWait(3000); // nothing to wait for: the movie's length so far
    QVERIFY(labctl({"microphone", "off"}));
    const double pulledOut = double(timer.elapsed()) / 1000;
    QTest::qWait(2000); // nothing to wait for: the rest of the movie's length
    const double asked = double(timer.elapsed()) / 1000;
    m_engine->RecordStop();
    const double ended = double(timer.elapsed()) / 1000;
    plugMicrophoneIn();
    const MovieFile movie(m_path);
    qInfo("%.2f s in the movie, %.2f from its start to its end", movie.duration(), asked - begun);
    verifyPlayable(movie, asked - begun - 0.2, ended + 0.2);
    QVERIFY2(qAbs(movie.soundDuration() - movie.duration()) < 0.1,
             qPrintable(QString::number(movie.soundDuration())));
    QVERIFY(!movie.tones().isEmpty());
    QVERIFY(movie.tones().last() < pulledOut);
    QVERIFY(movie.missingFrames() <= 2 + leftOut(movie));
}

void TestMovieDevices::aCameraPulledOutLeavesTheMovieUntilThen()
{
    const QSignalSpy lost(m_engine.get(), &LiveVideoData::disconnectDevice);
    QElapsedTimer timer;
    QVERIFY(doesPatiently([&] {
        timer.start();
        m_engine->Record(newPath());
        return m_engine->IsRecording();
    }));
    const double begun = double(timer.elapsed()) / 1000;
    QTest::qWait(2000); // nothing to wait for: the movie's length
    const double pulled = double(timer.elapsed()) / 1000;
    QVERIFY(labctl({"unplug", "beeper"}));
    QTRY_COMPARE(lost.count(), 1);
    const MovieFile movie(m_path);
    verifyPlayable(movie, pulled - begun - 0.2, double(timer.elapsed()) / 1000 + 0.2);
    QVERIFY(!m_engine->IsValidVideoDevice());
    m_engine->Release();
    QVERIFY(labctl({"plug", "beeper", "1280x720", "--beep", "micfeed"}));
}

void TestMovieDevices::closingTheCameraCompletesTheMovie()
{
    QVERIFY(records(*m_engine, newPath()));
    QTest::qWait(1000); // nothing to wait for: the movie's length
    m_engine->Release();
    verifyPlayable(MovieFile(m_path), 0.7, 1.6);
}

void TestMovieDevices::theEngineCompletesTheMovieWhenItIsDestroyed()
{
    QVERIFY(records(*m_engine, newPath()));
    QTest::qWait(1000); // nothing to wait for: the movie's length
    m_engine.reset();
    verifyPlayable(MovieFile(m_path), 0.7, 1.6);
}

QTEST_MAIN(TestMovieDevices)
#include "tst_moviedevices.moc"
