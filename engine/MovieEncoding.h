#ifndef MOVIEENCODING_H
#define MOVIEENCODING_H

#include <QByteArray>
#include <QSize>
#include <QVector>

/// How a movie is written: encoders with their settings and what they need around them, as parts of
/// a launch line. Picture encoders take 4:2:0 in 8 bits, the only kind that every player can show.
struct MovieEncoding {
    QByteArray video; ///< empty when this machine has no encoder for the picture
    QByteArray sound; ///< likewise
    int divisor = 1; ///< the picture is this much smaller than the camera's, on each side

    bool isComplete() const { return !video.isEmpty() && !sound.isEmpty(); }
};

/// An encoder that comes into question.
struct Encoder {
    QByteArray description; ///< its part of a launch line
    QByteArray element; ///< that does the work
    bool isSure; ///< it works wherever it exists: no driver has a say
};

/// Best first. With a key frame each second, for seeking; none refers forward, which would delay
/// the picture.
QVector<Encoder> videoEncoders(const QSize &size, double rate);
QVector<Encoder> soundEncoders(); ///< best first

/// Bits a second for a picture of this size and rate: enough for a classroom's blackboard, and a
/// movie of ten minutes in 1280x720 stays well below 300 MB.
int movieBitRate(const QSize &size, double rate);

/// How much smaller, on each side, the pictures of a movie must be for an encoder that needs
/// @p frameTime s for one of @p size (px), so that the movie still moves. 1 for most.
int movieDivisor(double frameTime, const QSize &size);

#endif
