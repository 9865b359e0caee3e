#ifndef SPARETIME_H
#define SPARETIME_H

#include <QtGlobal>

#include <atomic>
#include <thread>
#include <vector>

/**
 * Whether the machine had time, while this object lived, for what must happen at the right moment:
 * a test can ask for nothing that a camera, a microphone or a server beside it had no processor
 * for. A watch on each processor notes how late it is woken.
 */
class SpareTime {
public:
    SpareTime();
    ~SpareTime();
    Q_DISABLE_COPY(SpareTime)

    /// The processors had nothing to do for a fifth of the time, and kept nobody waiting for long.
    bool isPlenty() const;
    double idleShare() const; ///< of all processors' time, 0 to 1
    int longestWait() const { return m_longestWait; } ///< ms, that a processor kept its watch
    /// How late (s) something may be that passes through several programs, each of which may have
    /// waited that long: a camera, its server, ours. 0 when there was plenty of time.
    double lateness() const { return isPlenty() ? 0 : 4 * double(m_longestWait) / 1000; }

private:
    struct Times {
        qint64 idle = 0;
        qint64 all = 0;
    };

    static Times read();
    void watch(int processor);

    const Times m_begin = read();
    std::atomic<int> m_longestWait{0};
    std::atomic<bool> m_ended{false};
    std::vector<std::thread> m_watches;
};

#endif
