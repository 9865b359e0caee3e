#ifndef BALLMOVIE_H
#define BALLMOVIE_H

#include <QString>

/// Makes a movie of a ball that flies about, 320x240 px, 20 frames a second, without sound. Waits
/// until it is there; false when it cannot be made.
bool makeBallMovie(const QString &path, int frames);

#endif
