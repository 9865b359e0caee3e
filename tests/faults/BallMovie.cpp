#include "BallMovie.h"

#include <QProcess>

bool makeBallMovie(const QString &path, int frames)
{
    const QStringList pipeline{"-q",
                               "videotestsrc",
                               "pattern=ball",
                               QStringLiteral("num-buffers=%1").arg(frames),
                               "!",
                               "video/x-raw,format=I420,width=320,height=240,framerate=20/1",
                               "!",
                               "x264enc",
                               "tune=zerolatency",
                               "key-int-max=10",
                               "!",
                               "qtmux",
                               "!",
                               "filesink",
                               "location=" + path};
    return QProcess::execute("gst-launch-1.0", pipeline) == 0;
}
