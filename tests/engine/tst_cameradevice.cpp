#include "CameraDevice.h"
#include "MediaConnection.h"

#include <QFile>
#include <QLocalServer>
#include <QTemporaryDir>
#include <QTest>

// A device as a provider makes it, but with nothing behind it.
namespace {
struct NoDevice {
    GstDevice parent;
};
struct NoDeviceClass {
    GstDeviceClass parent;
};
} // namespace

static GstElement *makeElement(GstDevice *, const gchar *name)
{
    return gst_element_factory_make("filesrc", name);
}

static void makeClass(gpointer type, gpointer)
{
    GST_DEVICE_CLASS(type)->create_element = makeElement;
}

static GType noDeviceType()
{
    static const GType type =
        g_type_register_static_simple(GST_TYPE_DEVICE, "NoDevice", sizeof(NoDeviceClass), makeClass,
                                      sizeof(NoDevice), nullptr, GTypeFlags(0));
    return type;
}

static GstDeviceHandle makeDevice(const QByteArray &properties)
{
    const GstMiniHandle<GstCaps> caps(
        gst_caps_from_string("video/x-raw, format=YUY2, width=640, height=480, framerate=30/1"));
    const GstStructureHandle structure(
        gst_structure_from_string(("device, " + properties).constData(), nullptr));
    auto *device = static_cast<GstDevice *>(
        g_object_new(noDeviceType(), "display-name", "Camera", "device-class", "Video/Source",
                     "caps", caps.get(), "properties", structure.get(), nullptr));
    return {static_cast<GstDevice *>(gst_object_ref_sink(device)), GstObjectUnref()};
}

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
    const CameraDevice camera(makeDevice(before), nullptr);
    QVERIFY(camera.isSameAs(CameraDevice(makeDevice(after), nullptr)));
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
    const CameraDevice camera(makeDevice(before), nullptr);
    QVERIFY(!camera.isSameAs(CameraDevice(makeDevice(after), nullptr)));
}

void TestCameraDevice::theSameNumberAtAnotherRunOfTheServerIsNot()
{
    // Not among the test's own files: socket names may only be 107 characters long.
    const QTemporaryDir folder("/tmp/orvanta-XXXXXX");
    qputenv("PIPEWIRE_REMOTE", QFile::encodeName(folder.filePath("server")));
    QLocalServer server;
    QVERIFY(server.listen(folder.filePath("server")));
    const CameraDevice camera(makeDevice(node), MediaConnection::open());
    QVERIFY(camera.isSameAs(camera));
    QVERIFY(!camera.isSameAs(CameraDevice(makeDevice(node), MediaConnection::open())));
    QVERIFY(!camera.isSameAs(CameraDevice(makeDevice(node), nullptr)));
}

void TestCameraDevice::itsFormatsAndWhatItSaysOfItselfAreRead()
{
    const CameraDevice camera(
        makeDevice("device.path=(string)/dev/video0, device.serial=(string)S1, "
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
    QCOMPARE(CameraDevice(makeDevice(node), nullptr).record().origin,
             DeviceRecord::Origin::PipeWire);
}

QTEST_GUILESS_MAIN(TestCameraDevice)
#include "tst_cameradevice.moc"
