#include "MonkeyWorld.h"

#include "FakeEngine.h"

#include <QImage>

#include <dlfcn.h>
#include <sys/statvfs.h>

bool MonkeyWorld::isDiskFull = false;

// In the place of the C library's, for the program under test and all that it uses.
extern "C" int statvfs(const char *path, struct statvfs *about) noexcept
{
    using Ask = int (*)(const char *, struct statvfs *);
    static const auto ask = reinterpret_cast<Ask>(dlsym(RTLD_NEXT, "statvfs"));
    const int status = ask(path, about);
    about->f_bavail = MonkeyWorld::isDiskFull ? 0 : (1ULL << 40) / about->f_frsize;
    return status;
}

bool MonkeyWorld::change(const MonkeyEvent &event)
{
    FakeEngine &script = FakeEngine::script();
    switch (event.kind) {
    case MonkeyEvent::CameraPulled:
        script.videoPresent = false;
        script.videoDeviceValid = false;
        // What is still being recorded ends there, in the engine too.
        if (script.started)
            FakeEngine::loseCamera();
        return true;
    case MonkeyEvent::CameraBack:
        script.videoPresent = true;
        script.videoDeviceValid = true;
        return true;
    case MonkeyEvent::MicrophonePulled:
    case MonkeyEvent::MicrophoneBack:
        script.audioDeviceValid = event.kind == MonkeyEvent::MicrophoneBack;
        return true;
    case MonkeyEvent::DiskFull:
    case MonkeyEvent::DiskFree:
        isDiskFull = event.kind == MonkeyEvent::DiskFull;
        return true;
    case MonkeyEvent::WritingFails:
        (event.first % 2 == 0 ? script.saveBitmapSucceeds : script.fileSucceeds) = false;
        return true;
    case MonkeyEvent::WritingSucceeds:
        script.saveBitmapSucceeds = script.fileSucceeds = true;
        script.writesSlowly = false;
        return true;
    case MonkeyEvent::WritingSlow:
        script.writesSlowly = true;
        return true;
    case MonkeyEvent::Written:
        if (FakeEngine::isSaving())
            FakeEngine::writePhoto();
        return true;
    case MonkeyEvent::EncoderBreaks:
        if (!script.recording.isEmpty())
            FakeEngine::endRecording();
        return true;
    case MonkeyEvent::Touched:
        script.deviceNames =
            event.first % 2 == 0 ? QStringList{"One", "Other"} : QStringList{"One"};
        return true;
    default:
        return false;
    }
}

void MonkeyWorld::mend()
{
    isDiskFull = false;
    const QImage picture = FakeEngine::script().picture;
    FakeEngine::script() = FakeEngine();
    FakeEngine::script().picture = picture;
}

bool MonkeyWorld::writes()
{
    return FakeEngine::script().saveBitmapSucceeds && FakeEngine::script().fileSucceeds;
}
