#include "FakeDisk.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <mutex>
#include <unistd.h>

FakeDisk::Hook FakeDisk::onFlush;
FakeDisk::Hook FakeDisk::onClose;

namespace {

QByteArray pathOf(int descriptor)
{
    char link[32];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    char path[PATH_MAX];
    const ssize_t length = readlink(link, path, sizeof path);
    return length < 0 ? QByteArray() : QByteArray(path, int(length));
}

int errorOf(const FakeDisk::Hook &hook, int descriptor)
{
    static std::recursive_mutex oneAtATime; // hooks use the disk themselves
    const std::lock_guard<std::recursive_mutex> lock(oneAtATime);
    return hook ? hook(pathOf(descriptor)) : 0;
}

} // namespace

extern "C" {

int __real_fsync(int descriptor);
int __real_close(int descriptor);

int __wrap_fsync(int descriptor)
{
    const int error = errorOf(FakeDisk::onFlush, descriptor);
    if (error == 0)
        return __real_fsync(descriptor);
    errno = error;
    return -1;
}

int __wrap_close(int descriptor)
{
    const int error = errorOf(FakeDisk::onClose, descriptor);
    const int result = __real_close(descriptor);
    if (error == 0)
        return result;
    errno = error;
    return -1;
}

} // extern "C"
