#ifndef CAMERAPIPELINE_H
#define CAMERAPIPELINE_H

#include "CameraMode.h"
#include "GstHandles.h"

#include <gst/app/gstappsink.h>

#include <QString>

#include <memory>

class FrameGate;
class FrameTap;

/**
 * The pipeline from one camera to its newest frame:
 *
 *   source ! one fixed format ! (JPEG decoder) ! deinterlacer ! tee ! appsink that keeps one frame
 *
 * The format is fixed right behind the source, because a source that is left to choose takes a poor
 * mode or, on the media server, none at all. There a FrameGate drops what nobody needs. A movie
 * takes its frames where they enter the tee.
 *
 * Made on the GUI thread, then used by one worker only; play(), close() and destruction may hang
 * in a driver.
 */
class CameraPipeline {
public:
    /// Takes over @p source, an element that was just made. Null when the pipeline cannot be built.
    static std::unique_ptr<CameraPipeline> build(GstObjectHandle<GstElement> source,
                                                 GstMiniHandle<GstCaps> format,
                                                 const CameraMode &mode);
    ~CameraPipeline();
    CameraPipeline(const CameraPipeline &) = delete;
    CameraPipeline &operator=(const CameraPipeline &) = delete;

    const CameraMode &mode() const { return m_mode; }

    /// Has every frame shown to @p tap; before play().
    void setTap(const std::shared_ptr<FrameTap> &tap);

    /// Starts the camera; false when it refuses at once.
    bool play();

    /// The next frame, or the newest when several have come; null after @p milliseconds.
    GstMiniHandle<GstSample> nextSample(int milliseconds);

    /// Has the camera's frames dropped, as they come, until wake().
    void rest();

    /// Whether frames came during the rest since the last call.
    bool sendsStill();

    /// Ends the rest: the next frame is one that comes after this.
    void wake();

    /// What ended the camera, empty while it is well.
    QString failure();

    void close();

private:
    CameraPipeline() = default;
    bool assemble(GstObjectHandle<GstElement> source, GstMiniHandle<GstCaps> format);

    CameraMode m_mode;
    GstObjectHandle<GstElement> m_pipeline;
    GstObjectHandle<GstBus> m_bus;
    GstObjectHandle<GstElement> m_source;
    GstObjectHandle<GstElement> m_sink;
    std::shared_ptr<FrameGate> m_gate;
    bool m_delivers = false; ///< the first frame has come
};

#endif
