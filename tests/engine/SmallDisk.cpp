#include "SmallDisk.h"

#include <QDir>
#include <QFile>

#include <sys/statvfs.h>
#include <unistd.h>

static bool isAdministrator()
{
    return geteuid() == 0;
}

SmallDisk::SmallDisk(const QString &path, int kilobytes)
    : m_path(path)
{
    if (!QDir().mkpath(path))
        return;
    QStringList command{"--mount", "--propagation", "private"};
    if (!isAdministrator())
        command += QStringList{"--user", "--map-root-user"};
    command +=
        QStringList{"sh", "-c", "mount -t tmpfs -o size=$2k none \"$1\" && echo ready && exec cat",
                    "sh", path, QString::number(kilobytes)};
    m_keeper.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_keeper.start("unshare", command);
    m_isThere = m_keeper.waitForReadyRead(10000) && m_keeper.readAll().startsWith("ready");
}

SmallDisk::~SmallDisk()
{
    m_keeper.closeWriteChannel();
    m_keeper.waitForFinished();
}

QStringList SmallDisk::entrance() const
{
    // Its root too: in a root that is not the machine's own another one would be found in there.
    QStringList command{"nsenter", "--target", QString::number(m_keeper.processId()), "--mount",
                        "--root"};
    if (!isAdministrator())
        command += QStringList{"--user", "--preserve-credentials"};
    return command;
}

QString SmallDisk::seenFromOutside() const
{
    return QStringLiteral("/proc/%1/root%2").arg(m_keeper.processId()).arg(m_path);
}

qint64 SmallDisk::bytesAvailable() const
{
    struct statvfs disk = {};
    if (statvfs(QFile::encodeName(seenFromOutside()).constData(), &disk) != 0)
        return -1;
    return qint64(disk.f_bavail) * qint64(disk.f_frsize);
}
