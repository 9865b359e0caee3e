#ifndef PROCESSORSHARE_H
#define PROCESSORSHARE_H

/// What a pipeline that was just started takes to run evenly (ms).
constexpr int settleTime = 1500;

/// Runs the event loop until things have settled and @p seconds on, and returns the share of one
/// processor that the process took in those. Needs an application object.
double shareOver(int seconds);

#endif
