#include "MovieRecorder.h"

#include "BoundedTask.h"
#include "EngineLog.h"
#include "MovieCompletion.h"
#include "NewFile.h"
#include "PatientWait.h"
#include "PipelineTools.h"

#include <QFile>

#include <gst/video/gstvideoencoder.h>

#include <atomic>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

static const milliseconds firstFrameLimit(1000);
// How long a file that is being completed may not grow: while it is awaited, and afterwards.
static const milliseconds stallLimit(2000);
static const milliseconds abandonLimit(20000);
static const qint64 second = GST_SECOND;
static const qint64 soundDelay = 3 * second; // before it counts as missing
static const qint64 soundAhead = 10 * second; // before the picture counts as gone
static const qint64 standstill = second; // that a last frame may stand for, when none follows it
// Every sound encoder begins with a frame of its own, which players do not know and play.
static const qint64 soundRunUp = 1024; // samples
static const int usualRate = 30; // frames a second, for cameras that do not know theirs
static const int politeness = 4; // added to the nice value of what converts and encodes

/// How far the pipeline has come, told by its bus and its pads on any of its threads.
struct MovieRecorder::Progress {
    std::mutex mutex; ///< guards everything up to the counts
    std::condition_variable changed;
    std::function<void()> onFailure; ///< null once it was called, or nobody wants to know
    bool ended = false;
    bool failed = false;
    bool encoderFailed = false;

    std::atomic<int> written{0}; ///< pieces of the file
    std::atomic<int> encoded{0}; ///< frames

    /// Grows as long as anything goes on.
    int steps() const { return written + encoded; }
    bool waitForEnd(); ///< true when the file is whole
    void fail(GstMessage *message);
    void end();
    static GstBusSyncReply onMessage(GstBus *bus, GstMessage *message, gpointer shared);
};

void MovieRecorder::Progress::fail(GstMessage *message)
{
    qCInfo(engineLog) << "the movie ends here:" << errorText(message);
    dumpPipeline(GST_MESSAGE_SRC(message), "error");
    const std::lock_guard<std::mutex> lock(mutex);
    failed = ended = true;
    encoderFailed = encoderFailed || GST_IS_VIDEO_ENCODER(GST_MESSAGE_SRC(message));
    changed.notify_all();
    if (const auto tell = std::exchange(onFailure, nullptr))
        tell();
}

void MovieRecorder::Progress::end()
{
    const std::lock_guard<std::mutex> lock(mutex);
    ended = true;
    changed.notify_all();
}

// Converting and encoding can wait a moment; the live picture and the buttons should not.
static void workPolitely(GstMessage *message)
{
    GstStreamStatusType type = GST_STREAM_STATUS_TYPE_CREATE;
    GstElement *owner = nullptr; // borrowed
    gst_message_parse_stream_status(message, &type, &owner);
    if (type != GST_STREAM_STATUS_TYPE_ENTER || !owner)
        return;
    const GlibString name(gst_element_get_name(owner));
    if (qstrcmp(name.get(), "frames") != 0 && qstrcmp(name.get(), "converted") != 0)
        return;
    // Of this thread alone, and of those that an encoder starts from it.
    const auto thread = id_t(syscall(SYS_gettid));
    setpriority(PRIO_PROCESS, thread, getpriority(PRIO_PROCESS, thread) + politeness);
}

GstBusSyncReply MovieRecorder::Progress::onMessage(GstBus *, GstMessage *message, gpointer shared)
{
    Progress &progress = **static_cast<std::shared_ptr<Progress> *>(shared);
    switch (GST_MESSAGE_TYPE(message)) {
    case GST_MESSAGE_ERROR:
        progress.fail(message);
        break;
    case GST_MESSAGE_EOS:
        progress.end();
        break;
    case GST_MESSAGE_STREAM_STATUS:
        workPolitely(message);
        break;
    default:
        break;
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
                                                    const MovieEncoding &encoding,
                                                    std::function<void()> failed)
{
    std::shared_ptr<MovieRecorder> recorder(new MovieRecorder(path, format));
    recorder->m_progress->onFailure = std::move(failed);
    return recorder->build(format, encoding) ? recorder : nullptr;
}

// Frames of the camera wait in front of the source; behind it there is only the one that the
// encoder needs next. Encoded frames and sound are small: they wait for as long as a disk stands
// still, and sound waits for no picture.
static QByteArray description(const GstVideoInfo &format, const MovieEncoding &encoding)
{
    const int perSecond = rateNumerator(format) / rateDenominator(format);
    return "appsrc name=frames format=time max-bytes=0"
           " ! videoconvertscale ! video/x-raw,format=I420,pixel-aspect-ratio=1/1,width="
        + QByteArray::number((format.width / encoding.divisor) & ~1)
        + ",height=" + QByteArray::number((format.height / encoding.divisor) & ~1)
        + " ! queue name=converted max-size-buffers=1 max-size-bytes=0 max-size-time=0 ! "
        + encoding.video
        + " ! queue name=encoded max-size-buffers=0 max-size-bytes=64000000 max-size-time=0"
          " ! muxer. appsrc name=sound format=time max-bytes=0 "
          "caps=audio/x-raw,format=S16LE,layout=interleaved,rate="
        + QByteArray::number(SoundTrack::rate) + ",channels="
        + QByteArray::number(SoundTrack::channels) + " ! audioconvert ! " + encoding.sound
        + " ! queue max-size-buffers=0 max-size-bytes=0 max-size-time=0 ! muxer."
          // Room for the index of a movie of eleven minutes, one more than the longest.
          " qtmux name=muxer reserved-max-duration=660000000000"
          " reserved-moov-update-period=500000000 reserved-bytes-per-sec="
        + QByteArray::number(qMax(550, perSecond * 20))
        // Written at once: what waits in the program is lost when it is killed.
        + " ! filesink name=file async=false buffer-mode=unbuffered";
}

static GstPadProbeReturn countOne(GstPad *, GstPadProbeInfo *, gpointer count)
{
    ++**static_cast<std::shared_ptr<std::atomic<int>> *>(count);
    return GST_PAD_PROBE_OK;
}

// Counts what arrives at an element, for as long as that lives.
static void countArrivals(GstElement *pipeline, const char *element,
                          const std::shared_ptr<std::atomic<int>> &count)
{
    const GstObjectHandle<GstElement> found(gst_bin_get_by_name(GST_BIN(pipeline), element));
    const GstObjectHandle<GstPad> pad(gst_element_get_static_pad(found.get(), "sink"));
    gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_BUFFER, countOne,
                      new std::shared_ptr<std::atomic<int>>(count), [](gpointer shared) {
                          delete static_cast<std::shared_ptr<std::atomic<int>> *>(shared);
                      });
}

// Hears of everything that happens in the pipeline.
void MovieRecorder::watch()
{
    countArrivals(m_pipeline.get(), "encoded", {m_progress, &m_progress->encoded});
    countArrivals(m_pipeline.get(), "file", {m_progress, &m_progress->written});
    const GstObjectHandle<GstBus> bus(gst_element_get_bus(m_pipeline.get()));
    gst_bus_set_sync_handler(
        bus.get(), Progress::onMessage, new std::shared_ptr<Progress>(m_progress),
        [](gpointer shared) { delete static_cast<std::shared_ptr<Progress> *>(shared); });
}

bool MovieRecorder::build(const GstVideoInfo &format, const MovieEncoding &encoding)
{
    GstObjectHandle<GstElement> pipeline = parsePipeline("movie", description(format, encoding));
    if (!pipeline)
        return false;
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
    m_feed = FrameFeed::attach(GST_APP_SRC(m_frames.get()), m_pacer.timeOf(1),
                               qint64(GST_VIDEO_INFO_SIZE(&format)));
    watch();
    // The sink writes to whatever has the name: an older movie, or where a link leads.
    const int made = createNewFile(m_path);
    if (made < 0) {
        qCInfo(engineLog) << "cannot be made anew:" << m_path;
        return false;
    }
    close(made);
    m_open = gst_element_set_state(m_pipeline.get(), GST_STATE_PLAYING) != GST_STATE_CHANGE_FAILURE;
    dumpPipeline(m_pipeline.get(), m_open ? "playing" : "error");
    if (!m_open) {
        gst_element_set_state(m_pipeline.get(), GST_STATE_NULL);
        QFile::remove(m_path);
    }
    return m_open;
}

static qint64 systemTime()
{
    const GstObjectHandle<GstClock> clock(gst_system_clock_obtain());
    return qint64(gst_clock_get_time(clock.get()));
}

void MovieRecorder::addFrame(GstBuffer *frame, GstClockTime captured)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_open || hasFailed())
        return;
    const bool isFirst = m_pacer.begin() < 0;
    const qint64 slot = m_pacer.slotOf(qint64(captured));
    ++m_arrived;
    m_leftOut += slot < 0;
    if (isFirst)
        m_begun.notify_all();
    if (slot < 0)
        return;
    m_newest.reset(gst_buffer_ref(frame));
    m_newestSlot = slot;
    m_newestCaptured = qint64(captured);
    if (m_feed->wants(slot))
        m_feed->add(slot, inSlots(frame, slot, slot + 1));

    const qint64 end = m_pacer.timeOf(m_pacer.nextSlot());
    m_track.coverUntil(SoundTrack::positionAt(qMax(qint64(0), end - soundDelay)));
    pushSound(SoundTrack::positionAt(end));
}

// A frame that has to wait is copied: the camera has few to go round.
GstMiniHandle<GstBuffer> MovieRecorder::inSlots(GstBuffer *frame, qint64 slot, qint64 end) const
{
    const bool copies = m_copies || !m_feed->isHungry();
    GstMiniHandle<GstBuffer> copy(copies ? gst_buffer_copy_deep(frame) : gst_buffer_copy(frame));
    GST_BUFFER_PTS(copy.get()) = GstClockTime(m_pacer.timeOf(slot));
    GST_BUFFER_DTS(copy.get()) = GST_CLOCK_TIME_NONE;
    GST_BUFFER_DURATION(copy.get()) = GstClockTime(m_pacer.timeOf(end) - m_pacer.timeOf(slot));
    return copy;
}

void MovieRecorder::addSound(const char *samples, qint64 count, GstClockTime captured)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_open || hasFailed())
        return;
    m_soundClock.add(QByteArray(samples, int(count * SoundTrack::bytesOfSample)), qint64(captured),
                     count * second / SoundTrack::rate, systemTime());
    layIn(m_soundClock.take());
}

void MovieRecorder::layIn(const QVector<SoundClock::Piece> &sound)
{
    if (m_pacer.begin() < 0)
        return;
    for (const SoundClock::Piece &piece : sound) {
        const qint64 time = piece.heard - m_pacer.begin();
        // A microphone without a camera is not listened to for long: the picture has stopped.
        if (time < m_pacer.timeOf(m_pacer.nextSlot()) + soundAhead)
            m_track.add(piece.samples.constData(), piece.samples.size() / SoundTrack::bytesOfSample,
                        SoundTrack::positionAt(time) - soundRunUp);
    }
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

bool MovieRecorder::hasFailed() const
{
    const std::lock_guard<std::mutex> lock(m_progress->mutex);
    return m_progress->failed;
}

bool MovieRecorder::encoderFailed() const
{
    const std::lock_guard<std::mutex> lock(m_progress->mutex);
    return m_progress->encoderFailed;
}

// The slot behind the last one: up to now, unless the camera has stopped.
qint64 MovieRecorder::endOfMovie() const
{
    const qint64 shown = qMin(systemTime(), m_newestCaptured + standstill);
    return qMax(m_pacer.nextSlot(), m_pacer.slotAt(shown));
}

// The last frame was left out, or stands for longer than a frame does: the movie ends with it all
// the same.
void MovieRecorder::endPicture(qint64 end)
{
    const qint64 kept = m_feed->newestKept();
    if (!m_newest || kept >= end - 1) {
        m_feed->end(-1, nullptr);
        return;
    }
    const qint64 slot = m_newestSlot > kept ? m_newestSlot : end - 1;
    m_feed->end(slot, inSlots(m_newest.get(), slot, end));
}

bool MovieRecorder::finish(milliseconds limit)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (!m_open)
        return true;
    const auto deadline = steady_clock::now() + limit;
    waitPatiently(
        qMin(deadline, steady_clock::now() + firstFrameLimit), [&](steady_clock::time_point until) {
            return m_begun.wait_until(lock, until, [this] { return m_pacer.begin() >= 0; });
        });
    m_open = false;
    if (m_pacer.begin() >= 0) {
        const qint64 end = endOfMovie();
        endPicture(end);
        layIn(m_soundClock.takeAll());
        m_track.coverUntil(SoundTrack::positionAt(m_pacer.timeOf(end)));
        pushSound(SoundTrack::positionAt(m_pacer.timeOf(end)));
        qCInfo(engineLog) << m_arrived << "frames came for" << end << "slots," << m_leftOut
                          << "were left out by their times";
    } else {
        m_feed->end(-1, nullptr);
    }
    m_newest.reset();
    lock.unlock();
    gst_app_src_end_of_stream(GST_APP_SRC(m_sound.get()));
    {
        const std::lock_guard<std::mutex> told(m_progress->mutex);
        m_progress->onFailure = nullptr;
    }
    return complete(deadline);
}

// Waits for the end of the stream, for as long as the file grows.
bool MovieRecorder::Progress::waitForEnd()
{
    std::unique_lock<std::mutex> lock(mutex);
    int before = -1;
    while (!ended && steps() != before) {
        before = steps();
        changed.wait_for(lock, abandonLimit, [this] { return ended; });
    }
    return ended && !failed;
}

// On the side: nothing of it may make anybody wait for ever.
BoundedTask<void> MovieRecorder::completing()
{
    m_frames.reset();
    m_sound.reset();
    return BoundedTask(
        [pipeline = std::move(m_pipeline), feed = m_feed, progress = m_progress, path = m_path] {
            const bool whole = progress->waitForEnd();
            feed->stop();
            dumpPipeline(pipeline.get(), "end");
            gst_element_set_state(pipeline.get(), GST_STATE_NULL);
            qCInfo(engineLog) << feed->fed() << "frames were encoded," << progress->encoded
                              << "are in the file";
            if (progress->encoded == 0)
                QFile::remove(path); // no player opens a movie without a picture
            else if (!whole)
                qCWarning(engineLog) << "could not be completed, its last moment may miss:" << path;
        });
}

bool MovieRecorder::complete(steady_clock::time_point deadline)
{
    const BoundedTask<void> task = completing();
    int before = -1;
    bool done = task.waitUntil(steady_clock::now());
    while (!done && steady_clock::now() < deadline && m_progress->steps() != before) {
        before = m_progress->steps();
        done = task.waitUntil(qMin(deadline, steady_clock::now() + stallLimit));
    }
    if (!done) {
        qCInfo(engineLog) << "is completed on the side:" << m_path;
        MovieCompletion::goesOnWith(task);
    }
    return done;
}
