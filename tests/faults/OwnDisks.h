#ifndef OWNDISKS_H
#define OWNDISKS_H

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

/// From here on what this process mounts is seen by it and by programs that it starts, and by
/// nobody else; it goes with the last of them. Only as long as the process has one thread, so
/// before its application object is there. It needs no administrator. False when that cannot be
/// had.
bool enterOwnMounts();

/// A disk in memory over a folder that is there, of as many bytes as a test likes at the moment.
/// For the object's life, after enterOwnMounts().
class ShrinkingDisk {
public:
    explicit ShrinkingDisk(const QString &folder);
    ~ShrinkingDisk();
    Q_DISABLE_COPY(ShrinkingDisk)

    bool isThere() const { return m_isThere; }
    /// So many bytes (to the next 4096) can be written yet.
    bool leave(qint64 bytes);
    bool giveRoom() { return leave(plenty); }
    /// Nothing can be written or removed from now on; false while a file is being written.
    bool forbidWriting();

private:
    static constexpr qint64 plenty = qint64(2) << 30; // bytes; taken only when they are written
    bool mountAgain(unsigned long flags, qint64 bytes) const;

    const QByteArray m_folder;
    bool m_isThere = false;
};

/// A disk over a folder that is there, which passes everything on to a folder elsewhere, as well
/// as it is told to: slowly, never, or not at all. For the object's life, after enterOwnMounts().
class TroubledDisk {
public:
    explicit TroubledDisk(const QString &folder);
    ~TroubledDisk();
    Q_DISABLE_COPY(TroubledDisk)

    bool isThere() const { return m_isThere; }
    QString behind() const { return m_behind.path(); } ///< the same files, without trouble

    /// An operation is "write", "fsync", "rename", "unlink", "create" or "read".
    bool slowDown(const char *operation, int milliseconds); ///< each; 0 for as quickly as it can
    bool fail(const char *operation, int error); ///< with this errno; 0 for no more
    bool knowNoExclusiveRename() { return tell("plainrename 1"); }
    /// From now on nothing is answered, until goOn() or the end of this object.
    bool hang() { return tell("hang 1"); }
    bool goOn() { return tell("hang 0"); }
    /// Pulled out: it is gone for good.
    void vanish();

private:
    bool tell(const QByteArray &command);

    const QByteArray m_folder;
    const QTemporaryDir m_behind;
    QProcess m_process;
    bool m_isThere = false;
};

#endif
