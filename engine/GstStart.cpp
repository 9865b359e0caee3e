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

// A video node that is closed leaves its buffers to whoever still has one. On that way
// GStreamer 1.22 forgets a reference: each camera that was ever opened stays open, with its memory
// in the kernel and its node's number, until the program ends. So buffers are waited for, as other
// drivers want it. Said as the program is loaded: one thread must not change the environment while
// another reads it.
static const bool letsVideoNodesGo = qputenv("GST_V4L2_FORCE_DRAIN", "1");

// The movie player asks, a while before the end of each movie, for the next one, and waits for it
// as long as this one lasts; a movie that is damaged is at its end when it is stopped, and the
// window would stand still for that time. There is no next one here: the player is not told.
static void offerNoNextMovie(GstObject *player)
{
    const guint offer =
        GST_IS_PIPELINE(player) ? g_signal_lookup("about-to-finish", G_OBJECT_TYPE(player)) : 0;
    if (offer == 0)
        return;
    while (const gulong handler = g_signal_handler_find(player, G_SIGNAL_MATCH_ID, offer, 0,
                                                        nullptr, nullptr, nullptr))
        g_signal_handler_disconnect(player, handler);
}

// The movie player is told of messages as they are posted, but leaves them in its bus, and with
// them every movie's decoders: what nobody will read is thrown away when the next one comes.
static gboolean onPlayersMessage(GSignalInvocationHint *, guint, const GValue *values, gpointer)
{
    auto *bus = static_cast<GstBus *>(g_value_get_object(values));
    while (const GstMiniHandle<GstMessage> unread{gst_bus_pop(bus)}) { }
    offerNoNextMovie(GST_MESSAGE_SRC(static_cast<GstMessage *>(g_value_get_boxed(values + 1))));
    return TRUE;
}

// Our own pipelines read their messages, and have no such signal.
static void watchPlayers()
{
    g_type_class_ref(GST_TYPE_BUS); // before there is a bus it has no signals
    g_signal_add_emission_hook(g_signal_lookup("sync-message", GST_TYPE_BUS), 0, onPlayersMessage,
                               nullptr, nullptr);
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
    watchPlayers();
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
