#ifndef DISKWORK_H
#define DISKWORK_H

#include <atomic>
#include <chrono>
#include <functional>

/**
 * Work on a disk that may be slow, or hang, as a network folder does whose server is gone: done on
 * a thread of its own, while the GUI thread shows the wait cursor and keeps the windows painted. No
 * event is handled meanwhile: whoever waits finds everything as it was.
 */
class DiskWork {
public:
    /// What the work says of itself, on any thread, from as many places as there are in it.
    class Progress {
    public:
        /// It has got on a step. False when nobody waits any more: it should end without touching
        /// anything else.
        bool step()
        {
            ++m_steps;
            return !m_isGivenUp;
        }

    private:
        friend class DiskWork;
        std::atomic<int> m_steps{0};
        std::atomic<bool> m_isGivenUp{false};
    };

    /// How long work may not get on before it is given up. A disk that has gone to sleep needs less
    /// to wake up.
    static constexpr std::chrono::milliseconds usualLimit{10000};

    /// True when @p work is done. False when it was given up: then it ends whenever it can, and
    /// must own everything that it touches. On the GUI thread.
    static bool run(const std::function<void(Progress &)> &work,
                    std::chrono::milliseconds limit = usualLimit);
};

#endif
