#include "PrivateFolder.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isFit(const QByteArray &path)
{
    struct stat entry = {};
    return lstat(path.constData(), &entry) == 0 && S_ISDIR(entry.st_mode)
        && entry.st_uid == geteuid() && (entry.st_mode & 07777) == 0700;
}

} // namespace

QString PrivateFolder::find(const QString &runtimeDir, const QString &tempDir)
{
    if (isFit(QFile::encodeName(runtimeDir)))
        return runtimeDir;
    const QString own = tempDir + "/orvanta-" + QString::number(geteuid());
    const QByteArray path = QFile::encodeName(own);
    // It may be there from an earlier run; what counts is what is there now.
    (void)mkdir(path.constData(), 0700);
    return isFit(path) ? own : QString();
}
