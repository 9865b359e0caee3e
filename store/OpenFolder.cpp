#include "OpenFolder.h"

#include <QFile>

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

namespace {

struct CloseFolder {
    void operator()(DIR *folder) const { closedir(folder); }
};

bool isEarlier(const timespec &left, const timespec &right)
{
    return std::tie(left.tv_sec, left.tv_nsec) < std::tie(right.tv_sec, right.tv_nsec);
}

} // namespace

OpenFolder::OpenFolder(const QString &path)
    : m_descriptor(open(path.isEmpty() ? "." : QFile::encodeName(path).constData(),
                        O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
}

OpenFolder::~OpenFolder()
{
    if (isOpen())
        close(m_descriptor);
}

QString OpenFolder::shortPath() const
{
    return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor);
}

std::vector<FolderFile> OpenFolder::files(const std::function<bool(const char *)> &isWanted) const
{
    std::vector<FolderFile> found;
    // Opened anew, because reading moves on the place that a descriptor and its copies share.
    const int reading = openat(m_descriptor, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const std::unique_ptr<DIR, CloseFolder> folder(reading < 0 ? nullptr : fdopendir(reading));
    if (!folder)
        return found;
    while (const dirent *item = readdir(folder.get())) {
        struct stat status = {};
        if (isWanted(item->d_name)
            && fstatat(reading, item->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0
            && S_ISREG(status.st_mode))
            found.push_back({item->d_name, status.st_mtim, status.st_uid});
    }
    return found;
}

bool OpenFolder::flush() const
{
    return flushToDisk(m_descriptor);
}

void OpenFolder::removeUnfinished(const std::function<bool(const char *)> &isWanted,
                                  const timespec &before) const
{
    for (const FolderFile &file : files(isWanted)) {
        if (file.owner != geteuid() || !isEarlier(file.modified, before))
            continue;
        // For writing, since network folders lock no file that is open for reading only.
        const int left = openat(m_descriptor, file.name.constData(),
                                O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (left < 0)
            continue;
        if (flock(left, LOCK_EX | LOCK_NB) == 0)
            unlinkat(m_descriptor, file.name.constData(), 0);
        close(left);
    }
}

void holdUnfinished(int descriptor)
{
    // Where nothing can be locked nothing is ever taken for left behind.
    (void)flock(descriptor, LOCK_EX | LOCK_NB);
}

bool flushToDisk(int descriptor)
{
    return fsync(descriptor) == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
}
