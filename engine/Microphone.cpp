#include "Microphone.h"

#include "BoundedTask.h"
#include "DemoSource.h"
#include "EngineLog.h"
#include "MovieRecorder.h"
#include "PipelineTools.h"
#include "SoundTrack.h"

#include <gst/app/gstappsink.h>

#include <condition_variable>
#include <mutex>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

static const milliseconds connectLimit(500); // for a server to say whether it refuses
static const milliseconds closeLimit(1000);

// The pipeline goes by the system's clock, not by the microphone's. To follow it the source would
// drop and repeat samples (slave-method), by arrivals that a busy machine delays; it leaves them
// all as they are, and SoundClock sees to the drift. And when the microphone is pulled out the
// server would go on with any other source, a loudspeaker's monitor too (dont-reconnect): a movie
// rather falls silent.
static const char serverSource[] =
    "pulsesrc slave-method=none stream-properties=\"props,node.dont-reconnect=(string)true\"";
// Nor are the driver's times asked for, which take what had once to wait on a busy machine for what
// waits now: they go back and forth, and parts of the sound with them. A card keeps two seconds,
// where it can, for a program that gets no time (the source's own wish is a tenth of that).
static const char cardSource[] =
    "alsasrc slave-method=none use-driver-timestamps=false buffer-time=2000000"; // us
static const char demonstrationSource[] = "appsrc";

static QByteArray elementFor(SoundSource::Kind kind)
{
    switch (kind) {
    case SoundSource::Kind::Server:
        return QByteArray(serverSource) + " provide-clock=false";
    case SoundSource::Kind::Card:
        return QByteArray(cardSource) + " provide-clock=false";
    case SoundSource::Kind::Demonstration:
        break;
    }
    return demonstrationSource;
}

/// What may hang: opened and closed on a thread of its own.
class Microphone::Pipeline {
public:
    ~Pipeline();
    bool connect(const SoundSource &source); ///< false when there is nothing behind it
    bool listen(); ///< false when it refuses

    std::mutex mutex; ///< guards recorder
    std::weak_ptr<MovieRecorder> recorder;

private:
    static GstFlowReturn onSound(GstAppSink *sink, gpointer pipeline);
    static void onConnected(GObject *source, GParamSpec *device, gpointer pipeline);
    bool isRefused();

    GstObjectHandle<GstElement> m_pipeline;
    std::mutex m_connectedMutex; ///< guards m_connected
    std::condition_variable m_connectedChanged;
    bool m_connected = false; ///< the server has said which of its sources it is
};

Microphone::Pipeline::~Pipeline()
{
    if (!m_pipeline)
        return;
    const GstObjectHandle<GstBus> bus(gst_element_get_bus(m_pipeline.get()));
    const GstMiniHandle<GstMessage> error(gst_bus_pop_filtered(bus.get(), GST_MESSAGE_ERROR));
    if (error)
        qCInfo(engineLog) << "the microphone had failed:" << errorText(error.get());
    dumpPipeline(m_pipeline.get(), "end");
    gst_element_set_state(m_pipeline.get(), GST_STATE_NULL);
}

GstFlowReturn Microphone::Pipeline::onSound(GstAppSink *sink, gpointer shared)
{
    auto &pipeline = *static_cast<Pipeline *>(shared);
    const GstMiniHandle<GstSample> sample(gst_app_sink_pull_sample(sink));
    std::shared_ptr<MovieRecorder> recorder;
    {
        const std::lock_guard<std::mutex> lock(pipeline.mutex);
        recorder = pipeline.recorder.lock();
    }
    if (!sample || !recorder)
        return GST_FLOW_OK;
    GstBuffer *buffer = gst_sample_get_buffer(sample.get());
    GstMapInfo map;
    if (!gst_buffer_map(buffer, &map, GST_MAP_READ))
        return GST_FLOW_OK;
    recorder->addSound(reinterpret_cast<const char *>(map.data),
                       qint64(map.size) / SoundTrack::bytesPerSampleFrame,
                       capturedAt(GST_ELEMENT(sink), buffer));
    gst_buffer_unmap(buffer, &map);
    return GST_FLOW_OK;
}

void Microphone::Pipeline::onConnected(GObject *, GParamSpec *, gpointer shared)
{
    auto &pipeline = *static_cast<Pipeline *>(shared);
    const std::lock_guard<std::mutex> lock(pipeline.m_connectedMutex);
    pipeline.m_connected = true;
    pipeline.m_connectedChanged.notify_all();
}

// A sound server is asked for the microphone only while the pipeline starts, so a start that has
// succeeded says nothing yet: a refusal comes as an error, a little later. The server's consent
// shows in that the source knows which device it has. One that is too slow to say either is
// believed.
bool Microphone::Pipeline::isRefused()
{
    const GstObjectHandle<GstElement> source(
        gst_bin_get_by_name(GST_BIN(m_pipeline.get()), "source"));
    if (g_object_class_find_property(G_OBJECT_GET_CLASS(source.get()), "current-device")) {
        std::unique_lock<std::mutex> lock(m_connectedMutex);
        m_connectedChanged.wait_for(lock, connectLimit, [this] { return m_connected; });
    }
    const GstObjectHandle<GstBus> bus(gst_element_get_bus(m_pipeline.get()));
    const GstMiniHandle<GstMessage> error(gst_bus_pop_filtered(bus.get(), GST_MESSAGE_ERROR));
    if (error)
        qCInfo(engineLog) << "the microphone refuses:" << errorText(error.get());
    dumpPipeline(m_pipeline.get(), error ? "error" : "playing");
    return error != nullptr;
}

bool Microphone::Pipeline::connect(const SoundSource &source)
{
    const QByteArray description = elementFor(source.kind)
        + " name=source ! audioconvert ! audioresample !"
          " audio/x-raw,format=S16LE,layout=interleaved,rate="
        + QByteArray::number(SoundTrack::rate) + ",channels="
        + QByteArray::number(SoundTrack::channels) + " ! appsink name=sound sync=false async=false";
    m_pipeline = parsePipeline("microphone", description);
    if (!m_pipeline)
        return false;
    // The same clock as the camera's, whatever else would offer itself.
    const GstObjectHandle<GstClock> clock(gst_system_clock_obtain());
    gst_pipeline_use_clock(GST_PIPELINE(m_pipeline.get()), clock.get());
    const GstObjectHandle<GstElement> sink(gst_bin_get_by_name(GST_BIN(m_pipeline.get()), "sound"));
    GstAppSinkCallbacks callbacks = {};
    callbacks.new_sample = onSound;
    gst_app_sink_set_callbacks(GST_APP_SINK(sink.get()), &callbacks, this, nullptr);
    const GstObjectHandle<GstElement> microphone(
        gst_bin_get_by_name(GST_BIN(m_pipeline.get()), "source"));
    if (source.kind == SoundSource::Kind::Demonstration)
        DemoSource::feedSound(microphone.get());
    if (!source.name.isEmpty())
        g_object_set(microphone.get(), "device", source.name.constData(), nullptr);
    g_signal_connect(microphone.get(), "notify::current-device", G_CALLBACK(onConnected), this);
    return gst_element_set_state(m_pipeline.get(), GST_STATE_READY) != GST_STATE_CHANGE_FAILURE;
}

bool Microphone::Pipeline::listen()
{
    return gst_element_set_state(m_pipeline.get(), GST_STATE_PLAYING) != GST_STATE_CHANGE_FAILURE
        && !isRefused();
}

std::shared_ptr<Microphone> Microphone::open(const SoundSource &source, milliseconds limit)
{
    const BoundedTask opening([source]() -> std::shared_ptr<Pipeline> {
        auto pipeline = std::make_shared<Pipeline>();
        return pipeline->connect(source) && pipeline->listen() ? pipeline : nullptr;
    });
    std::shared_ptr<Pipeline> pipeline =
        opening.waitUntil(steady_clock::now() + limit).value_or(nullptr);
    if (!pipeline) {
        qCInfo(engineLog, "no microphone can be opened");
        return nullptr;
    }
    return std::shared_ptr<Microphone>(new Microphone(std::move(pipeline)));
}

Microphone::Microphone(std::shared_ptr<Pipeline> pipeline)
    : m_pipeline(std::move(pipeline))
{
}

Microphone::~Microphone()
{
    handTo(nullptr);
    const BoundedTask closing([pipeline = std::move(m_pipeline)]() mutable { pipeline.reset(); });
    if (!closing.waitUntil(steady_clock::now() + closeLimit))
        qCWarning(engineLog, "the microphone does not close; it is left behind");
}

void Microphone::handTo(const std::shared_ptr<MovieRecorder> &recorder)
{
    const std::lock_guard<std::mutex> lock(m_pipeline->mutex);
    m_pipeline->recorder = recorder;
}
