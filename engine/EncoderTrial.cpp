#include "EncoderTrial.h"

#include "EngineLog.h"
#include "PipelineTools.h"

#include <algorithm>
#include <chrono>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <vector>

using std::chrono::steady_clock;

// Longer than any encoder needs that is merely slow, or waits for the machine.
static const GstClockTime trialLimit = 30 * GST_SECOND;
static const int politeness = 4; // the nice value, as much as is added to a movie's own threads

static GstPadProbeReturn noteArrival(GstPad *, GstPadProbeInfo *, gpointer arrivals)
{
    static_cast<std::vector<steady_clock::time_point> *>(arrivals)->push_back(steady_clock::now());
    return GST_PAD_PROBE_OK;
}

// The time between two frames that the machine did not interrupt, in s.
static double frameTimeOf(const std::vector<steady_clock::time_point> &arrivals)
{
    std::vector<double> times;
    for (size_t i = 1; i < arrivals.size(); ++i)
        times.push_back(std::chrono::duration<double>(arrivals[i] - arrivals[i - 1]).count());
    if (times.empty())
        return 0;
    const auto quarter = times.begin() + std::ptrdiff_t(times.size() / 4);
    std::nth_element(times.begin(), quarter, times.end());
    return *quarter;
}

double tryEncoder(const QByteArray &source, const QByteArray &encoder)
{
    setpriority(PRIO_PROCESS, id_t(syscall(SYS_gettid)), politeness);
    const GstObjectHandle<GstElement> pipeline =
        parsePipeline("trial", source + " ! " + encoder + " ! fakesink name=end");
    if (!pipeline)
        return -1;
    std::vector<steady_clock::time_point> arrivals; // the pipeline's; ours once it has stopped
    const GstObjectHandle<GstElement> end(gst_bin_get_by_name(GST_BIN(pipeline.get()), "end"));
    const GstObjectHandle<GstPad> pad(gst_element_get_static_pad(end.get(), "sink"));
    gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_BUFFER, noteArrival, &arrivals, nullptr);
    gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
    const GstObjectHandle<GstBus> bus(gst_element_get_bus(pipeline.get()));
    const GstMiniHandle<GstMessage> last(gst_bus_timed_pop_filtered(
        bus.get(), trialLimit, GstMessageType(GST_MESSAGE_EOS | GST_MESSAGE_ERROR)));
    const bool isComplete = last && GST_MESSAGE_TYPE(last.get()) == GST_MESSAGE_EOS;
    if (last && !isComplete)
        qCInfo(engineLog) << "the trial of an encoder fails:" << errorText(last.get());
    dumpPipeline(pipeline.get(), isComplete ? "end" : "error");
    gst_element_set_state(pipeline.get(), GST_STATE_NULL);
    return isComplete && !arrivals.empty() ? frameTimeOf(arrivals) : -1;
}
