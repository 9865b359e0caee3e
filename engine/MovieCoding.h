#ifndef MOVIECODING_H
#define MOVIECODING_H

#include "BoundedTask.h"
#include "CameraMode.h"

#include <QByteArray>

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

/**
 * The search for the best coder of one camera mode. Whether a coder works is found by letting it
 * code a few frames: graphics drivers offer coders that then fail. That takes a moment and may
 * hang, so it is done on the side, from the moment the camera is opened.
 */
class MovieCodingSearch {
public:
    MovieCodingSearch(const QSize &size, double rate);

    /// The coding found; empty when there is none, or the search does not end in time.
    MovieCoding waitUntil(std::chrono::steady_clock::time_point deadline) const;

private:
    std::shared_ptr<MovieCoding> m_found;
    BoundedTask m_task;
};

#endif
