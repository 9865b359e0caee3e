// What the temporary area holds. The browsing screens list it at every visit, and a long lesson
// leaves thousands of files, so the folder is read once with one stat per file; sorting whole file
// records by calendar time, as the toolkit's lister does, takes many times as long.

#include "WebcamUtil.h"

#include <QFile>
#include <QSet>

#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <fnmatch.h>
#include <memory>
#include <sys/stat.h>
#include <tuple>
#include <vector>

namespace {

struct Entry {
    timespec modified;
    QString name;
};

struct CloseFolder {
    void operator()(DIR *folder) const { closedir(folder); }
};

/** Newest first. Names carry the time of capture, so they decide between equal times. */
bool isNewer(const Entry &left, const Entry &right)
{
    return std::tie(left.modified.tv_sec, left.modified.tv_nsec, left.name)
        > std::tie(right.modified.tv_sec, right.modified.tv_nsec, right.name);
}

bool matchesAny(const char *name, const std::vector<QByteArray> &patterns)
{
    return patterns.empty()
        || std::any_of(
               patterns.begin(), patterns.end(),
               [name](const QByteArray &pattern) {
                   return fnmatch(pattern.constData(), name, FNM_CASEFOLD | FNM_NOESCAPE) == 0;
               });
}

/** The regular files of the folder that are neither hidden nor links, in no order. */
std::vector<Entry> readFolder(const QString &path, const std::vector<QByteArray> &patterns)
{
    std::vector<Entry> entries;
    const std::unique_ptr<DIR, CloseFolder> folder(
        opendir(path.isEmpty() ? "." : QFile::encodeName(path).constData()));
    if (!folder)
        return entries;
    const int descriptor = dirfd(folder.get());
    while (const dirent *item = readdir(folder.get())) {
        if (item->d_name[0] == '.' || !matchesAny(item->d_name, patterns))
            continue;
        struct stat status = {};
        if (fstatat(descriptor, item->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0
            && S_ISREG(status.st_mode))
            entries.push_back({status.st_mtim, QFile::decodeName(item->d_name)});
    }
    return entries;
}

} // namespace

bool WebcamUtil::isCaptured(const QString &name)
{
    return name.startsWith(QLatin1String("photo")) || name.startsWith(QLatin1String("movie"));
}

/**
 * The files of the temporary area that match one of the patterns (any case), newest first; all of
 * them if there is no pattern. If the area cannot be made, its empty path means the folder the
 * program runs in.
 */
QStringList WebcamUtil::listTemporaryArea(const QStringList &patterns)
{
    std::vector<QByteArray> encoded;
    encoded.reserve(patterns.size());
    for (const QString &pattern : patterns)
        encoded.push_back(QFile::encodeName(pattern));

    std::vector<Entry> entries = readFolder(getTemporaryPath(), encoded);
    std::sort(entries.begin(), entries.end(), isNewer);

    QStringList names;
    names.reserve(int(entries.size()));
    for (const Entry &entry : entries)
        names.append(entry.name);
    return names;
}

QStringList WebcamUtil::getFileList(const QStringList &patterns)
{
    QStringList names = listTemporaryArea(patterns);
    std::reverse(names.begin(), names.end());
    names.erase(std::remove_if(names.begin(), names.end(),
                               [](const QString &name) { return !isCaptured(name); }),
                names.end());
    return names;
}

void WebcamUtil::setTempBmpFilenameList()
{
    m_tempbmpfilenameList = getFileList({QStringLiteral("photo*")});
}

QStringList WebcamUtil::getTempPhotoNameList()
{
    setTempBmpFilenameList();
    return m_tempbmpfilenameList;
}

void WebcamUtil::setTempMovieFilnameList() { }

QStringList WebcamUtil::getMovieFileList()
{
    const QString movieSuffix = QStringLiteral(".mov");
    QStringList movies;
    QSet<QString> pictures;
    for (const QString &name : getFileList({QStringLiteral("movie*")}))
        if (name.contains(movieSuffix))
            movies.append(name);
        else
            pictures.insert(name);

    QStringList complete;
    for (QString picture : qAsConst(movies)) {
        picture.replace(movieSuffix, QStringLiteral("tmp.png"));
        if (pictures.contains(picture))
            complete.append(picture);
    }
    return complete;
}

bool WebcamUtil::isSaveFile()
{
    const QStringList names = listTemporaryArea();
    // An empty area leaves the last record as it was. That is meant.
    if (names.isEmpty())
        return false;
    m_savefilenameList = names;
    return true;
}

bool WebcamUtil::isMovieFile()
{
    return !listTemporaryArea().isEmpty();
}

bool WebcamUtil::isPhotoFile()
{
    return !listTemporaryArea({QStringLiteral("photo*.bmp")}).isEmpty();
}
