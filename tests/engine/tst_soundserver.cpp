#include "LabCommands.h"
#include "Patience.h"
#include "SoundServer.h"

#include <QProcess>

#include <atomic>

using std::chrono::steady_clock;

// Which of the sound server's sources is the microphone. The lab has its loudspeaker's monitor, the
// feed of the microphone with another, and the microphone, "labmic".
class TestSoundServer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void theDefaultSourceIsTheMicrophone();
    void aMonitorAsTheDefaultIsPassedOverForTheFirstByName();
    void monitorsAloneAreNoMicrophone();
    void everySourceIsListedAsAUserKnowsIt();
    void everyChangeIsTold();
    void theEndOfTheServerIsToldAndTheNextStartFindsTheNewOne();

private:
    void start();
    QByteArray plugIn(const QString &name);

    QList<QByteArray> m_plugged; ///< the server's numbers for what plugIn() made
    std::atomic<int> m_told{0};
    std::unique_ptr<SoundServer> m_server;
};

static QByteArray pactl(const QStringList &arguments)
{
    QProcess process;
    process.start("pactl", arguments);
    process.waitForFinished(5000);
    return process.readAllStandardOutput().trimmed();
}

// The session manager follows in its own time.
static bool setDefault(const QString &source)
{
    pactl({"set-default-source", source});
    return QTest::qWaitFor([&] { return pactl({"get-default-source"}) == source.toUtf8(); });
}

void TestSoundServer::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
}

void TestSoundServer::init()
{
    m_server = std::make_unique<SoundServer>([this] { ++m_told; });
    start();
    QVERIFY(m_server->isThere());
    QTRY_COMPARE(m_server->microphone(), QByteArray("labmic"));
}

void TestSoundServer::cleanup()
{
    for (const QByteArray &module : qAsConst(m_plugged))
        pactl({"unload-module", module});
    m_plugged.clear();
    QVERIFY(setDefault("labmic"));
}

void TestSoundServer::start()
{
    m_server->begin();
    m_server->waitUntil(steady_clock::now() + std::chrono::seconds(5));
}

QByteArray TestSoundServer::plugIn(const QString &name)
{
    m_plugged.append(pactl(
        {"load-module", "module-remap-source", "master=micfeed.monitor", "source_name=" + name}));
    return m_plugged.last();
}

void TestSoundServer::theDefaultSourceIsTheMicrophone()
{
    QVERIFY(!plugIn("another").isEmpty());
    QVERIFY(!plugIn("zebra").isEmpty());
    QVERIFY(setDefault("zebra"));
    QTRY_COMPARE(m_server->microphone(), QByteArray("zebra"));
    QVERIFY(setDefault("labmic"));
    QTRY_COMPARE(m_server->microphone(), QByteArray("labmic"));
}

void TestSoundServer::aMonitorAsTheDefaultIsPassedOverForTheFirstByName()
{
    QVERIFY(setDefault("labspeaker.monitor"));
    QTest::qWait(100); // nothing to wait for: a change that must not come
    QCOMPARE(m_server->microphone(), QByteArray("labmic"));
    QVERIFY(!plugIn("another").isEmpty());
    QTRY_COMPARE(m_server->microphone(), QByteArray("another"));
}

void TestSoundServer::monitorsAloneAreNoMicrophone()
{
    QVERIFY(labctl({"microphone", "off"}));
    QTRY_COMPARE(m_server->microphone(), QByteArray());
    QVERIFY(m_server->isThere());
    QVERIFY(labctl({"microphone", "on"}));
    QTRY_COMPARE(m_server->microphone(), QByteArray("labmic"));
}

void TestSoundServer::everySourceIsListedAsAUserKnowsIt()
{
    QVERIFY(m_server->hasAnswered());
    QVERIFY2(m_server->serverName().contains("PipeWire"), qPrintable(m_server->serverName()));
    const auto named = [this](const QByteArray &name) {
        for (const ListedSource &source : m_server->sources())
            if (source.name == name)
                return source;
        return ListedSource();
    };
    QTRY_COMPARE(named("labmic").description, QString("LabMicrophone"));
    QVERIFY(named("labmic").isMicrophone);
    QVERIFY(named("labmic").rate > 0 && named("labmic").channels > 0);
    QCOMPARE(named("labspeaker.monitor").name, QByteArray("labspeaker.monitor"));
    QVERIFY(!named("labspeaker.monitor").isMicrophone);
    const SoundServer unasked([] {});
    QVERIFY(!unasked.hasAnswered() && unasked.sources().isEmpty());
}

void TestSoundServer::everyChangeIsTold()
{
    QTest::qWait(200); // nothing to wait for: what was still on its way
    int before = m_told;
    QVERIFY(!plugIn("another").isEmpty());
    QTRY_VERIFY(m_told > before);
    QTest::qWait(200); // nothing to wait for: what was still on its way
    before = m_told;
    pactl({"unload-module", m_plugged.takeLast()});
    QTRY_VERIFY(m_told > before);
}

void TestSoundServer::theEndOfTheServerIsToldAndTheNextStartFindsTheNewOne()
{
    QTest::qWait(200); // nothing to wait for: what was still on its way
    const int before = m_told;
    QVERIFY(labctl({"restart-sound-server"}));
    QTRY_VERIFY(!m_server->isThere());
    QVERIFY(m_told > before);
    QCOMPARE(m_server->microphone(), QByteArray());
    start();
    QVERIFY(m_server->isThere());
    QTRY_COMPARE(m_server->microphone(), QByteArray("labmic"));

    QVERIFY(labctl({"stop-media-server"}));
    QTRY_VERIFY(!m_server->isThere());
    start();
    QVERIFY(!m_server->isThere());
    QVERIFY(labctl({"start-media-server"}));
    start();
    QVERIFY(m_server->isThere());
    QTRY_COMPARE(m_server->microphone(), QByteArray("labmic"));
}

QTEST_GUILESS_MAIN(TestSoundServer)
#include "tst_soundserver.moc"
