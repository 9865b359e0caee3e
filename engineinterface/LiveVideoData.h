#ifndef LIVEVIDEODATA_H
#define LIVEVIDEODATA_H

#include "EngineExport.h"

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QWidget;

/**
 * The capture engine: one camera, its live picture in a widget of the caller's, stills and movies.
 *
 * Every operation is called on the GUI thread, in any state and in any order; none throws. One that
 * waits for a camera, a server or a disk shows the wait cursor after 0.25 s, keeps the windows
 * painted and handles no event meanwhile. All that one operation waits for together ends at its
 * limit, whatever the camera, the server or the disk does:
 *
 *   limit   operations
 *   ------  ----------------------------------------------------------------------------------
 *   2.8 s   every one that is not named below
 *   4.8 s   Create, SetResolution, RecordStop; Release, the engine's end and the loss of a camera
 *           while a movie is recorded
 *   10 s    CompleteMovies; the engine's end waits so long in addition
 *   30 s    SaveBitmap, finishSaving; the engine's end waits for a file of startSaving in addition
 *
 * What they do besides waiting takes a few hundredths of a second, more on a busy machine. The very
 * first call in a session may take longer while GStreamer indexes its plug-ins.
 *
 * What an operation does in which state ("-" is nothing at all):
 *
 *   operation             idle               open              showing            lost
 *   --------------------  -----------------  ----------------  -----------------  ----------------
 *   SetTarget             paints it black    paints it black   moves the picture  paints it black
 *   GetVideoDeviceList    lists              lists             lists              lists
 *   SetVideoDevice        for next Create    for next Create   for next Create    for next Create
 *   Create                -> open, or idle   -                 -                  -> open, or idle
 *   Start                 -                  -> showing        -                  -
 *   Stop                  -                  -                 -> open            -
 *   Reset                 repaints black     repaints black    repaints           repaints black
 *   Release               -                  -> idle           -> idle            -> idle
 *   SaveBitmap            false              newest frame      newest frame       false
 *   startSaving           null               newest frame      newest frame       null
 *   finishSaving          waits              waits             waits              waits
 *   Record                -                  begins a movie     begins a movie     -
 *   RecordStop            -                  ends the movie     ends the movie     -
 *   IsRecording           false              a movie began?     a movie began?     false
 *   IsValidVideoDevice    false              works?             works?             false
 *   IsValidAudioDevice    microphone?        microphone?        microphone?        microphone?
 *   GetResoList           empty              the camera's      the camera's       empty
 *   SetResolution         -                  reopens           reopens, shows on  -
 *
 * idle: no camera. open: the camera runs and the newest frame is kept, the target is black.
 * showing: the target shows the picture as well. lost: the camera went away by itself;
 * disconnectDevice() was emitted once, the target is black, `created` stays true until Release().
 *
 * A movie ends with RecordStop(), or with the camera: Release(), SetResolution(), its loss and the
 * engine's end complete it all the same. A microphone that is lost in the middle of a movie leaves
 * silence from there on. On a full disk the movie ends where the space ended, and can be played.
 *
 * The target is painted from its own paint event, by an event filter, and is never owned: it may be
 * resized, hidden, given another parent or destroyed at any time. No picture is converted while it
 * is hidden.
 *
 * Threads: frames are taken and converted on a GrabThread. All signals leave on the GUI thread:
 * what happens by itself is told from the event loop, what an operation brings about from within
 * it.
 */
class ORVANTA_ENGINE_EXPORT LiveVideoData : public QObject {
    Q_OBJECT

public:
    LiveVideoData();
    ~LiveVideoData() override; ///< closes everything still open

    /// Begins what the first GetVideoDeviceList() of the process has to wait for, and returns at
    /// once: a program that has a window to build meanwhile starts sooner. Only once the
    /// application object is there.
    static void beginList();

    /// Opening a camera is given up as soon as @p wanted, asked about five times a second, says
    /// that the program is to end. For all engines of the process; null for never, as at first.
    static void SetInterruption(const std::function<bool()> &wanted);

    /// What the caller's thread does about five times a second while an operation makes it wait; it
    /// must handle no events and call no operation. For all engines of the process; null for
    /// nothing, as at first.
    static void SetMeanwhile(const std::function<void()> &work);

    /// The widget the picture is painted into; null for none.
    void SetTarget(QWidget *target);

    /// The cameras' names; the position is the index for SetVideoDevice(). Cameras of one name are
    /// numbered. At its limit it answers with what has been found by then.
    QStringList GetVideoDeviceList();

    /// Whether the last GetVideoDeviceList() has heard from every server and driver: if not, there
    /// may be cameras and microphones that are not known yet.
    bool IsListComplete() const;

    /// Chooses a camera of the last list for the next Create(). The camera is remembered by what it
    /// is, not by its place: plugged in again it is found under any index. An index that the
    /// list does not have is no camera. Without any choice it is the first one.
    void SetVideoDevice(int index);

    /// Opens the chosen camera in its best mode and returns once its first frame has come, or at
    /// its limit. Sets all five members below. When it was the only camera at the time of its
    /// choice and is gone, the first one that is there now is opened in its place.
    void Create();

    void Start();
    void Stop();
    void Reset();
    void Release();

    /// Writes the newest frame at the camera's full size, in the format that the extension of
    /// @p path names. The file appears complete or not at all. False when there is no frame, the
    /// format is unknown or the file cannot be written, also when a slow disk reaches the limit.
    bool SaveBitmap(QString path);

    /// What SaveBitmap() or startSaving() wrote last, as it was before it was encoded, so that it
    /// can be shown without being read again. Null when that failed, or when it was taken already.
    QImage takeSavedPicture();

    /// Takes the newest frame at the camera's full size like SaveBitmap(), but returns its picture
    /// (RGB32) as soon as it can be shown, in colours that may be a few levels off: @p path is
    /// written meanwhile, whatever becomes of the camera, and bitmapSaved() tells how that ended;
    /// then takeSavedPicture() has what was written. Null, and nothing is written or told, when
    /// there is no frame or when the last such file is still being written.
    QImage startSaving(const QString &path);
    /// Waits for the file of startSaving(); bitmapSaved() is emitted before this returns. Returns
    /// at once when none is being written.
    void finishSaving();

    /// Begins a movie with sound in @p path. Leaves no file when the camera, the microphone or an
    /// encoder is missing; ask the queries below. Does nothing while a movie is recorded.
    void Record(const QString &path);

    /// Completes the movie, which can then be played at once. When encoder or disk are too slow for
    /// that, the file is completed in the background; it can be played up to its last moment
    /// meanwhile. A movie that never had a picture leaves no file.
    void RecordStop();

    /// Waits for movies that RecordStop() has left to be completed in the background; false when
    /// one is not complete at the limit.
    bool CompleteMovies();

    /// For the process whose screen is gone, right before its end: completes the photo of
    /// startSaving() and the movie, as finishSaving(), RecordStop() and CompleteMovies() do, but
    /// shows nothing, emits nothing, and asks the X server for nothing. Nor do later operations.
    void completeUnseen();

    // Right after Record() the three answers below are about that: they say whether the movie
    // began and which device it was that was missing, until the next Record(), Create() or
    // Release(), or until devices change. When both are valid and there is still no recording,
    // there is no encoder or the file cannot be made; nothing of such a movie is left.

    /// The camera is open and works.
    bool IsValidVideoDevice();
    /// A sound source that is no loudspeaker's monitor is there, and opened when last asked to. On
    /// a machine without a sound server it is the sound system's own, and must be free.
    bool IsValidAudioDevice();

    /// A movie is being recorded, also one that cannot go on until RecordStop() has completed it.
    bool IsRecording();

    /// The sizes the open camera can deliver, "1280x720", largest first.
    QStringList GetResoList();

    /// Reopens the camera in one of its sizes (px); a size it does not have changes nothing. A
    /// camera that does not come back counts as lost.
    void SetResolution(int width, int height);

    // Read by the caller, written by the engine only.
    bool created = false; ///< Create() has opened the camera; false again after Release()
    bool supported = false; ///< capture is possible on this system at all; set by Create()
    /// A camera was found that can be used; set by Create(). A camera that is busy, forbidden or
    /// silent counts as none, so that the user is told.
    bool videoPresent = false;
    int nativeWidth = 0; ///< px, the camera's own picture; valid after Create()
    int nativeHeight = 0; ///< px

Q_SIGNALS:
    void devicestop(); ///< the camera was closed, by Release() or by its loss
    void deviceerr(); ///< the camera could not be opened, or was lost
    void disconnectDevice(); ///< the open camera was lost; once per loss
    /// The file of startSaving() is complete, or cannot be written, or was not at its limit. Once
    /// for each picture that startSaving() gave, from the event loop, finishSaving() or the
    /// engine's end.
    void bitmapSaved(bool isWritten);
    /// The movie that is being recorded cannot go on: the disk is full, or its encoder failed. Once
    /// per movie; RecordStop() completes what there is.
    void recordend();

public Q_SLOTS:
    // For the engine's own connections.
    void grab(); ///< a new picture is ready: have the target repainted
    void RecordMovie(); ///< the recording is to end: its camera is lost or closed
    void device(); ///< cameras came or went, or the open one failed: see whether it is lost

private:
    class Q_DECL_HIDDEN Private;
    std::unique_ptr<Private> d;
};

#endif
