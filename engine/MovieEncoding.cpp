#include "MovieEncoding.h"

#include <QThread>

static const double bitsOfPixel = 0.11; // of one frame: 228 MB for ten minutes of 1280x720 at 30
static const double fewestBits = 100000; // a second; some encoders take no rate of 0 kbit
static const double fewestFrames = 8; // a second, for a picture that still moves
static const int smallestWidth = 320; // px; no picture is made smaller than that

int movieBitRate(const QSize &size, double rate)
{
    return int(qMax(fewestBits, bitsOfPixel * size.width() * size.height() * rate));
}

int movieDivisor(double frameTime, const QSize &size)
{
    int divisor = 1;
    while (frameTime / (divisor * divisor) > 1 / fewestFrames
           && size.width() / (divisor + 1) >= smallestWidth)
        ++divisor;
    return divisor;
}

QVector<Encoder> videoEncoders(const QSize &size, double rate)
{
    const QByteArray second = QByteArray::number(qMax(1, qRound(rate)));
    const int bits = movieBitRate(size, rate);
    const QByteArray bps = QByteArray::number(bits);
    const QByteArray kbps = QByteArray::number(bits / 1000);
    const QByteArray va = " b-frames=0 target-usage=7 key-int-max=" + second + " bitrate=" + kbps;
    // More threads than processors only get into each other's way, and into the live picture's.
    const QByteArray threads = QByteArray::number(qMax(1, QThread::idealThreadCount()));
    return {
        {"videoconvert ! vah264enc" + va + " ! h264parse", "vah264enc", false},
        {"videoconvert ! vah264lpenc" + va + " ! h264parse", "vah264lpenc", false},
        {"v4l2h264enc extra-controls=\"controls,video_bitrate=" + bps
             + ",h264_i_frame_period=" + second + "\" ! video/x-h264,level=(string)4 ! h264parse",
         "v4l2h264enc", false},
        {"x264enc tune=zerolatency speed-preset=ultrafast bframes=0 threads=" + threads
             + " key-int-max=" + second + " bitrate=" + kbps + " ! h264parse",
         "x264enc", true},
        {"openh264enc complexity=low rate-control=bitrate gop-size=" + second + " bitrate=" + bps
             + " max-bitrate=" + QByteArray::number(bits * 2) + " ! h264parse",
         "openh264enc", true},
        {"jpegenc quality=80", "jpegenc", true},
    };
}

QVector<Encoder> soundEncoders()
{
    // Left to code middle and side it gives what only one channel has to both, of the right one
    // with the sign changed, and a single loudspeaker plays nothing of it. By number: newer
    // versions of the plug-in have names there, and no "false" among them.
    return {{"avenc_aac bitrate=128000 aac-ms=0", "avenc_aac", true},
            {"fdkaacenc bitrate=128000", "fdkaacenc", true},
            {"voaacenc bitrate=128000", "voaacenc", true}};
}
