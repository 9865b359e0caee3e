#include "Devices.h"
#include "LiveVideoData.h"
#include "Patience.h"

#include <QTest>

static const int serverLimit = 120000; // ms, of a slow machine

/** A camera that both the driver and the media server have. */
class TestListedOnce : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aCameraThatTwoHaveIsListedOnceAndOpened();
};

static bool mediaServerHasCamera()
{
    QProcess query;
    query.start("pw-cli", {"list-objects", "Node"});
    return query.waitForFinished(serverLimit) && query.readAll().contains("v4l2_input");
}

void TestListedOnce::aCameraThatTwoHaveIsListedOnceAndOpened()
{
    TestCameras cameras({TestCameras::Kind::Webcam});
    QVERIFY(cameras.isLoaded());
    QTRY_VERIFY_WITH_TIMEOUT(mediaServerHasCamera(), serverLimit);
    LiveVideoData engine;
    QTRY_COMPARE_WITH_TIMEOUT(engine.GetVideoDeviceList(), QStringList{"vivid"}, serverLimit);
    QTRY_VERIFY_WITH_TIMEOUT((engine.GetVideoDeviceList(), engine.IsListComplete()), serverLimit);
    QCOMPARE(engine.GetVideoDeviceList(), QStringList{"vivid"});
    QTRY_VERIFY_WITH_TIMEOUT((engine.Create(), engine.created), serverLimit);
    QCOMPARE(engine.GetVideoDeviceList(), QStringList{"vivid"});
    engine.Release();
}

QTEST_MAIN(TestListedOnce)
#include "tst_listedonce.moc"
