#include "StillWriter.h"

#include "EngineLog.h"
#include "NewFile.h"
#include "PngEncoder.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>

#include <cstdio>
#include <sys/file.h>
#include <unistd.h>

static bool encode(const QImage &picture, const QByteArray &format, QIODevice &file)
{
    if (format == "png")
        return encodePng(picture, file);
    QImageWriter writer(&file, format);
    return writer.write(picture);
}

bool writeStill(const QImage &picture, const QString &path, std::chrono::milliseconds patience)
{
    const QFileInfo info(path);
    const QByteArray format = info.suffix().toLower().toLatin1();
    if (picture.isNull() || picture.format() != QImage::Format_RGB888 || info.isDir()
        || !QImageWriter::supportedImageFormats().contains(format))
        return false;
    const QString hidden = info.path() + QLatin1String("/.") + info.fileName();
    const QByteArray hiddenName = QFile::encodeName(hidden);
    unlink(hiddenName.constData()); // what a program that was killed left there
    const int descriptor = createNewFile(hidden);
    QFile file;
    if (descriptor < 0
        || !file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)) {
        qCInfo(engineLog) << "cannot write" << path;
        return false;
    }
    // The mark of a file that is being written: one without it is swept away at the next start.
    (void)flock(descriptor, LOCK_EX | LOCK_NB);
    bool written = encode(picture, format, file) && file.flush();
    // Before it has its name, or a power cut could leave half a photo that is listed.
    const auto deadline = std::chrono::steady_clock::now() + patience;
    written = written && DiskFlush::flushFile(descriptor, deadline);
    file.close();
    // Not QFile::rename(), which refuses to replace a file.
    written = written && file.error() == QFile::NoError
        && std::rename(hiddenName.constData(), QFile::encodeName(path).constData()) == 0;
    if (!written) {
        qCInfo(engineLog) << "cannot write" << path;
        unlink(hiddenName.constData());
        return false;
    }
    // It is whole and can be read, whatever the disk says to its name.
    (void)DiskFlush::flushName(path, deadline);
    return true;
}
