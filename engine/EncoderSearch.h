#ifndef ENCODERSEARCH_H
#define ENCODERSEARCH_H

#include "BoundedTask.h"
#include "MovieEncoding.h"

#include <chrono>
#include <memory>

/// What is known of an encoder that comes into question.
struct EncoderFinding {
    enum class Verdict {
        Missing, ///< this machine does not have it
        Untried, ///< or its trial has not ended; none is tried that is not better than one that
                 ///< works
        Works,
        Fails
    };

    QByteArray element; ///< that does the work, "x264enc"
    Verdict verdict = Verdict::Missing;
    double frameTime = 0; ///< s that it needs for a frame; 0 when that is not known
};

/// Each best first.
struct EncoderFindings {
    QVector<EncoderFinding> video;
    QVector<EncoderFinding> sound;
};

/**
 * The search for the best encoder of one camera mode. Whether one works is found by letting it
 * encode a few frames: graphics drivers offer encoders that then fail. That takes a moment and may
 * hang, so it is done on the side, from the moment the camera is opened.
 *
 * An encoder whose trial takes long is not one that fails: until it is known, one that needs no
 * driver stands in, and only a machine without any such has to wait. What was found for encoders
 * without a driver is remembered for the next start (EncoderCache).
 *
 * Threads: any.
 */
class EncoderSearch {
public:
    EncoderSearch(const QSize &size, double rate);

    /// The best encoding that works; when the search has not ended at @p deadline the best that is
    /// sure to. Empty when there is none.
    MovieEncoding waitUntil(std::chrono::steady_clock::time_point deadline) const;

    /// True when all has been tried and is remembered at @p deadline, or earlier.
    bool hasEnded(std::chrono::steady_clock::time_point deadline) const;

    /// What is known by now of all that come into question.
    EncoderFindings findings() const;

    /// The encoder @p video failed in a movie: it is not taken again.
    void reject(const QByteArray &video);

private:
    class State;
    std::shared_ptr<State> m_state; ///< outlives the search in a driver that hangs
    BoundedTask<void> m_searching;
};

#endif
