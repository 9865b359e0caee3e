#include "BareDevice.h"

namespace {
struct BareDevice {
    GstDevice parent;
};
struct BareDeviceClass {
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

static GType bareDeviceType()
{
    static const GType type =
        g_type_register_static_simple(GST_TYPE_DEVICE, "BareDevice", sizeof(BareDeviceClass),
                                      makeClass, sizeof(BareDevice), nullptr, GTypeFlags(0));
    return type;
}

GstDeviceHandle makeBareDevice(const QByteArray &properties)
{
    const GstMiniHandle<GstCaps> caps(
        gst_caps_from_string("video/x-raw, format=YUY2, width=640, height=480, framerate=30/1"));
    const GstStructureHandle structure(
        gst_structure_from_string(("device, " + properties).constData(), nullptr));
    auto *device = static_cast<GstDevice *>(
        g_object_new(bareDeviceType(), "display-name", "Camera", "device-class", "Video/Source",
                     "caps", caps.get(), "properties", structure.get(), nullptr));
    return {static_cast<GstDevice *>(gst_object_ref_sink(device)), GstObjectUnref()};
}
