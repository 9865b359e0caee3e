#include "OpenableNodes.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <fcntl.h>
#include <iterator>
#include <unistd.h>
#include <utility>

static bool mayOpen(const QString &node)
{
    return faccessat(AT_FDCWD, QFile::encodeName(node).constData(), R_OK | W_OK, AT_EACCESS) == 0;
}

// The kernel numbers the nodes of each device.
static bool isFirstOfItsDevice(const QString &name)
{
    QFile number(QStringLiteral("/sys/class/video4linux/%1/index").arg(name));
    return !number.open(QIODevice::ReadOnly) || number.readAll().trimmed() == "0";
}

static QStringList openableNow()
{
    QStringList nodes;
    const QDir devices(QStringLiteral("/dev"));
    for (const QString &name : devices.entryList({QStringLiteral("video*")}, QDir::System)) {
        const QString node = devices.filePath(name);
        if (mayOpen(node) && isFirstOfItsDevice(name))
            nodes.append(node);
    }
    return nodes;
}

QStringList OpenableNodes::takeNew()
{
    const QStringList now = openableNow();
    const QStringList before = std::exchange(m_known, now);
    QStringList fresh;
    std::copy_if(now.begin(), now.end(), std::back_inserter(fresh),
                 [&before](const QString &node) { return !before.contains(node); });
    return fresh;
}
