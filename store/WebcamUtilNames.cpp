// The names of captured files and of the dated folders they are saved to.

#include "WebcamUtil.h"

#include <QLocale>

namespace {

QString movieSuffix()
{
    return QStringLiteral(".mov");
}

QString stillSuffix()
{
    return QStringLiteral("tmp.png");
}

// Always plain digits: a file name must not change with the language of the desktop.
QString stamp(const QDateTime &moment, const QString &layout)
{
    return QLocale::c().toString(moment, layout);
}

} // namespace

QString WebcamUtil::CurrentTimeQString(const QDateTime &moment)
{
    return stamp(moment, QStringLiteral("yyyyMMddhhmmsszzz"));
}

QString WebcamUtil::CurrentSecondString(const QDateTime &moment)
{
    return stamp(moment, QStringLiteral("yyyyMMddhhmmss"));
}

QString WebcamUtil::CurrentDateString(const QDateTime &moment)
{
    return stamp(moment, QStringLiteral("yyyyMMdd"));
}

QString WebcamUtil::CreatePhotofilename(const QDateTime &moment)
{
    return QStringLiteral("photo") + CurrentTimeQString(moment) + QStringLiteral(".png");
}

QString WebcamUtil::CreateTempPhotofilename(const QDateTime &moment)
{
    return QStringLiteral("photo") + CurrentTimeQString(moment) + stillSuffix();
}

QString WebcamUtil::CreateMoviefilename(const QDateTime &moment)
{
    return getTemporaryPath() + QStringLiteral("/movie") + CurrentSecondString(moment)
        + movieSuffix();
}

QString WebcamUtil::CreateTempMoviefilename(const QDateTime &moment)
{
    return getTemporaryPath() + QStringLiteral("/movie") + CurrentSecondString(moment)
        + QStringLiteral("tmpphoto");
}

QString WebcamUtil::stillNameOf(const QString &movie)
{
    return QString(movie).replace(movieSuffix(), stillSuffix());
}

QString WebcamUtil::movieNameOf(const QString &still)
{
    return QString(still).replace(stillSuffix(), movieSuffix());
}

QString WebcamUtil::CreateSavePath(const QString &base, const QDateTime &moment)
{
    return ensuredFolder(base + QStringLiteral("/TavelinCamera/") + CurrentDateString(moment));
}
