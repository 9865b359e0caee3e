#ifndef OPENING_H
#define OPENING_H

#include "LiveVideoData.h"
#include "SpareTime.h"

/// Has the engine open its camera. The engine gives up after five seconds, which a busy machine may
/// not keep to: where it was that busy, and only there, the engine is asked again.
inline bool opens(LiveVideoData &engine)
{
    static constexpr int mostTries = 6;
    for (int i = 0; i < mostTries && !engine.created; ++i) {
        const SpareTime spare;
        engine.Create();
        if (spare.isPlenty())
            break;
    }
    return engine.created;
}

#endif
