#ifndef OPENING_H
#define OPENING_H

#include "LiveVideoData.h"
#include "SpareTime.h"

/// Has the engine do what it gives up after some seconds, which a busy machine may not keep to:
/// where it was that busy, and only there, the engine is asked again.
template <typename Attempt> bool doesPatiently(const Attempt &attempt)
{
    static constexpr int mostTries = 6;
    for (int i = 0; i < mostTries; ++i) {
        const SpareTime spare;
        if (attempt())
            return true;
        if (spare.isPlenty())
            break;
    }
    return false;
}

/// Has the engine open its camera.
inline bool opens(LiveVideoData &engine)
{
    return engine.created || doesPatiently([&engine] {
               engine.Create();
               return engine.created;
           });
}

/// Has the engine begin a movie.
inline bool records(LiveVideoData &engine, const QString &path)
{
    return doesPatiently([&engine, &path] {
        engine.Record(path);
        return engine.IsRecording();
    });
}

#endif
