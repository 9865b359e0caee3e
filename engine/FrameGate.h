#ifndef FRAMEGATE_H
#define FRAMEGATE_H

#include <gst/gst.h>

#include <atomic>
#include <memory>

/**
 * Stands right behind the camera's source and drops its frames while nobody needs any: what nobody
 * sees is not decoded. The camera itself sends on, and is back with its next frame.
 *
 * Threads: attach() before the camera plays, the rest on any thread; frames come on the camera's
 * own.
 */
class FrameGate {
public:
    /// Has every frame that passes @p pad go through @p gate, for as long as the pad lives.
    static void attach(const std::shared_ptr<FrameGate> &gate, GstPad *pad);

    /// Open at first.
    void close() { m_toDrop = all; }

    /// Open, but for the next @p frames.
    void open(int frames) { m_toDrop = frames; }

    /// Whether a frame was dropped since the last call: the camera is well.
    bool takeDropped() { return m_dropped.exchange(false); }

private:
    static GstPadProbeReturn onFrame(GstPad *pad, GstPadProbeInfo *info, gpointer gate);

    static constexpr int all = -1;

    bool drops();

    std::atomic<int> m_toDrop{0};
    std::atomic<bool> m_dropped{false};
    bool m_gap = false; ///< the last frame was dropped; the camera's thread only
};

#endif
