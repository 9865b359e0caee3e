#include "MovieCompletion.h"

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

static std::mutex mutex; // guards tasks
static std::vector<BoundedTask<void>> tasks; // not known to be done

static bool isDone(const BoundedTask<void> &completing)
{
    return completing.waitUntil(std::chrono::steady_clock::now());
}

void MovieCompletion::goesOnWith(const BoundedTask<void> &completing)
{
    const std::lock_guard<std::mutex> lock(mutex);
    tasks.erase(std::remove_if(tasks.begin(), tasks.end(), isDone), tasks.end());
    tasks.push_back(completing);
}

static std::vector<BoundedTask<void>> takeAll()
{
    const std::lock_guard<std::mutex> lock(mutex);
    return std::exchange(tasks, {});
}

// The end of one may be the beginning of another: a movie is completed, then the disk takes it.
bool MovieCompletion::waitForAll(std::chrono::steady_clock::time_point deadline)
{
    std::vector<BoundedTask<void>> open;
    for (auto next = takeAll(); !next.empty(); next = takeAll())
        for (const BoundedTask<void> &task : next)
            if (!task.waitUntil(deadline))
                open.push_back(task);
    for (const BoundedTask<void> &task : open)
        goesOnWith(task);
    return open.empty();
}
