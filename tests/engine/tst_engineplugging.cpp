#include "Footprint.h"
#include "LabCommands.h"
#include "LiveVideoData.h"
#include "Opening.h"
#include "Patience.h"

#include <QFrame>
#include <QSignalSpy>

// A cable with a bad contact: the camera goes and comes back all day.
class TestEnginePlugging : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fiftyLossesLeaveNothingBehind();
};

namespace {

// Opens the camera, loses it, gives it up as the window does, and plugs it in again.
void loseAndFindAgain(LiveVideoData &engine)
{
    QVERIFY(opens(engine));
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
    const Footprint before = Footprint::now();
    QVERIFY(before.threads > 0 && before.descriptors > 0 && before.memory > 0);

    loseAndFindAgain(engine, 50);
    const Footprint after = Footprint::now();
    const double growth = after.memory - before.memory;
    qInfo("%.1f MB, %d threads and %d descriptors more after 50 losses", growth,
          after.threads - before.threads, after.descriptors - before.descriptors);
    QTRY_VERIFY(Footprint::now().threads <= before.threads);
    QTRY_VERIFY(Footprint::now().descriptors <= before.descriptors + Footprint::lateDescriptors);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // these keep freed memory
    QVERIFY2(growth < 4, qPrintable(QString("%1 MB more").arg(growth)));
#endif
}

QTEST_MAIN(TestEnginePlugging)
#include "tst_engineplugging.moc"
