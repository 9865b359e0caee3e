#ifndef DEVICESESSION_H
#define DEVICESESSION_H

#include "Session.h"

/**
 * A person at the camera program whose camera is a device of the machine: its picture is known by
 * that it moves, not by what it shows. All limits are for a slow machine.
 */
class DeviceSession : public Session {
public:
    explicit DeviceSession(const QString &executable, QSize cameraSize = QSize(640, 480));

    /// Starts the program and waits until the camera's picture moves in its window. What it says is
    /// missing at its start is confirmed: a slow machine may be too late with its answer.
    bool startMoving();
    /// Something that is not black is there, and it changes within the limit.
    bool movesAt(QRect place) const;
    bool isBlackAt(QRect place) const;

    /// From the live picture to a movie that is being recorded; what comes instead of one is
    /// confirmed, and the movie begun again.
    bool beginMovie();
    /// From there to the movie that can be played.
    bool endMovie();
    QStringList movies(); ///< with their paths

    /// "List" and "Live" again, until the picture moves, as somebody does who plugged in a camera.
    bool findCameraAgain();

    /// What the screen shows and what the program said, among the machine's results, when the
    /// current test has failed.
    void keepTraces();
};

#endif
