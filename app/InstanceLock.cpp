#include "InstanceLock.h"

#include <QFile>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

InstanceLock::InstanceLock(QString path)
    : m_path(std::move(path))
{
}

InstanceLock::~InstanceLock()
{
    if (m_file >= 0) {
        close(m_file);
    }
}

bool InstanceLock::tryLock()
{
    if (m_file >= 0) {
        return true;
    }
    // Closed in child processes, or a player started from here would keep the lock alive.
    const int file = open(QFile::encodeName(m_path).constData(),
                          O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (file < 0) {
        return false;
    }
    if (flock(file, LOCK_EX | LOCK_NB) != 0) {
        close(file);
        return false;
    }
    m_file = file;
    return true;
}
