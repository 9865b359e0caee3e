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

#endif
