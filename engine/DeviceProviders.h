#ifndef DEVICEPROVIDERS_H
#define DEVICEPROVIDERS_H

#include "DeviceRecord.h"
#include "GstHandles.h"

#include <QVector>

#include <chrono>
#include <functional>

/**
 * The sources of cameras and microphones: the system's video nodes, the media server and the sound
 * server, each asked directly. (The common monitor over all of them hides one behind the other and
 * reports devices twice.) Once started they know of every device that comes and goes.
 *
 * All engines of a process share one set of providers, which is never taken down: the media
 * server's provider frees memory twice when it is stopped while its server is still answering. A
 * server that hangs would hang whoever asks it first, so each is started by a BoundedTask; one that
 * does not answer in time is not heard until it does.
 *
 * Threads: all operations on the GUI thread; the callback comes on any.
 */
class DeviceProviders {
public:
    /// A camera that is there, and what opens it.
    struct Camera {
        DeviceRecord record;
        GstDeviceHandle device;
    };

    /// @p changed is called, on any thread, when a device came or went.
    explicit DeviceProviders(std::function<void()> changed);
    ~DeviceProviders();
    Q_DISABLE_COPY(DeviceProviders)

    /// Starts every provider that does not run yet; waits for at most @p limit.
    static void start(std::chrono::milliseconds limit);

    static QVector<Camera> cameras();

    /// Whether the very device that was listed before is still there.
    static bool contains(const GstDeviceHandle &device);

    /// Whether there is a sound server; one that does not answer counts.
    static bool hasSoundServer();

    /// Whether the sound server has a source other than a loudspeaker's monitor.
    static bool hasMicrophone();

private:
    std::function<void()> m_changed;
};

#endif
