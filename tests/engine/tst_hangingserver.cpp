#include "Footprint.h"
#include "LabCommands.h"
#include "LiveVideoData.h"
#include "Opening.h"
#include "Patience.h"

#include <QElapsedTimer>
#include <QSignalSpy>

#include <csignal>
#include <gst/gst.h>

// A media server that does not answer must not stop the program from starting.
class TestHangingServer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void theListComesInTimeAndTheCamerasLater();
    void aServerThatHangsInTheMiddleOfThePictureHoldsNothingUp();

private:
    static void loseToHangingServer(LiveVideoData &engine);

    qint64 m_server = 0;
};

void TestHangingServer::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    gst_init(nullptr, nullptr); // indexes its plug-ins, which is not to be measured
    m_server = labServer("pipewire");
    QVERIFY(m_server > 0);
}

void TestHangingServer::cleanupTestCase()
{
    if (m_server > 0)
        ::kill(pid_t(m_server), SIGCONT);
}

// The milliseconds that @p call takes.
template <typename Call> static qint64 timeOf(Call call)
{
    QElapsedTimer timer;
    timer.start();
    call();
    return timer.elapsed();
}

void TestHangingServer::theListComesInTimeAndTheCamerasLater()
{
    LiveVideoData engine;
    QCOMPARE(::kill(pid_t(m_server), SIGSTOP), 0);
    qputenv("ORVANTA_DEMO_CAMERA", "1");
    const qint64 beginning = timeOf([] { LiveVideoData::beginList(); });
    for (int i = 0; i < 2; ++i) {
        QStringList names;
        const qint64 listing = timeOf([&] { names = engine.GetVideoDeviceList(); });
        QCOMPARE(names, QStringList{"Demonstration Camera"});
        QVERIFY2(listing < 3500, qPrintable(QString::number(listing)));
        QVERIFY2(beginning < listing / 2, qPrintable(QString::number(beginning)));
        QVERIFY(!engine.IsListComplete());
    }
    qunsetenv("ORVANTA_DEMO_CAMERA");
    engine.Create();
    QVERIFY(engine.supported);
    QVERIFY(!engine.created);
    QCOMPARE(::kill(pid_t(m_server), SIGCONT), 0);
    QTRY_COMPARE(engine.GetVideoDeviceList(), QStringList{"first"});
    QTRY_VERIFY((engine.GetVideoDeviceList(), engine.IsListComplete()));
    QVERIFY(opens(engine));
}

// Every operation keeps to its promise, however often the user tries.
void TestHangingServer::loseToHangingServer(LiveVideoData &engine)
{
    QTRY_COMPARE(engine.GetVideoDeviceList(), QStringList{"first"});
    QVERIFY(opens(engine));
    const QSignalSpy losses(&engine, &LiveVideoData::disconnectDevice);
    QVERIFY(labctl({"hang-media-server"}));
    const qint64 listing = timeOf([&] { engine.GetVideoDeviceList(); });
    const qint64 asking = timeOf([&] { engine.IsValidAudioDevice(); });
    // From some version on camera and program go on without the server.
    QVERIFY(labctl({"freeze", "first"}));
    QTRY_COMPARE_WITH_TIMEOUT(losses.count(), 1, 15000);
    const qint64 closing = timeOf([&] { engine.Release(); });
    const qint64 opening = timeOf([&] { engine.Create(); });
    QVERIFY(!engine.created);
    const qint64 again = timeOf([&] { engine.GetVideoDeviceList(); });
    qInfo() << "listed in" << listing << again << "ms, asked in" << asking << "ms, closed in"
            << closing << "ms, opened in" << opening << "ms";
    QVERIFY(listing < 3500 && again < 3500 && asking < 3500);
    QVERIFY(closing < 2500);
    QVERIFY(opening < 7500);
    QVERIFY(labctl({"thaw", "first"}));
    QVERIFY(labctl({"wake-media-server"}));
}

void TestHangingServer::aServerThatHangsInTheMiddleOfThePictureHoldsNothingUp()
{
    LiveVideoData engine;
    loseToHangingServer(engine);
    const Footprint before = Footprint::now();
    loseToHangingServer(engine);
    QTRY_VERIFY((engine.Create(), engine.created));
    engine.Release();
    QTRY_VERIFY(Footprint::now().threads <= before.threads);
    QTRY_VERIFY(Footprint::now().descriptors <= before.descriptors + Footprint::lateDescriptors);
}

QTEST_GUILESS_MAIN(TestHangingServer)
#include "tst_hangingserver.moc"
