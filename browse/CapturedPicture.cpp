#include "CapturedPicture.h"

#include "PictureVersion.h"
#include "WebcamUtil.h"

#include <QImageReader>
#include <QMutex>

namespace {

constexpr qint64 maximalPixels = 50'000'000;
constexpr qint64 largePixels = 9'000'000; // more than 3840x2160

qint64 pixelsOf(QSize size)
{
    return qint64(size.width()) * size.height();
}

QImage asOnScreen(QImage image)
{
    const QImage::Format format =
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    return image.isNull() ? image : std::move(image).convertToFormat(format);
}

} // namespace

QString CapturedPicture::path(const QString &name)
{
    return WebcamUtil::getTemporaryPath() + QLatin1Char('/') + name;
}

QImage CapturedPicture::read(const QString &path)
{
    static QMutex oneLargeAtATime; // protects nothing but the memory's limit
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.isEmpty() || pixelsOf(size) > maximalPixels)
        return {};
    if (pixelsOf(size) <= largePixels)
        return asOnScreen(reader.read());
    const QMutexLocker turn(&oneLargeAtATime);
    return asOnScreen(reader.read());
}

QImage CapturedPicture::whole(const QString &name)
{
    static PictureVersion lastVersion;
    static QImage lastPicture;

    const PictureVersion version = PictureVersion::of(path(name));
    if (!lastPicture.isNull() && version == lastVersion)
        return lastPicture;
    QImage picture = read(version.path);
    const bool isRemembered = pixelsOf(picture.size()) <= largePixels
        && PictureVersion::of(version.path) == version && version.isSettled();
    lastVersion = isRemembered ? version : PictureVersion();
    lastPicture = isRemembered ? picture : QImage();
    return picture;
}

QPixmap CapturedPicture::load(const QString &name)
{
    return QPixmap::fromImage(whole(name));
}
