#ifndef DISKFLUSH_H
#define DISKFLUSH_H

#include <chrono>

class QString;

/**
 * What a power cut must not take any more: a capture is on the disk, its contents and its name,
 * before anybody is told that it is there. A disk that takes long over that goes on with it on a
 * thread of its own, so that nobody waits for it longer than he would notice; the process should
 * not end before it (see MovieCompletion).
 *
 * Any thread.
 */
namespace DiskFlush {

/// For one capture, its contents and its name together. A person takes what happens within a tenth
/// of a second to happen at once.
constexpr std::chrono::milliseconds usualPatience{100};

/// Has the disk take what was written to an open file, which may be closed then. False when the
/// disk has refused it; true also when it is still at it at @p deadline.
bool flushFile(int descriptor, std::chrono::steady_clock::time_point deadline);

/// The same for the name of the file at @p path, that is, for its folder.
bool flushName(const QString &path, std::chrono::steady_clock::time_point deadline);

/// Both for a file that is written and closed.
void flushClosed(const QString &path, std::chrono::steady_clock::time_point deadline);

} // namespace DiskFlush

#endif
