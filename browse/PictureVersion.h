#ifndef PICTUREVERSION_H
#define PICTUREVERSION_H

#include <QString>

/**
 * What tells one state of a picture's file from another without reading it: its path, when it was
 * last written to, and its size. Two files that are both missing are equal.
 */
struct PictureVersion {
    QString path;
    qint64 modified = 0; ///< ns since 1970
    qint64 bytes = -1; ///< -1: there is no such file

    static PictureVersion of(const QString &path);

    /// Whether the file has been left alone for longer than a tick of the clock that stamps files.
    /// Until then it may be written again and look the same.
    bool isSettled() const;
};

bool operator==(const PictureVersion &left, const PictureVersion &right);
uint qHash(const PictureVersion &version, uint seed = 0);

#endif
