#ifndef FOOTPRINT_H
#define FOOTPRINT_H

#include <QtGlobal>

/// What a process keeps, to be compared before and after something was done many times.
struct Footprint {
    int threads = 0;
    int descriptors = 0;
    double memory = 0; ///< MB that are resident

    /// Descriptors that may be more without a leak. Version 1.4 of the media server's library opens
    /// one for each thread that first has something to say to a connection's frames: for the second
    /// one in some runs of a server, in others never. It closes them with the connection. What
    /// leaks does so each time.
    static constexpr int lateDescriptors = 1;

    /// Of this process, now.
    static Footprint now();
    /// Of another of this user's; memory is negative when it is gone.
    static Footprint of(qint64 pid);
};

#endif
