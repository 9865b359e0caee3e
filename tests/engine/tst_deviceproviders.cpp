#include "BareDevice.h"
#include "DeviceProviders.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

// In place of the framework's own provider of video nodes one that says what it is told to say.
namespace {
struct ToldProvider {
    GstDeviceProvider parent;
};
struct ToldProviderClass {
    GstDeviceProviderClass parent;
};
} // namespace

static GstDeviceProvider *provider = nullptr; // the one that was started

static gboolean start(GstDeviceProvider *self)
{
    provider = self;
    return TRUE;
}

static void stop(GstDeviceProvider *) { }

static void makeClass(gpointer type, gpointer)
{
    GstDeviceProviderClass *told = GST_DEVICE_PROVIDER_CLASS(type);
    told->start = start;
    told->stop = stop;
    gst_device_provider_class_set_static_metadata(told, "Told", "Source/Video", "Is told",
                                                  "Orvanta");
}

// The kernel's folder for a camera is there as long as the camera.
class TestDeviceProviders : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void aCameraIsListedAsLongAsItIsThere();
    void aCameraThatWasToldOfTwiceIsThereOnce();
    void ofTwoThatHadTheSameNodeTheLaterIsThere();
    void aCameraWithoutAFolderIsBelieved();

private:
    void tell(int number, const QByteArray &serial);
    static QStringList serials();

    QTemporaryDir m_kernel;
};

void TestDeviceProviders::initTestCase()
{
    qputenv("PIPEWIRE_REMOTE", "nowhere");
    gst_init(nullptr, nullptr);
    const GType type = g_type_register_static_simple(GST_TYPE_DEVICE_PROVIDER, "ToldProvider",
                                                     sizeof(ToldProviderClass), makeClass,
                                                     sizeof(ToldProvider), nullptr, GTypeFlags(0));
    QVERIFY(
        gst_device_provider_register(nullptr, "v4l2deviceprovider", GST_RANK_PRIMARY + 1, type));
    DeviceProviders::start(std::chrono::steady_clock::now() + std::chrono::seconds(60));
    QVERIFY(provider);
}

void TestDeviceProviders::init()
{
    while (provider->devices)
        gst_device_provider_device_remove(provider, GST_DEVICE(provider->devices->data));
    for (const char *name : {"video0", "video1"})
        QVERIFY(QDir(m_kernel.path()).mkpath(name));
}

void TestDeviceProviders::tell(int number, const QByteArray &serial)
{
    const QByteArray name = "video" + QByteArray::number(number);
    const GstDeviceHandle device = makeBareDevice(
        "device.path=(string)/dev/" + name + ", sysfs.path=(string)"
        + QFile::encodeName(m_kernel.filePath(name)) + ", device.serial=(string)" + serial);
    gst_device_provider_device_add(provider, device.get());
}

QStringList TestDeviceProviders::serials()
{
    QStringList all;
    for (const CameraHandle &camera : DeviceProviders::cameras())
        all.append(camera->record().serial);
    all.sort();
    return all;
}

void TestDeviceProviders::aCameraIsListedAsLongAsItIsThere()
{
    tell(0, "A");
    tell(1, "B");
    QCOMPARE(serials(), (QStringList{"A", "B"}));
    QVERIFY(QDir(m_kernel.path()).rmdir("video0"));
    QCOMPARE(serials(), QStringList{"B"});
}

void TestDeviceProviders::aCameraThatWasToldOfTwiceIsThereOnce()
{
    tell(0, "A");
    tell(0, "A");
    QCOMPARE(serials(), QStringList{"A"});
}

void TestDeviceProviders::ofTwoThatHadTheSameNodeTheLaterIsThere()
{
    tell(0, "gone");
    tell(0, "here");
    QCOMPARE(serials(), QStringList{"here"});
}

void TestDeviceProviders::aCameraWithoutAFolderIsBelieved()
{
    const GstDeviceHandle device =
        makeBareDevice("device.path=(string)/dev/video7, device.serial=(string)A");
    gst_device_provider_device_add(provider, device.get());
    QCOMPARE(serials(), QStringList{"A"});
}

QTEST_GUILESS_MAIN(TestDeviceProviders)
#include "tst_deviceproviders.moc"
