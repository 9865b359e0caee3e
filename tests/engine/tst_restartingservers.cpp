#include "Footprint.h"
#include "LabCommands.h"
#include "LiveVideoData.h"
#include "MovieFile.h"
#include "Opening.h"
#include "Patience.h"
#include "SpareTime.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFrame>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <algorithm>
#include <csignal>
#include <limits>
#include <memory>

// Servers that crash, or are updated, in the middle of a lesson, and are started anew.
class TestRestartingServers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void theEndOfTheMediaServerIsTheLossOfTheCamera();
    void aRestartedMediaServerIsFoundAndItsCamerasWork();
    void manyRestartsOfTheMediaServerLeaveNothingBehind();
    void aMediaServerThatEndsWhileItHangsIsReplaced();
    void aRestartedSoundServerIsFoundWithoutALoss();
    void manyRestartsOfTheSoundServerLeaveNothingBehind();
    void aRestartedSessionManagerLeavesTheCameraUsable();

private:
    void open();
    void recordAndJudge();
    void loseServer();
    void findAgain();

    QFrame m_target;
    QTemporaryDir m_folder;
    std::unique_ptr<LiveVideoData> m_engine;
    std::unique_ptr<QSignalSpy> m_losses;
    qint64 m_soonestLoss = 0; ///< ms after the server's end
};

static const int foundLimit = 3000; // ms after a server is up again

static QString footprint(const Footprint &before, const Footprint &now)
{
    return QStringLiteral("%1 threads, %2 descriptors and %3 MB more")
        .arg(now.threads - before.threads)
        .arg(now.descriptors - before.descriptors)
        .arg(now.memory - before.memory, 0, 'f', 1);
}

static bool hasNotGrown(const Footprint &before, int allowedDescriptors)
{
    const Footprint now = Footprint::now();
    return now.threads <= before.threads
        && now.descriptors <= before.descriptors + allowedDescriptors;
}

void TestRestartingServers::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    m_target.resize(320, 240);
    m_target.show();
}

void TestRestartingServers::init()
{
    m_engine = std::make_unique<LiveVideoData>();
    m_engine->SetTarget(&m_target);
    m_losses = std::make_unique<QSignalSpy>(m_engine.get(), &LiveVideoData::disconnectDevice);
    QTRY_COMPARE(m_engine->GetVideoDeviceList(), QStringList{"first"});
    open();
}

void TestRestartingServers::cleanup()
{
    m_losses.reset();
    m_engine.reset();
}

void TestRestartingServers::open()
{
    const SpareTime spare;
    QElapsedTimer timer;
    timer.start();
    QVERIFY(opens(*m_engine));
    QVERIFY2(timer.elapsed() < 4000 || !spare.isPlenty(),
             qPrintable(QString::number(timer.elapsed())));
    m_engine->Start();
    m_losses->clear();
}

void TestRestartingServers::recordAndJudge()
{
    QTRY_VERIFY(m_engine->IsValidVideoDevice());
    QTRY_VERIFY_WITH_TIMEOUT(m_engine->IsValidAudioDevice(), foundLimit);
    const QString path = m_folder.filePath("movie.mov");
    QFile::remove(path);
    QVERIFY(records(*m_engine, path));
    QTest::qWait(1000); // nothing to wait for: the movie's length
    m_engine->RecordStop();
    const MovieFile movie(path);
    QVERIFY2(movie.complaints().isEmpty(), qPrintable(movie.complaints().join('\n')));
    QVERIFY2(movie.duration() > 0.7, qPrintable(QString::number(movie.duration())));
    QVERIFY(qAbs(movie.soundDuration() - movie.duration()) < 0.1);
}

// Ends the media server in the middle of the live picture.
void TestRestartingServers::loseServer()
{
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(::kill(pid_t(labServer("pipewire")), SIGKILL), 0);
    QTRY_COMPARE(m_losses->count(), 1);
    m_soonestLoss = std::min(m_soonestLoss, timer.elapsed());
    QVERIFY(labctl({"stop-media-server"}));
    const SpareTime spare;
    timer.start();
    m_engine->Release();
    QVERIFY2(double(timer.elapsed()) < 1000 + 1000 * spare.lateness(),
             qPrintable(QString::number(timer.elapsed())));
}

void TestRestartingServers::findAgain()
{
    QVERIFY(labctl({"start-media-server"}));
    QVERIFY(labctl({"plug", "first", "640x480"}));
    QTRY_COMPARE_WITH_TIMEOUT(m_engine->GetVideoDeviceList(), QStringList{"first"}, foundLimit);
    QTRY_VERIFY_WITH_TIMEOUT(m_engine->IsValidAudioDevice(), foundLimit);
}

void TestRestartingServers::theEndOfTheMediaServerIsTheLossOfTheCamera()
{
    loseServer();
    QVERIFY(m_engine->GetVideoDeviceList().isEmpty());
    QVERIFY(!m_engine->IsValidAudioDevice());
    m_engine->Create();
    QVERIFY(!m_engine->created);
    QCOMPARE(m_losses->count(), 1);
    findAgain();
}

void TestRestartingServers::aRestartedMediaServerIsFoundAndItsCamerasWork()
{
    loseServer();
    findAgain();
    open();
    QTRY_VERIFY(m_engine->SaveBitmap(m_folder.filePath("still.png")));
    recordAndJudge();
    QCOMPARE(m_losses->count(), 0);
}

void TestRestartingServers::manyRestartsOfTheMediaServerLeaveNothingBehind()
{
    const auto restart = [this](int times) {
        for (int i = 0; i < times && !QTest::currentTestFailed(); ++i) {
            loseServer();
            findAgain();
            open();
        }
    };
    restart(3); // until everything that is made once is made
    const Footprint before = Footprint::now();
    m_soonestLoss = std::numeric_limits<qint64>::max();
    restart(10);
    qInfo() << footprint(before, Footprint::now()) << "after 10 restarts, loss told after"
            << m_soonestLoss << "ms";
    QTRY_VERIFY2(hasNotGrown(before, Footprint::lateDescriptors),
                 qPrintable(footprint(before, Footprint::now())));
    // The watch over silence takes a second: it was not that which told.
    QVERIFY2(m_soonestLoss < 500, qPrintable(QString::number(m_soonestLoss)));
    recordAndJudge();
}

// The list was asked for while the server did not answer, and it never will.
void TestRestartingServers::aMediaServerThatEndsWhileItHangsIsReplaced()
{
    const auto restartHanging = [this](int times) {
        for (int i = 0; i < times && !QTest::currentTestFailed(); ++i) {
            loseServer();
            QVERIFY(labctl({"start-media-server"}));
            QVERIFY(labctl({"hang-media-server"}));
            QVERIFY(m_engine->GetVideoDeviceList().isEmpty());
            QVERIFY(labctl({"stop-media-server"}));
            findAgain();
            open();
        }
    };
    restartHanging(2);
    const Footprint before = Footprint::now();
    restartHanging(3);
    QTRY_VERIFY2(hasNotGrown(before, Footprint::lateDescriptors),
                 qPrintable(footprint(before, Footprint::now())));
}

void TestRestartingServers::aRestartedSoundServerIsFoundWithoutALoss()
{
    QTRY_VERIFY(m_engine->IsValidAudioDevice());
    QVERIFY(labctl({"restart-sound-server"}));
    recordAndJudge();
    // What the new server tells is heard.
    QVERIFY(labctl({"microphone", "off"}));
    QTRY_VERIFY_WITH_TIMEOUT(!m_engine->IsValidAudioDevice(), foundLimit);
    QVERIFY(labctl({"microphone", "on"}));
    QTRY_VERIFY_WITH_TIMEOUT(m_engine->IsValidAudioDevice(), foundLimit);
    QCOMPARE(m_losses->count(), 0);
}

void TestRestartingServers::manyRestartsOfTheSoundServerLeaveNothingBehind()
{
    const auto restart = [this](int times) {
        for (int i = 0; i < times && !QTest::currentTestFailed(); ++i) {
            QVERIFY(labctl({"restart-sound-server"}));
            QTRY_VERIFY_WITH_TIMEOUT(m_engine->IsValidAudioDevice(), foundLimit);
        }
    };
    restart(3);
    const Footprint before = Footprint::now();
    restart(10);
    qInfo() << footprint(before, Footprint::now()) << "after 10 restarts";
    QTRY_VERIFY2(hasNotGrown(before, 0), qPrintable(footprint(before, Footprint::now())));
}

// It may take the camera's link with it, which is a loss like any other.
void TestRestartingServers::aRestartedSessionManagerLeavesTheCameraUsable()
{
    QVERIFY(labctl({"restart-session-manager"}));
    QTRY_VERIFY_WITH_TIMEOUT(m_engine->IsValidAudioDevice(), foundLimit);
    QTest::qWait(1500); // nothing to wait for: the old picture may be over by then
    const QImage picture = m_target.grab().toImage();
    QTRY_VERIFY_WITH_TIMEOUT(m_losses->count() == 1 || m_target.grab().toImage() != picture, 10000);
    m_engine->Release();
    QTRY_COMPARE_WITH_TIMEOUT(m_engine->GetVideoDeviceList(), QStringList{"first"}, foundLimit);
    open();
    recordAndJudge();
}

QTEST_MAIN(TestRestartingServers)
#include "tst_restartingservers.moc"
