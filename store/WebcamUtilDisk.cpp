// Whether the next capture has room.

#include "PrivateFolder.h"
#include "WebcamUtil.h"

#include <sys/statvfs.h>

bool WebcamUtil::chkdiskFreeSpace()
{
    // A cleaner of temporary files may have taken the area away while the program ran, and somebody
    // else may have put something in its place.
    if (!m_pictureDataPath.isEmpty() && !PrivateFolder::isOwn(m_pictureDataPath))
        m_pictureDataPath.clear();
    if (m_pictureDataPath.isEmpty())
        setTemporaryPath();

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
