#ifndef INSTANCELOCK_H
#define INSTANCELOCK_H

#include <QString>

/**
 * A lock that one process of several can have. The system itself takes it from a process that ends,
 * however it ends, so nobody is ever taken for the holder because of what is written in a file: not
 * after the computer was given another name, nor when somebody else's process has the number of one
 * that is gone, nor on a disk that had no room for a number.
 *
 * The file stays when the lock is given back. Not taken by children: it ends with this process.
 */
class InstanceLock {
public:
    enum Result {
        Locked, ///< by this object, now or before
        Taken, ///< another one has it
        Impossible, ///< the file cannot be made, or the disk knows no locks
    };

    explicit InstanceLock(const QString &path);
    ~InstanceLock();
    Q_DISABLE_COPY(InstanceLock)

    /// Does not wait.
    Result tryLock();

private:
    int lockedFile() const;

    const QString m_path;
    int m_file = -1; ///< open as long as it is locked
};

#endif
