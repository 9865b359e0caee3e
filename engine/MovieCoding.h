#ifndef MOVIECODING_H
#define MOVIECODING_H

#include "BoundedTask.h"
#include "CameraMode.h"

#include <QByteArray>

#include <chrono>
#include <memory>

/// How a movie is written: chains of elements with their settings, as a pipeline's description
/// names them. Picture coders take 4:2:0 in 8 bits, the only kind that every player can show.
struct MovieCoding {
    QByteArray video; ///< empty when this machine has no coder for the picture
    QByteArray sound; ///< likewise
    int divisor = 1; ///< the picture is this much smaller than the camera's, on each side

    bool isComplete() const { return !video.isEmpty() && !sound.isEmpty(); }
};

/// Bits a second for a picture of this size and rate: enough for a classroom's blackboard, and a
/// movie of ten minutes in 1280x720 stays well below 300 MB.
int movieBitRate(const QSize &size, double rate);

/// How much smaller, on each side, the pictures of a movie must be for an encoder that needs
/// @p frameTime s for one of @p size (px), so that the movie still moves. 1 for most.
int movieDivisor(double frameTime, const QSize &size);

/**
 * The search for the best encoder of one camera mode. Whether one works is found by letting it
 * encode a few frames: graphics drivers offer encoders that then fail. That takes a moment and may
 * hang, so it is done on the side, from the moment the camera is opened.
 *
 * An encoder whose trial takes long is not one that fails: until it is known, one that needs no
 * driver stands in, and only a machine without any such has to wait. What was found for encoders
 * without a driver is remembered for the next start (MovieCodingCache).
 *
 * Threads: any.
 */
class MovieCodingSearch {
public:
    MovieCodingSearch(const QSize &size, double rate);

    /// The best coding that works; when the search has not ended at @p deadline the best that is
    /// sure to. Empty when there is none.
    MovieCoding waitUntil(std::chrono::steady_clock::time_point deadline) const;

    /// True when all has been tried and is remembered at @p deadline, or earlier.
    bool hasEnded(std::chrono::steady_clock::time_point deadline) const;

    /// The encoder @p video failed in a movie: it is not taken again.
    void reject(const QByteArray &video);

private:
    class State;
    std::shared_ptr<State> m_state; ///< outlives the search in a driver that hangs
    BoundedTask<void> m_searching;
};

#endif
