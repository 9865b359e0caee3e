// Whether the next capture has room.

#include "WebcamUtil.h"

#include <sys/statvfs.h>

bool WebcamUtil::chkdiskFreeSpace()
{
    restoreTemporaryPath();
    // Not the file name encoding: an area outside Latin letters is not found and reads as full.
    struct statvfs fileSystem = {};
    if (statvfs(m_pictureDataPath.toLatin1().constData(), &fileSystem) != 0)
        return false;
    // f_bavail leaves out what is kept for root; it counts in f_frsize, the block size proper.
    return isEnoughSpace(fileSystem.f_frsize, fileSystem.f_bavail);
}

bool WebcamUtil::isEnoughSpace(quint64 blockSize, quint64 availableBlocks)
{
    constexpr float megabytesPerByte = 9.5367431640625e-07f;
    constexpr double neededMegabytes = 300.0;
    return double(blockSize) * double(availableBlocks) * megabytesPerByte > neededMegabytes;
}
