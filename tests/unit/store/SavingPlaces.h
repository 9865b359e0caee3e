#ifndef SAVINGPLACES_H
#define SAVINGPLACES_H

#include "StoreFolders.h"

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

inline QStringList filesIn(const QString &path)
{
    return QDir(path).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

inline dev_t deviceOf(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_dev : 0;
}

/** The temporary area on another file system than the tests' own, for as long as it lives. */
class AreaElsewhere {
public:
    explicit AreaElsewhere(const StoreFolders &folders)
        : m_folder(QStringLiteral("/dev/shm/tst_saving-XXXXXX"))
        , m_isOther(deviceOf(m_folder.path()) != deviceOf(folders.target()))
    {
        qputenv("TMPDIR", QFile::encodeName(m_folder.path()));
        StoreFolders::forget();
    }
    bool isOther() const { return m_folder.isValid() && m_isOther; }

private:
    QTemporaryDir m_folder;
    bool m_isOther;
};

/** A file that somebody is writing, as the store's own writers mark it. */
class WrittenFile {
public:
    explicit WrittenFile(const QString &path)
        : m_file(open(QFile::encodeName(path).constData(), O_RDWR | O_CLOEXEC))
        , m_isHeld(flock(m_file, LOCK_EX | LOCK_NB) == 0)
    {
    }
    ~WrittenFile() { close(m_file); }
    Q_DISABLE_COPY(WrittenFile)

    bool isHeld() const { return m_isHeld; }

private:
    int m_file;
    bool m_isHeld;
};

/** Folders that an ordinary user can reach, whoever owns the build folder. */
class FoldersForAll {
public:
    FoldersForAll()
        : m_place(QStringLiteral("/tmp/tst_saving-XXXXXX"))
        , m_old(qgetenv("TMPDIR"))
    {
        qputenv("TMPDIR", QFile::encodeName(m_place.path()));
        StoreFolders::forget();
        QDir().mkpath(target());
    }
    ~FoldersForAll()
    {
        qputenv("TMPDIR", m_old);
        StoreFolders::forget();
    }
    Q_DISABLE_COPY(FoldersForAll)

    QString target() const { return m_place.filePath("saved"); }

private:
    QTemporaryDir m_place;
    QByteArray m_old;
};

#endif
