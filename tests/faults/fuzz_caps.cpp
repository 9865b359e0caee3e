#include "CapsModes.h"
#include "Fuzzed.h"
#include "GstStart.h"
#include "ModeChooser.h"

// GCC tells it by a macro, Clang, whose fuzzer this is for, by a feature.
#if defined(__SANITIZE_ADDRESS__)
#define FINDS_LEAKS
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define FINDS_LEAKS
#endif
#endif
#ifdef FINDS_LEAKS
#include <sanitizer/lsan_interface.h>
#endif

// The framework leaks what it has read of a text that turns out to be wrong.
static GstMiniHandle<GstCaps> capsFrom(const QByteArray &text)
{
#ifdef FINDS_LEAKS
    const __lsan::ScopedDisabler theFrameworks;
#endif
    return GstMiniHandle<GstCaps>(gst_caps_from_string(text.constData()));
}

// A mode that is chosen has a size that a picture can have, and a format that stands for it.
void Fuzzed::caps(const QByteArray &bytes)
{
    if (!startGstreamer())
        qFatal("the media framework does not start");
    const GstMiniHandle<GstCaps> offered = capsFrom(QByteArray(bytes));
    if (!offered)
        return;
    const QVector<CameraMode> modes = modesOf(offered.get());
    (void)resolutionNames(modes);
    const int best = bestMode(modes, {});
    if (best < 0)
        return;
    const CameraMode &mode = modes.at(best);
    if (mode.width <= 0 || mode.height <= 0)
        qFatal("a picture of %d x %d is chosen", mode.width, mode.height);
    const GstMiniHandle<GstCaps> fixed = fixedCaps(offered.get(), mode);
    if (fixed && !gst_caps_is_fixed(fixed.get()))
        qFatal("a format is not one format");
}
