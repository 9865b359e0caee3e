#include "OwnDisks.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

static constexpr int limit = 20000; // ms that the process behind a disk may take

static bool writeOnce(const char *path, const QByteArray &text)
{
    QFile file(QString::fromLatin1(path));
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        && file.write(text) == text.size();
}

// Every user remains who he is: servers ask who their client is.
static bool keepOwnNames(uid_t user, gid_t group)
{
    const auto map = [](qint64 id) {
        return QByteArray::number(id) + ' ' + QByteArray::number(id) + " 1";
    };
    return writeOnce("/proc/self/setgroups", "deny") && writeOnce("/proc/self/uid_map", map(user))
        && writeOnce("/proc/self/gid_map", map(group));
}

bool enterOwnMounts()
{
    const uid_t user = geteuid();
    const gid_t group = getegid();
    const bool isApart = user == 0
        ? unshare(CLONE_NEWNS) == 0
        : unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 && keepOwnNames(user, group);
    return isApart && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

ShrinkingDisk::ShrinkingDisk(const QString &folder)
    : m_folder(QFile::encodeName(folder))
{
    m_isThere = mount("none", m_folder.constData(), "tmpfs", 0, "size=2g,mode=0700") == 0;
}

ShrinkingDisk::~ShrinkingDisk()
{
    if (m_isThere)
        umount2(m_folder.constData(), MNT_DETACH);
}

bool ShrinkingDisk::mountAgain(unsigned long flags, qint64 bytes) const
{
    const QByteArray size = "size=" + QByteArray::number(bytes);
    return mount("none", m_folder.constData(), "tmpfs", MS_REMOUNT | flags, size.constData()) == 0;
}

// The disk may grow between the look at it and its end.
bool ShrinkingDisk::leave(qint64 bytes)
{
    for (int i = 0; i < 100; ++i) {
        struct statvfs disk = {};
        if (statvfs(m_folder.constData(), &disk) != 0)
            return false;
        const qint64 used = qint64(disk.f_blocks - disk.f_bfree) * qint64(disk.f_frsize);
        if (mountAgain(0, qMax(used + bytes, qint64(disk.f_frsize)))) // 0 would be no limit
            return true;
    }
    return false;
}

bool ShrinkingDisk::forbidWriting()
{
    return mountAgain(MS_RDONLY, plenty);
}

// The kernel's side is opened and mounted here, which needs the rights of this name space; the
// process that answers has it from this one.
TroubledDisk::TroubledDisk(const QString &folder)
    : m_folder(QFile::encodeName(folder))
{
    const int kernel = open("/dev/fuse", O_RDWR);
    const QByteArray number = QByteArray::number(kernel);
    const QByteArray options = "fd=" + number
        + ",rootmode=40700,allow_other,user_id=" + QByteArray::number(qint64(geteuid()))
        + ",group_id=" + QByteArray::number(qint64(getegid()));
    if (kernel < 0
        || mount("troubled", m_folder.constData(), "fuse.troubled", MS_NODEV | MS_NOSUID,
                 options.constData())
            != 0) {
        qWarning("no disk of our own can be mounted: %s", qPrintable(qt_error_string(errno)));
        if (kernel >= 0)
            close(kernel);
        return;
    }
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(TROUBLEDDISK, {m_behind.path(), QString::fromLatin1("/dev/fd/" + number)});
    m_process.waitForStarted(limit);
    close(kernel);
    // Until it is looked at once, its folder is owned by a user who is not known in here.
    struct stat entry = {};
    m_isThere = tell("hang 0") && stat(m_folder.constData(), &entry) == 0;
}

TroubledDisk::~TroubledDisk()
{
    vanish();
    umount2(m_folder.constData(), MNT_DETACH);
}

bool TroubledDisk::tell(const QByteArray &command)
{
    m_process.write(command + '\n');
    return m_process.waitForReadyRead(limit) && m_process.readLine() == "done\n";
}

bool TroubledDisk::slowDown(const char *operation, int milliseconds)
{
    return tell(QByteArray("slow ") + operation + ' ' + QByteArray::number(milliseconds));
}

bool TroubledDisk::fail(const char *operation, int error)
{
    return tell(QByteArray("fail ") + operation + ' ' + QByteArray::number(error));
}

void TroubledDisk::vanish()
{
    m_process.kill();
    m_process.waitForFinished(limit);
}
