#include "CapturedPicture.h"

#include "PngPixels.h"
#include "WebcamUtil.h"

#include <QFile>
#include <QImageReader>
#include <QMutex>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr qint64 maximalPixels = 50'000'000;
constexpr qint64 largePixels = 9'000'000; // more than 3840x2160
constexpr qint64 mostBytesOfAPixel = 8; // four channels of two bytes
constexpr qint64 bytesBesideThePicture = 1 << 20; // a colour profile, texts
constexpr int firstBytes = 24; // as many as tell what a file is

qint64 pixelsOf(QSize size)
{
    return qint64(size.width()) * size.height();
}

// What a file of such a picture has at most; one that has more is something else.
qint64 mostBytesOf(QSize size)
{
    return pixelsOf(size) * mostBytesOfAPixel + bytesBesideThePicture;
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

// Opened without waiting, as a pipe would have it, and looked at only then.
static bool openRegular(QFile &file, const QString &path)
{
    const int descriptor =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status = {};
    return descriptor >= 0
        && file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)
        && fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

// Only what a capture is or ever was. The toolkit's plug-ins for other formats open further files,
// or take hours, if a damaged or foreign file wants it.
static QByteArray formatOf(const QByteArray &beginning)
{
    if (!PngPixels::sizeIn(beginning).isEmpty())
        return "png";
    return beginning.startsWith("BM") ? "bmp" : "";
}

static QImage readPicture(QIODevice &device, const QByteArray &format, qint64 fileSize)
{
    static QMutex oneLargeAtATime; // protects nothing but the memory's limit
    QImageReader reader(&device, format);
    reader.setAutoDetectImageFormat(false);
    const qint64 pixels = pixelsOf(reader.size());
    if (reader.size().isEmpty() || pixels > maximalPixels || fileSize > mostBytesOf(reader.size()))
        return {};
    if (pixels <= largePixels)
        return asOnScreen(reader.read());
    const QMutexLocker turn(&oneLargeAtATime);
    return asOnScreen(reader.read());
}

QImage CapturedPicture::read(const QString &path)
{
    QFile file;
    if (!openRegular(file, path))
        return {};
    const QByteArray beginning = file.peek(firstBytes);
    const QByteArray format = formatOf(beginning);
    if (format == "bmp")
        return readPicture(file, format, file.size());
    const QSize size = PngPixels::sizeIn(beginning);
    if (format != "png" || pixelsOf(size) > maximalPixels || file.size() > mostBytesOf(size))
        return {};
    PngPixels pixels(&file);
    return readPicture(pixels, format, file.size());
}

bool CapturedPicture::isLarge(const QString &name)
{
    QFile file;
    return openRegular(file, path(name))
        && pixelsOf(PngPixels::sizeIn(file.peek(firstBytes))) > largePixels;
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
