#ifndef SOUNDCARD_H
#define SOUNDCARD_H

#include "BoundedTask.h"

#include <chrono>
#include <functional>
#include <optional>

/**
 * The sound system's own default source: the microphone of a machine without a sound server.
 *
 * Nobody tells when a sound card comes or goes, or another program takes it, so it is tried: opened
 * for a moment, on the side, because a driver may hang. The answer is remembered for a moment, so
 * that asking often costs nothing. While a movie listens to the card the trial would find it busy.
 *
 * GUI thread only.
 */
class SoundCard {
public:
    /// @p changed is called from within canBeOpened() when the answer is another one than before.
    explicit SoundCard(std::function<void()> changed);

    /// False also while a trial takes longer than @p limit.
    bool canBeOpened(std::chrono::milliseconds limit);

private:
    std::function<void()> m_changed;
    std::optional<BoundedTask<bool>> m_trial; ///< while one is under way
    bool m_tried = false;
    bool m_opened = false; ///< in the last trial
    std::chrono::steady_clock::time_point m_triedAt;
};

#endif
