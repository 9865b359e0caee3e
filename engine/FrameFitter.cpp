#include "FrameFitter.h"

#include "EngineLog.h"

#include <QSize>

FrameFitter::FrameFitter(const GstVideoInfo &wanted)
    : m_wanted(wanted)
    , m_given(wanted)
{
}

GstMiniHandle<GstBuffer> FrameFitter::fitted(GstBuffer *frame, GstCaps *caps)
{
    if (caps && caps != m_caps.get())
        look(caps);
    // What describes itself may be laid out in any way.
    const bool isWhole = gst_buffer_get_video_meta(frame)
        || gst_buffer_get_size(frame) >= GST_VIDEO_INFO_SIZE(&m_given);
    if (!m_isKnown || !isWhole)
        return nullptr;
    return fits() ? GstMiniHandle<GstBuffer>(gst_buffer_ref(frame)) : converted(frame);
}

void FrameFitter::look(GstCaps *caps)
{
    m_caps.reset(gst_caps_ref(caps));
    m_isKnown = gst_video_info_from_caps(&m_given, caps);
    m_converter.reset();
    if (m_isKnown && !fits())
        makeConverter();
}

bool FrameFitter::fits() const
{
    return GST_VIDEO_INFO_FORMAT(&m_given) == GST_VIDEO_INFO_FORMAT(&m_wanted)
        && m_given.width == m_wanted.width && m_given.height == m_wanted.height;
}

void FrameFitter::makeConverter()
{
    qCInfo(engineLog, "the camera sends %dx%d %s into a movie of %dx%d", m_given.width,
           m_given.height, GST_VIDEO_INFO_NAME(&m_given), m_wanted.width, m_wanted.height);
    const QSize room(m_wanted.width, m_wanted.height);
    const QSize shown = QSize(m_given.width, m_given.height)
                            .scaled(room, Qt::KeepAspectRatio)
                            .expandedTo(QSize(1, 1));
    GstStructure *options = gst_structure_new(
        "options", GST_VIDEO_CONVERTER_OPT_DEST_X, G_TYPE_INT, (room.width() - shown.width()) / 2,
        GST_VIDEO_CONVERTER_OPT_DEST_Y, G_TYPE_INT, (room.height() - shown.height()) / 2,
        GST_VIDEO_CONVERTER_OPT_DEST_WIDTH, G_TYPE_INT, shown.width(),
        GST_VIDEO_CONVERTER_OPT_DEST_HEIGHT, G_TYPE_INT, shown.height(), nullptr);
    m_converter.reset(gst_video_converter_new(&m_given, &m_wanted, options));
}

GstMiniHandle<GstBuffer> FrameFitter::converted(GstBuffer *frame)
{
    if (!m_converter)
        return nullptr;
    GstMiniHandle<GstBuffer> made(
        gst_buffer_new_allocate(nullptr, GST_VIDEO_INFO_SIZE(&m_wanted), nullptr));
    GstVideoFrame from;
    GstVideoFrame to;
    if (!made || !gst_video_frame_map(&from, &m_given, frame, GST_MAP_READ))
        return nullptr;
    const bool isMapped = gst_video_frame_map(&to, &m_wanted, made.get(), GST_MAP_WRITE);
    if (isMapped) {
        gst_video_converter_frame(m_converter.get(), &from, &to);
        gst_video_frame_unmap(&to);
    }
    gst_video_frame_unmap(&from);
    return isMapped ? std::move(made) : nullptr;
}
