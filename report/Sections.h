#ifndef SECTIONS_H
#define SECTIONS_H

#include "Camera.h"

#include <QVector>

#include <chrono>

class Report;

/// What a report tells, section by section. Each waits for servers and drivers until its deadline
/// at most; what was not answered by then is told as not found out.
namespace Sections {

/// The program, what it is built on, and the machine. Without GStreamer less is known of it.
void writeVersions(Report &report, bool gstreamerRuns);

/// The screens, and who decides where windows stand on them.
void writeDisplay(Report &report, std::chrono::steady_clock::time_point deadline);

/// Asks all sources of cameras. This and everything below needs GStreamer to have started.
QVector<CameraHandle> findCameras(Report &report, std::chrono::steady_clock::time_point deadline);

/// Every camera that the program lists, with its modes.
void writeCameras(Report &report, const QVector<CameraHandle> &cameras);

/// The sound server's, or the sound card when there is no server.
void writeMicrophones(Report &report, std::chrono::steady_clock::time_point deadline);

/// Those for movies of the first camera, or for the usual ones without a camera.
void writeEncoders(Report &report, const QVector<CameraHandle> &cameras,
                   std::chrono::steady_clock::time_point deadline);

} // namespace Sections

#endif
