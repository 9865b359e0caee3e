#ifndef JPEGGUARD_H
#define JPEGGUARD_H

#include <gst/gst.h>

/**
 * Stands before the decoder of a camera that packs its frames as JPEG, and drops those that a bad
 * cable has cut ahead of their picture. The decoder, which looks for the end of a frame in all that
 * comes, would take the next frame for the rest of such a one; and where the cut lies between two
 * segments of its head, GStreamer 1.22's looks for ever, and the camera cannot even be closed.
 *
 * A frame that is cut within its picture passes: what is there of it can be shown.
 */
class JpegGuard {
public:
    JpegGuard() = delete;

    /// Has every frame that passes @p pad looked at, for as long as the pad lives, on the camera's
    /// thread. To be called before the camera plays.
    static void attach(GstPad *pad);

    /// Whether the @p size bytes are a frame whose head is whole and in which every segment ends.
    /// May be called on any thread.
    static bool hasEnd(const guint8 *bytes, gsize size);
};

#endif
