#ifndef MICROPHONE_H
#define MICROPHONE_H

#include "GstHandles.h"

#include <chrono>
#include <memory>

class MovieRecorder;

/**
 * The microphone while a movie is recorded: the source that the sound server was last heard to have
 * for one, or without a sound server the sound system's own. Nothing listens between movies.
 *
 * A microphone that is lost just falls silent; no other one takes its place in the middle of a
 * movie.
 *
 * Threads: GUI thread only. Opening and closing may hang in the sound server, so both are done on
 * the side and waited for with a limit.
 */
class Microphone {
public:
    /// Null when there is none, or it does not open within @p limit.
    static std::unique_ptr<Microphone> open(std::chrono::milliseconds limit);
    ~Microphone();
    Microphone(const Microphone &) = delete;
    Microphone &operator=(const Microphone &) = delete;

    /// Who gets the sound from now on, on the microphone's own thread.
    void record(const std::shared_ptr<MovieRecorder> &recorder);

private:
    class Chain;

    explicit Microphone(std::shared_ptr<Chain> chain);

    std::shared_ptr<Chain> m_chain; ///< outlives the microphone when it hangs
};

#endif
