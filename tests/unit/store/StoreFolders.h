#ifndef STOREFOLDERS_H
#define STOREFOLDERS_H

#include <QDateTime>
#include <QString>
#include <QTemporaryDir>

/**
 * A home folder, a temporary folder and a place to save to that belong to one test alone, and a
 * media store that remembers nothing of the test before. The environment is put back at the end.
 */
class StoreFolders {
public:
    StoreFolders();
    ~StoreFolders();
    Q_DISABLE_COPY(StoreFolders)

    QString root() const { return m_folder.path(); }
    QString home() const { return root() + QStringLiteral("/home"); }
    QString temporary() const { return root() + QStringLiteral("/tmp"); }
    QString target() const { return root() + QStringLiteral("/saved"); }
    /// Where captured files are expected: below temporary().
    QString area() const;

    /// Lets the temporary area lie below a plain file, where no user can make a folder.
    void makeAreaImpossible();
    /// Forgets everything the store has found out so far, as a new run of the program does.
    static void forget();

    /// Writes a file; with a @p modified moment, it seems to have been written then.
    static bool write(const QString &path, const QByteArray &contents = "x",
                      const QDateTime &modified = {});
    static QByteArray read(const QString &path);

private:
    QTemporaryDir m_folder;
    QByteArray m_oldHome;
    QByteArray m_oldTemporary;
};

#endif
