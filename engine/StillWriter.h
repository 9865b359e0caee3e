#ifndef STILLWRITER_H
#define STILLWRITER_H

#include "DiskFlush.h"

#include <chrono>

class QImage;
class QString;

/// Writes @p picture (RGB888) to @p path in the format that the path's extension names. It is
/// written under a hidden name in the same folder first and takes its own name when it is complete,
/// so that nobody lists half a picture. The hidden file is a new one, never written to through a
/// link, and locked while it is written, so that it can be told from one that a killed program
/// left. It is safe from a power cut when this returns, unless the disk takes longer than
/// @p patience over that (see DiskFlush). False, and nothing left behind, when that fails.
bool writeStill(const QImage &picture, const QString &path,
                std::chrono::milliseconds patience = DiskFlush::usualPatience);

#endif
