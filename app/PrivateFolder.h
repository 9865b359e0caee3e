#ifndef PRIVATEFOLDER_H
#define PRIVATEFOLDER_H

#include <QString>

/**
 * Finds the folder in which the copies of a program that one user starts can meet, and nobody else
 * can listen in or take their place.
 */
class PrivateFolder {
public:
    PrivateFolder() = delete;

    /**
     * runtimeDir, the session's own folder, when it is fit; otherwise a folder named with the
     * user's id in tempDir, which is made when it is missing. Fit means: no link, owned by this
     * user, open to nobody else (mode 0700). Empty when neither is fit, as when somebody else was
     * there first.
     */
    static QString find(const QString &runtimeDir, const QString &tempDir);
};

#endif
