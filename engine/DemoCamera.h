#ifndef DEMOCAMERA_H
#define DEMOCAMERA_H

#include "CameraMode.h"
#include "DeviceRecord.h"
#include "GstHandles.h"

// The built-in camera for desks without one: a drawn scene with a moving sun and a running clock.
// It is offered, after all real cameras, when ORVANTA_DEMO_CAMERA is "1".

bool demoCameraIsWanted();
DeviceRecord demoCameraRecord();
CameraMode demoCameraMode();

/// The element that delivers its frames; null when GStreamer lacks what it is made of.
GstObjectHandle<GstElement> makeDemoCamera();

#endif
