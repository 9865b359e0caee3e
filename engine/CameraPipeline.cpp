#include "CameraPipeline.h"

#include "EngineLog.h"
#include "FrameGate.h"
#include "FrameTap.h"
#include "JpegGuard.h"
#include "PipelineStart.h"
#include "PipelineTools.h"

#include <QVector>

std::unique_ptr<CameraPipeline> CameraPipeline::build(GstObjectHandle<GstElement> source,
                                                      GstMiniHandle<GstCaps> format,
                                                      const CameraMode &mode)
{
    std::unique_ptr<CameraPipeline> camera(new CameraPipeline);
    camera->m_mode = mode;
    if (!source || !format || !camera->assemble(std::move(source), std::move(format)))
        return nullptr;
    return camera;
}

CameraPipeline::~CameraPipeline()
{
    close();
}

static GstElement *makeFilter(GstCaps *format)
{
    GstElement *filter = gst_element_factory_make("capsfilter", nullptr);
    g_object_set(filter, "caps", format, nullptr);
    return filter;
}

// Analogue grabbers send two fields, taken one after the other, woven into one frame: what moves
// has teeth. This method leaves what rests as it is, as documents mostly do, and costs a tenth of
// the finer ones. Frames of other cameras pass through untouched.
static GstElement *makeDeinterlacer()
{
    GstElement *deinterlacer = gst_element_factory_make("deinterlace", nullptr);
    if (!deinterlacer)
        return gst_element_factory_make("identity", nullptr);
    gst_util_set_object_arg(G_OBJECT(deinterlacer), "fields", "top");
    gst_util_set_object_arg(G_OBJECT(deinterlacer), "method", "greedyl");
    return deinterlacer;
}

// Keeps the newest frame only and never makes the camera wait.
static GstElement *makeSink()
{
    GstElement *sink = gst_element_factory_make("appsink", "frames");
    const GstMiniHandle<GstCaps> raw(gst_caps_new_empty_simple("video/x-raw"));
    g_object_set(sink, "caps", raw.get(), "max-buffers", 1U, "drop", TRUE, "sync", FALSE, "async",
                 FALSE, "enable-last-sample", FALSE, nullptr);
    return sink;
}

static bool isOfMediaServer(GstElement *source)
{
    return g_object_class_find_property(G_OBJECT_GET_CLASS(source), "always-copy") != nullptr;
}

static void setCopies(GstElement *source, bool on)
{
    g_object_set(source, "always-copy", on ? TRUE : FALSE, nullptr);
}

// For a camera of the media server. Its frames are copied: it takes their memory away, mapped or
// not, the moment its node vanishes. Nor may another camera take the place of one that went.
static void tuneSource(GstElement *source)
{
    if (!isOfMediaServer(source))
        return;
    setCopies(source, true);
    const GstStructureHandle stream(
        gst_structure_new("props", "node.dont-reconnect", G_TYPE_BOOLEAN, TRUE, nullptr));
    g_object_set(source, "do-timestamp", TRUE, "stream-properties", stream.get(), nullptr);
}

bool CameraPipeline::assemble(GstObjectHandle<GstElement> source, GstMiniHandle<GstCaps> format)
{
    m_pipeline = ownFloating(gst_pipeline_new("camera"));
    m_bus.reset(gst_element_get_bus(m_pipeline.get()));
    // The microphone's clock too: a movie lays picture and sound together by it.
    const GstObjectHandle<GstClock> clock(gst_system_clock_obtain());
    gst_pipeline_use_clock(GST_PIPELINE(m_pipeline.get()), clock.get());
    tuneSource(source.get());
    QVector<GstElement *> elements{source.get(), makeFilter(format.get())};
    if (m_mode.encoding == CameraMode::Encoding::Jpeg)
        // Drops a damaged picture; whether too many are is for the watch over silence to say.
        elements.append(gst_element_factory_make("jpegdec", nullptr));
    elements.append(makeDeinterlacer());
    GstElement *tee = gst_element_factory_make("tee", "split");
    GstElement *sink = makeSink();
    elements += {tee, sink};
    bool whole = true;
    for (GstElement *element : qAsConst(elements))
        whole = element && gst_bin_add(GST_BIN(m_pipeline.get()), element) && whole;
    for (int i = 1; whole && i < elements.size(); ++i)
        whole = gst_element_link(elements.at(i - 1), elements.at(i));
    if (!whole) {
        qCWarning(engineLog, "the pipeline of the camera cannot be built");
        return false;
    }
    const GstObjectHandle<GstPad> first(gst_element_get_static_pad(elements.at(1), "sink"));
    m_gate = std::make_shared<FrameGate>();
    FrameGate::attach(m_gate, first.get());
    if (m_mode.encoding == CameraMode::Encoding::Jpeg)
        JpegGuard::attach(first.get());
    m_source = std::move(source);
    m_sink.reset(static_cast<GstElement *>(gst_object_ref(sink)));
    return true;
}

void CameraPipeline::setTap(const std::shared_ptr<FrameTap> &tap)
{
    const GstObjectHandle<GstElement> tee(gst_bin_get_by_name(GST_BIN(m_pipeline.get()), "split"));
    const GstObjectHandle<GstPad> pad(gst_element_get_static_pad(tee.get(), "sink"));
    FrameTap::attach(tap, pad.get());
}

bool CameraPipeline::play()
{
    return startPipeline(m_pipeline.get(), m_source.get());
}

GstMiniHandle<GstSample> CameraPipeline::nextSample(int milliseconds)
{
    GstMiniHandle<GstSample> sample(gst_app_sink_try_pull_sample(
        GST_APP_SINK(m_sink.get()), GstClockTime(milliseconds) * GST_MSECOND));
    if (sample && !m_delivers) {
        m_delivers = true;
        dumpPipeline(m_pipeline.get(), "playing");
    }
    return sample;
}

// Frames that are dropped unread need not be copied either, which takes most of what is left.
void CameraPipeline::rest()
{
    m_gate->close();
    if (isOfMediaServer(m_source.get()))
        setCopies(m_source.get(), false);
}

bool CameraPipeline::sendsStill()
{
    return m_gate->takeDropped();
}

void CameraPipeline::wake()
{
    nextSample(0); // of before the rest
    if (!isOfMediaServer(m_source.get())) {
        m_gate->open(0);
        return;
    }
    setCopies(m_source.get(), true);
    m_gate->open(1); // that one may have left the source before
}

QString CameraPipeline::failure()
{
    const GstMiniHandle<GstMessage> message(
        gst_bus_pop_filtered(m_bus.get(), GstMessageType(GST_MESSAGE_ERROR | GST_MESSAGE_EOS)));
    if (!message)
        return {};
    if (GST_MESSAGE_TYPE(message.get()) == GST_MESSAGE_EOS)
        return QStringLiteral("its stream ended");
    dumpPipeline(m_pipeline.get(), "error");
    return errorText(message.get());
}

void CameraPipeline::close()
{
    if (!m_pipeline)
        return;
    dumpPipeline(m_pipeline.get(), "end");
    stopPipeline(m_pipeline.get(), m_source.get());
}
