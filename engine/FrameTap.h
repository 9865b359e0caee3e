#ifndef FRAMETAP_H
#define FRAMETAP_H

#include "GstHandles.h"

#include <memory>
#include <mutex>

class MovieRecorder;

/**
 * Where a movie takes its frames from the live picture's pipeline. Whoever opened the camera keeps
 * one; the pipeline and its worker need not know whether a movie is being recorded.
 *
 * Threads: attach() before the camera plays, handTo() on any thread; the frames are handed over on
 * the camera's own thread, without waiting for anything.
 */
class FrameTap {
public:
    /// Has every frame that passes @p pad shown to @p tap, for as long as the pad lives.
    static void attach(const std::shared_ptr<FrameTap> &tap, GstPad *pad);

    /// Who gets the frames from now on; null for nobody.
    void handTo(std::shared_ptr<MovieRecorder> recorder);

private:
    static GstPadProbeReturn onFrame(GstPad *pad, GstPadProbeInfo *info, gpointer tap);

    std::mutex m_mutex; ///< guards m_recorder
    std::shared_ptr<MovieRecorder> m_recorder;
};

#endif
