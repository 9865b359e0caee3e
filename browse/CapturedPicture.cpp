#include "CapturedPicture.h"

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

struct Remembered {
    PictureVersion version;
    QImage picture;
};

Remembered &lastOne()
{
    static Remembered last;
    return last;
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
    const PictureVersion version = PictureVersion::of(path(name));
    QImage picture = remembered(version);
    if (!picture.isNull())
        return picture;
    picture = read(version.path);
    const bool isRemembered = pixelsOf(picture.size()) <= largePixels
        && PictureVersion::of(version.path) == version && version.isSettled();
    lastOne() = isRemembered ? Remembered{version, picture} : Remembered{};
    return picture;
}

void CapturedPicture::remember(const QString &name, const QImage &picture)
{
    if (!picture.isNull() && pixelsOf(picture.size()) <= largePixels)
        lastOne() = {PictureVersion::of(path(name)), asOnScreen(picture)};
}

QImage CapturedPicture::remembered(const PictureVersion &version)
{
    return version == lastOne().version ? lastOne().picture : QImage();
}

QPixmap CapturedPicture::load(const QString &name)
{
    return QPixmap::fromImage(whole(name));
}
