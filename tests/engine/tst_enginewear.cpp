#include "LiveVideoData.h"

#include <QDir>
#include <QFile>
#include <QFrame>
#include <QTest>

#include <unistd.h>

// A classroom computer runs the program all day.
class TestEngineWear : public QObject {
    Q_OBJECT

private slots:
    void aHundredOpeningsLeaveNothingBehind();
};

static int entriesOf(const char *folder)
{
    return int(QDir(QLatin1String(folder))
                   .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System | QDir::Hidden)
                   .size());
}

// Memory in use, in MB.
static double residentMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return file.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / 1048576;
}

static void openAndClose(LiveVideoData &engine)
{
    engine.Create();
    QVERIFY(engine.created);
    engine.Start();
    QTest::qWait(20);
    engine.Stop();
    engine.Release();
}

void TestEngineWear::aHundredOpeningsLeaveNothingBehind()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    QFrame target;
    target.resize(320, 240);
    target.show();
    LiveVideoData engine;
    engine.SetTarget(&target);
    for (int i = 0; i < 20 && !QTest::currentTestFailed(); ++i)
        openAndClose(engine);
    const int threads = entriesOf("/proc/self/task");
    const int descriptors = entriesOf("/proc/self/fd");
    const double memory = residentMemory();
    QVERIFY(threads > 0 && descriptors > 0 && memory > 0);
    for (int i = 0; i < 100 && !QTest::currentTestFailed(); ++i)
        openAndClose(engine);
    QTRY_VERIFY2(
        entriesOf("/proc/self/task") <= threads,
        qPrintable(QString("%1 threads more").arg(entriesOf("/proc/self/task") - threads)));
    QTRY_VERIFY2(
        entriesOf("/proc/self/fd") <= descriptors,
        qPrintable(QString("%1 descriptors more").arg(entriesOf("/proc/self/fd") - descriptors)));
    const double growth = residentMemory() - memory;
    qInfo("%.1f MB more after 100 openings, %d threads, %d descriptors", growth, threads,
          descriptors);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // these keep freed memory
    QVERIFY2(growth < 4, qPrintable(QString("%1 MB more").arg(growth)));
#endif
}

QTEST_MAIN(TestEngineWear)
#include "tst_enginewear.moc"
