#include "IndexPace.h"

#include <algorithm>
#include <utility>

// Of the time no more than half is for the index, which waits twice.
static constexpr GstClockTime periodsPerWait = 4;

namespace {

/// Of the streaming thread that writes the file.
struct Pace {
    GstObjectHandle<GstElement> muxer;
    GstClockTime since = GST_CLOCK_TIME_NONE; ///< the disk is waited for; none while it is not
    GstClockTime before = 0; ///< how long it was waited for the last time but one
    GstClockTime period = IndexPace::usualPeriod;
};

} // namespace

// One long wait is a disk that had something else to do.
GstClockTime IndexPace::periodFor(GstClockTime last, GstClockTime before)
{
    return std::clamp(periodsPerWait * std::min(last, before), usualPeriod, longestPeriod);
}

static void disksTurnEnded(Pace &pace, GstClockTime waited)
{
    const GstClockTime period = IndexPace::periodFor(waited, std::exchange(pace.before, waited));
    if (period == std::exchange(pace.period, period))
        return;
    g_object_set(pace.muxer.get(), "reserved-moov-update-period", guint64(period), nullptr);
}

// The muxer goes on with something as soon as the disk has let it.
static GstPadProbeReturn look(GstPad *, GstPadProbeInfo *info, gpointer data)
{
    Pace &pace = *static_cast<Pace *>(data);
    const GstClockTime now = gst_util_get_timestamp();
    if (GST_CLOCK_TIME_IS_VALID(pace.since))
        disksTurnEnded(pace, now - std::exchange(pace.since, GST_CLOCK_TIME_NONE));
    const GstBuffer *buffer = GST_PAD_PROBE_INFO_BUFFER(info);
    if ((GST_PAD_PROBE_INFO_TYPE(info) & GST_PAD_PROBE_TYPE_BUFFER) != 0
        && GST_BUFFER_FLAG_IS_SET(buffer, GST_BUFFER_FLAG_SYNC_AFTER))
        pace.since = now;
    return GST_PAD_PROBE_OK;
}

void IndexPace::keep(GstElement *muxer, GstElement *file)
{
    auto *pace = new Pace;
    pace->muxer.reset(GST_ELEMENT(gst_object_ref(muxer)));
    const GstObjectHandle<GstPad> pad(gst_element_get_static_pad(file, "sink"));
    gst_pad_add_probe(
        pad.get(), GstPadProbeType(GST_PAD_PROBE_TYPE_BUFFER | GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM),
        look, pace, [](gpointer shared) { delete static_cast<Pace *>(shared); });
}
