#include "Footprint.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

static int entriesOf(const QString &folder)
{
    return int(QDir(folder)
                   .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System | QDir::Hidden)
                   .size());
}

static double residentMemory(const QString &process)
{
    QFile file(process + "/statm");
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return file.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / 1048576;
}

static Footprint footprintOf(const QString &process)
{
    return {entriesOf(process + "/task"), entriesOf(process + "/fd"), residentMemory(process)};
}

Footprint Footprint::now()
{
    return footprintOf(QStringLiteral("/proc/self"));
}

Footprint Footprint::of(qint64 pid)
{
    return footprintOf(QStringLiteral("/proc/%1").arg(pid));
}
