#include "FileClash.h"

#include "OpenFolder.h"
#include "StoreLog.h"

#include <cstdio>
#include <fcntl.h>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int mostTries = 1000; // names for one capture; somebody would have to try hard
constexpr size_t blockBytes = 1 << 18;

const QByteArrayList &endings()
{
    // A movie's, its still picture's, a photo's.
    static const QByteArrayList known = {".mov", "tmp.png", ".png"};
    return known;
}

// The name without its ending: what a movie and its still picture have in common.
QByteArray stemOf(const QByteArray &name)
{
    for (const QByteArray &ending : endings())
        if (name.endsWith(ending))
            return name.chopped(ending.size());
    return name;
}

bool isThere(const OpenFolder &folder, const QByteArray &name)
{
    struct stat status = {};
    return fstatat(folder.descriptor(), name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0;
}

/** A regular file, open for reading; closed when the object goes. */
class ReadFile {
public:
    ReadFile(const OpenFolder &folder, const QByteArray &name)
        : m_descriptor(openat(folder.descriptor(), name.constData(),
                              O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC))
        , m_block(blockBytes)
    {
        struct stat status = {};
        if (m_descriptor >= 0 && fstat(m_descriptor, &status) == 0 && S_ISREG(status.st_mode))
            m_size = status.st_size;
    }
    ~ReadFile()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    Q_DISABLE_COPY(ReadFile)

    qint64 size() const { return m_size; } ///< bytes; below 0 when it is no such file
    /// Empty at the end, null when it cannot be read.
    QByteArray blockAt(qint64 offset)
    {
        const ssize_t count = pread(m_descriptor, m_block.data(), m_block.size(), offset);
        return count < 0 ? QByteArray() : QByteArray(m_block.data(), int(count));
    }

private:
    int m_descriptor;
    qint64 m_size = -1;
    std::vector<char> m_block;
};

// Whether it was saved before. A link is no saved capture: it may lead back to the one here. Nor is
// what somebody else has laid there and nobody may read.
bool isSaved(const OpenFolder &from, const OpenFolder &to, const QByteArray &name)
{
    ReadFile here(from, name);
    ReadFile there(to, name);
    if (here.size() < 0 || here.size() != there.size())
        return false;
    for (qint64 offset = 0; offset < here.size();) {
        const QByteArray block = here.blockAt(offset);
        if (block.isEmpty() || there.blockAt(offset) != block)
            return false;
        offset += block.size();
    }
    return true;
}

// One that no file of this capture would share with another, here or there.
QByteArray freeStem(const OpenFolder &from, const OpenFolder &to, const QByteArray &stem)
{
    for (int number = 2; number < mostTries; ++number) {
        QByteArray tried = stem + '-' + QByteArray::number(number);
        bool isFree = !isThere(from, tried) && !isThere(to, tried);
        for (const QByteArray &ending : endings())
            isFree = isFree && !isThere(from, tried + ending) && !isThere(to, tried + ending);
        if (isFree)
            return tried;
    }
    return {};
}

} // namespace

void keepApart(const OpenFolder &from, const OpenFolder &to, const std::vector<QByteArray> &names)
{
    std::set<QByteArray> clashing;
    for (const QByteArray &name : names)
        if (isThere(to, name) && !isSaved(from, to, name))
            clashing.insert(stemOf(name));
    for (const QByteArray &stem : clashing) {
        const QByteArray freed = freeStem(from, to, stem);
        for (const QByteArray &name : names) {
            if (freed.isEmpty() || stemOf(name) != stem)
                continue;
            const QByteArray newName = freed + name.mid(stem.size());
            qCInfo(storeLog) << name << "was saved before; this one becomes" << newName;
            (void)renameat2(from.descriptor(), name.constData(), from.descriptor(),
                            newName.constData(), RENAME_NOREPLACE);
        }
    }
}
