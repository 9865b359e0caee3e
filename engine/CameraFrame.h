#ifndef CAMERAFRAME_H
#define CAMERAFRAME_H

#include "GstHandles.h"

#include <gst/video/video.h>

#include <QSize>

#include <memory>
#include <opencv2/core/mat.hpp>

/**
 * One frame of a camera at its full size, mapped for reading as its source delivered it and not
 * copied again: its sample keeps the memory.
 *
 * It stays readable when the camera is closed or vanishes. A video node's mapping lasts as long as
 * the frame; frames of the media server are copies from the start, see CameraPipeline. A frame
 * holds back one of the camera's buffers, so it is not kept for long.
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
