#include "SilenceWatch.h"

#include <algorithm>

using std::chrono::milliseconds;

static const milliseconds longestPause(3000);
static const int longestPauseInFrames = 15; // for cameras slower than five frames a second

SilenceWatch::SilenceWatch(double rate)
    : m_limit(std::max(longestPause,
                       milliseconds(rate > 0 ? int(longestPauseInFrames * 1000 / rate) : 0)))
{
}

// A look that took far longer than it was meant to says that the process stood still.
void SilenceWatch::lookedInVain(milliseconds elapsed, milliseconds patience)
{
    m_silence += std::min(elapsed, 2 * patience);
}
