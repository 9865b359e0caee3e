#ifndef GRABTHREAD_H
#define GRABTHREAD_H

#include "EngineExport.h"

#include <QImage>
#include <QThread>

#include <memory>
#include <opencv2/core/mat.hpp>

/**
 * The engine's worker: takes frames from the camera, keeps the newest one and converts it for the
 * screen. The program never builds, starts or connects to one.
 */
class ORVANTA_ENGINE_EXPORT GrabThread : public QThread {
    Q_OBJECT

public:
    explicit GrabThread(QObject *parent = nullptr);
    ~GrabThread() override;

Q_SIGNALS:
    void deviceerr();
    void grabtrue();

protected:
    void run() override;

private:
    class Private;
    std::unique_ptr<Private> d;
    cv::Mat m_lastFrame; ///< the last grabbed frame
    QImage m_picture; ///< its picture as the target shows it; released before the frame
};

#endif
