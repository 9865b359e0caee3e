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

// Only the movie player offers to be given a next movie; our own pipelines have no such signal.
static guint offerOf(const GstObject *source)
{
    return GST_IS_PIPELINE(source) ? g_signal_lookup("about-to-finish", G_OBJECT_TYPE(source)) : 0;
}

// The movie player asks, a while before the end of each movie, for the next one, and waits for it
// as long as this one lasts; a movie that is damaged is at its end when it is stopped, and the
// window would stand still for that time. There is no next one here: the player is not told.
static void offerNoNextMovie(GstObject *player)
{
    while (const gulong handler = g_signal_handler_find(player, G_SIGNAL_MATCH_ID, offerOf(player),
                                                        0, nullptr, nullptr, nullptr))
        g_signal_handler_disconnect(player, handler);
}

static void emptyReader(const GValue *part, gpointer)
{
    auto *reader = static_cast<GstElement *>(g_value_get_object(part));
    gst_element_set_locked_state(reader, TRUE); // until the player itself wants it again
    gst_element_set_state(reader, GST_STATE_NULL);
}

// What reads a movie that never began, since it is damaged or was stopped too soon, stays in the
// player with all that it had made, and is started once more along with the next movie. Where that
// fails the next one does not begin either, and another attempt to begin it hangs.
static void onNextMovie(GObject *player, GParamSpec *, gpointer)
{
    GstIterator *readers =
        gst_bin_iterate_all_by_element_factory_name(GST_BIN(player), "uridecodebin");
    gst_iterator_foreach(readers, emptyReader, nullptr);
    gst_iterator_free(readers);
}

static void expectNextMovie(GstObject *player)
{
    if (!g_signal_handler_find(player, G_SIGNAL_MATCH_FUNC, 0, 0, nullptr,
                               reinterpret_cast<gpointer>(onNextMovie), nullptr))
        g_signal_connect(player, "notify::uri", G_CALLBACK(onNextMovie), nullptr);
}

// The movie player is told of messages as they are posted, but leaves them in its bus, and with
// them every movie's decoders: what nobody will read is thrown away when the next one comes.
static gboolean onPlayersMessage(GSignalInvocationHint *, guint, const GValue *values, gpointer)
{
    auto *bus = static_cast<GstBus *>(g_value_get_object(values));
    while (const GstMiniHandle<GstMessage> unread{gst_bus_pop(bus)}) { }
    GstObject *source = GST_MESSAGE_SRC(static_cast<GstMessage *>(g_value_get_boxed(values + 1)));
    if (offerOf(source) != 0) {
        offerNoNextMovie(source);
        expectNextMovie(source);
    }
    return TRUE;
}

// Our own pipelines read their messages.
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
