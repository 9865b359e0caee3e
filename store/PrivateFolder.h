#ifndef PRIVATEFOLDER_H
#define PRIVATEFOLDER_H

#include <QString>

/**
 * Folders that belong to this user alone, in places where everybody may make folders: nobody else
 * can look into them, lay something into them or take their place.
 */
class PrivateFolder {
public:
    PrivateFolder() = delete;

    /// The system's temporary folder, $TMPDIR or /tmp: an absolute path, also of one that is
    /// missing and would have to be made, for which the toolkit has none.
    static QString temporaryFolder();
    /// Makes the folder @p path with its parents, if it is missing, and closes it to everybody else
    /// (mode 0700), if it is not. Returns its absolute path.
    ///
    /// Empty when it cannot be made or cannot be trusted: what is there is a symbolic link, belongs
    /// to somebody else, or is open to others and stays so, as on a disk that knows no modes.
    static QString ensure(const QString &path);
    /// Whether @p path is a real folder, no link, and this user's own, whatever its mode.
    static bool isOwn(const QString &path);
};

#endif
