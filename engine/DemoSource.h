#ifndef DEMOSOURCE_H
#define DEMOSOURCE_H

#include "GstHandles.h"

#include <QtGlobal>

/**
 * The demonstration camera's picture and its microphone as sources of pipelines. Both go by the
 * pipeline's clock and show and tick the seconds of the computer's own, so that they are in step
 * without knowing of each other.
 */
namespace DemoSource {

/// What the picture's source sends.
GstMiniHandle<GstCaps> pictureFormat();

/// A new live source of the picture. Null when the plug-in for it is missing.
GstObjectHandle<GstElement> makePicture();

/// Has @p source, an appsrc of a pipeline that goes by the system's clock, send the sound.
void feedSound(GstElement *source);

/// What the microphone hears: mono, 48000 samples a second. @p moment is when the first of @p count
/// samples is heard (µs since 1970).
void tick(qint16 *samples, int count, qint64 moment);

} // namespace DemoSource

#endif
