#include "PipelineStart.h"

#include "EngineLog.h"
#include "GstHandles.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

using std::chrono::milliseconds;

// From the format to the return a start takes a few milliseconds; being wrong costs a second start.
static const milliseconds patience(500);
static const milliseconds step(50);
static const int repetitions = 2;
// The server's library (seen with 0.3.65) keeps what it has yet to tell its thread when a stream is
// destroyed, and reads the freed stream for it. A thread gets its turn within this even where ten
// others want the processor.
static const milliseconds grace(50);

namespace {

/// Watches a source that is being started, from a thread of its own, and wakes it when it sleeps on
/// after its camera has begun. Its thread ends with it.
class StartWatch {
public:
    explicit StartWatch(GstElement *source)
        : m_pad(gst_element_get_static_pad(source, "src"))
        , m_thread([this] { watch(); })
    {
    }

    ~StartWatch() { end(); }
    StartWatch(const StartWatch &) = delete;
    StartWatch &operator=(const StartWatch &) = delete;

    /// Ends the watch; true when the source had to be woken.
    bool end()
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_returned = true;
            m_changed.notify_all();
        }
        if (m_thread.joinable())
            m_thread.join();
        return m_woken;
    }

private:
    void watch()
    {
        milliseconds asleep(0);
        std::unique_lock<std::mutex> lock(m_mutex);
        while (!m_changed.wait_for(lock, step, [this] { return m_returned; })) {
            if (gst_pad_has_current_caps(m_pad.get()))
                asleep += step;
            if (asleep < patience)
                continue;
            m_woken = true;
            lock.unlock();
            // Breaks off whatever the source waits for; its start fails.
            gst_pad_send_event(m_pad.get(), gst_event_new_flush_start());
            return;
        }
    }

    const GstObjectHandle<GstPad> m_pad;
    std::mutex m_mutex; ///< guards m_returned
    std::condition_variable m_changed;
    bool m_returned = false;
    bool m_woken = false; ///< the thread's, until that has ended
    std::thread m_thread; ///< last: it uses the others
};

} // namespace

static bool isOfMediaServer(GstElement *source)
{
    return g_object_class_find_property(G_OBJECT_GET_CLASS(source), "stream-properties") != nullptr;
}

static bool play(GstElement *pipeline)
{
    return gst_element_set_state(pipeline, GST_STATE_PLAYING) != GST_STATE_CHANGE_FAILURE;
}

bool startPipeline(GstElement *pipeline, GstElement *source)
{
    for (int again = 0; again < repetitions && isOfMediaServer(source); ++again) {
        StartWatch watch(source);
        const bool playing = play(pipeline);
        if (!watch.end())
            return playing;
        qCInfo(engineLog, "the start of the camera is begun anew");
        stopPipeline(pipeline, source);
    }
    return play(pipeline);
}

void stopPipeline(GstElement *pipeline, GstElement *source)
{
    if (isOfMediaServer(source) && GST_STATE(source) == GST_STATE_PLAYING) {
        gst_element_set_state(pipeline, GST_STATE_PAUSED);
        std::this_thread::sleep_for(grace);
    }
    gst_element_set_state(pipeline, GST_STATE_NULL);
}
