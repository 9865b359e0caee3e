#ifndef SPAREMEMORY_H
#define SPAREMEMORY_H

#include <QTimer>

/**
 * Gives back to the system what was used for a moment only. Photos, movies and the search for
 * encoders take tens of megabytes for a second, and the C library keeps what is freed in case that
 * it is wanted again: a computer of 2 GB would rather have it for the whiteboard software.
 *
 * GUI thread only. Giving back takes some milliseconds, so it waits until nothing is pressed.
 */
class SpareMemory {
public:
    SpareMemory();

    /// Something was done: a moment after the last of these calls what it left is given back, and
    /// once more when what still runs in the background has ended as well.
    void giveBackSoon();

private:
    QTimer m_soon;
    QTimer m_later;
};

#endif
