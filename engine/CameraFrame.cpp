#include "CameraFrame.h"

#include "EngineLog.h"

CameraFrame::CameraFrame(GstMiniHandle<GstSample> sample)
    : m_sample(std::move(sample))
{
    GstVideoInfo info;
    GstBuffer *buffer = gst_sample_get_buffer(m_sample.get());
    GstCaps *caps = gst_sample_get_caps(m_sample.get());
    if (!buffer || !caps || !gst_video_info_from_caps(&info, caps))
        return;
    // Mapping a buffer that is too short makes GStreamer complain on the terminal.
    if (gst_buffer_get_size(buffer) < GST_VIDEO_INFO_SIZE(&info)
        && !gst_buffer_get_video_meta(buffer))
        qCDebug(engineLog, "a frame is shorter than its format says");
    else
        m_mapped = gst_video_frame_map(&m_picture, &info, buffer, GST_MAP_READ);
}

CameraFrame::~CameraFrame()
{
    if (m_mapped)
        gst_video_frame_unmap(&m_picture);
}

std::shared_ptr<CameraFrame> CameraFrame::fromSample(GstMiniHandle<GstSample> sample)
{
    if (!sample)
        return nullptr;
    const std::shared_ptr<CameraFrame> frame(new CameraFrame(std::move(sample)));
    return frame->m_mapped ? frame : nullptr;
}

QSize CameraFrame::size() const
{
    return {GST_VIDEO_FRAME_WIDTH(&m_picture), GST_VIDEO_FRAME_HEIGHT(&m_picture)};
}

cv::Mat CameraFrame::view() const
{
    const int width = GST_VIDEO_FRAME_COMP_WIDTH(&m_picture, 0);
    const int bytes = GST_VIDEO_FRAME_COMP_PSTRIDE(&m_picture, 0);
    // A matrix has no read-only form; nobody writes through this one.
    return {GST_VIDEO_FRAME_HEIGHT(&m_picture), width, CV_8UC(qBound(1, bytes, 4)),
            GST_VIDEO_FRAME_PLANE_DATA(&m_picture, 0),
            size_t(GST_VIDEO_FRAME_PLANE_STRIDE(&m_picture, 0))};
}
