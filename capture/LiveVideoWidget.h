#ifndef LIVEVIDEOWIDGET_H
#define LIVEVIDEOWIDGET_H

#include "LiveVideoData.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>

class QFrame;
class QLabel;
class QTimer;

/**
 * The view of the camera, and the only way to it: owns the capture engine and gives it a frame to
 * show the picture in, stores photos and movies under the names of the temporary area, and tells
 * the user what the engine cannot say itself.
 *
 * States: not created until Create() has opened the camera, and again after Release(). Operations
 * that need an open camera do nothing without one, or return a null string.
 *
 * GUI thread only. All signals leave on it too, whatever thread an engine speaks on. Messages are
 * modal: the operation returns when the user has read them.
 */
class LiveVideoWidget : public QWidget {
    Q_OBJECT

public:
    explicit LiveVideoWidget(QWidget *parent = nullptr, Qt::WindowFlags f = {});
    ~LiveVideoWidget() override;

    QPaintEngine *paintEngine() const override;

    /// Begins to look for cameras and microphones, so that the first list need not wait for it all.
    static void beginDeviceList();
    /// Opening a camera is given up as soon as @p wanted says that the program is to end.
    static void setInterruption(const std::function<bool()> &wanted);
    /// What is to be done now and then while a camera or a server is waited for: no event is
    /// handled meanwhile, and @p work must not handle any.
    static void setMeanwhile(const std::function<void()> &work);

    /// Names in device order; a position in the list is what setVideoDevice() takes.
    QStringList getVideoDeviceList();
    /// Whether that list is all there is; false while a server or a driver is still thinking.
    bool isDeviceListComplete() const;
    /// Selects the camera that the next Create() opens.
    void setVideoDevice(int index);

    /// Opens the camera unless it is open already. Ask isCreate() and isVideoValid() afterwards.
    void Create();
    bool isCreate() const;
    /// px, the camera's own picture; valid after Create().
    QSize getNativeSize() const;

    void Start(); ///< shows the picture, and "LIVE" over it
    void Stop(); ///< blackens the view and ends a burst; the camera stays open
    void Reset(); ///< repaints, also after the view has moved
    /// Closes the camera; Create() opens it again.
    void Release();

    /// The open camera's sizes, as setResolution() takes them, largest first; empty without one.
    QStringList GetResoList();
    /// @p text is width, "x" and height in px, such as "640x480". Text without an "x" is ignored.
    void setResolution(const QString &text);

    /// Writes one photo into the temporary area. Its bare file name, or a null string on failure.
    QString SaveBmp();
    /// The picture of that photo, or of one that was just written, to be shown without being read
    /// again; null when there is none, or when it was taken already.
    QImage takeSavedPicture();

    /// A photo that has been taken: its bare file name, and what it shows (RGB32).
    struct Photo {
        QString name;
        QImage picture;
    };
    /// Takes one photo like SaveBmp(), but returns while its file is still being written;
    /// photoWritten() tells how that ended. Both null, and nothing is told, on failure, also while
    /// the last such photo is being written.
    Photo takePhoto();
    /// Waits for the file of takePhoto(); photoWritten() is emitted before this returns.
    void finishPhoto();

    /// Starts a movie and saves its first picture beside it. When a device is missing, says so and
    /// returns false; the engine has then been told to record all the same, as it must be before
    /// it can answer for its devices. A movie that does not begin although both devices work is
    /// refused in the words for the camera, and leaves everything as it was.
    bool Record();
    /// Completes the movie; returns at once when none is recorded.
    void RecordStop();
    /// Waits for movies whose files are still being completed; false when one is not in time.
    bool completeMovies();
    /// The screen is gone and the process about to end: completes photo and movie, silently.
    void completeUnseen();
    /// Full path of the movie that Record() began last.
    QString movieFileName() const { return m_movieFileName; }

    /// What Create(), Record() and Release() have found out so far; true until they have.
    bool isVideoValid() const { return m_videoValid; }
    bool isAudioValid() const { return m_audioValid; }
    /// The engine's own answer, now: is there a microphone to record with?
    bool isAudioDeviceValid();
    /// Neither Record() nor the engine has anything against the microphone.
    bool isAudioPresent();

Q_SIGNALS:
    void ShotMax(); ///< a burst has taken its last photo
    void disconnectDevice(); ///< the open camera is gone
    /// The file of takePhoto() is there, or there is none. Once for each photo that it gave.
    void photoWritten(bool isWritten);
    /// The movie that is being recorded cannot go on; RecordStop() completes what there is.
    void recordingEnded();

public Q_SLOTS:
    /// Takes @p max photos, one every 5 s and the first after 5 s; then ShotMax().
    void ContinuesShot(int max);

protected:
    void showEvent(QShowEvent *event) override;

private Q_SLOTS:
    void execShot();
    void slotdisconnectDevice();

private:
    void createVideoFrame();
    void createLiveLabel();
    void endBurst();
    static QString invalidVideoText();
    bool recordWithoutVideo();
    bool recordWithoutAudio();

    LiveVideoData m_engine;
    QString m_movieFileName;
    QLabel *m_liveLabel = nullptr; ///< "LIVE", over the picture
    QTimer *m_shotTimer;
    int m_maximumShots = 0; ///< wanted in the current burst
    int m_shotCount = 0; ///< taken in the current burst
    QFrame *m_videoFrame; ///< the engine shows the picture in it
    bool m_videoValid = true;
    bool m_audioValid = true;
};

#endif
