#ifndef GSTSTART_H
#define GSTSTART_H

/// Starts GStreamer on the first call. False when it does not start or lacks an element without
/// which no camera can be captured; then nothing else of it may be used. Any thread; whoever calls
/// meanwhile waits.
bool startGstreamer();

#endif
