#ifndef CAPTUREFOLDER_H
#define CAPTUREFOLDER_H

#include "WebcamUtil.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

/**
 * The temporary area of one test program, in a folder of its own. To be made before anything asks
 * for the area's path.
 */
class CaptureFolder {
public:
    CaptureFolder() { qputenv("TMPDIR", QFile::encodeName(m_folder.path())); }

    static QString path(const QString &name)
    {
        return WebcamUtil::getTemporaryPath() + QLatin1Char('/') + name;
    }

    static bool save(const QString &name, const QImage &picture)
    {
        return picture.save(path(name), "PNG");
    }

    static bool save(const QString &name, QSize size, const QColor &color)
    {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(color);
        return save(name, picture);
    }

    static bool saveBytes(const QString &name, const QByteArray &bytes)
    {
        QFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

private:
    QTemporaryDir m_folder;
};

#endif
