#ifndef SILENCEWATCH_H
#define SILENCEWATCH_H

#include <chrono>

/**
 * Tells a camera that has fallen silent for good from one that only pauses, as cameras do for a
 * second or two to find their focus or to open up in the dark.
 *
 * What counts is the time during which the program was running and looking: a process that was
 * stopped, or a machine that was suspended, has missed frames that the camera did send.
 *
 * One thread at a time.
 */
class SilenceWatch {
public:
    /// For a camera of @p rate frames per second; 0 for one that does not know its rate.
    explicit SilenceWatch(double rate);

    void frameCame() { m_silence = {}; }

    /// A look for a frame, begun with @p patience, has taken @p elapsed and brought none.
    void lookedInVain(std::chrono::milliseconds elapsed, std::chrono::milliseconds patience);

    bool isOver() const { return m_silence > m_limit; }
    std::chrono::milliseconds silence() const { return m_silence; }

private:
    std::chrono::milliseconds m_limit;
    std::chrono::milliseconds m_silence{0};
};

#endif
