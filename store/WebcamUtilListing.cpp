// What the temporary area holds. The browsing screens list it at every visit, and a long lesson
// leaves thousands of files, so the folder is read once with one stat per file; sorting whole file
// records by calendar time, as the toolkit's lister does, takes many times as long.

#include "OpenFolder.h"
#include "WebcamUtil.h"

#include <QFile>
#include <QSet>

#include <algorithm>
#include <cstring>
#include <fnmatch.h>

namespace {

// Names carry the time of capture, so they decide between equal times.
struct NewestFirst {
    bool operator()(const FolderFile &left, const FolderFile &right) const
    {
        if (left.modified.tv_sec != right.modified.tv_sec)
            return left.modified.tv_sec > right.modified.tv_sec;
        if (left.modified.tv_nsec != right.modified.tv_nsec)
            return left.modified.tv_nsec > right.modified.tv_nsec;
        return left.name > right.name;
    }
};

// Folded by hand: to the C library a Turkish I is the capital letter of another i.
char inSmallLetters(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? char(letter - 'A' + 'a') : letter;
}

QByteArray inSmallLetters(QByteArray name)
{
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char letter) { return inSmallLetters(letter); });
    return name;
}

/** A wildcard pattern that matches in any case. One that merely tells how a name begins, as that of
 *  all photos does, is matched without the C library, which takes longer than finding the file. */
class NamePattern {
public:
    explicit NamePattern(const QByteArray &pattern)
        : m_pattern(inSmallLetters(pattern))
        , m_isBeginning(std::strcspn(m_pattern.constData(), "*?[") == size_t(m_pattern.size()) - 1
                        && m_pattern.endsWith('*'))
    {
    }

    bool matches(const char *name) const
    {
        return m_isBeginning ? isBeginningOf(name)
                             : fnmatch(m_pattern.constData(), inSmallLetters(name).constData(),
                                       FNM_CASEFOLD | FNM_NOESCAPE)
                == 0;
    }

private:
    bool isBeginningOf(const char *name) const
    {
        return std::equal(
            m_pattern.cbegin(), m_pattern.cend() - 1, name,
            [](char small, char letter) { return small == inSmallLetters(letter); });
    }

    QByteArray m_pattern;
    bool m_isBeginning;
};

bool matchesAny(const char *name, const std::vector<NamePattern> &patterns)
{
    return patterns.empty()
        || std::any_of(
               patterns.begin(), patterns.end(),
               [name](const NamePattern &pattern) { return pattern.matches(name); });
}

// The toolkit asks the locale about each name; the program's own have letters of one byte only.
QString inUsersLetters(const QByteArray &name)
{
    const bool isPlain =
        std::all_of(name.begin(), name.end(), [](char letter) { return uchar(letter) < 0x80; });
    return isPlain ? QString::fromLatin1(name) : QFile::decodeName(name);
}

} // namespace

bool WebcamUtil::isCaptured(const char *name)
{
    return std::strncmp(name, "photo", 5) == 0 || std::strncmp(name, "movie", 5) == 0;
}

// The files of the temporary area that match one of the patterns (any case) and are not hidden,
// newest first; all of them if there is no pattern. If there is no area, its empty path means the
// folder the program runs in.
std::vector<FolderFile> WebcamUtil::readTemporaryArea(const QStringList &patterns)
{
    std::vector<NamePattern> encoded;
    encoded.reserve(size_t(patterns.size()));
    for (const QString &pattern : patterns)
        encoded.emplace_back(QFile::encodeName(pattern));

    std::vector<FolderFile> files =
        OpenFolder(getTemporaryPath()).files([&encoded](const char *name) {
            return name[0] != '.' && matchesAny(name, encoded);
        });
    std::sort(files.begin(), files.end(), NewestFirst());
    return files;
}

// Their names in the user's letters, for lists and for the screen.
QStringList WebcamUtil::listTemporaryArea(const QStringList &patterns)
{
    const std::vector<FolderFile> files = readTemporaryArea(patterns);
    QStringList names;
    names.reserve(int(files.size()));
    for (const FolderFile &file : files)
        names.append(inUsersLetters(file.name));
    return names;
}

QStringList WebcamUtil::getFileList(const QStringList &patterns)
{
    const std::vector<FolderFile> files = readTemporaryArea(patterns);
    QStringList names;
    names.reserve(int(files.size()));
    for (auto file = files.rbegin(); file != files.rend(); ++file)
        if (isCaptured(file->name.constData()))
            names.append(inUsersLetters(file->name));
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
    QStringList stillsOfMovies;
    QSet<QString> pictures;
    for (const QString &name : getFileList({QStringLiteral("movie*")})) {
        const QString still = stillNameOf(name);
        if (still != name)
            stillsOfMovies.append(still);
        else
            pictures.insert(name);
    }

    QStringList complete;
    for (const QString &still : qAsConst(stillsOfMovies))
        if (pictures.contains(still))
            complete.append(still);
    return complete;
}

bool WebcamUtil::isSaveFile()
{
    const QStringList names = listTemporaryArea();
    // With nothing to ask about, the record keeps what the last question was about.
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
