#include "MovieRecorder.h"

#include "EngineLog.h"
#include "NewFile.h"

#include <QFile>

#include <unistd.h>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

static const milliseconds firstFrameLimit(1000);
static const GstClockTime soundDelay = GST_SECOND; // before it counts as missing
// Every sound coder begins with a frame of its own, which players do not know and play.
static const qint64 soundRunUp = 1024; // samples
static const int usualRate = 30; // frames a second, for cameras that do not know theirs

/// How far the chain has come, told by its bus on any of its threads.
struct MovieRecorder::Progress {
    std::mutex mutex; ///< guards ended and failed
    std::condition_variable changed;
    bool ended = false;
    bool failed = false;

    static GstBusSyncReply onMessage(GstBus *bus, GstMessage *message, gpointer shared);
};

GstBusSyncReply MovieRecorder::Progress::onMessage(GstBus *, GstMessage *message, gpointer shared)
{
    Progress &progress = **static_cast<std::shared_ptr<Progress> *>(shared);
    const GstMessageType type = GST_MESSAGE_TYPE(message);
    if (type == GST_MESSAGE_ERROR) {
        GError *reason = nullptr;
        gst_message_parse_error(message, &reason, nullptr);
        const GlibErrorHandle error(reason);
        qCInfo(engineLog) << "the movie ends here:" << error->message;
    }
    if (type == GST_MESSAGE_ERROR || type == GST_MESSAGE_EOS) {
        const std::lock_guard<std::mutex> lock(progress.mutex);
        progress.ended = true;
        progress.failed = progress.failed || type == GST_MESSAGE_ERROR;
        progress.changed.notify_all();
    }
    gst_message_unref(message);
    return GST_BUS_DROP;
}

GstClockTime capturedAt(GstElement *element, GstBuffer *buffer)
{
    const GstClockTime base = gst_element_get_base_time(element);
    if (GST_BUFFER_PTS_IS_VALID(buffer) && GST_CLOCK_TIME_IS_VALID(base))
        return base + GST_BUFFER_PTS(buffer);
    const GstObjectHandle<GstClock> clock(gst_system_clock_obtain());
    return gst_clock_get_time(clock.get());
}

static int rateNumerator(const GstVideoInfo &format)
{
    return format.fps_n > 0 && format.fps_d > 0 ? format.fps_n : usualRate;
}

static int rateDenominator(const GstVideoInfo &format)
{
    return format.fps_n > 0 && format.fps_d > 0 ? format.fps_d : 1;
}

MovieRecorder::MovieRecorder(QString path, const GstVideoInfo &format)
    : m_path(std::move(path))
    , m_progress(std::make_shared<Progress>())
    , m_copies(GST_VIDEO_INFO_FORMAT(&format) == GST_VIDEO_FORMAT_I420)
    , m_pacer(rateNumerator(format), rateDenominator(format))
{
}

MovieRecorder::~MovieRecorder()
{
    finish(milliseconds(0));
}

std::shared_ptr<MovieRecorder> MovieRecorder::start(const QString &path, const GstVideoInfo &format,
                                                    const MovieCoding &coding)
{
    std::shared_ptr<MovieRecorder> recorder(new MovieRecorder(path, format));
    return recorder->build(format, coding) ? recorder : nullptr;
}

// The queue before the coder takes up what a busy machine delays; the muxer waits for the sound, so
// there is a second one behind it, of coded frames, which are small.
static QByteArray description(const GstVideoInfo &format, const MovieCoding &coding)
{
    const QByteArray rate = QByteArray::number(rateNumerator(format)) + '/'
        + QByteArray::number(rateDenominator(format));
    const int perSecond = rateNumerator(format) / rateDenominator(format);
    return "appsrc name=frames format=time max-buffers=15 max-bytes=0 leaky-type=downstream"
           " ! videoconvertscale ! video/x-raw,format=I420,width="
        + QByteArray::number(format.width & ~1) + ",height="
        + QByteArray::number(format.height & ~1) + " ! videorate ! video/x-raw,framerate=" + rate
        + " ! queue max-size-buffers=0 max-size-bytes=0 max-size-time=700000000 ! " + coding.video
        + " ! queue max-size-buffers=0 max-size-bytes=0 max-size-time=3000000000 ! muxer."
          " appsrc name=sound format=time max-bytes=0 "
          "caps=audio/x-raw,format=S16LE,layout=interleaved,rate="
        + QByteArray::number(SoundTrack::rate) + ",channels="
        + QByteArray::number(SoundTrack::channels) + " ! audioconvert ! " + coding.sound
        + " ! queue max-size-buffers=0 max-size-bytes=0 max-size-time=3000000000 ! muxer."
          // Room for the index of a movie of eleven minutes, one more than the longest.
          " qtmux name=muxer reserved-max-duration=660000000000"
          " reserved-moov-update-period=500000000 reserved-bytes-per-sec="
        + QByteArray::number(qMax(550, perSecond * 20))
        // Written at once: what waits in the program is lost when it is killed.
        + " ! filesink name=file async=false buffer-mode=unbuffered";
}

bool MovieRecorder::build(const GstVideoInfo &format, const MovieCoding &coding)
{
    GError *reason = nullptr;
    GstObjectHandle<GstElement> pipeline = ownFloating(gst_parse_launch_full(
        description(format, coding).constData(), nullptr, GST_PARSE_FLAG_FATAL_ERRORS, &reason));
    const GlibErrorHandle error(reason);
    if (!pipeline) {
        qCWarning(engineLog, "a movie's chain cannot be built: %s", error->message);
        return false;
    }
    m_pipeline.reset(pipeline.release(), GstObjectUnref());
    m_frames.reset(gst_bin_get_by_name(GST_BIN(m_pipeline.get()), "frames"));
    m_sound.reset(gst_bin_get_by_name(GST_BIN(m_pipeline.get()), "sound"));
    const GstObjectHandle<GstElement> file(gst_bin_get_by_name(GST_BIN(m_pipeline.get()), "file"));
    g_object_set(file.get(), "location", QFile::encodeName(m_path).constData(), nullptr);
    GstVideoInfo steady = format;
    steady.fps_n = rateNumerator(format);
    steady.fps_d = rateDenominator(format);
    const GstMiniHandle<GstCaps> caps(gst_video_info_to_caps(&steady));
    g_object_set(m_frames.get(), "caps", caps.get(), nullptr);
    const GstObjectHandle<GstBus> bus(gst_element_get_bus(m_pipeline.get()));
    gst_bus_set_sync_handler(
        bus.get(), Progress::onMessage, new std::shared_ptr<Progress>(m_progress),
        [](gpointer shared) { delete static_cast<std::shared_ptr<Progress> *>(shared); });
    // The sink writes to whatever has the name: an older movie, or where a link leads.
    const int made = createNewFile(m_path);
    if (made < 0) {
        qCInfo(engineLog) << "cannot be made anew:" << m_path;
        return false;
    }
    close(made);
    m_open = gst_element_set_state(m_pipeline.get(), GST_STATE_PLAYING) != GST_STATE_CHANGE_FAILURE;
    if (!m_open) {
        gst_element_set_state(m_pipeline.get(), GST_STATE_NULL);
        QFile::remove(m_path);
    }
    return m_open;
}

void MovieRecorder::addFrame(GstBuffer *frame, GstClockTime captured)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_open)
        return;
    const bool isFirst = m_pacer.begin() < 0;
    const qint64 place = m_pacer.placeOf(qint64(captured));
    ++m_arrived;
    m_leftOut += place < 0;
    if (isFirst)
        m_begun.notify_all();
    if (place < 0)
        return;
    GstBuffer *placed = m_copies ? gst_buffer_copy_deep(frame) : gst_buffer_copy(frame);
    GST_BUFFER_PTS(placed) = GstClockTime(m_pacer.timeOf(place));
    GST_BUFFER_DTS(placed) = GST_CLOCK_TIME_NONE;
    GST_BUFFER_DURATION(placed) = GstClockTime(m_pacer.timeOf(place + 1)) - GST_BUFFER_PTS(placed);
    gst_app_src_push_buffer(GST_APP_SRC(m_frames.get()), placed);

    const qint64 end = m_pacer.timeOf(m_pacer.nextPlace());
    m_track.coverUntil(SoundTrack::positionAt(qMax(qint64(0), end - qint64(soundDelay))));
    pushSound(SoundTrack::positionAt(end));
}

void MovieRecorder::addSound(const char *samples, qint64 count, GstClockTime captured)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_open || m_pacer.begin() < 0)
        return;
    const qint64 time = qint64(captured) - m_pacer.begin();
    // A microphone without a camera is not listened to for long: the picture has stopped.
    const qint64 limit = m_pacer.timeOf(m_pacer.nextPlace()) + 2 * qint64(GST_SECOND);
    if (time < limit)
        m_track.add(samples, count, SoundTrack::positionAt(time) - soundRunUp);
}

void MovieRecorder::pushSound(qint64 position)
{
    const GstClockTime from =
        gst_util_uint64_scale_int(guint64(m_track.taken()), GST_SECOND, SoundTrack::rate);
    const QByteArray samples = m_track.take(position);
    if (samples.isEmpty())
        return;
    GstBuffer *buffer = gst_buffer_new_memdup(samples.constData(), gsize(samples.size()));
    GST_BUFFER_PTS(buffer) = from;
    GST_BUFFER_DURATION(buffer) =
        gst_util_uint64_scale_int(guint64(m_track.taken()), GST_SECOND, SoundTrack::rate) - from;
    gst_app_src_push_buffer(GST_APP_SRC(m_sound.get()), buffer);
}

void MovieRecorder::finish(milliseconds limit)
{
    const auto deadline = steady_clock::now() + limit;
    std::unique_lock<std::mutex> lock(m_mutex);
    if (!m_open)
        return;
    m_begun.wait_for(lock, qMin(limit, firstFrameLimit), [this] { return m_pacer.begin() >= 0; });
    const bool empty = m_pacer.begin() < 0;
    m_open = false;
    qCInfo(engineLog) << m_arrived << "frames came for" << m_pacer.nextPlace() << "places,"
                      << m_leftOut << "were left out";
    const qint64 end = SoundTrack::positionAt(m_pacer.timeOf(m_pacer.nextPlace()));
    m_track.coverUntil(end);
    pushSound(end);
    lock.unlock();

    gst_app_src_end_of_stream(GST_APP_SRC(m_frames.get()));
    gst_app_src_end_of_stream(GST_APP_SRC(m_sound.get()));
    bool complete = false;
    {
        std::unique_lock<std::mutex> progress(m_progress->mutex);
        complete = m_progress->changed.wait_until(progress, deadline, [this] {
            return m_progress->ended;
        }) && !m_progress->failed;
    }
    const BoundedTask closing([pipeline = std::move(m_pipeline)] {
        gst_element_set_state(pipeline.get(), GST_STATE_NULL);
    });
    if (!closing.waitUntil(qMax(deadline, steady_clock::now() + milliseconds(200))))
        qCWarning(engineLog, "a movie's chain does not close; it is left behind");
    if (empty)
        QFile::remove(m_path);
    else if (!complete)
        qCWarning(engineLog) << "could not be completed, its last moment may miss:" << m_path;
}
