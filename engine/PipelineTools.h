#ifndef PIPELINETOOLS_H
#define PIPELINETOOLS_H

#include "GstHandles.h"

#include <QByteArray>
#include <QString>

/// The pipeline that @p description, a launch line, stands for, named @p name. Null when an element
/// of it is missing, or it cannot be put together; the log says why.
GstObjectHandle<GstElement> parsePipeline(const char *name, const QByteArray &description);

/// What an error message says, for the log: "source: text (what the element adds for developers)".
QString errorText(GstMessage *message);

/// Writes the pipeline that @p part belongs to, itself included, as it is now to a file
/// "...-<pipeline>-<moment>.dot", when GST_DEBUG_DUMP_DOT_DIR names a folder for such. Any thread,
/// also one of the pipeline's own.
void dumpPipeline(gpointer part, const char *moment);

#endif
