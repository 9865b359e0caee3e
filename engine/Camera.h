#ifndef CAMERA_H
#define CAMERA_H

#include "CameraMode.h"
#include "DeviceRecord.h"
#include "GstHandles.h"

#include <QVector>

#include <memory>

/// Tells a camera that is there from every other that is, was or will be.
struct CameraPresence {
    std::shared_ptr<const void> server; ///< the run of the server that has it; null for no server
    QString mark; ///< unlike that of every other camera of the same run
};

/**
 * A camera that can be opened, from its being plugged in to its being pulled out: what it is called
 * and known by, what it can deliver, and the element that opens it. The same camera plugged in
 * again, or found again by a server that was started anew, is another one.
 *
 * Nothing here asks a server or a driver. GUI thread only.
 */
class Camera {
public:
    virtual ~Camera() = default;
    Camera(const Camera &) = delete;
    Camera &operator=(const Camera &) = delete;

    /// What a list of cameras makes a name and an identity of.
    const DeviceRecord &record() const { return m_record; }

    /// The ways in which it can deliver its picture.
    QVector<CameraMode> modes() const;

    /// The one format that fixes it to @p mode; null when it does not have that mode.
    GstMiniHandle<GstCaps> formatOf(const CameraMode &mode) const;

    /// A new element that opens it. Null when the plug-in for it is missing.
    virtual GstObjectHandle<GstElement> makeSource() const = 0;

    /// False for one that is no device: it is there as long as somebody has it.
    virtual bool canBePulledOut() const { return true; }

    /// Whether both are the same camera and neither was pulled out in between, however often it was
    /// listed.
    bool isSameAs(const Camera &other) const;

protected:
    /// @p formats is what it offers.
    Camera(DeviceRecord record, CameraPresence presence, GstMiniHandle<GstCaps> formats);

private:
    const DeviceRecord m_record;
    const CameraPresence m_presence;
    const GstMiniHandle<GstCaps> m_formats;
};

/// Shared by the list of cameras and whoever has opened one of them.
using CameraHandle = std::shared_ptr<const Camera>;

#endif
