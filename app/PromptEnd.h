#ifndef PROMPTEND_H
#define PROMPTEND_H

#include <chrono>

/**
 * The end of the process, once everything that matters is on the disk. Between the last line of
 * main and the real end, libraries tidy up, and one of them may wait for ever for a driver or a
 * server that hangs; the user would find the camera taken at the next start.
 */
class PromptEnd {
public:
    PromptEnd() = delete;

    /// Ends the process with @p status after @p limit, unless it has ended by itself by then.
    static void within(std::chrono::milliseconds limit, int status);
};

#endif
