#ifndef DEVICEPROVIDERS_H
#define DEVICEPROVIDERS_H

#include "Camera.h"

#include <QVector>

#include <chrono>
#include <functional>

/**
 * The sources of cameras: the system's video nodes and the media server, each asked directly. (The
 * common monitor over both hides one behind the other and reports devices twice.) Once started they
 * know of every camera that comes and goes.
 *
 * All engines of a process share one set of them. A server may be started anew at any time: its end
 * is noticed at once and counts as the removal of all its cameras, and the next start() finds the
 * new one. The media server's provider is let go only then; it frees memory twice when it is
 * stopped while its server is still answering. It may go on listing what its server has taken away,
 * and is not believed then.
 *
 * A server that hangs would hang whoever asks it first, so each is started by a BoundedTask; one
 * that does not answer in time is not heard until it does. Everything else is answered from what
 * was heard before.
 *
 * Threads: all operations on the GUI thread, whose event loop must run for the end of a server to
 * be noticed; the callback comes on any.
 */
class DeviceProviders {
public:
    /// @p changed is called, on any thread, when a camera came or went.
    explicit DeviceProviders(std::function<void()> changed);
    ~DeviceProviders();
    Q_DISABLE_COPY(DeviceProviders)

    /// Begins to start every provider that does not run yet, and that of the video nodes anew when
    /// there is one that it does not have and that the user may open, or one that is doubted. Does
    /// not wait, not even for GStreamer's own start.
    static void begin();
    /// The same; waits for them until @p deadline at most.
    static void start(std::chrono::steady_clock::time_point deadline);

    /// What was heard of @p camera may be out of date, because it has failed although it is there:
    /// a grabber whose source has changed its picture offers other formats, and tells nobody.
    static void doubt(const CameraHandle &camera);

    enum class Answer {
        None, ///< there is no such source on this machine
        Late, ///< it was asked and has not answered yet
        Given
    };
    static Answer videoNodes();
    static Answer mediaServer();

    /// All cameras that are there, the demonstration last if it is wanted.
    static QVector<CameraHandle> cameras();

    /// Whether the very camera that was listed before is still there.
    static bool contains(const Camera &camera);

private:
    const std::function<void()> m_changed;
};

#endif
