#include "FrameGate.h"

void FrameGate::attach(const std::shared_ptr<FrameGate> &gate, GstPad *pad)
{
    gst_pad_add_probe(
        pad, GST_PAD_PROBE_TYPE_BUFFER, onFrame, new std::shared_ptr<FrameGate>(gate),
        [](gpointer shared) { delete static_cast<std::shared_ptr<FrameGate> *>(shared); });
}

bool FrameGate::drops()
{
    int left = m_toDrop;
    // What was said while one was counted holds.
    while (left > 0 && !m_toDrop.compare_exchange_weak(left, left - 1)) { }
    return left != 0;
}

// The first frame after a gap says so: the deinterlacer must not mix it with one of before.
GstPadProbeReturn FrameGate::onFrame(GstPad * /*pad*/, GstPadProbeInfo *info, gpointer shared)
{
    FrameGate &gate = **static_cast<std::shared_ptr<FrameGate> *>(shared);
    if (gate.drops()) {
        gate.m_dropped = true;
        gate.m_gap = true;
        return GST_PAD_PROBE_DROP;
    }
    if (gate.m_gap) {
        gate.m_gap = false;
        GstBuffer *frame = gst_buffer_make_writable(GST_PAD_PROBE_INFO_BUFFER(info));
        GST_BUFFER_FLAG_SET(frame, GST_BUFFER_FLAG_DISCONT);
        GST_PAD_PROBE_INFO_DATA(info) = frame;
    }
    return GST_PAD_PROBE_OK;
}
