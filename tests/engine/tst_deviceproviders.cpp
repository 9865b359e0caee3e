#include "DeviceProviders.h"
#include "LabCommands.h"

#include <QTest>

#include <atomic>

// What is known of the cameras before anybody asks for them.
class TestDeviceProviders : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theCamerasAreFoundWhileNobodyWaits();
};

void TestDeviceProviders::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
}

void TestDeviceProviders::theCamerasAreFoundWhileNobodyWaits()
{
    std::atomic<bool> heard{false};
    const DeviceProviders providers([&heard] { heard = true; });
    QVERIFY(DeviceProviders::cameras().isEmpty());
    DeviceProviders::begin();
    QTRY_VERIFY_WITH_TIMEOUT(heard, 30000);
    // Nobody is asked again: the server could not answer.
    const StoppedServer server("pipewire");
    QVERIFY(server.isStopped());
    DeviceProviders::start(std::chrono::steady_clock::now() + std::chrono::seconds(10));
    const QVector<CameraHandle> cameras = DeviceProviders::cameras();
    QCOMPARE(cameras.size(), 1);
    QCOMPARE(cameras.first()->record().name, QString("desk"));
}

QTEST_GUILESS_MAIN(TestDeviceProviders)
#include "tst_deviceproviders.moc"
