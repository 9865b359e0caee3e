#include "Footprint.h"
#include "LiveVideoData.h"
#include "Opening.h"
#include "Patience.h"

#include <QFrame>

// A classroom computer runs the program all day.
class TestEngineWear : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aHundredOpeningsLeaveNothingBehind();
};

static void openAndClose(LiveVideoData &engine)
{
    QVERIFY(opens(engine));
    engine.Start();
    QTest::qWait(20); // nothing to wait for: a short use, which may end before a picture came
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
    // Its servers answer late when it is the first program in a home, on a busy machine.
    QTRY_COMPARE_WITH_TIMEOUT(engine.GetVideoDeviceList(), QStringList{"first"}, 60000);
    for (int i = 0; i < 20 && !QTest::currentTestFailed(); ++i)
        openAndClose(engine);
    const Footprint before = Footprint::now();
    QVERIFY(before.threads > 0 && before.descriptors > 0 && before.memory > 0);
    for (int i = 0; i < 100 && !QTest::currentTestFailed(); ++i)
        openAndClose(engine);
    const auto more = [](const char *what, int count) {
        return QString("%1 %2 more").arg(count).arg(what).toLatin1();
    };
    QTRY_VERIFY2(Footprint::now().threads <= before.threads,
                 more("threads", Footprint::now().threads - before.threads).constData());
    QTRY_VERIFY2(
        Footprint::now().descriptors <= before.descriptors + Footprint::lateDescriptors,
        more("descriptors", Footprint::now().descriptors - before.descriptors).constData());
    const double growth = Footprint::now().memory - before.memory;
    qInfo("%.1f MB more after 100 openings, %d threads, %d descriptors", growth, before.threads,
          before.descriptors);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // these keep freed memory
    QVERIFY2(growth < 4, qPrintable(QString("%1 MB more").arg(growth)));
#endif
}

QTEST_MAIN(TestEngineWear)
#include "tst_enginewear.moc"
