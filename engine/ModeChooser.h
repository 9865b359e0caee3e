#ifndef MODECHOOSER_H
#define MODECHOOSER_H

#include "CameraMode.h"

#include <QStringList>
#include <QVector>

/**
 * The mode a classroom wants: smooth first (at least 24 frames per second), then as large as
 * possible up to 1920x1080, then the rate nearest to 30, then raw before JPEG. Cameras often offer
 * their largest raw picture at five frames per second only; such a mode is the last resort.
 *
 * Returns the index in @p modes, -1 when there is none. With a @p wanted size only modes of exactly
 * that size count.
 */
int bestMode(const QVector<CameraMode> &modes, const QSize &wanted = {});

/// In what @p mode is better than @p other, in a few words that follow "it has": the first
/// thing that bestMode() looks at in which they differ. Empty when @p mode is not better.
QByteArray advantageOf(const CameraMode &mode, const CameraMode &other);

/// The sizes among @p modes, "1280x720", each once, largest first.
QStringList resolutionNames(const QVector<CameraMode> &modes);

#endif
