#include "BareDevice.h"
#include "CameraDevice.h"
#include "MediaConnection.h"

#include <QFile>
#include <QLocalServer>
#include <QTemporaryDir>
#include <QTest>

class TestCameraDevice : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void anotherObjectForTheSameDeviceIsTheSame_data();
    void anotherObjectForTheSameDeviceIsTheSame();
    void anotherDeviceIsNot_data();
    void anotherDeviceIsNot();
    void theSameNumberAtAnotherRunOfTheServerIsNot();
    void itsFormatsAndWhatItSaysOfItselfAreRead();
};

static const char node[] = "node.name=desk, object.serial=(string)71, object.id=(string)40";

void TestCameraDevice::initTestCase()
{
    gst_init(nullptr, nullptr);
}

void TestCameraDevice::anotherObjectForTheSameDeviceIsTheSame_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("nothing changed") << QByteArray(node) << QByteArray(node);
    QTest::newRow("something else changed")
        << QByteArray(node) << QByteArray(node) + ", priority.session=(string)900";
    QTest::newRow("of the system's own") << QByteArray("device.path=(string)/dev/video0")
                                         << QByteArray("device.path=(string)/dev/video0");
}

void TestCameraDevice::anotherObjectForTheSameDeviceIsTheSame()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const CameraDevice camera(makeBareDevice(before), nullptr);
    QVERIFY(camera.isSameAs(CameraDevice(makeBareDevice(after), nullptr)));
}

void TestCameraDevice::anotherDeviceIsNot_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("plugged in again")
        << QByteArray(node) << QByteArray("node.name=desk, object.serial=(string)72");
    QTest::newRow("of an old server, which has no serials")
        << QByteArray("node.name=desk, object.id=(string)40")
        << QByteArray("node.name=desk, object.id=(string)41");
    QTest::newRow("another video node") << QByteArray("device.path=(string)/dev/video0")
                                        << QByteArray("device.path=(string)/dev/video2");
    QTest::newRow("another camera at the same video node")
        << QByteArray("device.path=(string)/dev/video0, device.serial=(string)a")
        << QByteArray("device.path=(string)/dev/video0, device.serial=(string)b");
}

void TestCameraDevice::anotherDeviceIsNot()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const CameraDevice camera(makeBareDevice(before), nullptr);
    QVERIFY(!camera.isSameAs(CameraDevice(makeBareDevice(after), nullptr)));
}

void TestCameraDevice::theSameNumberAtAnotherRunOfTheServerIsNot()
{
    // Not among the test's own files: socket names may only be 107 characters long.
    const QTemporaryDir folder("/tmp/orvanta-XXXXXX");
    qputenv("PIPEWIRE_REMOTE", QFile::encodeName(folder.filePath("server")));
    QLocalServer server;
    QVERIFY(server.listen(folder.filePath("server")));
    const CameraDevice camera(makeBareDevice(node), MediaConnection::open());
    QVERIFY(camera.isSameAs(camera));
    QVERIFY(!camera.isSameAs(CameraDevice(makeBareDevice(node), MediaConnection::open())));
    QVERIFY(!camera.isSameAs(CameraDevice(makeBareDevice(node), nullptr)));
}

void TestCameraDevice::itsFormatsAndWhatItSaysOfItselfAreRead()
{
    const CameraDevice camera(
        makeBareDevice("device.path=(string)/dev/video0, device.serial=(string)S1, "
                       "device.vendor.id=(string)04f2, device.product.id=(string)b6c2"),
        nullptr);
    QCOMPARE(camera.record().origin, DeviceRecord::Origin::V4l2);
    QCOMPARE(camera.record().name, QString("Camera"));
    QCOMPARE(camera.record().devicePath, QString("/dev/video0"));
    QCOMPARE(camera.record().serial, QString("S1"));
    QCOMPARE(camera.record().usbIds, QString("04f2:b6c2"));
    QVERIFY(camera.record().hasColour);
    const CameraMode mode{CameraMode::Encoding::Raw, "YUY2", 640, 480, 30, 1};
    QCOMPARE(camera.modes().size(), 1);
    QVERIFY(camera.modes().first() == mode);
    QVERIFY(camera.formatOf(mode));
    QVERIFY(!camera.formatOf({CameraMode::Encoding::Raw, "YUY2", 1280, 720, 30, 1}));
    QVERIFY(camera.makeSource());
    QCOMPARE(CameraDevice(makeBareDevice(node), nullptr).record().origin,
             DeviceRecord::Origin::PipeWire);
}

QTEST_GUILESS_MAIN(TestCameraDevice)
#include "tst_cameradevice.moc"
