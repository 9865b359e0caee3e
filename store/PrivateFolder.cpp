#include "PrivateFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t closedMode = 0700;
constexpr mode_t modeBits = 07777;
constexpr mode_t othersBits = 077;

bool isOwnFolder(const struct stat &entry)
{
    return S_ISDIR(entry.st_mode) && entry.st_uid == geteuid();
}

bool closeToOthers(int folder)
{
    struct stat entry = {};
    if (fstat(folder, &entry) != 0 || !isOwnFolder(entry))
        return false;
    if ((entry.st_mode & modeBits) == closedMode)
        return true;
    // Some disks take a mode and do not keep it: what counts is what is there afterwards.
    return fchmod(folder, closedMode) == 0 && fstat(folder, &entry) == 0
        && (entry.st_mode & othersBits) == 0;
}

} // namespace

QString PrivateFolder::temporaryFolder()
{
    const QString existing = QDir::tempPath();
    return existing.isEmpty() ? QDir(QFile::decodeName(qgetenv("TMPDIR"))).absolutePath()
                              : existing;
}

QString PrivateFolder::ensure(const QString &path)
{
    const QString absolute = QDir(path).absolutePath();
    const QByteArray encoded = QFile::encodeName(absolute);
    QDir().mkpath(QFileInfo(absolute).path());
    // It may be there from an earlier run; what counts is what is there now.
    (void)mkdir(encoded.constData(), closedMode);
    // Opened once, so that the folder that is looked at is the one that is closed.
    const int folder = open(encoded.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (folder < 0)
        return QString();
    const bool isClosed = closeToOthers(folder);
    close(folder);
    return isClosed ? absolute : QString();
}

bool PrivateFolder::isOwn(const QString &path)
{
    struct stat entry = {};
    return lstat(QFile::encodeName(path).constData(), &entry) == 0 && isOwnFolder(entry);
}
