#ifndef PLANESCALER_H
#define PLANESCALER_H

#include "ScaleWeights.h"

/**
 * The two loops that scale a picture, each in one direction. They work on a few rows at a time, so
 * that what one leaves is still in the processor's cache when the next takes it up, and on many
 * bytes at once: across, the rows are turned on their side first.
 */
namespace PlaneScaler {

/// Rows that scaleAcross() takes at once.
constexpr int laneCount = 32;

/// Blends the rows of @p window, of which the first is at @p rows, into one. All have @p bytes
/// bytes, whatever these mean.
void blendRows(const uchar *rows, int stride, const ScaleWeights &weights,
               const ScaleWeights::Window &window, uchar *target, int bytes);

/// Room that scaleAcross() needs, in bytes, for each of its two buffers.
size_t acrossRoom(const ScaleWeights &weights);

/// Scales each of @p count rows of samples, at most laneCount. Reads and writes rows up to the next
/// multiple of 16, so both sides need room for those. @p turned and @p scaled are its buffers.
void scaleAcross(const uchar *rows, int stride, int count, const ScaleWeights &weights,
                 uchar *target, int targetStride, uchar *turned, uchar *scaled);

/// Multiplies the distance of @p count samples from 128 by @p gain, from 1 to 1.25.
void stretch(uchar *samples, int count, double gain);

} // namespace PlaneScaler

#endif
