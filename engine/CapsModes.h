#ifndef CAPSMODES_H
#define CAPSMODES_H

#include "CameraMode.h"
#include "GstHandles.h"

#include <QVector>

/// The modes that @p caps allow and that can be shown: raw pictures in ordinary memory and JPEG,
/// interlaced ones too if both fields come in one frame.
/// Ranges become the usual sizes and 30 frames per second where these lie inside. A few virtual
/// cameras offer sizes without end, and die when asked for one.
QVector<CameraMode> modesOf(const GstCaps *caps);

/// The one fixed format within @p offered that @p mode stands for; null when there is none. Of
/// several, one whose frames are not interlaced.
GstMiniHandle<GstCaps> fixedCaps(GstCaps *offered, const CameraMode &mode);

#endif
