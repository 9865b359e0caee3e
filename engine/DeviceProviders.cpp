#include "DeviceProviders.h"

#include "BoundedTask.h"
#include "CapsModes.h"
#include "EngineLog.h"

#include <algorithm>
#include <mutex>
#include <vector>

using std::chrono::steady_clock;

// Whom a change is told. Never destroyed, because a provider may speak until the process ends.
namespace {
struct Listeners {
    std::mutex mutex; ///< guards all
    QVector<const std::function<void()> *> all;

    void tell()
    {
        const std::lock_guard<std::mutex> lock(mutex);
        for (const std::function<void()> *listener : qAsConst(all))
            (*listener)();
    }
};
} // namespace

static Listeners &listeners()
{
    static auto *const shared = new Listeners;
    return *shared;
}

static GstBusSyncReply onMessage(GstBus *, GstMessage *message, gpointer)
{
    if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_DEVICE_ADDED
        || GST_MESSAGE_TYPE(message) == GST_MESSAGE_DEVICE_REMOVED)
        listeners().tell();
    gst_message_unref(message);
    return GST_BUS_DROP;
}

using ProviderHandle = std::shared_ptr<GstDeviceProvider>;

// May hang. Null when there is no such provider, or nothing behind it.
static ProviderHandle startProvider(const char *name)
{
    const GstObjectHandle<GstDeviceProviderFactory> found(gst_device_provider_factory_find(name));
    if (!found)
        return nullptr;
    const GstObjectHandle<GstPluginFeature> loaded(
        gst_plugin_feature_load(GST_PLUGIN_FEATURE(found.get())));
    if (!loaded)
        return nullptr;
    // An instance of our own: the messages of the factory's shared one may be somebody else's.
    const GType type = gst_device_provider_factory_get_device_provider_type(
        GST_DEVICE_PROVIDER_FACTORY(loaded.get()));
    GstObjectHandle<GstDeviceProvider> provider =
        ownFloating(static_cast<GstDeviceProvider *>(g_object_new(type, nullptr)));
    const GstObjectHandle<GstBus> bus(gst_device_provider_get_bus(provider.get()));
    gst_bus_set_sync_handler(bus.get(), onMessage, nullptr, nullptr);
    if (!gst_device_provider_start(provider.get()))
        return nullptr;
    return ProviderHandle(provider.release(), GstObjectUnref());
}

// One provider. One that hangs while it starts is waited for again the next time, not started
// again: it cannot be called back, and must not be let go once it runs.
namespace {
struct Source {
    const char *name;
    ProviderHandle provider; ///< null until it runs
    std::shared_ptr<ProviderHandle> answer; ///< where the task leaves it
    std::unique_ptr<BoundedTask> task; ///< while it is being started
};
} // namespace

static std::vector<Source> &sources()
{
    static auto *const shared = [] {
        auto *all = new std::vector<Source>;
        for (const char *name :
             {"v4l2deviceprovider", "pipewiredeviceprovider", "pulsedeviceprovider"})
            all->push_back({name, nullptr, nullptr, nullptr});
        return all;
    }();
    return *shared;
}

// What listens to the microphone asks the same server, so it alone knows whether there is one.
static const Source &soundServer()
{
    return sources().back();
}

static void beginToStart(Source &source)
{
    source.answer = std::make_shared<ProviderHandle>();
    source.task = std::make_unique<BoundedTask>(
        [answer = source.answer, name = source.name] { *answer = startProvider(name); });
}

DeviceProviders::DeviceProviders(std::function<void()> changed)
    : m_changed(std::move(changed))
{
    const std::lock_guard<std::mutex> lock(listeners().mutex);
    listeners().all.append(&m_changed);
}

DeviceProviders::~DeviceProviders()
{
    const std::lock_guard<std::mutex> lock(listeners().mutex);
    listeners().all.removeOne(&m_changed);
}

void DeviceProviders::start(std::chrono::milliseconds limit)
{
    const auto deadline = steady_clock::now() + limit;
    for (Source &source : sources())
        if (!source.provider && !source.task)
            beginToStart(source);
    for (Source &source : sources()) {
        if (!source.task)
            continue;
        if (source.task->waitUntil(deadline)) {
            source.provider = *source.answer;
            source.task.reset();
        } else {
            qCWarning(engineLog, "%s does not answer", source.name);
        }
    }
}

static QVector<GstDeviceHandle> devicesOf(const Source &source)
{
    QVector<GstDeviceHandle> devices;
    GList *list =
        source.provider ? gst_device_provider_get_devices(source.provider.get()) : nullptr;
    for (GList *entry = list; entry; entry = entry->next)
        devices.append(GstDeviceHandle(GST_DEVICE(entry->data), GstObjectUnref()));
    g_list_free(list);
    return devices;
}

static QVector<GstDeviceHandle> devices()
{
    QVector<GstDeviceHandle> all;
    for (const Source &source : sources())
        all += devicesOf(source);
    return all;
}

static QString property(const GstStructure *properties, const char *name)
{
    return QString::fromUtf8(gst_structure_get_string(properties, name));
}

static QString firstOf(const GstStructure *properties, std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        QString value = property(properties, name);
        if (!value.isEmpty())
            return value;
    }
    return {};
}

static DeviceRecord recordOf(GstDevice *device)
{
    DeviceRecord record;
    const GlibString name(gst_device_get_display_name(device));
    record.name = QString::fromUtf8(name.get());
    const GlibString deviceClass(gst_device_get_device_class(device));
    record.deviceClass = QString::fromUtf8(deviceClass.get());
    const GstMiniHandle<GstCaps> caps(gst_device_get_caps(device));
    const QVector<CameraMode> modes = modesOf(caps.get());
    record.hasColour = std::any_of(modes.begin(), modes.end(),
                                   [](const CameraMode &mode) { return !mode.isGrey(); });
    const GstStructureHandle properties(gst_device_get_properties(device));
    if (!properties)
        return record;
    record.nodeName = property(properties.get(), "node.name");
    record.origin =
        record.nodeName.isEmpty() ? DeviceRecord::Origin::V4l2 : DeviceRecord::Origin::PipeWire;
    record.role = property(properties.get(), "media.role");
    record.devicePath = firstOf(properties.get(), {"device.path", "api.v4l2.path"});
    record.libcameraPath = property(properties.get(), "api.libcamera.path");
    record.busPath =
        firstOf(properties.get(), {"device.bus_path", "device.bus-path", "v4l2.device.bus_info"});
    record.serial = property(properties.get(), "device.serial");
    const QString vendor = property(properties.get(), "device.vendor.id");
    const QString product = property(properties.get(), "device.product.id");
    if (!vendor.isEmpty() && !product.isEmpty())
        record.usbIds = vendor + QLatin1Char(':') + product;
    return record;
}

QVector<DeviceProviders::Camera> DeviceProviders::cameras()
{
    QVector<Camera> cameras;
    const QVector<GstDeviceHandle> all = devices();
    for (const GstDeviceHandle &device : all)
        if (gst_device_has_classes(device.get(), "Video/Source"))
            cameras.append({recordOf(device.get()), device});
    return cameras;
}

bool DeviceProviders::contains(const GstDeviceHandle &device)
{
    const QVector<GstDeviceHandle> all = devices();
    return std::any_of(all.begin(), all.end(), [&device](const GstDeviceHandle &listed) {
        return listed.get() == device.get();
    });
}

bool DeviceProviders::hasSoundServer()
{
    return soundServer().provider || soundServer().task;
}

bool DeviceProviders::hasMicrophone()
{
    const QVector<GstDeviceHandle> all = devicesOf(soundServer());
    return std::any_of(all.begin(), all.end(), [](const GstDeviceHandle &device) {
        if (!gst_device_has_classes(device.get(), "Audio/Source"))
            return false;
        const GstStructureHandle properties(gst_device_get_properties(device.get()));
        return !properties
            || property(properties.get(), "device.class") != QLatin1String("monitor");
    });
}
