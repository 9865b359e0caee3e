#ifndef LIVEVIDEODATA_H
#define LIVEVIDEODATA_H

#include "EngineExport.h"

#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>

class QWidget;

/**
 * The capture engine: one camera, its live picture in a widget of the caller's, stills and movies.
 *
 * Every operation is called on the GUI thread, in any state and in any order; none throws, none
 * blocks without a limit. The engine grabs on a thread of its own (GrabThread).
 */
class ORVANTA_ENGINE_EXPORT LiveVideoData : public QObject {
    Q_OBJECT

public:
    LiveVideoData();
    ~LiveVideoData() override;

    void SetTarget(QWidget *target);
    QStringList GetVideoDeviceList();
    void SetVideoDevice(int index);
    void Create();
    void Start();
    void Stop();
    void Reset();
    void Release();
    bool SaveBitmap(QString path);
    void Record(const QString &path);
    void RecordStop();
    bool IsValidVideoDevice();
    bool IsValidAudioDevice();
    QStringList GetResoList();
    void SetResolution(int width, int height);

    // Read by the caller, written by the engine only.
    bool created = false; ///< Create() has opened the camera; false again after Release()
    bool supported = false; ///< capture is possible on this system at all; set by Create()
    bool videoPresent = false; ///< a camera was found; set by Create()
    int nativeWidth = 0; ///< px, the camera's own picture; valid after Create()
    int nativeHeight = 0; ///< px

Q_SIGNALS:
    void devicestop();
    void deviceerr();
    void disconnectDevice();

public Q_SLOTS:
    void grab();
    void RecordMovie();
    void device();

private:
    class Private;
    std::unique_ptr<Private> d;
};

#endif
