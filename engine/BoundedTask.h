#ifndef BOUNDEDTASK_H
#define BOUNDEDTASK_H

#include <chrono>
#include <functional>
#include <memory>

/**
 * Work that may hang in a driver or a media server, done on a thread of its own so that whoever
 * needs it waits only for as long as it wants. Work that is not done in time is left to end
 * whenever it can; it must therefore own everything that it touches.
 */
class BoundedTask {
public:
    explicit BoundedTask(std::function<void()> work);

    /// True when the work is done at @p deadline, or earlier.
    bool waitUntil(std::chrono::steady_clock::time_point deadline) const;

private:
    struct Progress;
    std::shared_ptr<Progress> m_progress;
};

#endif
