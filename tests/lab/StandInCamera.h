#ifndef STANDINCAMERA_H
#define STANDINCAMERA_H

#include "FramePainter.h"
#include "GstHandles.h"

#include <gst/video/video.h>

#include <QByteArray>
#include <QThread>
#include <QVector>

#include <functional>

// The lab camera's picture and its beep without a lab: a thread that hands frames and sound to
// whoever wants them, at the pace of a real camera and microphone.
//
// A tone of 100 ms begins with every marked frame.
class StandInCamera : public QThread {
    Q_OBJECT

public:
    using TakeFrame = std::function<void(GstBuffer *frame, GstClockTime captured)>;
    using TakeSound = std::function<void(const char *samples, qint64 count, GstClockTime captured)>;

    static constexpr int soundRate = 48000; // 16 bits, two channels

    StandInCamera(QSize size, int rate);

    const GstVideoInfo &format() const { return m_format; }

    // Sends so many seconds of picture and sound, then ends; wait() for it.
    void send(double seconds, TakeFrame takeFrame, TakeSound takeSound);
    // How long handing a frame over took at most (ns).
    qint64 longestCall() const { return m_longestCall; }
    // How late (s) all sound was handed over during some fifth of a second, the worst one: about 0,
    // unless the machine did not let the thread run in time.
    double soundLate() const;
    // How many seconds ago the last of what it sent had been seen and heard. Once it has ended.
    double sinceEnd() const;

protected:
    void run() override;

private:
    void sendFrame(int number, GstClockTime captured);
    void sendSound(qint64 from, qint64 count, GstClockTime captured);

    const FramePainter m_painter;
    const int m_rate;
    GstVideoInfo m_format;
    int m_frames = 0;
    TakeFrame m_takeFrame;
    TakeSound m_takeSound;
    qint64 m_longestCall = 0;
    GstClockTime m_end = 0;
    QVector<GstClockTime> m_soundDue; // when each piece had been heard
    QVector<GstClockTime> m_soundSent; // when it was handed over
};

#endif // STANDINCAMERA_H
