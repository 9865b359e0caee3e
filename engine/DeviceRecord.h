#ifndef DEVICERECORD_H
#define DEVICERECORD_H

#include <QString>

/**
 * What a device provider tells about one of its devices, as plain data. The same camera may come as
 * several records: its video nodes, and the media server's nodes that stand for them.
 */
struct DeviceRecord {
    enum class Origin { V4l2, PipeWire, Demonstration };

    Origin origin = Origin::V4l2;
    QString name; ///< what the camera calls itself; may be empty, doubled or cut off
    QString deviceClass; ///< "Video/Source" for a camera
    QString devicePath; ///< "/dev/video0"; a media server's node names the one it stands for
    QString kernelPath; ///< of a video node: its folder below /sys, as long as the node is there
    QString busPath; ///< the socket it is plugged into, "pci-0000:00:14.0-usb-0:6:1.0"
    QString serial;
    QString nodeName; ///< the media server's name for it
    QString role; ///< the media server's media role, "Camera"; often empty
    QString libcameraPath; ///< set on nodes that reach a camera by libcamera; ends in its USB ids
    QString usbIds; ///< "04f2:b6c2", vendor and product
    bool hasColour = false; ///< offers at least one picture format that is not grey only
};

#endif
