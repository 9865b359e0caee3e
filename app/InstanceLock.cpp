#include "InstanceLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

InstanceLock::InstanceLock(const QString &path)
    : m_path(path)
{
}

InstanceLock::~InstanceLock()
{
    if (m_file >= 0)
        close(m_file);
}

// A cleaner of temporary files may take the file away between its opening and its locking: then the
// next try makes a new one.
static bool isStillThere(const QByteArray &path, int file)
{
    struct stat open = {};
    struct stat there = {};
    if (fstat(file, &open) == 0 && stat(path.constData(), &there) == 0
        && open.st_dev == there.st_dev && open.st_ino == there.st_ino)
        return true;
    errno = EWOULDBLOCK;
    return false;
}

// Below 0 with errno when there is none.
int InstanceLock::lockedFile() const
{
    const QByteArray path = QFile::encodeName(m_path);
    const int file =
        open(path.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
    if (file < 0)
        return -1;
    if (flock(file, LOCK_EX | LOCK_NB) == 0 && isStillThere(path, file))
        return file;
    const int reason = errno;
    close(file);
    errno = reason;
    return -1;
}

InstanceLock::Result InstanceLock::tryLock()
{
    if (m_file < 0)
        m_file = lockedFile();
    if (m_file >= 0)
        return Locked;
    return errno == EWOULDBLOCK ? Taken : Impossible;
}
