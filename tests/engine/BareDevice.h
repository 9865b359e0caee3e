#ifndef BAREDEVICE_H
#define BAREDEVICE_H

#include "GstHandles.h"

#include <QByteArray>

/// A camera as a provider of devices makes it, but with nothing behind it. The properties are what
/// a provider tells of it: "device.path=(string)/dev/video0, ...".
GstDeviceHandle makeBareDevice(const QByteArray &properties);

#endif
