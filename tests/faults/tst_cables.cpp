#include "FaultTrial.h"
#include "LabCommands.h"
#include "LiveVideoData.h"
#include "MovieProbe.h"
#include "Opening.h"
#include "Patience.h"
#include "SpareTime.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFrame>
#include <QImage>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <memory>
#include <thread>

/// Cables that are pulled and put back at any moment, cameras of any size and pace, and a
/// microphone that goes, falls silent or is another one.
class TestCables : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aCameraMayGoAndComeAtAnyMoment();
    void aCameraMayHaveAnySizeAndPace();
    void aMicrophoneMayChangeInAMovie();

private:
    void plug(const QString &size = "640x480", const QStringList &options = {});
    bool pullInUse(FaultTrial &trial);
    bool pullWhileItOpens(FaultTrial &trial);
    void doAnything(FaultTrial &trial, LiveVideoData &engine);
    void verifyCaptures();
    void changeMicrophone(int how);

    QTemporaryDir m_folder;
    QFrame m_target;
    std::unique_ptr<LiveVideoData> m_engine;
    QStringList m_photos; // that were promised
    QString m_movie; // that was begun
    qint64 m_movieLength = 0; // ms
    QElapsedTimer m_sinceMovie;
    bool m_isSaved = true; // as the engine said of the photo
};

void TestCables::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    m_target.resize(320, 240);
    m_target.show();
}

void TestCables::init()
{
    m_engine = std::make_unique<LiveVideoData>();
    m_engine->SetTarget(&m_target);
}

void TestCables::cleanup()
{
    m_engine.reset();
    labctl({"unplug", "camera"});
}

void TestCables::plug(const QString &size, const QStringList &options)
{
    QVERIFY(labctl(QStringList{"plug", "camera", size} + options));
    QTRY_COMPARE(m_engine->GetVideoDeviceList(), QStringList{"camera"});
    m_engine->SetVideoDevice(0);
}

// What a user might be doing when somebody stumbles over the cable.
void TestCables::doAnything(FaultTrial &trial, LiveVideoData &engine)
{
    const QString path = m_folder.filePath(QString::number(trial.tries()));
    switch (trial.upTo(5)) {
    case 0:
        if (!engine.startSaving(path + ".png").isNull())
            m_photos.append(path + ".png");
        break;
    case 1:
        if (engine.SaveBitmap(path + ".jpg.png"))
            m_photos.append(path + ".jpg.png");
        break;
    case 2:
    case 3:
        engine.Record(path + ".mov");
        if (engine.IsRecording()) {
            m_movie = path + ".mov";
            m_sinceMovie.start();
        }
        break;
    case 4:
        m_target.hide();
        m_target.show();
        engine.Reset();
        break;
    default:
        break;
    }
}

void TestCables::verifyCaptures()
{
    for (const QString &photo : qAsConst(m_photos))
        QVERIFY2(!QImage(photo).isNull(), qPrintable(photo));
    // One that had half a second to begin has a picture.
    if (!m_movie.isEmpty() && (m_movieLength > 1500 || QFile::exists(m_movie))) {
        const MovieProbe probe(m_movie);
        QCOMPARE(probe.complaints(), QString());
        QVERIFY(probe.frames() > 0);
    }
    for (const QString &file : qAsConst(m_photos))
        QFile::remove(file);
    if (!m_movie.isEmpty())
        QFile::remove(m_movie);
    m_photos.clear();
    m_movie.clear();
    m_sinceMovie.invalidate();
}

void TestCables::aCameraMayGoAndComeAtAnyMoment()
{
    FaultTrial trial("a camera is pulled out and put back at any moment", 3, 200);
    connect(m_engine.get(), &LiveVideoData::bitmapSaved, this,
            [this](bool saved) { m_isSaved = saved; });
    plug();
    while (trial.next()) {
        const QSignalSpy losses(m_engine.get(), &LiveVideoData::disconnectDevice);
        QProcess other; // looks at the camera as well
        if (trial.upTo(3) == 0)
            other.start("gst-launch-1.0",
                        {"-q", "pipewiresrc", "target-object=camera", "!", "fakesink"});
        const bool wasOpen = trial.upTo(3) == 0 ? pullWhileItOpens(trial) : pullInUse(trial);
        if (wasOpen)
            QTRY_COMPARE(losses.count(), 1);
        m_movieLength = m_sinceMovie.isValid() ? m_sinceMovie.elapsed() : 0;
        m_engine->finishSaving();
        QVERIFY(!m_engine->IsRecording());
        QElapsedTimer answer;
        answer.start();
        m_engine->Release();
        trial.addStandstill(answer.elapsed());
        QVERIFY(m_isSaved);
        verifyCaptures();
        other.kill();
        other.waitForFinished();
        plug();
        QVERIFY(losses.count() <= 1);
    }
}

// Whether it was open when it went.
bool TestCables::pullInUse(FaultTrial &trial)
{
    if (!opens(*m_engine))
        return QTest::qFail("the camera does not open", __FILE__, __LINE__), false;
    m_engine->Start();
    // Before the cable is pulled, or while it is.
    QTimer::singleShot(trial.upTo(1000), m_engine.get(),
                       [this, &trial] { doAnything(trial, *m_engine); });
    QTest::qWait(trial.upTo(900)); // nothing to wait for: the moment is any
    if (!labctl({"unplug", "camera"}))
        QTest::qFail("the camera cannot be pulled", __FILE__, __LINE__);
    return true;
}

bool TestCables::pullWhileItOpens(FaultTrial &trial)
{
    bool isPulled = true;
    std::thread hand([&, milliseconds = trial.upTo(300)] {
        QThread::msleep(milliseconds); // nothing to wait for: the moment is any
        isPulled = QProcess::execute("labctl", {"unplug", "camera"}) == 0;
    });
    m_engine->Create();
    hand.join();
    if (!isPulled)
        QTest::qFail("the camera cannot be pulled", __FILE__, __LINE__);
    return m_engine->created;
}

void TestCables::aCameraMayHaveAnySizeAndPace()
{
    struct Odd {
        QSize size;
        int rate;
        QString format;
    };
    const QVector<Odd> cameras{{{16, 16}, 30, "UYVY"},   {{320, 240}, 120, "YUY2"},
                               {{640, 480}, 1, "UYVY"},  {{7680, 4320}, 1, "MJPG"},
                               {{1918, 34}, 30, "UYVY"}, {{34, 1078}, 30, "YUY2"}};
    FaultTrial trial("a camera of any size and pace", 2, 12);
    while (trial.next()) {
        const Odd &odd = cameras[(trial.tries() - 1) % cameras.size()];
        plug(QString("%1x%2").arg(odd.size.width()).arg(odd.size.height()),
             {"--rate", QString::number(odd.rate), "--format", odd.format});
        QVERIFY(opens(*m_engine));
        m_engine->Start();
        QCOMPARE(QSize(m_engine->nativeWidth, m_engine->nativeHeight), odd.size);
        const QString photo = m_folder.filePath("odd.png");
        QVERIFY(m_engine->SaveBitmap(photo));
        QCOMPARE(QImage(photo).size(), odd.size);
        const QString path = m_folder.filePath("odd.mov");
        QVERIFY(records(*m_engine, path));
        QTest::qWait(1500); // nothing to wait for: the movie's length
        m_engine->RecordStop();
        QVERIFY(m_engine->CompleteMovies());
        const MovieProbe probe(path);
        QCOMPARE(probe.complaints(), QString());
        QVERIFY(probe.frames() > 0);
        QFile::remove(path);
        m_engine->Release();
        QVERIFY(labctl({"unplug", "camera"}));
    }
}

static bool pactl(const QStringList &arguments)
{
    QProcess program;
    program.start("pactl", arguments);
    return program.waitForFinished() && program.exitCode() == 0;
}

void TestCables::changeMicrophone(int how)
{
    switch (how) {
    case 0:
        QVERIFY(pactl({"set-source-mute", "labmic", "1"}));
        QTest::qWait(800); // nothing to wait for: so long it is mute
        QVERIFY(pactl({"set-source-mute", "labmic", "0"}));
        break;
    case 1:
        QVERIFY(labctl({"microphone", "off"}));
        QVERIFY(labctl({"microphone", "on"}));
        break;
    case 2: // another one takes its place, with another rate
        QVERIFY(pactl({"load-module", "module-null-sink", "sink_name=otherfeed", "rate=16000",
                       "channels=1"}));
        QVERIFY(pactl({"load-module", "module-remap-source", "master=otherfeed.monitor",
                       "source_name=othermic", "rate=16000", "channels=1"}));
        QVERIFY(pactl({"set-default-source", "othermic"}));
        QVERIFY(labctl({"microphone", "off"}));
        break;
    default:
        QVERIFY(labctl({"restart-sound-server"}));
        break;
    }
}

void TestCables::aMicrophoneMayChangeInAMovie()
{
    FaultTrial trial("a microphone goes, is mute, is another one in a movie", 2, 24);
    plug();
    while (trial.next()) {
        QVERIFY(opens(*m_engine));
        QTRY_VERIFY(m_engine->IsValidAudioDevice());
        const QString path = m_folder.filePath("sound.mov");
        const SpareTime spare;
        QVERIFY(records(*m_engine, path));
        QElapsedTimer length;
        length.start();
        QTest::qWait(300 + trial.upTo(700)); // nothing to wait for: the moment is any
        const int how = (trial.tries() - 1) % 4;
        changeMicrophone(how);
        QTest::qWait(500); // nothing to wait for: the rest of the movie
        const double asked = double(length.elapsed()) / 1000;
        QElapsedTimer stop;
        stop.start();
        QVERIFY(m_engine->IsRecording());
        m_engine->RecordStop();
        trial.addStandstill(stop.elapsed());
        QVERIFY(m_engine->CompleteMovies());
        const MovieProbe probe(path);
        QCOMPARE(probe.complaints(), QString());
        const double late = spare.lateness() + 0.5;
        QVERIFY2(qAbs(probe.videoDuration() - asked) < late,
                 qPrintable(QString("%1 of %2 s").arg(probe.videoDuration()).arg(asked)));
        QVERIFY2(qAbs(probe.soundDuration() - probe.videoDuration()) < 0.2,
                 qPrintable(QString("%1 of sound").arg(probe.soundDuration())));
        QFile::remove(path);
        if (how == 2) {
            QVERIFY(labctl({"microphone", "on"}));
            QVERIFY(pactl({"unload-module", "module-remap-source"}));
            labctl({"microphone", "off"});
            QVERIFY(labctl({"microphone", "on"}));
        }
        m_engine->Release();
    }
}

QTEST_MAIN(TestCables)
#include "tst_cables.moc"
