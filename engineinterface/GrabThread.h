#ifndef GRABTHREAD_H
#define GRABTHREAD_H

#include "EngineExport.h"

#include <QImage>
#include <QSize>
#include <QThread>

#include <memory>
#include <opencv2/core/mat.hpp>

class CameraFrame;
class CameraPipeline;

/**
 * The engine's worker: opens one camera, takes its frames until it is told to stop or the camera
 * is lost, keeps the newest frame and tells when another is there for the screen. The program never
 * builds, starts or connects to one.
 *
 * A thread serves one opening of one camera: capture() once, then retire(). Opening and closing a
 * camera can block inside a driver or a media server, so both happen here and nothing waits for
 * them without a limit.
 *
 * Threads: the public operations are called on the GUI thread, run() is the worker; both signals
 * leave from the worker. A signal only says "look again": it may arrive after retire().
 */
class ORVANTA_ENGINE_EXPORT GrabThread : public QThread {
    Q_OBJECT

public:
    explicit GrabThread(QObject *parent = nullptr);
    ~GrabThread() override;

    /// Takes the camera over and starts to open it.
    void capture(std::unique_ptr<CameraPipeline> camera);

    /// True as soon as the first frame is there, or the first after a rest; false when the camera
    /// failed, or @p limit ms passed without one.
    bool waitForFrame(int limit);

    /// True once the camera failed by itself: an error, the end of its stream, or silence.
    bool hasFailed() const;

    /// Whether somebody sees the picture: grabtrue() comes only then.
    void setSeen(bool seen);

    /// Whether nobody needs a frame for now: those that come are dropped before they cost anything.
    /// The newest frame stays what it was until the first after the rest.
    void setResting(bool resting);

    /// Fills @p picture, of RGB32 or ARGB32_Premultiplied, with the newest frame, opaque and scaled
    /// without regard to its aspect, and lets the next grabtrue() come. False, with the picture as
    /// it was, without a frame.
    bool paintInto(QImage *picture);

    /// The same in a picture of @p size; a null image without a frame.
    QImage takePicture(const QSize &size);

    /// The newest full-size frame, null before the first and after the camera is gone. The frame
    /// stays readable for as long as the caller holds it, also when the camera vanishes.
    std::shared_ptr<const CameraFrame> newestFrame() const;

    /// Ends and deletes @p thread. Waits a moment for it; one that hangs in a driver is left to
    /// end and delete itself. Null is fine.
    static void retire(GrabThread *thread);

Q_SIGNALS:
    /// The camera failed; comes once and not when the thread was told to stop.
    void deviceerr();
    /// A new frame is there to be painted; not repeated until it was.
    void grabtrue();

protected:
    void run() override;

private:
    void grabUntilEnd();
    bool beginRest();
    bool rest();
    void keepFrame(const std::shared_ptr<CameraFrame> &frame);
    void announceFrame();
    std::shared_ptr<const CameraFrame> takeFrame();
    void forgetFrames();

    class Q_DECL_HIDDEN Private;
    std::unique_ptr<Private> d; ///< first, so that it goes last: it keeps m_lastFrame's pixels
    cv::Mat m_lastFrame; ///< view of the last grabbed frame, no copy; guarded by d->mutex
    QImage m_picture; ///< what takePicture() gave last, for its memory; GUI thread only
};

#endif
