#include "LiveVideoData.h"
#include "MovieFile.h"
#include "MovieProbe.h"
#include "Opening.h"
#include "Patience.h"
#include "SpareTime.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <cmath>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int rate = 48000;
constexpr int blockSamples = rate / 100;

// A tone without end, as fast as it would be played; what nobody reads is lost. In 16 bits stereo.
class Tone : public QThread {
public:
    explicit Tone(const QString &pipe)
        // For reading too, so that it opens, and stays open, without a reader.
        : m_pipe(::open(QFile::encodeName(pipe).constData(), O_RDWR | O_NONBLOCK))
    {
        for (int i = 0; i < blockSamples; ++i) {
            const auto sample = qint16(12000 * std::sin(2 * M_PI * 1000 * i / rate));
            for (int channel = 0; channel < 2; ++channel)
                m_block.append(reinterpret_cast<const char *>(&sample), sizeof(sample));
        }
    }

    ~Tone() override
    {
        quit();
        wait();
        ::close(m_pipe);
    }

    Q_DISABLE_COPY(Tone)

protected:
    void run() override
    {
        QElapsedTimer clock;
        clock.start();
        qint64 sent = 0; // samples
        QTimer timer;
        timer.setTimerType(Qt::PreciseTimer);
        connect(&timer, &QTimer::timeout, &timer, [&] {
            for (; sent < clock.elapsed() * rate / 1000; sent += blockSamples)
                m_lost += ::write(m_pipe, m_block.constData(), size_t(m_block.size())) < 0;
        });
        timer.start(10);
        exec();
    }

private:
    const int m_pipe;
    QByteArray m_block;
    int m_lost = 0; ///< blocks
};

} // namespace

// A machine with a media server for its camera but no sound server: its microphone is the sound
// system's default source. Here that is a pipe, which is there or not.
class TestNoSoundServer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void aSoundCardThatCannotBeOpenedIsNoMicrophone();
    void aSoundCardPluggedInLaterIsNoticedAndHeard();
    void everyPipelineCanBeLookedAt();
    void aSoundCardPulledOutIsNoticed();

private:
    void describeSoundCard(const QByteArray &source);
    void plugIn();
    void pullOut();

    QTemporaryDir m_folder;
    std::unique_ptr<Tone> m_tone;
    std::unique_ptr<LiveVideoData> m_engine;
};

void TestNoSoundServer::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    QVERIFY(QDir(m_folder.path()).mkdir("graphs"));
    qputenv("GST_DEBUG_DUMP_DOT_DIR", QFile::encodeName(m_folder.filePath("graphs")));
    qputenv("ALSA_CONFIG_PATH", QFile::encodeName(m_folder.filePath("asound.conf")));
    pullOut();
    const QString pipe = m_folder.filePath("tone");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    m_tone = std::make_unique<Tone>(pipe);
    m_tone->start();
    m_engine = std::make_unique<LiveVideoData>();
    QVERIFY(opens(*m_engine));
    QTRY_VERIFY(m_engine->IsValidVideoDevice());
}

void TestNoSoundServer::cleanupTestCase()
{
    m_engine.reset();
    m_tone.reset();
}

// A new file each time: the sound system reads it again when it is another one.
void TestNoSoundServer::describeSoundCard(const QByteArray &source)
{
    QFile file(m_folder.filePath("new.conf"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("pcm.!default { " + source + " }\n") > 0);
    file.close();
    QFile::remove(m_folder.filePath("asound.conf"));
    QVERIFY(file.rename(m_folder.filePath("asound.conf")));
}

void TestNoSoundServer::plugIn()
{
    describeSoundCard("type file slave.pcm { type null } file /dev/null format raw infile \""
                      + QFile::encodeName(m_folder.filePath("tone")) + "\"");
}

void TestNoSoundServer::pullOut()
{
    describeSoundCard("type hw card 31");
}

void TestNoSoundServer::aSoundCardThatCannotBeOpenedIsNoMicrophone()
{
    const QString path = m_folder.filePath("none.mov");
    QVERIFY(!m_engine->IsValidAudioDevice());
    m_engine->Record(path);
    QVERIFY(m_engine->IsValidVideoDevice());
    QVERIFY(!m_engine->IsValidAudioDevice());
    QVERIFY(!QFile::exists(path));
    m_engine->RecordStop();
    QVERIFY(!QFile::exists(path));
}

void TestNoSoundServer::aSoundCardPluggedInLaterIsNoticedAndHeard()
{
    plugIn();
    QTRY_VERIFY(m_engine->IsValidAudioDevice());
    const SpareTime spare;
    const QString path = m_folder.filePath("heard.mov");
    QVERIFY(records(*m_engine, path));
    QVERIFY(m_engine->IsValidVideoDevice());
    QVERIFY(m_engine->IsValidAudioDevice());
    QTest::qWait(3000); // nothing to wait for: the movie's length
    QVERIFY2(m_engine->IsValidAudioDevice(), "a card that is listened to is there");
    m_engine->RecordStop();

    const MovieFile movie(path);
    QVERIFY2(movie.complaints().isEmpty(), qPrintable(movie.complaints().join('\n')));
    QCOMPARE(MovieProbe(path).complaints(), QString());
    QVERIFY2(movie.duration() > 2.7 && movie.duration() < 3.5 + spare.lateness(),
             qPrintable(QString::number(movie.duration())));
    QVERIFY(qAbs(movie.soundDuration() - movie.duration()) < 0.1);
    QVERIFY(!movie.tones().isEmpty());
    QVERIFY2(movie.tones().first() < 0.5, qPrintable(QString::number(movie.tones().first())));
    // What the sound system lost while nobody had time to fetch it is silence.
    QVERIFY2(movie.loudness() > (spare.isPlenty() ? 0.8 : 0.4),
             qPrintable(QString::number(movie.loudness())));
}

// By what the tests before have left.
void TestNoSoundServer::everyPipelineCanBeLookedAt()
{
    const QDir graphs(m_folder.filePath("graphs"));
    for (const char *pipeline : {"camera-playing", "microphone-playing", "microphone-end",
                                 "movie-playing", "movie-end", "trial-end"})
        QVERIFY2(!graphs.entryList({QStringLiteral("*-%1.dot").arg(pipeline)}).isEmpty(), pipeline);
}

void TestNoSoundServer::aSoundCardPulledOutIsNoticed()
{
    pullOut();
    QTRY_VERIFY(!m_engine->IsValidAudioDevice());
    // Asked all the time it is not tried all the time.
    const SpareTime spare;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 50; ++i)
        QVERIFY(!m_engine->IsValidAudioDevice());
    QVERIFY2(double(timer.elapsed()) < 1000 + 1000 * spare.lateness(),
             qPrintable(QString::number(timer.elapsed())));
}

QTEST_MAIN(TestNoSoundServer)
#include "tst_nosoundserver.moc"
