#include "FakeEngine.h"

#include "GrabThread.h"
#include "LiveVideoData.h"

#include <QFile>

#include <algorithm>

namespace {

LiveVideoData *livingEngine = nullptr; // the one that lives, null when there is none
QString unwritten; // path of startSaving() until its end is told, else empty
QImage unwrittenPicture;

void note(const QString &call)
{
    FakeEngine::script().calls.append(call);
}

QImage pictureToSave()
{
    const FakeEngine &script = FakeEngine::script();
    if (!script.picture.isNull())
        return script.picture;
    QImage plain(script.nativeSize, QImage::Format_RGB32);
    plain.fill(Qt::darkCyan);
    return plain;
}

bool write(const QImage &picture, const QString &path)
{
    const FakeEngine &script = FakeEngine::script();
    return script.saving ? script.saving(path) : picture.save(path);
}

} // namespace

FakeEngine &FakeEngine::script()
{
    static FakeEngine theScript;
    return theScript;
}

void FakeEngine::reset()
{
    script() = FakeEngine();
    unwritten.clear();
}

void FakeEngine::loseCamera()
{
    Q_ASSERT(livingEngine);
    Q_EMIT livingEngine->disconnectDevice();
}

void FakeEngine::endRecording()
{
    Q_ASSERT(livingEngine);
    Q_EMIT livingEngine->recordend();
}

bool FakeEngine::isSaving()
{
    return !unwritten.isEmpty();
}

void FakeEngine::writePhoto()
{
    Q_ASSERT(livingEngine && isSaving());
    const bool isWritten = script().fileSucceeds && write(unwrittenPicture, unwritten);
    unwritten.clear();
    Q_EMIT livingEngine->bitmapSaved(isWritten);
}

int FakeEngine::callCount(const QString &operation)
{
    const QString opening = operation + QLatin1Char('(');
    const QStringList &calls = script().calls;
    return int(std::count_if(calls.begin(), calls.end(),
                             [&](const QString &call) { return call.startsWith(opening); }));
}

class LiveVideoData::Private { };

LiveVideoData::LiveVideoData()
{
    livingEngine = this;
}

LiveVideoData::~LiveVideoData()
{
    note(QStringLiteral("~LiveVideoData()"));
    unwritten.clear();
    if (livingEngine == this)
        livingEngine = nullptr;
}

void LiveVideoData::beginList() { }

void LiveVideoData::SetInterruption(const std::function<bool()> &) { }

void LiveVideoData::SetMeanwhile(const std::function<void()> &) { }

void LiveVideoData::SetTarget(QWidget *target)
{
    note(QStringLiteral("SetTarget()"));
    FakeEngine::script().target = target;
}

QStringList LiveVideoData::GetVideoDeviceList()
{
    note(QStringLiteral("GetVideoDeviceList()"));
    FakeEngine &script = FakeEngine::script();
    if (script.hastyLists > 0)
        --script.hastyLists;
    return script.hastyLists > 0 ? script.deviceNames.mid(0, 1) : script.deviceNames;
}

bool LiveVideoData::IsListComplete() const
{
    return FakeEngine::script().hastyLists == 0;
}

void LiveVideoData::SetVideoDevice(int index)
{
    note(QStringLiteral("SetVideoDevice(%1)").arg(index));
    FakeEngine::script().videoDevice = index;
}

void LiveVideoData::Create()
{
    note(QStringLiteral("Create()"));
    const FakeEngine &script = FakeEngine::script();
    supported = script.supported;
    videoPresent = script.supported && script.videoPresent;
    created = videoPresent && script.createOpens;
    nativeWidth = created ? script.nativeSize.width() : 0;
    nativeHeight = created ? script.nativeSize.height() : 0;
}

void LiveVideoData::Start()
{
    note(QStringLiteral("Start()"));
    FakeEngine::script().started = true;
}

void LiveVideoData::Stop()
{
    note(QStringLiteral("Stop()"));
    FakeEngine::script().started = false;
}

void LiveVideoData::Reset()
{
    note(QStringLiteral("Reset()"));
}

void LiveVideoData::Release()
{
    note(QStringLiteral("Release()"));
    created = false;
    FakeEngine::script().started = false;
    FakeEngine::script().recording.clear();
}

bool LiveVideoData::SaveBitmap(QString path) // NOLINT(performance-unnecessary-value-param)
{
    note(QStringLiteral("SaveBitmap(%1)").arg(path));
    return FakeEngine::script().saveBitmapSucceeds && write(pictureToSave(), path);
}

QImage LiveVideoData::takeSavedPicture()
{
    return FakeEngine::script().savedPicture;
}

// Told from the event loop at the earliest, as the engine does.
QImage LiveVideoData::startSaving(const QString &path)
{
    note(QStringLiteral("startSaving(%1)").arg(path));
    const FakeEngine &script = FakeEngine::script();
    if (!script.saveBitmapSucceeds || FakeEngine::isSaving())
        return {};
    unwritten = path;
    unwrittenPicture = pictureToSave();
    if (!script.writesSlowly)
        QMetaObject::invokeMethod(
            this, [this] { finishSaving(); }, Qt::QueuedConnection);
    const QImage &shown = script.savedPicture.isNull() ? unwrittenPicture : script.savedPicture;
    return shown.convertToFormat(QImage::Format_RGB32);
}

void LiveVideoData::finishSaving()
{
    if (FakeEngine::isSaving())
        FakeEngine::writePhoto();
}

void LiveVideoData::Record(const QString &path)
{
    note(QStringLiteral("Record(%1)").arg(path));
    FakeEngine &script = FakeEngine::script();
    if (!script.videoDeviceValid || !script.audioDeviceValid || !script.movieBegins)
        return;
    script.recording = path;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(script.movie);
}

void LiveVideoData::RecordStop()
{
    note(QStringLiteral("RecordStop()"));
    FakeEngine &script = FakeEngine::script();
    if (!script.movieHasFrames)
        QFile::remove(script.recording);
    script.recording.clear();
}

bool LiveVideoData::CompleteMovies()
{
    note(QStringLiteral("CompleteMovies()"));
    if (FakeEngine::script().completion)
        FakeEngine::script().completion();
    return true;
}

void LiveVideoData::completeUnseen()
{
    note(QStringLiteral("completeUnseen()"));
}

bool LiveVideoData::IsValidVideoDevice()
{
    note(QStringLiteral("IsValidVideoDevice()"));
    return FakeEngine::script().videoDeviceValid;
}

bool LiveVideoData::IsValidAudioDevice()
{
    note(QStringLiteral("IsValidAudioDevice()"));
    return FakeEngine::script().audioDeviceValid;
}

bool LiveVideoData::IsRecording()
{
    note(QStringLiteral("IsRecording()"));
    return !FakeEngine::script().recording.isEmpty();
}

QStringList LiveVideoData::GetResoList()
{
    note(QStringLiteral("GetResoList()"));
    return FakeEngine::script().resolutions;
}

void LiveVideoData::SetResolution(int width, int height)
{
    note(QStringLiteral("SetResolution(%1, %2)").arg(width).arg(height));
}

void LiveVideoData::grab() { }

void LiveVideoData::RecordMovie() { }

void LiveVideoData::device() { }

class GrabThread::Private { };

GrabThread::GrabThread(QObject *parent)
    : QThread(parent)
{
}

GrabThread::~GrabThread() = default;

void GrabThread::run() { }
