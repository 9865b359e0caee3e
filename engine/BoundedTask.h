#ifndef BOUNDEDTASK_H
#define BOUNDEDTASK_H

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>

/**
 * Work that may hang in a driver or a media server, done on a thread of its own so that whoever
 * needs it waits only for as long as it wants. Work that is not done in time is left to end
 * whenever it can; it must therefore own everything that it touches.
 *
 * Threads: any may wait, and several may.
 */
template <typename Result> class BoundedTask;

/// Work without a result.
template <> class BoundedTask<void> {
public:
    explicit BoundedTask(std::function<void()> work);

    /// True when the work is done at @p deadline, or earlier. What it owned is gone by then.
    bool waitUntil(std::chrono::steady_clock::time_point deadline) const;

private:
    struct Progress;
    std::shared_ptr<Progress> m_progress;
};

/// Work with a result, which goes with the task: when nobody waits for it any more, the result of
/// work that is done late is destroyed on the thread that worked, before what the work owned.
template <typename Result> class BoundedTask {
public:
    explicit BoundedTask(std::function<Result()> work)
        : m_result(std::make_shared<std::optional<Result>>())
        , m_task(Job{std::move(work), m_result})
    {
    }

    /// The result; empty when the work is not done at @p deadline.
    std::optional<Result> waitUntil(std::chrono::steady_clock::time_point deadline) const
    {
        return m_task.waitUntil(deadline) ? *m_result : std::nullopt;
    }

private:
    struct Job {
        void operator()() const { result->emplace(work()); }

        std::function<Result()> work;
        std::shared_ptr<std::optional<Result>> result; ///< behind work, so that it goes first
    };

    std::shared_ptr<std::optional<Result>> m_result; ///< the thread's, until the work is done
    BoundedTask<void> m_task;
};

template <typename Work> BoundedTask(Work) -> BoundedTask<std::invoke_result_t<Work &>>;

#endif
