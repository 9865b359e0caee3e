#ifndef SMALLDISK_H
#define SMALLDISK_H

#include <QProcess>
#include <QString>
#include <QStringList>

/// A disk of a few kB in memory, for this object's life. It needs no administrator: it is mounted
/// in a name space of its own, which programs enter with a command before theirs.
class SmallDisk {
public:
    SmallDisk(const QString &path, int kilobytes);
    ~SmallDisk();
    SmallDisk(const SmallDisk &) = delete;
    SmallDisk &operator=(const SmallDisk &) = delete;

    bool isThere() const { return m_isThere; }
    QString path() const { return m_path; } ///< for programs inside
    QStringList entrance() const; ///< the command that brings a program inside
    QString seenFromOutside() const; ///< where this program finds the same folder
    qint64 bytesAvailable() const;

private:
    const QString m_path;
    QProcess m_keeper; ///< the name space lives as long as it does
    bool m_isThere = false;
};

#endif
