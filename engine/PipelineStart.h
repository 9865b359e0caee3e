#ifndef PIPELINESTART_H
#define PIPELINESTART_H

#include <gst/gst.h>

/**
 * Sets a camera's pipeline playing; false when it refuses. May hang in a driver, as any start may.
 *
 * A @p source of the media server may miss that its camera has started, on a busy machine, and wait
 * half a minute for what came already. That is noticed here, and the start begun anew: by then it
 * has its format for a while, and still has not returned.
 */
bool startPipeline(GstElement *pipeline, GstElement *source);

/**
 * Takes a camera's pipeline back to null. May hang in a driver, as any stop may.
 *
 * A @p source of the media server has a thread that is told of every frame, and that may be late on
 * a busy machine. It must not be told of one of a stream that is gone by then: the stream pauses
 * first and goes 50 ms later.
 */
void stopPipeline(GstElement *pipeline, GstElement *source);

#endif
