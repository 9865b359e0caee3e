#include "FileMove.h"

#include "OpenFolder.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char partialSuffix[] = ".part";

/** A file held open; close() tells whether the disk has taken everything. */
class OpenFile {
public:
    explicit OpenFile(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    ~OpenFile() { close(); }
    Q_DISABLE_COPY(OpenFile)

    bool isOpen() const { return m_descriptor >= 0; }
    int descriptor() const { return m_descriptor; }
    bool close()
    {
        const int descriptor = m_descriptor;
        m_descriptor = -1;
        return descriptor < 0 || ::close(descriptor) == 0 || errno == EINTR;
    }

private:
    int m_descriptor;
};

bool isThere(const OpenFolder &folder, const QByteArray &name, struct stat &status)
{
    return fstatat(folder.descriptor(), name.constData(), &status, 0) == 0;
}

// Renames within one file system and never over another file.
bool renameFile(const OpenFolder &from, const QByteArray &oldName, const OpenFolder &to,
                const QByteArray &newName)
{
    if (renameat2(from.descriptor(), oldName.constData(), to.descriptor(), newName.constData(),
                  RENAME_NOREPLACE)
        == 0)
        return true;
    // Some network file systems do not know the flag; there we have to look first.
    struct stat status = {};
    return errno == EINVAL
        && fstatat(to.descriptor(), newName.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0
        && renameat(from.descriptor(), oldName.constData(), to.descriptor(), newName.constData())
        == 0;
}

bool writeAll(int file, const char *bytes, ssize_t count)
{
    while (count > 0) {
        const ssize_t written = write(file, bytes, size_t(count));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes += written;
        count -= written;
    }
    return true;
}

bool copyContents(int from, int to)
{
    QByteArray block(1024 * 1024, Qt::Uninitialized);
    for (;;) {
        const ssize_t count = read(from, block.data(), size_t(block.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0;
        if (!writeAll(to, block.constData(), count))
            return false;
    }
}

// The mode and the time of the one file for the other, as far as its disk knows such things.
void copyRecord(int from, int to)
{
    struct stat status = {};
    if (fstat(from, &status) != 0)
        return;
    (void)fchmod(to, status.st_mode & 0777);
    const timespec times[2] = {{0, UTIME_OMIT}, status.st_mtim};
    (void)futimens(to, times);
}

// Copies to another file system, down to the disk.
bool copyFile(int source, const OpenFolder &to, const QByteArray &name)
{
    const QByteArray partial = '.' + name + partialSuffix;
    // What is left of an earlier try is not written to: it may be a link to somewhere else.
    unlinkat(to.descriptor(), partial.constData(), 0);
    OpenFile copy(openat(to.descriptor(), partial.constData(),
                         O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!copy.isOpen())
        return false;
    holdUnfinished(copy.descriptor());
    bool complete = copyContents(source, copy.descriptor());
    copyRecord(source, copy.descriptor());
    // A full network folder may tell only now, or only at the end.
    complete = complete && flushToDisk(copy.descriptor());
    complete = copy.close() && complete;
    if (!complete || !renameFile(to, partial, to, name)) {
        unlinkat(to.descriptor(), partial.constData(), 0);
        return false;
    }
    if (to.flush())
        return true;
    unlinkat(to.descriptor(), name.constData(), 0);
    return false;
}

bool isHalfCopy(const char *name)
{
    const size_t length = std::strlen(name);
    const size_t suffix = sizeof partialSuffix - 1;
    const bool isCaptured =
        std::strncmp(name, ".photo", 6) == 0 || std::strncmp(name, ".movie", 6) == 0;
    return isCaptured && length > suffix && std::strcmp(name + length - suffix, partialSuffix) == 0;
}

} // namespace

bool moveFile(const OpenFolder &from, const OpenFolder &to, const QByteArray &name)
{
    struct stat there = {};
    if (!isThere(to, name, there)) {
        const OpenFile source(
            openat(from.descriptor(), name.constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
        if (source.isOpen() && !flushToDisk(source.descriptor()))
            return false;
        if (renameFile(from, name, to, name))
            return true;
        if (!source.isOpen() || !copyFile(source.descriptor(), to, name))
            return false;
    } else if (!S_ISREG(there.st_mode)) {
        return false;
    }
    return unlinkat(from.descriptor(), name.constData(), 0) == 0;
}

void removeHalfCopies(const OpenFolder &folder)
{
    // Any time will do: a copy that is still being made is held by whoever makes it.
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    folder.removeUnfinished(isHalfCopy, now);
}
