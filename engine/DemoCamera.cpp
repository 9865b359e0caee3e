#include "DemoCamera.h"

#include "DemoSource.h"

static DeviceRecord description()
{
    DeviceRecord record;
    record.origin = DeviceRecord::Origin::Demonstration;
    record.name = QStringLiteral("Demonstration Camera");
    record.deviceClass = QStringLiteral("Video/Source");
    record.hasColour = true;
    return record;
}

bool DemoCamera::isWanted()
{
    return qgetenv("ORVANTA_DEMO_CAMERA") == "1";
}

DemoCamera::DemoCamera()
    : Camera(description(), {nullptr, QStringLiteral("demonstration")}, DemoSource::pictureFormat())
{
}

GstObjectHandle<GstElement> DemoCamera::makeSource() const
{
    return DemoSource::makePicture();
}
