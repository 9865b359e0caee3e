#ifndef INSTANCELOCK_H
#define INSTANCELOCK_H

#include <QString>

/**
 * A lock on a file, held by one process at a time until the object or the process ends.
 *
 * The kernel keeps it, so nothing is left behind by a crash: there is no process number in the file
 * to be out of date, half written, or in use again by another program. The file itself stays, since
 * removing it would let two processes hold a lock on two files of one name.
 */
class InstanceLock {
public:
    explicit InstanceLock(QString path);
    ~InstanceLock();
    InstanceLock(const InstanceLock &) = delete;
    InstanceLock &operator=(const InstanceLock &) = delete;

    /// True when this object holds the lock now. Never waits; false too when the file cannot be
    /// made.
    bool tryLock();

private:
    QString m_path;
    int m_file = -1; ///< open as long as the lock is held
};

#endif
