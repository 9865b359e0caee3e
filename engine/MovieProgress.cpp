#include "MovieProgress.h"

#include "EngineLog.h"
#include "PipelineTools.h"

#include <gst/video/gstvideoencoder.h>

#include <chrono>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

using std::chrono::milliseconds;

// How long a file that nobody waits for any more may not grow before it is given up.
static const milliseconds abandonLimit(20000);
static const int politeness = 4; // added to the nice value of what converts and encodes

using SharedProgress = std::shared_ptr<MovieProgress>;

MovieProgress::MovieProgress(std::function<void()> failed)
    : m_onFailure(std::move(failed))
{
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

void MovieProgress::watch(const std::shared_ptr<MovieProgress> &progress, GstElement *pipeline)
{
    countArrivals(pipeline, "encoded", {progress, &progress->m_encoded});
    countArrivals(pipeline, "file", {progress, &progress->m_written});
    const GstObjectHandle<GstBus> bus(gst_element_get_bus(pipeline));
    gst_bus_set_sync_handler(bus.get(), onMessage, new SharedProgress(progress),
                             [](gpointer shared) { delete static_cast<SharedProgress *>(shared); });
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

GstBusSyncReply MovieProgress::onMessage(GstBus *, GstMessage *message, gpointer shared)
{
    MovieProgress &progress = **static_cast<SharedProgress *>(shared);
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

void MovieProgress::fail(GstMessage *message)
{
    qCInfo(engineLog) << "the movie ends here:" << errorText(message);
    dumpPipeline(GST_MESSAGE_SRC(message), "error");
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_failed = m_ended = true;
    m_encoderFailed = m_encoderFailed || GST_IS_VIDEO_ENCODER(GST_MESSAGE_SRC(message));
    m_changed.notify_all();
    if (const auto tell = std::exchange(m_onFailure, nullptr))
        tell();
}

void MovieProgress::end()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_ended = true;
    m_changed.notify_all();
}

void MovieProgress::beSilent()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_onFailure = nullptr;
}

bool MovieProgress::hasFailed() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_failed;
}

bool MovieProgress::encoderFailed() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_encoderFailed;
}

bool MovieProgress::waitForEnd()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    int before = -1;
    while (!m_ended && steps() != before) {
        before = steps();
        m_changed.wait_for(lock, abandonLimit, [this] { return m_ended; });
    }
    return m_ended && !m_failed;
}
