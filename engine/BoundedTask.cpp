#include "BoundedTask.h"

#include "PatientWait.h"

#include <condition_variable>
#include <mutex>
#include <thread>

struct BoundedTask<void>::Progress {
    std::mutex mutex; ///< guards done
    std::condition_variable ended;
    bool done = false;
};

BoundedTask<void>::BoundedTask(std::function<void()> work)
    : m_progress(std::make_shared<Progress>())
{
    std::thread([progress = m_progress, work = std::move(work)]() mutable {
        work();
        work = nullptr; // what it owns goes before anybody hears that it is done
        const std::lock_guard<std::mutex> lock(progress->mutex);
        progress->done = true;
        progress->ended.notify_all();
    }).detach();
}

bool BoundedTask<void>::waitUntil(std::chrono::steady_clock::time_point deadline) const
{
    return waitPatiently(
        deadline,
        [this](std::chrono::steady_clock::time_point until) {
            std::unique_lock<std::mutex> lock(m_progress->mutex);
            return m_progress->ended.wait_until(
                lock, until, [this] { return m_progress->done; });
        });
}
