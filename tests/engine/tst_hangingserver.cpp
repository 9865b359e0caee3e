#include "LiveVideoData.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <csignal>
#include <gst/gst.h>

// A media server that does not answer must not stop the program from starting.
class TestHangingServer : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void theListComesInTimeAndTheCamerasLater();

private:
    qint64 m_server = 0;
};

static QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The media server of this lab: the one that was started with the lab's environment.
static qint64 findServer()
{
    const QByteArray mark = "ORVANTA_LAB=" + qgetenv("ORVANTA_LAB") + '\0';
    const QStringList processes = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString &process : processes) {
        const QString folder = QStringLiteral("/proc/%1/").arg(process);
        if (process.toLongLong() > 0 && contentsOf(folder + "comm").trimmed() == "pipewire"
            && contentsOf(folder + "environ").contains(mark))
            return process.toLongLong();
    }
    return 0;
}

void TestHangingServer::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    gst_init(nullptr, nullptr); // indexes its plug-ins, which is not to be measured
    m_server = findServer();
    QVERIFY(m_server > 0);
}

void TestHangingServer::cleanupTestCase()
{
    if (m_server > 0)
        ::kill(pid_t(m_server), SIGCONT);
}

void TestHangingServer::theListComesInTimeAndTheCamerasLater()
{
    LiveVideoData engine;
    QCOMPARE(::kill(pid_t(m_server), SIGSTOP), 0);
    qputenv("ORVANTA_DEMO_CAMERA", "1");
    for (int i = 0; i < 2; ++i) {
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(engine.GetVideoDeviceList(), QStringList{"Demonstration Camera"});
        QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
    }
    qunsetenv("ORVANTA_DEMO_CAMERA");
    engine.Create();
    QVERIFY(engine.supported);
    QVERIFY(!engine.created);
    QCOMPARE(::kill(pid_t(m_server), SIGCONT), 0);
    QTRY_COMPARE(engine.GetVideoDeviceList(), QStringList{"first"});
    engine.Create();
    QVERIFY(engine.created);
}

QTEST_GUILESS_MAIN(TestHangingServer)
#include "tst_hangingserver.moc"
