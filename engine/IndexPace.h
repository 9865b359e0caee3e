#ifndef INDEXPACE_H
#define INDEXPACE_H

#include "GstHandles.h"

/**
 * How often a movie's index is brought up to date. Each time the disk is waited for twice, so that
 * a power cut finds an index that is whole; a disk that is slow at that would do nothing else, and
 * fall behind the picture by ever more. There, the index is brought up to date more rarely.
 */
namespace IndexPace {

constexpr GstClockTime usualPeriod = GST_SECOND / 2; ///< of film; what a crash costs at most
constexpr GstClockTime longestPeriod = 15 * GST_SECOND;

/// How much film there is to be between two updates when the disk was waited for that long (ns)
/// the last two times.
GstClockTime periodFor(GstClockTime last, GstClockTime before);

/// Measures the disk of @p file, the sink of a movie's pipeline, and paces its @p muxer, for as
/// long as they live.
void keep(GstElement *muxer, GstElement *file);

} // namespace IndexPace

#endif
