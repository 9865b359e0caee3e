#ifndef CAMERADEVICE_H
#define CAMERADEVICE_H

#include "Camera.h"

class MediaConnection;

/// A camera that a device provider has listed: one of the system's video nodes, or of the media
/// server. GUI thread only.
class CameraDevice : public Camera {
public:
    /// @p connection is the media server's that listed it, null for one of the system's own.
    CameraDevice(GstDeviceHandle device, std::shared_ptr<MediaConnection> connection);

    /// The element keeps the connection for as long as it is there.
    GstObjectHandle<GstElement> makeSource() const override;

private:
    const GstDeviceHandle m_device;
    const std::shared_ptr<MediaConnection> m_connection;
};

#endif
