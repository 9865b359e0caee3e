#ifndef SPAREMEMORY_H
#define SPAREMEMORY_H

#include <QTimer>

#include <chrono>

/**
 * Gives back to the system what was used for a moment only. Photos, movies and the search for
 * encoders take tens of megabytes for a second, and the C library keeps what is freed in case that
 * it is wanted again: a computer of 2 GB would rather have it for the whiteboard software.
 *
 * GUI thread only. Giving back takes some milliseconds, so it waits until nothing is pressed.
 */
class SpareMemory {
public:
    /// @p pace is how often it is given back in a long rest. The encoders have been tried after
    /// 20 s at the latest.
    explicit SpareMemory(std::chrono::milliseconds pace = std::chrono::seconds(20));

    /// Something was done: a moment after the last of these calls what it left is given back. Then
    /// again and again: what runs in the background ends late, and frames of the live picture lie
    /// now here, now there in what is free, until all of it is taken again.
    void giveBackSoon();

private:
    QTimer m_soon;
    QTimer m_againAndAgain;
};

#endif
