// Plays a pipeline of GStreamer's as its own gst-launch-1.0 does, until the input ends; then what
// it writes is completed.
//
//   bench_bare PIPELINE [FIRST...]     before it, the pipelines FIRST play to their end, one by one
//
// A conversion is compiled when it is first used, and two threads that do so at the same moment can
// crash or stand still. So the conversions of a pipeline with several threads are used once before.

#include <gst/gst.h>

#include <cstdio>
#include <unistd.h>

namespace {

constexpr GstClockTime patience = 10 * GST_SECOND;

bool waitForEnd(GstElement *pipeline)
{
    GstBus *bus = gst_element_get_bus(pipeline);
    GstMessage *message = gst_bus_timed_pop_filtered(
        bus, patience, GstMessageType(GST_MESSAGE_EOS | GST_MESSAGE_ERROR));
    const bool ended = message && GST_MESSAGE_TYPE(message) == GST_MESSAGE_EOS;
    if (message)
        gst_message_unref(message);
    gst_object_unref(bus);
    return ended;
}

// The clock that the media server's source offers jumps when the server gives its graph another
// driver, and the muxer would wait for hours.
void useSystemClock(GstElement *pipeline)
{
    GstClock *clock = gst_system_clock_obtain();
    gst_pipeline_use_clock(GST_PIPELINE(pipeline), clock);
    gst_object_unref(clock);
}

bool play(const char *description, bool untilInputEnds)
{
    GError *error = nullptr;
    GstElement *pipeline = gst_parse_launch(description, &error);
    if (!pipeline || error) {
        std::fprintf(stderr, "bench_bare: %s\n", error ? error->message : description);
        return false;
    }
    useSystemClock(pipeline);
    gst_element_set_state(pipeline, GST_STATE_PLAYING);
    char end = 0;
    if (untilInputEnds) {
        while (read(STDIN_FILENO, &end, 1) > 0)
            continue;
        gst_element_send_event(pipeline, gst_event_new_eos());
    }
    const bool ended = waitForEnd(pipeline);
    gst_element_set_state(pipeline, GST_STATE_NULL);
    gst_object_unref(pipeline);
    return ended;
}

} // namespace

int main(int argc, char **argv)
{
    gst_init(&argc, &argv);
    if (argc < 2)
        return 2;
    for (int i = 2; i < argc; ++i)
        if (!play(argv[i], false))
            return 1;
    return play(argv[1], true) ? 0 : 1;
}
