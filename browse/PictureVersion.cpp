#include "PictureVersion.h"

#include <QFile>
#include <QHash>

#include <ctime>
#include <sys/stat.h>

namespace {

constexpr qint64 longestTick = 20'000'000; // ns; kernels stamp files every 1 to 10 ms

qint64 nanoseconds(const timespec &time)
{
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace

PictureVersion PictureVersion::of(const QString &path)
{
    PictureVersion version;
    version.path = path;
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) == 0) {
        version.modified = nanoseconds(status.st_mtim);
        version.bytes = status.st_size;
    }
    return version;
}

bool PictureVersion::isSettled() const
{
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    return qAbs(nanoseconds(now) - modified) > longestTick;
}

bool operator==(const PictureVersion &left, const PictureVersion &right)
{
    return left.modified == right.modified && left.bytes == right.bytes && left.path == right.path;
}

uint qHash(const PictureVersion &version, uint seed)
{
    return qHash(version.path, seed) ^ qHash(version.modified, seed) ^ qHash(version.bytes, seed);
}
