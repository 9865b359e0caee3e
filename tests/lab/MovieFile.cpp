#include "MovieFile.h"

#include "GstHandles.h"
#include "LabPattern.h"

#include <gst/app/gstappsink.h>
#include <gst/video/video.h>

#include <QFile>
#include <QImage>
#include <QMutex>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr int soundRate = 48000;
constexpr int loud = 2000; // of 32768
constexpr int silentFor = 480; // samples after which a tone is over

QMutex complaintsMutex;
QStringList complaintsHeard;

void onComplaint(GstDebugCategory *category, GstDebugLevel level, const gchar *, const gchar *,
                 gint, GObject *, GstDebugMessage *message, gpointer)
{
    const QByteArray name = gst_debug_category_get_name(category);
    // Only those who read the movie; the sinks complain of the test's own haste.
    const bool reads = name.startsWith("qtdemux") || name.startsWith("libav")
        || name.startsWith("h264") || name.startsWith("aac") || name.startsWith("codecparsers");
    const QString text = QString::fromUtf8(gst_debug_message_get(message));
    // Said of every movie that is one piece.
    const bool meant = text.startsWith(QLatin1String("failed to find fragment defaults"));
    if (level > GST_LEVEL_WARNING || !reads || meant)
        return;
    const QMutexLocker lock(&complaintsMutex);
    complaintsHeard.append(QString::fromLatin1(name) + QLatin1String(": ") + text);
}

QImage pictureOf(GstSample *sample)
{
    GstVideoInfo info;
    GstMapInfo map;
    if (!gst_video_info_from_caps(&info, gst_sample_get_caps(sample))
        || !gst_buffer_map(gst_sample_get_buffer(sample), &map, GST_MAP_READ))
        return {};
    QImage picture =
        QImage(map.data, info.width, info.height, info.stride[0], QImage::Format_RGB32).copy();
    gst_buffer_unmap(gst_sample_get_buffer(sample), &map);
    return picture;
}

// When a sample is due, with what the file says about where its streams begin.
double timeOf(GstSample *sample)
{
    return double(gst_segment_to_stream_time(gst_sample_get_segment(sample), GST_FORMAT_TIME,
                                             GST_BUFFER_PTS(gst_sample_get_buffer(sample))))
        / GST_SECOND;
}

} // namespace

MovieFile::MovieFile(const QString &path)
    : m_path(path)
{
    gst_init(nullptr, nullptr);
    readBoxes();
    decode();
}

void MovieFile::readBoxes()
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    qint64 at = 0;
    while (at + 8 <= file.size() && m_boxes.size() < 100) {
        file.seek(at);
        const QByteArray head = file.read(16);
        quint64 size = qFromBigEndian<quint32>(head.constData());
        if (size == 1)
            size = qFromBigEndian<quint64>(head.constData() + 8);
        m_boxes.append(QString::fromLatin1(head.mid(4, 4)));
        if (size < 8) // to the end of the file
            break;
        at += qint64(size);
    }
}

void MovieFile::decode()
{
    gst_debug_set_default_threshold(GST_LEVEL_WARNING);
    gst_debug_remove_log_function(gst_debug_log_default);
    gst_debug_remove_log_function(onComplaint);
    gst_debug_add_log_function(onComplaint, nullptr, nullptr);
    complaintsHeard.clear();

    const GstObjectHandle<GstElement> chain = ownFloating(
        gst_parse_launch("filesrc name=file ! qtdemux name=demux "
                         "demux.video_0 ! queue max-size-buffers=0 max-size-time=0 "
                         "max-size-bytes=30000000 ! decodebin ! videoconvertscale ! "
                         "video/x-raw,format=BGRx,width=240,height=136 ! "
                         "appsink name=frames sync=false max-buffers=30 "
                         "demux.audio_0 ! queue max-size-buffers=0 max-size-time=0 "
                         "max-size-bytes=30000000 ! decodebin ! audioconvert ! audioresample ! "
                         "audio/x-raw,format=S16LE,rate=48000,channels=1 ! "
                         "appsink name=sound sync=false",
                         nullptr));
    const GstObjectHandle<GstElement> file(gst_bin_get_by_name(GST_BIN(chain.get()), "file"));
    const GstObjectHandle<GstElement> frames(gst_bin_get_by_name(GST_BIN(chain.get()), "frames"));
    const GstObjectHandle<GstElement> sound(gst_bin_get_by_name(GST_BIN(chain.get()), "sound"));
    g_object_set(file.get(), "location", QFile::encodeName(m_path).constData(), nullptr);
    gst_element_set_state(chain.get(), GST_STATE_PLAYING);

    while (true) {
        const GstMiniHandle<GstSample> sample(
            gst_app_sink_try_pull_sample(GST_APP_SINK(frames.get()), 10 * GST_SECOND));
        if (!sample)
            break;
        const QImage picture = pictureOf(sample.get());
        m_frames.append(
            {LabPattern::counterOf(picture), LabPattern::isMarked(picture), timeOf(sample.get())});
    }
    gint64 length = 0;
    if (gst_element_query_duration(chain.get(), GST_FORMAT_TIME, &length))
        m_duration = double(length) / GST_SECOND;
    const GstObjectHandle<GstElement> demux(gst_bin_get_by_name(GST_BIN(chain.get()), "demux"));
    const GstObjectHandle<GstPad> pad(gst_element_get_static_pad(demux.get(), "video_0"));
    if (pad) {
        const GstMiniHandle<GstCaps> caps(gst_pad_get_current_caps(pad.get()));
        if (caps) {
            const GlibString text(gst_caps_to_string(caps.get()));
            m_videoFormat = QString::fromUtf8(text.get());
        }
    }

    int quiet = silentFor;
    qint64 heard = 0; // samples
    qint64 all = 0;
    while (true) {
        const GstMiniHandle<GstSample> sample(
            gst_app_sink_try_pull_sample(GST_APP_SINK(sound.get()), GST_SECOND));
        if (!sample)
            break;
        GstMapInfo map;
        if (!gst_buffer_map(gst_sample_get_buffer(sample.get()), &map, GST_MAP_READ))
            break;
        const auto *values = reinterpret_cast<const qint16 *>(map.data);
        const int count = int(map.size / sizeof(qint16));
        const double begin = timeOf(sample.get());
        for (int i = 0; i < count; ++i) {
            const bool isLoud = qAbs(int(values[i])) > loud;
            if (isLoud && quiet >= silentFor)
                m_tones.append(begin + double(i) / soundRate);
            quiet = isLoud ? 0 : quiet + 1;
            heard += quiet < silentFor;
        }
        all += count;
        m_loudness = double(heard) / double(all);
        m_soundDuration = begin + double(count) / soundRate;
        gst_buffer_unmap(gst_sample_get_buffer(sample.get()), &map);
    }
    gst_element_set_state(chain.get(), GST_STATE_NULL);
    gst_debug_remove_log_function(onComplaint);
    const QMutexLocker lock(&complaintsMutex);
    m_complaints = complaintsHeard;
}

QVector<int> MovieFile::counters() const
{
    QVector<int> numbers;
    for (const Frame &frame : m_frames)
        numbers.append(frame.counter);
    return numbers;
}

int MovieFile::missingFrames() const
{
    QVector<int> seen = counters();
    if (seen.isEmpty())
        return 0;
    seen.erase(std::unique(seen.begin(), seen.end()), seen.end());
    return seen.last() - seen.first() + 1 - seen.size();
}

int MovieFile::longestRepeat() const
{
    int longest = 0;
    int same = 0;
    for (int i = 0; i < m_frames.size(); ++i) {
        same = i > 0 && m_frames[i].counter == m_frames[i - 1].counter ? same + 1 : 1;
        longest = qMax(longest, same);
    }
    return longest;
}

QVector<double> MovieFile::flashes() const
{
    QVector<double> times;
    for (int i = 0; i < m_frames.size(); ++i)
        if (m_frames[i].marked && (i == 0 || !m_frames[i - 1].marked))
            times.append(m_frames[i].time);
    return times;
}

QVector<double> MovieFile::soundDelays() const
{
    QVector<double> delays;
    const QVector<double> seen = flashes();
    for (const double flash : seen) {
        const auto nearest =
            std::min_element(m_tones.begin(), m_tones.end(), [flash](double a, double b) {
                return qAbs(a - flash) < qAbs(b - flash);
            });
        if (nearest != m_tones.end() && qAbs(*nearest - flash) < 0.5)
            delays.append(*nearest - flash);
    }
    return delays;
}
