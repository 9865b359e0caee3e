#ifndef MOVIEPIPELINE_H
#define MOVIEPIPELINE_H

#include "GstHandles.h"

#include <gst/video/video.h>

#include <QString>

struct MovieEncoding;

/**
 * The pipeline that writes one movie:
 *
 *   "frames" ! 4:2:0 ! "converted" ! encoder ! "encoded" \
 *                          "sound" ! encoder ! queue      ! QuickTime muxer ! "file"
 *
 * The names are those of its elements: two sources of the program's, three queues, the file.
 *
 * Takes frames like @p format, which must have a rate, and sound as SoundTrack has it; writes to
 * @p path once it plays. Null when an element is missing.
 */
GstObjectHandle<GstElement> makeMoviePipeline(const GstVideoInfo &format,
                                              const MovieEncoding &encoding, const QString &path);

#endif
