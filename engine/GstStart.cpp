#include "GstStart.h"

#include "EngineLog.h"
#include "GstHandles.h"

static bool elementExists(const char *name)
{
    const GstObjectHandle<GstElementFactory> factory(gst_element_factory_find(name));
    if (!factory)
        qCWarning(engineLog, "GStreamer has no element %s", name);
    return factory != nullptr;
}

static bool startOnce()
{
    GError *reason = nullptr;
    const bool started = gst_init_check(nullptr, nullptr, &reason);
    const GlibErrorHandle error(reason);
    if (!started) {
        qCWarning(engineLog, "GStreamer does not start: %s", error ? error->message : "no reason");
        return false;
    }
    bool complete = true;
    for (const char *name : {"capsfilter", "tee", "appsink"})
        complete = elementExists(name) && complete;
    return complete;
}

bool startGstreamer()
{
    static const bool ready = startOnce();
    return ready;
}
