#ifndef MONKEYWORLD_H
#define MONKEYWORLD_H

#include "MonkeyEvents.h"

#include <QString>

/// What is around the window and changes under it: cables, the disk, the encoder.
class MonkeyWorld {
public:
    /// False when the event is none of this.
    static bool change(const MonkeyEvent &event);
    /// Everything is there and works, as it is when nobody meddles.
    static void mend();
    /// Every photo that the engine is asked for can be written.
    static bool writes();

    /// While true, little is free on any file system. This program's own statvfs() says so.
    static bool isDiskFull;
};

#endif
