#ifndef FAKEENGINE_H
#define FAKEENGINE_H

#include <QByteArray>
#include <QImage>
#include <QPointer>
#include <QSize>
#include <QStringList>
#include <QWidget>

#include <functional>

/**
 * The script of the engine that stands in for the real one: what its operations shall find and
 * answer, and what was asked of it.
 *
 * There is one script for the whole test program; whichever LiveVideoData is alive plays it. Call
 * reset() before each test. As it comes, it is one working camera with a microphone.
 */
struct FakeEngine {
    static FakeEngine &script();
    /// Sets every knob to its first value and forgets all calls; an engine that lives stays open.
    static void reset();
    /// Emits disconnectDevice() on the calling thread. The engine does so on the GUI thread only,
    /// from its event loop; called on another it shows what does not rely on that.
    static void loseCamera();
    /// Emits recordend(), as the engine does on the GUI thread when the disk fills during a
    /// recording.
    static void endRecording();
    /// startSaving()'s file is being written.
    static bool isSaving();
    /// What was begun with writesSlowly is done: writes the file and emits bitmapSaved().
    static void writePhoto();
    /// How often an operation was called, whatever its arguments: callCount("SaveBitmap").
    static int callCount(const QString &operation);

    // What the engine finds.
    QStringList deviceNames = {QStringLiteral("Fake Camera")};
    /// Up to and without which list only the first camera has been heard of; 0 for none.
    int hastyLists = 0;
    bool supported = true; ///< capture is possible at all
    bool videoPresent = true;
    bool createOpens = true; ///< Create() opens the camera, when it is supported and present
    QSize nativeSize = {1280, 720}; ///< px
    QStringList resolutions = {QStringLiteral("640x480"), QStringLiteral("1280x720")};

    // What the engine answers.
    bool videoDeviceValid = true;
    bool audioDeviceValid = true;
    bool movieHasFrames = true; ///< when false, RecordStop() leaves no file
    bool movieBegins = true; ///< when false, Record() does nothing although both devices are valid
    bool saveBitmapSucceeds = true; ///< when false, nothing is written
    QImage picture; ///< what SaveBitmap() writes; null: a plain picture of nativeSize
    /// Does SaveBitmap()'s work in its place; null for writing the picture.
    std::function<bool(const QString &path)> saving;
    QImage savedPicture; ///< what takeSavedPicture() gives; startSaving() too, if not null
    bool fileSucceeds = true; ///< when false, what startSaving() has given is not written
    /// When true, nothing is written before writePhoto() or finishSaving().
    bool writesSlowly = false;
    QByteArray movie = QByteArrayLiteral("a movie"); ///< what a movie holds after Record()

    /// What CompleteMovies() does, while the caller waits; null for nothing.
    std::function<void()> completion;

    // What was asked of it.
    QStringList calls; ///< in order, with arguments, as in "SetResolution(640, 480)"
    QPointer<QWidget> target; ///< what SetTarget() was given
    int videoDevice = -1; ///< what SetVideoDevice() was given last
    bool started = false; ///< between Start() and Stop() or Release()
    QString recording; ///< path between Record() and RecordStop() or Release(), else empty
};

#endif
