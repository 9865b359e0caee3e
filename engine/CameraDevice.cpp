#include "CameraDevice.h"

#include "CapsModes.h"
#include "MediaConnection.h"

#include <algorithm>

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
    const GstStructureHandle owned(gst_device_get_properties(device));
    const GstStructure *properties = owned.get();
    if (!properties)
        return record;
    record.nodeName = property(properties, "node.name");
    record.origin =
        record.nodeName.isEmpty() ? DeviceRecord::Origin::V4l2 : DeviceRecord::Origin::PipeWire;
    record.role = property(properties, "media.role");
    record.devicePath = firstOf(properties, {"device.path", "api.v4l2.path"});
    record.kernelPath = property(properties, "sysfs.path");
    record.libcameraPath = property(properties, "api.libcamera.path");
    record.busPath =
        firstOf(properties, {"device.bus_path", "device.bus-path", "v4l2.device.bus_info"});
    record.serial = property(properties, "device.serial");
    const QString vendor = property(properties, "device.vendor.id");
    const QString product = property(properties, "device.product.id");
    if (!vendor.isEmpty() && !product.isEmpty())
        record.usbIds = vendor + QLatin1Char(':') + product;
    return record;
}

// The media server numbers what it has, a serial is never used twice. A video node has its path; a
// camera that was pulled out and came back to it has failed in between.
static QString markOf(const DeviceRecord &record, const GstStructure *properties)
{
    QString number;
    if (properties)
        number = firstOf(properties, {"object.serial", "object.id"});
    return number + QLatin1Char('|') + record.nodeName + QLatin1Char('|') + record.devicePath
        + QLatin1Char('|') + record.busPath + QLatin1Char('|') + record.serial;
}

static CameraPresence presenceOf(GstDevice *device, std::shared_ptr<const void> connection)
{
    const GstStructureHandle properties(gst_device_get_properties(device));
    return {std::move(connection), markOf(recordOf(device), properties.get())};
}

CameraDevice::CameraDevice(GstDeviceHandle device, std::shared_ptr<MediaConnection> connection)
    : Camera(recordOf(device.get()), presenceOf(device.get(), connection),
             GstMiniHandle<GstCaps>(gst_device_get_caps(device.get())))
    , m_device(std::move(device))
    , m_connection(std::move(connection))
{
}

static void letGo(gpointer connection)
{
    delete static_cast<std::shared_ptr<MediaConnection> *>(connection);
}

GstObjectHandle<GstElement> CameraDevice::makeSource() const
{
    GstObjectHandle<GstElement> source =
        ownFloating(gst_device_create_element(m_device.get(), nullptr));
    if (source && m_connection) {
        g_object_set(source.get(), "fd", m_connection->descriptor(), nullptr);
        g_object_set_data_full(G_OBJECT(source.get()), "media-connection",
                               new std::shared_ptr<MediaConnection>(m_connection), letGo);
    }
    return source;
}
