#ifndef FAKEDISK_H
#define FAKEDISK_H

#include <QByteArray>

#include <functional>

/**
 * Stands between the store and the disk: programs that are linked with --wrap for the calls below
 * come here first. Without a hook a call goes through to the real disk. A hook gets the path of the
 * file that the call is about; other than 0 it returns the error number that the call fails with.
 * Hooks are called one after the other, from whichever thread the store uses its disk.
 */
class FakeDisk {
public:
    using Hook = std::function<int(const QByteArray &path)>;

    /// Takes all hooks away when it goes.
    FakeDisk() = default;
    ~FakeDisk() { onFlush = onClose = nullptr; }
    FakeDisk(const FakeDisk &) = delete;
    FakeDisk &operator=(const FakeDisk &) = delete;

    static Hook onFlush; ///< fsync()
    static Hook onClose; ///< close(), which closes the file in any case
};

#endif
