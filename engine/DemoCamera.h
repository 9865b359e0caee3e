#ifndef DEMOCAMERA_H
#define DEMOCAMERA_H

#include "Camera.h"

/**
 * The built-in camera for desks without one: a drawn scene with a moving sun and a running clock.
 * It is offered, after all real cameras, when ORVANTA_DEMO_CAMERA is "1".
 */
class DemoCamera : public Camera {
public:
    static bool isWanted();

    DemoCamera();

    GstObjectHandle<GstElement> makeSource() const override;
    bool canBePulledOut() const override { return false; }
};

#endif
