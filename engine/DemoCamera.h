#ifndef DEMOCAMERA_H
#define DEMOCAMERA_H

#include "Camera.h"

/**
 * The built-in camera for those who have none at hand: a drawn desk with a pencil that draws and a
 * clock that ticks, for the eye and by a microphone of its own. It is offered, after all real
 * cameras, when ORVANTA_DEMO_CAMERA is "1".
 */
class DemoCamera : public Camera {
public:
    static bool isWanted();

    DemoCamera();

    GstObjectHandle<GstElement> makeSource() const override;
    bool canBePulledOut() const override { return false; }
};

#endif
