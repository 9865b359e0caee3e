#include "MovieSession.h"

#include "LabCommands.h"
#include "MovieProbe.h"
#include "Opening.h"
#include "Patience.h"

#include <QElapsedTimer>
#include <QFile>

void MovieSession::setUpCamera(const QString &size)
{
    m_size = size;
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    QVERIFY(labctl({"plug", "beeper", m_size, "--beep", "micfeed"}));
    // A source behind the sound server's back, which nobody must ask.
    QFile soundSystem(m_folder.filePath("asound.conf"));
    QVERIFY(soundSystem.open(QIODevice::WriteOnly)
            && soundSystem.write("pcm.!default { type null }\n") > 0);
    qputenv("ALSA_CONFIG_PATH", QFile::encodeName(soundSystem.fileName()));
}

void MovieSession::open()
{
    m_time = std::make_unique<SpareTime>();
    m_engine = std::make_unique<LiveVideoData>();
    QTRY_COMPARE(m_engine->GetVideoDeviceList(), QStringList{"beeper"});
    QVERIFY(opens(*m_engine));
    QTRY_VERIFY(m_engine->IsValidVideoDevice());
    QTRY_VERIFY(m_engine->IsValidAudioDevice());
}

QString MovieSession::newPath()
{
    m_path = m_folder.filePath(QStringLiteral("movie%1.mov").arg(++m_movies));
    return m_path;
}

void MovieSession::plugMicrophoneIn()
{
    m_engine.reset();
    QVERIFY(labctl({"microphone", "on"}));
    QVERIFY(labctl({"unplug", "beeper"}));
    QVERIFY(labctl({"plug", "beeper", m_size, "--beep", "micfeed"}));
}

void MovieSession::begin()
{
    newPath();
    QElapsedTimer timer;
    QVERIFY(doesPatiently([&] {
        timer.start();
        m_engine->Record(m_path);
        return m_engine->IsRecording();
    }));
    QVERIFY2(double(timer.elapsed()) < 3000 + 1000 * lateness(),
             qPrintable(QString::number(timer.elapsed())));
    QVERIFY(m_engine->IsValidVideoDevice());
    QVERIFY(m_engine->IsValidAudioDevice());
}

void MovieSession::end()
{
    QElapsedTimer timer;
    timer.start();
    m_engine->RecordStop();
    QVERIFY2(double(timer.elapsed()) < 5000 + 1000 * lateness(),
             qPrintable(QString::number(timer.elapsed())));
}

void MovieSession::record(int milliseconds)
{
    begin();
    QElapsedTimer timer;
    timer.start();
    QTest::qWait(milliseconds); // nothing to wait for: the movie's length
    QVERIFY(double(timer.elapsed()) < milliseconds + 1000 * (1 + lateness()));
    end();
}

void MovieSession::verifyPlayable(const MovieFile &movie, double from, double to) const
{
    QVERIFY2(movie.complaints().isEmpty(), qPrintable(movie.complaints().join('\n')));
    QVERIFY2(movie.duration() >= from - lateness() && movie.duration() <= to + lateness(),
             qPrintable(QString::number(movie.duration())));
    const MovieProbe probe(movie.path());
    QCOMPARE(probe.complaints(), QString());
    QCOMPARE(probe.frames(), movie.frames().size());
    QVERIFY2(qAbs(probe.duration() - movie.duration()) < 0.1,
             qPrintable(QString::number(probe.duration())));
    QVERIFY(!movie.frames().isEmpty());
    QVERIFY(!movie.counters().contains(-1));
    QVERIFY(qAbs(movie.frames().last().time - movie.duration()) < 0.1 + lateness());
}
