#include "Camera.h"

#include "CapsModes.h"

Camera::Camera(DeviceRecord record, CameraPresence presence, GstMiniHandle<GstCaps> formats)
    : m_record(std::move(record))
    , m_presence(std::move(presence))
    , m_formats(std::move(formats))
{
}

QVector<CameraMode> Camera::modes() const
{
    return modesOf(m_formats.get());
}

GstMiniHandle<GstCaps> Camera::formatOf(const CameraMode &mode) const
{
    return m_formats ? fixedCaps(m_formats.get(), mode) : nullptr;
}

bool Camera::isSameAs(const Camera &other) const
{
    return m_presence.server == other.m_presence.server && m_presence.mark == other.m_presence.mark;
}
