#ifndef CAMERADEVICE_H
#define CAMERADEVICE_H

#include "DeviceRecord.h"
#include "GstHandles.h"

class MediaConnection;

/**
 * A camera that a device provider has listed, from its being plugged in to its being pulled out:
 * the same camera plugged in again, or found again by a server that was started anew, is another
 * device.
 *
 * Nothing here asks a server or a driver. GUI thread only.
 */
class CameraDevice {
public:
    /// @p connection is the media server's that listed it, null for one of the system's own.
    CameraDevice(GstDeviceHandle device, std::shared_ptr<MediaConnection> connection);

    const DeviceRecord &record() const { return m_record; }

    /// The formats it offers.
    GstMiniHandle<GstCaps> caps() const;

    /// A new element that opens it, which keeps the connection for as long as it is there. Null
    /// when the plug-in for it is missing.
    GstObjectHandle<GstElement> makeSource() const;

    /// Whether both stand for the same device. A provider may tell of it by another object each
    /// time something about it changes.
    bool isSameAs(const CameraDevice &other) const;

private:
    GstDeviceHandle m_device;
    std::shared_ptr<MediaConnection> m_connection;
    DeviceRecord m_record;
    QString m_presence; ///< differs from that of every other device of the same connection
};

/// Shared by the list of cameras and the open camera.
using CameraDeviceHandle = std::shared_ptr<const CameraDevice>;

#endif
