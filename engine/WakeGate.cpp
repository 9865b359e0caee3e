#include "WakeGate.h"

#include "MovieRecorder.h"

// Frames that wait in a driver come within milliseconds, also on a busy machine within this.
static constexpr GstClockTime longestWait = 500 * GST_MSECOND;

static GstClockTime now()
{
    const GstObjectHandle<GstClock> clock(gst_system_clock_obtain());
    return gst_clock_get_time(clock.get());
}

void WakeGate::attach(const std::shared_ptr<WakeGate> &gate, GstPad *pad)
{
    gst_pad_add_probe(
        pad, GST_PAD_PROBE_TYPE_BUFFER, onFrame, new std::shared_ptr<WakeGate>(gate),
        [](gpointer shared) { delete static_cast<std::shared_ptr<WakeGate> *>(shared); });
}

void WakeGate::close()
{
    m_closed = now();
}

bool WakeGate::passes(GstClockTime captured)
{
    const GstClockTime closed = m_closed;
    if (closed == 0)
        return true;
    if (captured < closed && now() < closed + longestWait)
        return false;
    m_closed = 0;
    return true;
}

GstPadProbeReturn WakeGate::onFrame(GstPad *pad, GstPadProbeInfo *info, gpointer shared)
{
    WakeGate &gate = **static_cast<std::shared_ptr<WakeGate> *>(shared);
    const GstObjectHandle<GstElement> element(gst_pad_get_parent_element(pad));
    const bool passes =
        !element || gate.passes(capturedAt(element.get(), GST_PAD_PROBE_INFO_BUFFER(info)));
    return passes ? GST_PAD_PROBE_OK : GST_PAD_PROBE_DROP;
}
