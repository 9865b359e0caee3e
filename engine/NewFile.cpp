#include "NewFile.h"

#include <QFile>

#include <fcntl.h>

int createNewFile(const QString &path)
{
    return open(QFile::encodeName(path).constData(),
                O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
}
