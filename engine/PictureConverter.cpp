#include "PictureConverter.h"

PictureConverter::PictureConverter(QImage::Format format)
    : m_format(format)
{
    gst_video_info_init(&m_from);
    gst_video_info_init(&m_to);
}

// A frame that is still interlaced is scaled as if it were whole. Told of its fields, a converter
// scales each apart, which widens the teeth, and fails where there are not two lines.
static GstVideoFrame asWhole(const GstVideoFrame &frame)
{
    GstVideoFrame whole = frame;
    whole.flags = GstVideoFrameFlags(whole.flags & ~GST_VIDEO_FRAME_FLAG_INTERLACED);
    GST_VIDEO_INFO_INTERLACE_MODE(&whole.info) = GST_VIDEO_INTERLACE_MODE_PROGRESSIVE;
    GST_VIDEO_INFO_FIELD_ORDER(&whole.info) = GST_VIDEO_FIELD_ORDER_UNKNOWN;
    return whole;
}

static GstVideoFormat formatOf(const QImage &image)
{
    switch (image.format()) {
    case QImage::Format_RGB888:
        return GST_VIDEO_FORMAT_RGB;
    case QImage::Format_ARGB32_Premultiplied: // the same as long as it is opaque
        return GST_VIDEO_FORMAT_BGRA;
    default:
        return GST_VIDEO_FORMAT_BGRx;
    }
}

bool PictureConverter::prepare(const GstVideoInfo &from, const QImage &to)
{
    GstVideoInfo wanted;
    gst_video_info_set_format(&wanted, formatOf(to), guint(to.width()), guint(to.height()));
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

bool PictureConverter::fill(const CameraFrame &frame, QImage *image)
{
    const GstVideoFrame whole = asWhole(frame.picture());
    if (image->format() != QImage::Format_RGB888 && m_screen.convert(whole, image))
        return true;
    return convertWithGStreamer(whole, image);
}

QImage PictureConverter::convert(const CameraFrame &frame, const QSize &size, QImage reuse)
{
    if (size.isEmpty())
        return {};
    QImage image = std::move(reuse);
    if (image.size() != size || image.format() != m_format || !image.isDetached())
        image = QImage(size, m_format);
    return !image.isNull() && fill(frame, &image) ? image : QImage();
}

bool PictureConverter::convertWithGStreamer(const GstVideoFrame &frame, QImage *image)
{
    if (!prepare(frame.info, *image))
        return false;
    const gsize size = gsize(image->sizeInBytes());
    const GstMiniHandle<GstBuffer> buffer(gst_buffer_new_wrapped_full(
        GstMemoryFlags(0), image->bits(), size, 0, size, nullptr, nullptr));
    GstVideoFrame target;
    if (!gst_video_frame_map(&target, &m_to, buffer.get(), GST_MAP_WRITE))
        return false;
    gst_video_converter_frame(m_converter.get(), &frame, &target);
    gst_video_frame_unmap(&target);
    return true;
}
