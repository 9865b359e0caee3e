#include "StandInCamera.h"

#include "LabPattern.h"

#include <QElapsedTimer>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace {

constexpr int toneLength = StandInCamera::soundRate / 10; // samples

qint16 sampleAt(qint64 sinceBeat)
{
    if (sinceBeat >= toneLength)
        return 0;
    return qint16(12000 * std::sin(2 * M_PI * 1000 * double(sinceBeat) / StandInCamera::soundRate));
}

GstClockTime now()
{
    const GstObjectHandle<GstClock> clock(gst_system_clock_obtain());
    return gst_clock_get_time(clock.get());
}

// Sleeps until then, on the system's clock.
void sleepUntil(GstClockTime time)
{
    const GstObjectHandle<GstClock> clock(gst_system_clock_obtain());
    GstClockID alarm = gst_clock_new_single_shot_id(clock.get(), time);
    gst_clock_id_wait(alarm, nullptr);
    gst_clock_id_unref(alarm);
}

} // namespace

StandInCamera::StandInCamera(QSize size, int rate)
    : m_painter(FramePainter::UYVY, size, LabPattern::groundOf("stand-in"))
    , m_rate(rate)
{
    gst_video_info_init(&m_format);
    gst_video_info_set_format(&m_format, GST_VIDEO_FORMAT_UYVY, guint(size.width()),
                              guint(size.height()));
    m_format.fps_n = rate;
    m_format.fps_d = 1;
}

void StandInCamera::send(double seconds, TakeFrame takeFrame, TakeSound takeSound)
{
    m_frames = int(std::lround(seconds * m_rate));
    m_takeFrame = std::move(takeFrame);
    m_takeSound = std::move(takeSound);
    start();
}

void StandInCamera::run()
{
    const GstClockTime begin = now();
    GstClockTime due = begin;
    for (int i = 0; i < m_frames; ++i) {
        const GstClockTime captured = due;
        sleepUntil(due);
        sendFrame(i, captured);
        due = begin + GstClockTime(i + 1) * GST_SECOND / GstClockTime(m_rate);
        sleepUntil(due); // sound comes when it has been heard
        m_soundDue.append(due);
        m_soundSent.append(now());
        const qint64 from = qint64(i) * soundRate / m_rate;
        sendSound(from, qint64(i + 1) * soundRate / m_rate - from, captured);
    }
    m_end = due;
}

void StandInCamera::sendFrame(int number, GstClockTime captured)
{
    const GstMiniHandle<GstBuffer> frame(
        gst_buffer_new_allocate(nullptr, gsize(m_painter.frameBytes()), nullptr));
    GstMapInfo map;
    if (!gst_buffer_map(frame.get(), &map, GST_MAP_WRITE))
        return;
    m_painter.paint(map.data, quint32(number));
    gst_buffer_unmap(frame.get(), &map);
    QElapsedTimer timer;
    timer.start();
    m_takeFrame(frame.get(), captured);
    m_longestCall = qMax(m_longestCall, timer.nsecsElapsed());
}

void StandInCamera::sendSound(qint64 from, qint64 count, GstClockTime captured)
{
    const qint64 beat = qint64(LabPattern::beatFrames) * soundRate / m_rate;
    QVector<qint16> samples;
    for (qint64 i = from; i < from + count; ++i)
        for (int channel = 0; channel < 2; ++channel)
            samples.append(sampleAt(i % beat));
    m_takeSound(reinterpret_cast<const char *>(samples.constData()), count, captured);
}

double StandInCamera::soundLate() const
{
    const GstClockTime span = GST_SECOND / 5;
    GstClockTime worst = 0;
    for (int i = 0; i < m_soundSent.size(); ++i) {
        if (m_soundSent.last() < m_soundSent[i] + span)
            break;
        GstClockTime least = GST_CLOCK_TIME_NONE;
        for (int k = i; k < m_soundSent.size() && m_soundSent[k] <= m_soundSent[i] + span; ++k)
            least = std::min(least, m_soundSent[k] - m_soundDue[k]);
        worst = std::max(worst, least);
    }
    return double(worst) / GST_SECOND;
}

double StandInCamera::sinceEnd() const
{
    return double(now() - m_end) / GST_SECOND;
}
