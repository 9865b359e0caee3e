#ifndef CAMERAFRAME_H
#define CAMERAFRAME_H

#include "GstHandles.h"

#include <gst/video/video.h>

#include <QSize>

#include <memory>
#include <opencv2/core/mat.hpp>

/**
 * One frame of a camera at its full size, mapped for reading and not copied: at 1920x1080 a copy
 * would cost a tenth of all the work that a live picture takes.
 *
 * The frame keeps its sample, the sample its buffer, and the buffer its memory: a mapping of its
 * own of the camera's shared memory, which stays when the camera's node, or the process behind it,
 * vanishes. It holds back one of the camera's buffers, so a frame is not kept for long.
 *
 * Immutable: any thread may read it.
 */
class CameraFrame {
public:
    /// Null when the sample holds no picture that can be read.
    static std::shared_ptr<CameraFrame> fromSample(GstMiniHandle<GstSample> sample);
    ~CameraFrame();
    CameraFrame(const CameraFrame &) = delete;
    CameraFrame &operator=(const CameraFrame &) = delete;

    const GstVideoFrame &picture() const { return m_picture; }
    QSize size() const;

    /// The first plane as the camera sent it (packed YUV has two channels, grey and planar formats
    /// one); valid as long as this frame.
    cv::Mat view() const;

private:
    explicit CameraFrame(GstMiniHandle<GstSample> sample);

    GstMiniHandle<GstSample> m_sample;
    GstVideoFrame m_picture = {};
    bool m_mapped = false;
};

#endif
