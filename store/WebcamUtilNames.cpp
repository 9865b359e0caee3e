// The names of captured files and of the dated folders they are saved to.

#include "WebcamUtil.h"

#include <QFile>
#include <QLocale>

#include <sys/stat.h>

namespace {

constexpr int mostSteps = 1000; // names that are tried for one capture

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

// Whatever it is: a link that leads nowhere, too.
bool isTaken(const QString &path)
{
    struct stat status = {};
    return lstat(QFile::encodeName(path).constData(), &status) == 0;
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

QString WebcamUtil::newPhotofilename(const QDateTime &moment)
{
    const QString folder = getTemporaryPath() + QLatin1Char('/');
    QDateTime next = moment;
    while (isTaken(folder + CreatePhotofilename(next)) && next < moment.addMSecs(mostSteps))
        next = next.addMSecs(1);
    return CreatePhotofilename(next);
}

QString WebcamUtil::newMoviefilename(const QDateTime &moment)
{
    QDateTime next = moment;
    QString movie = CreateMoviefilename(next);
    while ((isTaken(movie) || isTaken(stillNameOf(movie))) && next < moment.addSecs(mostSteps)) {
        next = next.addSecs(1);
        movie = CreateMoviefilename(next);
    }
    return movie;
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

QString WebcamUtil::savePath(const QString &base, const QDateTime &moment)
{
    return base + QStringLiteral("/TavelinCamera/") + CurrentDateString(moment);
}

QString WebcamUtil::CreateSavePath(const QString &base, const QDateTime &moment)
{
    return ensuredFolder(savePath(base, moment));
}
