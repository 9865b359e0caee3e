#ifndef RECEIVER_H
#define RECEIVER_H

#include <QImage>
#include <QString>
#include <QVector>

#include <gst/gst.h>

/// A plain receiver of one camera of the lab, and of its microphone if @p beside says so: without
/// the engine, whose tests believe what the lab shows and plays.
class Receiver {
public:
    explicit Receiver(const QString &camera, const QString &decoding = "video/x-raw",
                      const QString &beside = QString());
    ~Receiver();
    Receiver(const Receiver &) = delete;
    Receiver &operator=(const Receiver &) = delete;

    /// The next frame, or a null picture when none comes in time.
    QImage next(int milliseconds = 2000);
    /// When the last frame was taken, in seconds of the pipeline.
    double lastTime() const { return m_lastTime; }
    /// Listens to the next piece of sound and appends where a tone begins in it; false when no
    /// sound comes.
    bool nextToneBegin(bool *silent, QVector<double> *begins);
    /// The numbers of the next frames.
    QVector<int> counters(int frames);

private:
    GstElement *m_pipeline;
    GstElement *m_sink;
    GstElement *m_sound; ///< null without a microphone
    double m_lastTime = 0;
};

#endif
