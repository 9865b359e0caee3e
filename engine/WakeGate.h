#ifndef WAKEGATE_H
#define WAKEGATE_H

#include "GstHandles.h"

#include <atomic>
#include <memory>

/**
 * Keeps back what a camera took before it rested. Its driver or its server may still have some
 * frames from then, which come first and at once when it is woken: they show the page before.
 *
 * Threads: attach() before the camera plays, close() on any thread; the frames pass on the
 * camera's own.
 */
class WakeGate {
public:
    /// Has every frame that passes @p pad go through @p gate, for as long as the pad lives.
    static void attach(const std::shared_ptr<WakeGate> &gate, GstPad *pad);

    /// From now on only frames that are taken later than now pass. A camera whose times are not to
    /// be trusted is believed after half a second.
    void close();

private:
    static GstPadProbeReturn onFrame(GstPad *pad, GstPadProbeInfo *info, gpointer gate);
    bool passes(GstClockTime captured);

    std::atomic<GstClockTime> m_closed{0}; ///< ns of the system's clock; 0 while it stands open
};

#endif
