#include "Receiver.h"

#include "LabPattern.h"

#include <gst/app/gstappsink.h>
#include <gst/video/video.h>

Receiver::Receiver(const QString &camera, const QString &decoding, const QString &beside)
    : m_pipeline(gst_parse_launch(
        QStringLiteral("pipewiresrc target-object=%1 do-timestamp=true always-copy=true ! %2 ! "
                       "videoconvert ! video/x-raw,format=BGRx ! appsink name=sink sync=false %3")
            .arg(camera, decoding, beside)
            .toUtf8()
            .constData(),
        nullptr))
    , m_sink(gst_bin_get_by_name(GST_BIN(m_pipeline), "sink"))
    , m_sound(gst_bin_get_by_name(GST_BIN(m_pipeline), "sound"))
{
    gst_element_set_state(m_pipeline, GST_STATE_PLAYING);
}

Receiver::~Receiver()
{
    gst_element_set_state(m_pipeline, GST_STATE_NULL);
    gst_object_unref(m_sink);
    g_clear_pointer(&m_sound, gst_object_unref);
    gst_object_unref(m_pipeline);
}

QImage Receiver::next(int milliseconds)
{
    GstSample *sample = gst_app_sink_try_pull_sample(GST_APP_SINK(m_sink),
                                                     GstClockTime(milliseconds) * GST_MSECOND);
    if (!sample)
        return {};
    m_lastTime = double(GST_BUFFER_PTS(gst_sample_get_buffer(sample))) / GST_SECOND;
    GstVideoInfo info;
    gst_video_info_from_caps(&info, gst_sample_get_caps(sample));
    GstMapInfo map;
    gst_buffer_map(gst_sample_get_buffer(sample), &map, GST_MAP_READ);
    QImage picture =
        QImage(map.data, info.width, info.height, info.stride[0], QImage::Format_RGB32).copy();
    gst_buffer_unmap(gst_sample_get_buffer(sample), &map);
    gst_sample_unref(sample);
    return picture;
}

bool Receiver::nextToneBegin(bool *silent, QVector<double> *begins)
{
    GstSample *sample = gst_app_sink_try_pull_sample(GST_APP_SINK(m_sound), 2 * GST_SECOND);
    if (!sample)
        return false;
    GstBuffer *buffer = gst_sample_get_buffer(sample);
    GstMapInfo map;
    gst_buffer_map(buffer, &map, GST_MAP_READ);
    const auto *samples = reinterpret_cast<const qint16 *>(map.data);
    int quiet = 0;
    for (gsize i = 0; i < map.size / sizeof(qint16); ++i) {
        const bool loud = qAbs(int(samples[i])) > 2000;
        if (loud && *silent)
            begins->append(double(GST_BUFFER_PTS(buffer)) / GST_SECOND + double(i) / 48000);
        quiet = loud ? 0 : quiet + 1;
        *silent = !loud && (*silent || quiet > 100);
    }
    gst_buffer_unmap(buffer, &map);
    gst_sample_unref(sample);
    return true;
}

QVector<int> Receiver::counters(int frames)
{
    QVector<int> seen;
    for (int i = 0; i < frames; ++i)
        seen.append(LabPattern::counterOf(next()));
    return seen;
}
