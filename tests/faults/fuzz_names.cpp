#include "Fuzzed.h"
#include "OpenFolder.h"
#include "WebcamUtil.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>

#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

static QSet<QByteArray> filesIn(const QString &path)
{
    QSet<QByteArray> names;
    for (const FolderFile &file : OpenFolder(path).files([](const char *) { return true; }))
        names.insert(file.name);
    return names;
}

static bool isCapture(const QByteArray &name)
{
    return name.startsWith("photo") || name.startsWith("movie");
}

static void demand(bool isRight, const char *what)
{
    if (!isRight)
        qFatal("%s", what);
}

static void demandListsOfWhatIsThere(const QSet<QByteArray> &there)
{
    QSet<QString> names;
    for (const QByteArray &name : there)
        names.insert(QFile::decodeName(name));
    for (const QString &photo : WebcamUtil::getTempPhotoNameList())
        demand(names.contains(photo), "a photo is listed that is not there");
    for (const QString &still : WebcamUtil::getMovieFileList())
        demand(names.contains(still), "a movie's picture is listed that is not there");
}

// Whatever files are called: what is listed is there, saving loses none, and deleting takes
// captures alone.
void Fuzzed::names(const QByteArray &bytes)
{
    QTemporaryDir folder;
    folder.setAutoRemove(false); // the toolkit does not find every name again
    const QString area = folder.filePath("area");
    QDir().mkpath(area);
    WebcamUtil::m_pictureDataPath = area;
    const OpenFolder open(area);
    for (const QByteArray &name : bytes.split('\n').mid(0, 50)) {
        const int made =
            openat(open.descriptor(), name.constData(), O_WRONLY | O_CREAT | O_EXCL, 0600);
        if (made >= 0)
            close(made);
    }
    const QSet<QByteArray> before = filesIn(area);
    demandListsOfWhatIsThere(before);

    const QDateTime moment({2009, 3, 4}, {9, 5, 7});
    WebcamUtil::saveData(folder.path(), moment);
    const QSet<QByteArray> saved = filesIn(folder.filePath("TavelinCamera/20090304"));
    demand(filesIn(area) + saved == before, "saving has lost a file");
    for (const QByteArray &name : saved)
        demand(isCapture(name), "a file was saved that is no capture");
    std::filesystem::remove_all(QFile::encodeName(folder.filePath("TavelinCamera")).constData());

    const QSet<QByteArray> left = filesIn(area);
    WebcamUtil::deleteData();
    for (const QByteArray &name : left)
        demand(isCapture(name) != filesIn(area).contains(name), "the wrong file was deleted");
    WebcamUtil::m_pictureDataPath.clear();
    std::filesystem::remove_all(QFile::encodeName(folder.path()).constData());
}
