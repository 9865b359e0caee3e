#ifndef FOOTPRINT_H
#define FOOTPRINT_H

/// What a process keeps, to be compared before and after something was done many times.
struct Footprint {
    int threads = 0;
    int descriptors = 0;
    double memory = 0; ///< MB that are resident

    /// Of this process, now.
    static Footprint now();
};

#endif
