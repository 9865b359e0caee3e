#include "DiskFlush.h"

#include "BoundedTask.h"
#include "EngineLog.h"
#include "MovieCompletion.h"

#include <QFile>
#include <QFileInfo>

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

using std::chrono::steady_clock;

// A disk that has no such thing has taken what it was given.
static bool takeAndClose(int descriptor)
{
    const bool taken =
        fsync(descriptor) == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
    if (!taken)
        qCWarning(engineLog) << "the disk refuses what was captured:" << qt_error_string(errno);
    close(descriptor);
    return taken;
}

// The descriptor is closed at the end.
static bool flush(int descriptor, steady_clock::time_point deadline)
{
    const auto taken = std::make_shared<std::atomic<bool>>(true);
    const BoundedTask<void> flushing([descriptor, taken] { *taken = takeAndClose(descriptor); });
    if (flushing.waitUntil(deadline))
        return *taken;
    MovieCompletion::goesOnWith(flushing);
    return true;
}

static int openFor(const QString &path, int flags)
{
    return open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | flags);
}

bool DiskFlush::flushFile(int descriptor, steady_clock::time_point deadline)
{
    const int own = fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    return own >= 0 && flush(own, deadline);
}

bool DiskFlush::flushName(const QString &path, steady_clock::time_point deadline)
{
    const int folder = openFor(QFileInfo(path).path(), O_DIRECTORY);
    return folder >= 0 && flush(folder, deadline);
}

void DiskFlush::flushClosed(const QString &path, steady_clock::time_point deadline)
{
    const int file = openFor(path, O_NOFOLLOW);
    if (file >= 0)
        flush(file, deadline);
    flushName(path, deadline);
}
