#include "PipelineTools.h"

#include "EngineLog.h"

// Without the elements' properties: one that reports an error may hold the lock that it would be
// asked for one by.
static const auto dumpDetails =
    GstDebugGraphDetails(GST_DEBUG_GRAPH_SHOW_MEDIA_TYPE | GST_DEBUG_GRAPH_SHOW_CAPS_DETAILS
                         | GST_DEBUG_GRAPH_SHOW_STATES);

GstObjectHandle<GstElement> parsePipeline(const char *name, const QByteArray &description)
{
    GError *reason = nullptr;
    GstObjectHandle<GstElement> pipeline = ownFloating(gst_parse_launch_full(
        description.constData(), nullptr, GST_PARSE_FLAG_FATAL_ERRORS, &reason));
    const GlibErrorHandle error(reason);
    if (pipeline)
        gst_object_set_name(GST_OBJECT(pipeline.get()), name);
    else
        qCWarning(engineLog, "the pipeline \"%s\" cannot be built: %s", name,
                  error ? error->message : "no reason given");
    return pipeline;
}

QString errorText(GstMessage *message)
{
    GError *reason = nullptr;
    gchar *addition = nullptr;
    gst_message_parse_error(message, &reason, &addition);
    const GlibErrorHandle error(reason);
    const GlibString details(addition);
    const GlibString source(GST_MESSAGE_SRC(message) ? gst_object_get_name(GST_MESSAGE_SRC(message))
                                                     : nullptr);
    return QStringLiteral("%1: %2 (%3)")
        .arg(QString::fromUtf8(source ? source.get() : "unknown"),
             QString::fromUtf8(error->message),
             QString::fromUtf8(details ? details.get() : "no details"));
}

static GstObjectHandle<GstObject> pipelineOf(gpointer part)
{
    GstObjectHandle<GstObject> top(static_cast<GstObject *>(gst_object_ref(part)));
    while (GstObject *parent = gst_object_get_parent(top.get()))
        top.reset(parent);
    return top;
}

void dumpPipeline(gpointer part, const char *moment)
{
    if (!part)
        return;
    const GstObjectHandle<GstObject> top = pipelineOf(part);
    if (!GST_IS_BIN(top.get()))
        return;
    const GlibString name(gst_object_get_name(top.get()));
    const QByteArray file = QByteArray(name.get()) + '-' + moment;
    GST_DEBUG_BIN_TO_DOT_FILE_WITH_TS(GST_BIN(top.get()), dumpDetails, file.constData());
}
