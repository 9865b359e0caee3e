#ifndef SOUNDCARDTRIAL_H
#define SOUNDCARDTRIAL_H

#include "BoundedTask.h"

#include <chrono>
#include <optional>

/**
 * Whether the sound system's own default source can be opened: the microphone of a machine without
 * a sound server.
 *
 * Nobody tells when a sound card comes or goes, or another program takes it, so it is tried: opened
 * for a moment, on the side, because a driver may hang. The answer is remembered for two seconds,
 * so that asking often costs nothing. While a movie listens to the card a trial would find it busy.
 *
 * GUI thread only.
 */
class SoundCardTrial {
public:
    /// False also while a trial takes longer than @p limit.
    bool canBeOpened(std::chrono::milliseconds limit);

private:
    std::optional<BoundedTask<bool>> m_trial; ///< while one is under way
    std::optional<bool> m_opened; ///< in the last trial; empty before the first
    std::chrono::steady_clock::time_point m_triedAt;
};

#endif
