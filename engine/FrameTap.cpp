#include "FrameTap.h"

#include "MovieRecorder.h"

void FrameTap::attach(const std::shared_ptr<FrameTap> &tap, GstPad *pad)
{
    gst_pad_add_probe(
        pad, GST_PAD_PROBE_TYPE_BUFFER, onFrame, new std::shared_ptr<FrameTap>(tap),
        [](gpointer shared) { delete static_cast<std::shared_ptr<FrameTap> *>(shared); });
}

void FrameTap::handTo(std::shared_ptr<MovieRecorder> recorder)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_recorder.swap(recorder);
}

GstPadProbeReturn FrameTap::onFrame(GstPad *pad, GstPadProbeInfo *info, gpointer shared)
{
    FrameTap &tap = **static_cast<std::shared_ptr<FrameTap> *>(shared);
    std::shared_ptr<MovieRecorder> recorder;
    {
        const std::lock_guard<std::mutex> lock(tap.m_mutex);
        recorder = tap.m_recorder;
    }
    if (!recorder)
        return GST_PAD_PROBE_OK;
    const GstObjectHandle<GstElement> element(gst_pad_get_parent_element(pad));
    GstBuffer *frame = GST_PAD_PROBE_INFO_BUFFER(info);
    const GstMiniHandle<GstCaps> caps(gst_pad_get_current_caps(pad));
    if (element)
        recorder->addFrame(frame, capturedAt(element.get(), frame), caps.get());
    return GST_PAD_PROBE_OK;
}
