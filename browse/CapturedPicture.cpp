#include "CapturedPicture.h"

#include "WebcamUtil.h"

#include <QImageReader>

namespace {

constexpr qint64 maximalPixels = 50'000'000;

}

QPixmap CapturedPicture::load(const QString &name)
{
    QImageReader reader(WebcamUtil::getTemporaryPath() + QLatin1Char('/') + name);
    const QSize size = reader.size();
    if (size.isEmpty() || qint64(size.width()) * size.height() > maximalPixels)
        return {};
    return QPixmap::fromImageReader(&reader);
}
