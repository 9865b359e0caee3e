#include "DeviceProviders.h"

#include "BoundedTask.h"
#include "CameraDevice.h"
#include "ChangeListeners.h"
#include "DemoCamera.h"
#include "EngineLog.h"
#include "GstStart.h"
#include "MediaConnection.h"
#include "OpenableNodes.h"

#include <QFileInfo>
#include <QSet>
#include <QSocketNotifier>

#include <algorithm>
#include <optional>
#include <utility>

using std::chrono::steady_clock;

// Never destroyed, because a provider may speak until the process ends.
static ChangeListeners &listeners()
{
    static auto *const shared = new ChangeListeners;
    return *shared;
}

// What one run of the media server has taken away. Its provider goes on listing a device of which
// it had told by a new object, as when another camera became the default one: it takes away the
// old.
namespace {
class Departed {
public:
    void add(GstDevice *device)
    {
        const QByteArray serial = serialOf(device);
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!serial.isEmpty())
            m_serials.insert(serial);
    }

    bool contains(GstDevice *device) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_serials.contains(serialOf(device));
    }

private:
    // Never used twice by one run of the server; empty for a device of the system's own.
    static QByteArray serialOf(GstDevice *device)
    {
        const GstStructureHandle properties(gst_device_get_properties(device));
        return properties ? gst_structure_get_string(properties.get(), "object.serial") : nullptr;
    }

    mutable std::mutex m_mutex; ///< guards m_serials
    QSet<QByteArray> m_serials;
};
} // namespace

using DepartedHandle = std::shared_ptr<Departed>;

static void noteDeparture(GstMessage *message, Departed &departed)
{
    GstDevice *device = nullptr;
    gst_message_parse_device_removed(message, &device);
    const GstObjectHandle<GstDevice> held(device);
    departed.add(held.get());
}

static GstBusSyncReply onMessage(GstBus *, GstMessage *message, gpointer departed)
{
    const GstMessageType type = GST_MESSAGE_TYPE(message);
    if (type == GST_MESSAGE_DEVICE_REMOVED)
        noteDeparture(message, **static_cast<DepartedHandle *>(departed));
    if (type == GST_MESSAGE_DEVICE_ADDED || type == GST_MESSAGE_DEVICE_REMOVED)
        listeners().tell();
    gst_message_unref(message);
    return GST_BUS_DROP;
}

static void letGoOfDeparted(gpointer departed)
{
    delete static_cast<DepartedHandle *>(departed);
}

// Only after the end of its server.
namespace {
struct ProviderEnd {
    void operator()(GstDeviceProvider *provider) const
    {
        gst_device_provider_stop(provider);
        gst_object_unref(provider);
    }
};
} // namespace

using ProviderHandle = std::shared_ptr<GstDeviceProvider>;

// An instance of our own: the messages of the factory's shared one may be somebody else's.
static GstObjectHandle<GstDeviceProvider> makeProvider(const char *name)
{
    const GstObjectHandle<GstDeviceProviderFactory> found(gst_device_provider_factory_find(name));
    if (!found)
        return nullptr;
    const GstObjectHandle<GstPluginFeature> loaded(
        gst_plugin_feature_load(GST_PLUGIN_FEATURE(found.get())));
    if (!loaded)
        return nullptr;
    const GType type = gst_device_provider_factory_get_device_provider_type(
        GST_DEVICE_PROVIDER_FACTORY(loaded.get()));
    return ownFloating(static_cast<GstDeviceProvider *>(g_object_new(type, nullptr)));
}

// May hang. Null when there is no such provider, or nothing behind it.
static ProviderHandle startProvider(const char *name, const MediaConnection *connection,
                                    const DepartedHandle &departed)
{
    GstObjectHandle<GstDeviceProvider> provider = startGstreamer() ? makeProvider(name) : nullptr;
    if (!provider)
        return nullptr;
    if (connection)
        g_object_set(provider.get(), "fd", connection->descriptor(), nullptr);
    const GstObjectHandle<GstBus> bus(gst_device_provider_get_bus(provider.get()));
    gst_bus_set_sync_handler(bus.get(), onMessage, new DepartedHandle(departed), letGoOfDeparted);
    if (!gst_device_provider_start(provider.get()))
        return nullptr;
    return ProviderHandle(provider.release(), ProviderEnd());
}

// One provider. One that hangs while it starts is waited for again the next time, not started
// again: it cannot be called back.
namespace {
struct Source {
    const char *name = nullptr;
    std::shared_ptr<MediaConnection> connection; ///< the media server's only
    std::unique_ptr<QSocketNotifier> end; ///< of the connection
    ProviderHandle provider; ///< null until it runs
    DepartedHandle departed; ///< of the provider that runs or is being started
    std::optional<BoundedTask<ProviderHandle>> task; ///< while it is being started
};

// Never destroyed: some may hang, and what ends with the process need not be taken down before.
struct Sources {
    Source videoNodes;
    OpenableNodes openable;
    CameraHandle doubted; ///< null when none is
    Source mediaServer;
};
} // namespace

static Sources &sources()
{
    static auto *const shared = [] {
        auto *all = new Sources;
        all->videoNodes.name = "v4l2deviceprovider";
        all->mediaServer.name = "pipewiredeviceprovider";
        return all;
    }();
    return *shared;
}

// What is still being started, or opened, keeps the connection and ends it later.
static void letGo(Source &source)
{
    source.end.reset();
    source.task.reset();
    source.provider.reset();
    source.connection.reset();
}

// True when the media server is connected to, if only just now.
static bool connectMediaServer(Source &source)
{
    if (source.connection && source.connection->isLost())
        letGo(source);
    if (source.connection)
        return true;
    source.connection = MediaConnection::open();
    if (!source.connection)
        return false;
    source.end =
        std::make_unique<QSocketNotifier>(source.connection->watch(), QSocketNotifier::Read);
    QObject::connect(source.end.get(), &QSocketNotifier::activated, source.end.get(), [&source] {
        qCInfo(engineLog, "the media server has ended");
        source.end->setEnabled(false);
        source.end.release()->deleteLater(); // it is speaking
        letGo(source);
        listeners().tell();
    });
    return true;
}

// One that runs already goes on until the new one does: its cameras may be open.
static void beginToStart(Source &source, bool anew = false)
{
    if (source.task || (source.provider && !anew))
        return;
    source.departed = std::make_shared<Departed>();
    source.task.emplace(
        [name = source.name, connection = source.connection, departed = source.departed] {
            ProviderHandle provider = startProvider(name, connection.get(), departed);
            if (connection)
                connection->keep(provider);
            return provider;
        });
}

static void awaitStart(Source &source, steady_clock::time_point deadline)
{
    if (!source.task)
        return;
    std::optional<ProviderHandle> started = source.task->waitUntil(deadline);
    if (!started) {
        qCWarning(engineLog, "%s does not answer", source.name);
        return;
    }
    source.task.reset();
    if (*started)
        source.provider.swap(*started);
    if (*started) // the former one
        const BoundedTask ending([former = std::move(*started)]() mutable { former.reset(); });
    if (!source.provider)
        letGo(source); // what was said on the connection cannot be said twice
}

static QVector<CameraHandle> camerasOf(const Source &source)
{
    QVector<CameraHandle> cameras;
    GList *list =
        source.provider ? gst_device_provider_get_devices(source.provider.get()) : nullptr;
    for (GList *entry = list; entry; entry = entry->next) {
        const GstDeviceHandle device(GST_DEVICE(entry->data), GstObjectUnref());
        if (gst_device_has_classes(device.get(), "Video/Source")
            && !source.departed->contains(device.get()))
            cameras.append(std::make_shared<CameraDevice>(device, source.connection));
    }
    g_list_free(list);
    return cameras;
}

// The provider of video nodes has a camera twice that came while it began to look, and forgets one
// of them when that goes (seen on a busy computer): the other would be there for ever. The latest
// that it has of a node is the last.
static QVector<CameraHandle> presentNodes(const Source &videoNodes)
{
    const QVector<CameraHandle> told = camerasOf(videoNodes);
    QVector<CameraHandle> present;
    QSet<QString> seen;
    for (auto camera = told.crbegin(); camera != told.crend(); ++camera) {
        const QString path = (*camera)->record().kernelPath;
        const bool isThere = QFileInfo::exists(path) && !seen.contains(path);
        if (path.isEmpty() || isThere)
            present.append(*camera);
        seen.insert(path);
    }
    return present;
}

// The provider of video nodes looks at each when that comes, and never again.
static bool hasOverlooked(const Source &videoNodes, const QStringList &nodes)
{
    if (nodes.isEmpty())
        return false;
    const QVector<CameraHandle> cameras = presentNodes(videoNodes);
    return std::any_of(nodes.begin(), nodes.end(), [&cameras](const QString &node) {
        return std::none_of(cameras.begin(), cameras.end(), [&node](const CameraHandle &camera) {
            return camera->record().devicePath == node;
        });
    });
}

DeviceProviders::DeviceProviders(std::function<void()> changed)
    : m_changed(std::move(changed))
{
    listeners().add(&m_changed);
}

DeviceProviders::~DeviceProviders()
{
    listeners().remove(&m_changed);
}

void DeviceProviders::begin()
{
    Sources &all = sources();
    const bool overlooked = hasOverlooked(all.videoNodes, all.openable.takeNew());
    const CameraHandle doubted = std::exchange(all.doubted, nullptr);
    beginToStart(all.videoNodes, overlooked || (doubted && contains(*doubted)));
    if (connectMediaServer(all.mediaServer))
        beginToStart(all.mediaServer);
}

void DeviceProviders::start(steady_clock::time_point deadline)
{
    begin();
    Sources &all = sources();
    awaitStart(all.videoNodes, deadline);
    awaitStart(all.mediaServer, deadline);
}

void DeviceProviders::doubt(const CameraHandle &camera)
{
    if (camera->record().origin == DeviceRecord::Origin::V4l2)
        sources().doubted = camera;
}

static DeviceProviders::Answer answerOf(const Source &source)
{
    using Answer = DeviceProviders::Answer;
    if (source.task)
        return Answer::Late;
    return source.provider ? Answer::Given : Answer::None;
}

DeviceProviders::Answer DeviceProviders::videoNodes()
{
    return answerOf(sources().videoNodes);
}

DeviceProviders::Answer DeviceProviders::mediaServer()
{
    return answerOf(sources().mediaServer);
}

QVector<CameraHandle> DeviceProviders::cameras()
{
    QVector<CameraHandle> all =
        presentNodes(sources().videoNodes) + camerasOf(sources().mediaServer);
    if (DemoCamera::isWanted())
        all.append(std::make_shared<DemoCamera>());
    return all;
}

bool DeviceProviders::contains(const Camera &camera)
{
    if (!camera.canBePulledOut())
        return true;
    const QVector<CameraHandle> all = cameras();
    return std::any_of(all.begin(), all.end(),
                       [&camera](const CameraHandle &listed) { return listed->isSameAs(camera); });
}
