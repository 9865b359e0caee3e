#include "LabCommands.h"
#include "LiveVideoData.h"

#include <QDir>
#include <QFile>
#include <QFrame>
#include <QSignalSpy>
#include <QTest>

#include <unistd.h>

// A cable with a bad contact: the camera goes and comes back all day.
class TestEnginePlugging : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fiftyLossesLeaveNothingBehind();
};

namespace {

int entriesOf(const char *folder)
{
    return int(QDir(QLatin1String(folder))
                   .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System | QDir::Hidden)
                   .size());
}

// Memory in use, in MB.
double residentMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return file.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / 1048576;
}

// Opens the camera, loses it, gives it up as the window does, and plugs it in again.
void loseAndFindAgain(LiveVideoData &engine)
{
    engine.Create();
    QVERIFY(engine.created);
    engine.Start();
    const QSignalSpy losses(&engine, &LiveVideoData::disconnectDevice);
    QVERIFY(labctl({"unplug", "first"}));
    QTRY_COMPARE(losses.count(), 1);
    engine.Release();
    QVERIFY(labctl({"plug", "first", "640x480"}));
    QTRY_COMPARE(engine.GetVideoDeviceList(), QStringList{"first"});
    QCOMPARE(losses.count(), 1);
}

void loseAndFindAgain(LiveVideoData &engine, int rounds)
{
    for (int i = 0; i < rounds && !QTest::currentTestFailed(); ++i)
        loseAndFindAgain(engine);
}

} // namespace

void TestEnginePlugging::fiftyLossesLeaveNothingBehind()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    QFrame target;
    target.resize(320, 240);
    target.show();
    LiveVideoData engine;
    engine.SetTarget(&target);
    QTRY_COMPARE(engine.GetVideoDeviceList(), QStringList{"first"});
    engine.SetVideoDevice(0);
    loseAndFindAgain(engine, 5); // until everything that is made once is made
    const int threads = entriesOf("/proc/self/task");
    const int descriptors = entriesOf("/proc/self/fd");
    const double memory = residentMemory();
    QVERIFY(threads > 0 && descriptors > 0 && memory > 0);

    loseAndFindAgain(engine, 50);
    const double growth = residentMemory() - memory;
    qInfo("%.1f MB, %d threads and %d descriptors more after 50 losses", growth,
          entriesOf("/proc/self/task") - threads, entriesOf("/proc/self/fd") - descriptors);
    QTRY_VERIFY(entriesOf("/proc/self/task") <= threads);
    QTRY_VERIFY(entriesOf("/proc/self/fd") <= descriptors);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // these keep freed memory
    QVERIFY2(growth < 4, qPrintable(QString("%1 MB more").arg(growth)));
#endif
}

QTEST_MAIN(TestEnginePlugging)
#include "tst_engineplugging.moc"
