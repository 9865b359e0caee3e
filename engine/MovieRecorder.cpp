#include "MovieRecorder.h"

#include "BoundedTask.h"
#include "DiskFlush.h"
#include "EngineLog.h"
#include "MovieCompletion.h"
#include "MoviePipeline.h"
#include "NewFile.h"
#include "PatientWait.h"
#include "PipelineTools.h"

#include <QFile>

#include <unistd.h>
#include <utility>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

static const milliseconds firstFrameLimit(1000); // that a movie waits for at its end
// That a movie waits at its end for sound that is on its way, and that a microphone may have been
// silent for until then without counting as gone.
static const milliseconds soundLimit(1000);
// How long a file that is being completed may not grow while it is awaited.
static const milliseconds stallLimit(2000);
static const qint64 second = GST_SECOND;
static const qint64 soundDelay = 3 * second; // before it counts as missing
static const qint64 soundAhead = 10 * second; // before the picture counts as gone
static const qint64 standstill = second; // that a last frame may stand for, when none follows it
// An AAC encoder puts one frame of its own before the first that it was given, its priming samples.
// The file does not say so, and players play them: all sound comes later by their length. So it is
// laid in that much earlier.
static const qint64 primingLength = 1024; // sample frames, one frame of AAC
static const int usualRate = 30; // frames a second, for cameras that do not know theirs

GstClockTime capturedAt(GstElement *element, GstBuffer *buffer)
{
    const GstClockTime base = gst_element_get_base_time(element);
    if (GST_BUFFER_PTS_IS_VALID(buffer) && GST_CLOCK_TIME_IS_VALID(base))
        return base + GST_BUFFER_PTS(buffer);
    const GstObjectHandle<GstClock> clock(gst_system_clock_obtain());
    return gst_clock_get_time(clock.get());
}

// A movie has a constant rate, also one of a camera that does not know its own.
static GstVideoInfo withRate(GstVideoInfo format)
{
    if (format.fps_n <= 0 || format.fps_d <= 0) {
        format.fps_n = usualRate;
        format.fps_d = 1;
    }
    return format;
}

MovieRecorder::MovieRecorder(QString path, const GstVideoInfo &format, std::function<void()> failed)
    : m_path(std::move(path))
    , m_progress(std::make_shared<MovieProgress>(std::move(failed)))
    , m_copies(GST_VIDEO_INFO_FORMAT(&format) == GST_VIDEO_FORMAT_I420)
    , m_pacer(format.fps_n, format.fps_d)
    , m_fitter(format)
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
    const GstVideoInfo steady = withRate(format);
    std::shared_ptr<MovieRecorder> recorder(new MovieRecorder(path, steady, std::move(failed)));
    return recorder->build(steady, encoding) ? recorder : nullptr;
}

bool MovieRecorder::build(const GstVideoInfo &format, const MovieEncoding &encoding)
{
    GstObjectHandle<GstElement> pipeline = makeMoviePipeline(format, encoding, m_path);
    if (!pipeline)
        return false;
    m_pipeline.reset(pipeline.release(), GstObjectUnref());
    m_frames.reset(gst_bin_get_by_name(GST_BIN(m_pipeline.get()), "frames"));
    m_sound.reset(gst_bin_get_by_name(GST_BIN(m_pipeline.get()), "sound"));
    m_feed = FrameFeed::attach(GST_APP_SRC(m_frames.get()), m_pacer.timeOf(1),
                               qint64(GST_VIDEO_INFO_SIZE(&format)));
    MovieProgress::watch(m_progress, m_pipeline.get());
    // The sink writes to whatever has the name: an older movie, or where a link leads.
    const int made = createNewFile(m_path);
    if (made < 0) {
        qCInfo(engineLog) << "cannot be made anew:" << m_path;
        return false;
    }
    close(made);
    m_open = gst_element_set_state(m_pipeline.get(), GST_STATE_PLAYING) != GST_STATE_CHANGE_FAILURE;
    m_listens = m_open;
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

void MovieRecorder::addFrame(GstBuffer *frame, GstClockTime captured, GstCaps *caps)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_open || m_progress->hasFailed())
        return;
    GstMiniHandle<GstBuffer> fitting = m_fitter.fitted(frame, caps);
    if (!fitting)
        return;
    const bool isFirst = m_pacer.begin() < 0;
    const qint64 slot = m_pacer.slotOf(qint64(captured));
    ++m_arrived;
    m_leftOut += slot < 0;
    if (isFirst) {
        layIn(std::exchange(m_early, {}));
        m_begun.notify_all();
    }
    if (slot < 0)
        return;
    m_newest = std::move(fitting);
    m_newestSlot = slot;
    m_newestCaptured = qint64(captured);
    if (m_feed->wants(slot))
        m_feed->add(slot, inSlots(m_newest.get(), slot, slot + 1));

    const qint64 end = m_pacer.timeOf(m_pacer.nextSlot());
    m_track.coverUntil(SoundTrack::positionAt(qMax(qint64(0), end - soundDelay)));
    pushSound(SoundTrack::positionAt(end));
}

// The frame with the times for which it is shown. The copy is a deep one when the frame has to
// wait, in the queue or in a pipeline that takes it as it is: a camera has few buffers, and stands
// still when all of them are kept from it. What is converted at once gives its buffer back at once.
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
    if (!m_listens || m_progress->hasFailed())
        return;
    m_soundArrived = systemTime();
    m_soundClock.add(QByteArray(samples, int(count * SoundTrack::bytesPerSampleFrame)),
                     qint64(captured), count * second / SoundTrack::rate, m_soundArrived);
    if (m_pacer.begin() >= 0)
        layIn(m_soundClock.take());
    else
        keepEarly(m_soundClock.take());
    m_heard.notify_all();
}

// A busy machine may bring the first frame later than sound that was heard after it was taken.
void MovieRecorder::keepEarly(const QVector<SoundClock::Piece> &sound)
{
    m_early += sound;
    while (!m_early.isEmpty() && m_early.first().heard < m_early.last().heard - soundAhead)
        m_early.removeFirst();
}

void MovieRecorder::layIn(const QVector<SoundClock::Piece> &sound)
{
    for (const SoundClock::Piece &piece : sound) {
        const qint64 time = piece.heard - m_pacer.begin();
        // A microphone without a camera is not listened to for long: the picture has stopped.
        if (time < m_pacer.timeOf(m_pacer.nextSlot()) + soundAhead)
            m_track.add(piece.samples.constData(),
                        piece.samples.size() / SoundTrack::bytesPerSampleFrame,
                        SoundTrack::positionAt(time) - primingLength);
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

bool MovieRecorder::encoderFailed() const
{
    return m_progress->encoderFailed();
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

// What was heard before @p end is in the movie, also when a busy machine has not brought it yet.
void MovieRecorder::awaitSound(std::unique_lock<std::mutex> &lock, qint64 end,
                               steady_clock::time_point deadline)
{
    const qint64 silence = systemTime() - m_soundArrived;
    if (m_soundArrived < 0 || silence > std::chrono::nanoseconds(soundLimit).count())
        return;
    const auto isOver = [&] { return m_soundClock.isHeardUntil(end) || m_progress->hasFailed(); };
    waitPatiently(
        qMin(deadline, steady_clock::now() + soundLimit),
        [&](steady_clock::time_point until) { return m_heard.wait_until(lock, until, isOver); });
}

void MovieRecorder::endSound(qint64 end)
{
    layIn(m_soundClock.takeAll());
    m_track.coverUntil(SoundTrack::positionAt(end));
    pushSound(SoundTrack::positionAt(end));
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
        awaitSound(lock, m_pacer.begin() + m_pacer.timeOf(end), deadline);
        endSound(m_pacer.timeOf(end));
        qCInfo(engineLog) << m_arrived << "frames came for" << end << "slots," << m_leftOut
                          << "were left out by their times";
    } else {
        m_feed->end(-1, nullptr);
    }
    m_listens = false;
    m_newest.reset();
    lock.unlock();
    gst_app_src_end_of_stream(GST_APP_SRC(m_sound.get()));
    m_progress->beSilent();
    return complete(deadline);
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
            qCInfo(engineLog) << feed->fed() << "frames were encoded," << progress->encoded()
                              << "are in the file";
            if (progress->encoded() == 0) {
                QFile::remove(path); // no player opens a movie without a picture
                return;
            }
            if (!whole)
                qCWarning(engineLog) << "could not be completed, its last moment may miss:" << path;
            DiskFlush::flushClosed(path, steady_clock::now() + DiskFlush::usualPatience);
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
