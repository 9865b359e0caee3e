#include "MovieCompletion.h"

#include <mutex>
#include <utility>
#include <vector>

static std::mutex mutex; // guards tasks
static std::vector<BoundedTask<void>> tasks; // not known to be done

void MovieCompletion::goesOnWith(const BoundedTask<void> &completing)
{
    const std::lock_guard<std::mutex> lock(mutex);
    tasks.push_back(completing);
}

bool MovieCompletion::waitForAll(std::chrono::steady_clock::time_point deadline)
{
    std::vector<BoundedTask<void>> open;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        open = std::exchange(tasks, {});
    }
    bool all = true;
    for (const BoundedTask<void> &task : open) {
        if (!task.waitUntil(deadline)) {
            goesOnWith(task);
            all = false;
        }
    }
    return all;
}
