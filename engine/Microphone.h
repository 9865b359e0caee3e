#ifndef MICROPHONE_H
#define MICROPHONE_H

#include "GstHandles.h"

#include <QByteArray>

#include <chrono>
#include <memory>

class MovieRecorder;

/// What can be listened to.
struct SoundSource {
    enum class Kind {
        Server, ///< a source of the sound server
        Card, ///< the sound system's own default source
        Demonstration, ///< the demonstration camera's
    };

    Kind kind = Kind::Card;
    QByteArray name; ///< the server's for it; empty for the others
};

/**
 * The microphone while a movie is recorded. Nothing listens between movies. Which source it is, and
 * whether there is one, is for MicrophoneFinder to say.
 *
 * A microphone that is lost just falls silent; no other one takes its place in the middle of a
 * movie.
 *
 * Threads: GUI thread only. Opening and closing may hang in the sound server, so both are done on
 * the side and waited for with a limit.
 */
class Microphone {
public:
    /// Null when @p source does not open within @p limit.
    static std::shared_ptr<Microphone> open(const SoundSource &source,
                                            std::chrono::milliseconds limit);
    ~Microphone();
    Microphone(const Microphone &) = delete;
    Microphone &operator=(const Microphone &) = delete;

    /// Who gets the sound from now on, on the microphone's own thread; null for nobody.
    void handTo(const std::shared_ptr<MovieRecorder> &recorder);

private:
    class Pipeline;

    explicit Microphone(std::shared_ptr<Pipeline> pipeline);

    std::shared_ptr<Pipeline> m_pipeline; ///< outlives the microphone when it hangs
};

#endif
