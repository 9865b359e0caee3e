// The two ways out of the temporary area: saved into the day's folder, or deleted.

#include "WebcamUtil.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLoggingCategory>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

Q_LOGGING_CATEGORY(logStore, "orvanta.store", QtWarningMsg)

namespace {

class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY(WaitCursor)
};

/** Renames within one file system and never over another file. */
bool renameFile(const QString &from, const QString &to)
{
    const QByteArray oldName = QFile::encodeName(from);
    const QByteArray newName = QFile::encodeName(to);
    if (renameat2(AT_FDCWD, oldName.constData(), AT_FDCWD, newName.constData(), RENAME_NOREPLACE)
        == 0)
        return true;
    // Some network file systems do not know the flag; there we have to look first.
    return errno == EINVAL && !QFileInfo::exists(to)
        && std::rename(oldName.constData(), newName.constData()) == 0;
}

/** Copies what is in the one open file to the other, down to the disk. */
bool copyContents(QFile &from, QFile &to)
{
    QByteArray block(1024 * 1024, Qt::Uninitialized);
    qint64 count = 0;
    while ((count = from.read(block.data(), block.size())) > 0)
        if (to.write(block.constData(), count) != count)
            return false;
    // The original is about to be deleted, and a full network folder may tell only now.
    return count == 0 && fsync(to.handle()) == 0;
}

/**
 * Copies to another file system. The copy grows under a hidden name and gets its own name only when
 * it is complete, so that no later save takes half a movie for one that was saved before.
 */
bool copyFile(const QString &from, const QString &to)
{
    QFile source(from);
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    const QFileInfo destination(to);
    const QString partial = destination.path() + QStringLiteral("/.") + destination.fileName()
        + QStringLiteral(".part");
    QFile copy(partial);
    if (!copy.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        return false;

    bool complete = copyContents(source, copy);
    if (complete) {
        copy.setPermissions(source.permissions());
        copy.setFileTime(source.fileTime(QFileDevice::FileModificationTime),
                         QFileDevice::FileModificationTime);
    }
    copy.close();
    complete = complete && renameFile(partial, to);
    if (!complete)
        QFile::remove(partial);
    return complete;
}

/** Moves one captured file; one that is already at the destination is only removed here. */
bool moveFile(const QString &from, const QString &to)
{
    if (!QFileInfo(to).isFile()) {
        if (renameFile(from, to))
            return true;
        if (!copyFile(from, to))
            return false;
    }
    return QFile::remove(from);
}

} // namespace

bool WebcamUtil::saveData(const QString &target, const QDateTime &moment)
{
    const QString area = getTemporaryPath();
    const QString folder = CreateSavePath(target, moment);
    if (folder.isEmpty()) {
        qCWarning(logStore) << "cannot make the day's folder below" << target;
        return false;
    }
    const QStringList names =
        listTemporaryArea({QStringLiteral("photo*"), QStringLiteral("movie*")});
    if (names.isEmpty())
        return false;

    const WaitCursor waitCursor;
    for (const QString &name : names) {
        if (!isCaptured(name))
            continue;
        // Without a temporary area the list is that of a foreign folder, but the joined path is
        // not: nothing there is touched.
        if (!moveFile(area + QLatin1Char('/') + name, folder + QLatin1Char('/') + name)) {
            qCWarning(logStore) << "cannot save" << name << "to" << folder;
            return false;
        }
    }
    return true;
}

void WebcamUtil::deleteData()
{
    const QString area = getTemporaryPath();
    for (const QString &name : listTemporaryArea())
        if (isCaptured(name))
            QFile::remove(area + QLatin1Char('/') + name);
}

void WebcamUtil::deletetmpfile(const QString &path)
{
    QFile::remove(path);
}
