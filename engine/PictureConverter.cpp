#include "PictureConverter.h"

PictureConverter::PictureConverter(QImage::Format format)
    : m_format(format)
{
    gst_video_info_init(&m_from);
    gst_video_info_init(&m_to);
}

bool PictureConverter::prepare(const GstVideoInfo &from, const QImage &to)
{
    GstVideoInfo wanted;
    gst_video_info_set_format(
        &wanted, m_format == QImage::Format_RGB888 ? GST_VIDEO_FORMAT_RGB : GST_VIDEO_FORMAT_BGRx,
        guint(to.width()), guint(to.height()));
    GST_VIDEO_INFO_PLANE_STRIDE(&wanted, 0) = to.bytesPerLine();
    GST_VIDEO_INFO_SIZE(&wanted) = gsize(to.sizeInBytes());
    GST_VIDEO_INFO_FPS_N(&wanted) = GST_VIDEO_INFO_FPS_N(&from);
    GST_VIDEO_INFO_FPS_D(&wanted) = GST_VIDEO_INFO_FPS_D(&from);
    if (gst_video_info_is_equal(&m_from, &from) && gst_video_info_is_equal(&m_to, &wanted))
        return m_converter != nullptr;
    m_from = from;
    m_to = wanted;
    // The same two-tap scaling that a pipeline's convert-and-scale element uses by default.
    GstStructure *options = gst_structure_new(
        "options", GST_VIDEO_CONVERTER_OPT_RESAMPLER_METHOD, GST_TYPE_VIDEO_RESAMPLER_METHOD,
        GST_VIDEO_RESAMPLER_METHOD_LINEAR, GST_VIDEO_RESAMPLER_OPT_MAX_TAPS, G_TYPE_INT, 2,
        GST_VIDEO_CONVERTER_OPT_DITHER_METHOD, GST_TYPE_VIDEO_DITHER_METHOD, GST_VIDEO_DITHER_NONE,
        nullptr);
    m_converter.reset(gst_video_converter_new(&m_from, &m_to, options));
    return m_converter != nullptr;
}

QImage PictureConverter::convert(const CameraFrame &frame, const QSize &size, QImage reuse)
{
    if (size.isEmpty())
        return {};
    QImage image = std::move(reuse);
    if (image.size() != size || image.format() != m_format || !image.isDetached())
        image = QImage(size, m_format);
    if (image.isNull() || !prepare(frame.picture().info, image))
        return {};
    const GstMiniHandle<GstBuffer> buffer(
        gst_buffer_new_wrapped_full(GstMemoryFlags(0), image.bits(), gsize(image.sizeInBytes()), 0,
                                    gsize(image.sizeInBytes()), nullptr, nullptr));
    GstVideoFrame target;
    if (!gst_video_frame_map(&target, &m_to, buffer.get(), GST_MAP_WRITE))
        return {};
    gst_video_converter_frame(m_converter.get(), &frame.picture(), &target);
    gst_video_frame_unmap(&target);
    return image;
}
