#include "FileMove.h"

#include "OpenFolder.h"

#include <QThreadPool>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr char partialSuffix[] = ".part";

// Files on their way together, far below the descriptors that a program may have (1024).
constexpr size_t mostOpen = 256;

// As many as the queues of usual disks hold at least.
constexpr int flushesAtATime = 16;

/** A file held open; close() tells whether the disk has taken everything. */
class OpenFile {
public:
    explicit OpenFile(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    ~OpenFile() { close(); }
    OpenFile(OpenFile &&other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    OpenFile &operator=(OpenFile &&other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;

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

using GoesOn = std::function<bool()>;

bool copyContents(int from, int to, const GoesOn &goesOn)
{
    QByteArray block(1024 * 1024, Qt::Uninitialized);
    for (;;) {
        const ssize_t count = read(from, block.data(), size_t(block.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0;
        if (!writeAll(to, block.constData(), count) || !goesOn())
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

// Copies to another file system. The disk is set to work at once, and not waited for: it writes
// while the next file is read.
bool beginCopy(const OpenFile &source, const OpenFile &copy, const GoesOn &goesOn)
{
    holdUnfinished(copy.descriptor());
    const bool isComplete = copyContents(source.descriptor(), copy.descriptor(), goesOn);
    copyRecord(source.descriptor(), copy.descriptor());
    (void)sync_file_range(copy.descriptor(), 0, 0, SYNC_FILE_RANGE_WRITE);
    return isComplete;
}

// Waits for a large file piece by piece: to a slow disk it takes longer than a disk may be silent.
bool flushInSteps(int file, const GoesOn &goesOn)
{
    constexpr off_t piece = off_t(8) << 20;
    struct stat status = {};
    const off_t size = fstat(file, &status) == 0 ? status.st_size : 0;
    for (off_t from = 0; from + piece < size && goesOn(); from += piece)
        (void)sync_file_range(file, from, piece,
                              SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE
                                  | SYNC_FILE_RANGE_WAIT_AFTER);
    const bool isOnDisk = flushToDisk(file);
    (void)goesOn();
    return isOnDisk;
}

QByteArray partialName(const QByteArray &name)
{
    return '.' + name + partialSuffix;
}

OpenFile makePartial(const OpenFolder &folder, const QByteArray &name)
{
    const QByteArray partial = partialName(name);
    // What is left of an earlier try is not written to: it may be a link to somewhere else.
    unlinkat(folder.descriptor(), partial.constData(), 0);
    return OpenFile(openat(folder.descriptor(), partial.constData(),
                           O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
}

bool isHalfCopy(const char *name)
{
    const size_t length = std::strlen(name);
    const size_t suffix = sizeof partialSuffix - 1;
    const bool isCaptured =
        std::strncmp(name, ".photo", 6) == 0 || std::strncmp(name, ".movie", 6) == 0;
    return isCaptured && length > suffix && std::strcmp(name + length - suffix, partialSuffix) == 0;
}

/**
 * Some files on their way, step by step: what has to wait for the disk waits once for all of them.
 */
class MovedFiles {
public:
    MovedFiles(const OpenFolder &from, const OpenFolder &to, const GoesOn &goesOn)
        : m_from(from)
        , m_to(to)
        , m_goesOn(goesOn)
    {
    }

    void begin(const QByteArray &name);
    /// The names of those that are still where they were.
    std::vector<QByteArray> finish();

private:
    enum State {
        Failed, ///< it is where it was
        Renamed,
        Copied, ///< under its hidden name
        There, ///< whole, under its own name, and here as well
    };
    struct File {
        QByteArray name;
        State state = Failed;
        OpenFile written = OpenFile(-1); ///< what has to be on the disk, if it could be opened
        bool isOnDisk = false;
    };

    void beginNew(File &file);
    void flushAll();
    void takeBackUnflushed(File &file);
    void nameCopy(File &file);
    void flushNames();

    const OpenFolder &m_from;
    const OpenFolder &m_to;
    const GoesOn &m_goesOn;
    std::vector<File> m_files;
};

void MovedFiles::begin(const QByteArray &name)
{
    File file;
    file.name = name;
    struct stat there = {};
    if (!m_goesOn())
        file.state = Failed;
    else if (!isThere(m_to, name, there))
        beginNew(file);
    else if (S_ISREG(there.st_mode))
        file.state = There;
    m_files.push_back(std::move(file));
}

void MovedFiles::beginNew(File &file)
{
    OpenFile source(
        openat(m_from.descriptor(), file.name.constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    if (renameFile(m_from, file.name, m_to, file.name)) {
        file.state = Renamed;
        file.written = std::move(source);
        return;
    }
    if (!source.isOpen())
        return;
    OpenFile copy = makePartial(m_to, file.name);
    if (!copy.isOpen())
        return;
    if (beginCopy(source, copy, m_goesOn)) {
        file.state = Copied;
        file.written = std::move(copy);
    } else {
        unlinkat(m_to.descriptor(), partialName(file.name).constData(), 0);
    }
}

// A disk takes about as long to make one file safe as to make all that are asked for at a time.
void MovedFiles::flushAll()
{
    QThreadPool helpers;
    helpers.setMaxThreadCount(flushesAtATime);
    for (File &file : m_files)
        if (file.written.isOpen())
            helpers.start([this, &file] {
                file.isOnDisk = flushInSteps(file.written.descriptor(), m_goesOn);
            });
        else
            file.isOnDisk = true;
    helpers.waitForDone();
    for (File &file : m_files)
        // A full network folder may tell only now.
        file.isOnDisk = file.written.close() && file.isOnDisk;
}

void MovedFiles::takeBackUnflushed(File &file)
{
    if (file.isOnDisk)
        return;
    (void)renameFile(m_to, file.name, m_from, file.name);
    file.state = Failed;
}

void MovedFiles::nameCopy(File &file)
{
    const QByteArray partial = partialName(file.name);
    if (file.isOnDisk && renameFile(m_to, partial, m_to, file.name))
        return;
    unlinkat(m_to.descriptor(), partial.constData(), 0);
    file.state = Failed;
}

// The copies are as good as the files only when the disk knows them by their names.
void MovedFiles::flushNames()
{
    const bool areNamed = m_to.flush();
    for (File &file : m_files) {
        if (file.state != Copied)
            continue;
        file.state = areNamed ? There : Failed;
        if (!areNamed)
            unlinkat(m_to.descriptor(), file.name.constData(), 0);
    }
}

std::vector<QByteArray> MovedFiles::finish()
{
    flushAll();
    bool isAnyCopied = false;
    for (File &file : m_files) {
        if (file.state == Renamed)
            takeBackUnflushed(file);
        else if (file.state == Copied)
            nameCopy(file);
        isAnyCopied = isAnyCopied || file.state == Copied;
    }
    if (isAnyCopied)
        flushNames();
    std::vector<QByteArray> left;
    for (const File &file : m_files) {
        const bool isMoved = file.state == Renamed
            || (file.state == There && m_goesOn()
                && unlinkat(m_from.descriptor(), file.name.constData(), 0) == 0);
        if (!isMoved)
            left.push_back(file.name);
    }
    return left;
}

} // namespace

std::vector<QByteArray> moveFiles(const OpenFolder &from, const OpenFolder &to,
                                  const std::vector<QByteArray> &names,
                                  const std::function<bool()> &goesOn)
{
    std::vector<QByteArray> left;
    for (size_t first = 0; first < names.size(); first += mostOpen) {
        MovedFiles files(from, to, goesOn);
        for (size_t i = first; i < std::min(first + mostOpen, names.size()); ++i)
            files.begin(names[i]);
        for (const QByteArray &name : files.finish())
            left.push_back(name);
    }
    return left;
}

void removeHalfCopies(const OpenFolder &folder)
{
    // Any time will do: a copy that is still being made is held by whoever makes it.
    timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    folder.removeUnfinished(isHalfCopy, now);
}
