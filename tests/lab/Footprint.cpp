#include "Footprint.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

static int entriesOf(const char *folder)
{
    return int(QDir(QLatin1String(folder))
                   .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System | QDir::Hidden)
                   .size());
}

static double residentMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return file.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / 1048576;
}

Footprint Footprint::now()
{
    return {entriesOf("/proc/self/task"), entriesOf("/proc/self/fd"), residentMemory()};
}
