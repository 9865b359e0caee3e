#ifndef PROCESSORSHARE_H
#define PROCESSORSHARE_H

#include <functional>

/// What a pipeline that was just started takes to run evenly (ms).
constexpr int settleTime = 1500;

struct ProcessorShare {
    double program; ///< this process's share of one processor
    double server; ///< the lab's X server's
    double rate; ///< frames per second
};

/// Runs the event loop until things have settled and @p seconds on, and returns what was used in
/// those. @p frames tells how many there were so far. Needs an application object.
ProcessorShare shareOver(int seconds, const std::function<int()> &frames = {});

#endif
