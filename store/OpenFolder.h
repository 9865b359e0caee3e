#ifndef OPENFOLDER_H
#define OPENFOLDER_H

#include <QByteArray>
#include <QString>

#include <ctime>
#include <functional>
#include <sys/types.h>
#include <vector>

/** One file of a folder. Names are bytes: not each one can be spelled in the user's letters. */
struct FolderFile {
    QByteArray name;
    timespec modified;
    uid_t owner;
};

/**
 * A folder held open, through which its files are reached whatever becomes of its path, and
 * whatever bytes their names are made of. Closed when the object goes.
 */
class OpenFolder {
public:
    /// An empty path is the folder that the program runs in.
    explicit OpenFolder(const QString &path);
    ~OpenFolder();
    Q_DISABLE_COPY(OpenFolder)

    bool isOpen() const { return m_descriptor >= 0; }
    /// For the calls of the system that take a folder; below 0 if it could not be opened.
    int descriptor() const { return m_descriptor; }
    /// Its path for this process alone, never long, as long as the object lives.
    QString shortPath() const;

    /// The regular files, no links, that @p isWanted by their names, in no order.
    std::vector<FolderFile> files(const std::function<bool(const char *)> &isWanted) const;
    /// True when what was made, renamed or removed in it will outlast a power cut.
    bool flush() const;

    /// Removes the files that some writer left unfinished: this user's own ones of those that
    /// @p isWanted, last written before @p before (s since 1970), and held by no writer any more
    /// (see holdUnfinished()). On a disk that knows no locks none is removed.
    void removeUnfinished(const std::function<bool(const char *)> &isWanted,
                          const timespec &before) const;

private:
    int m_descriptor;
};

/** Marks the open file as being written, until it is closed or its writer dies. */
void holdUnfinished(int descriptor);

/** fsync(), which on a disk that has no such thing is done at once. */
bool flushToDisk(int descriptor);

#endif
