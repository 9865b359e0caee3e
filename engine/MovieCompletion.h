#ifndef MOVIECOMPLETION_H
#define MOVIECOMPLETION_H

#include "BoundedTask.h"

/**
 * Movies whose recording is over and whose files are still being completed, because the encoder or
 * the disk is slow, and captures that a slow disk has still to take: nobody waits for them any
 * more, but the process should not end before them.
 *
 * Any thread.
 */
namespace MovieCompletion {

void goesOnWith(const BoundedTask<void> &completing);

/// True when all files are complete at @p deadline, or earlier.
bool waitForAll(std::chrono::steady_clock::time_point deadline);

} // namespace MovieCompletion

#endif
