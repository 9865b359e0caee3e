#include "MoviePipeline.h"

#include "IndexPace.h"
#include "MovieEncoding.h"
#include "PipelineTools.h"
#include "SoundTrack.h"

#include <QFile>

// What has been encoded waits here while a disk stands still: almost three minutes of 1280x720.
static const int encodedMemory = 64000000; // bytes

// The muxer keeps room for its index at the beginning of the file, and writes it there anew again
// and again. Running out of that room ends the movie.
static const guint64 longestMovie = 660 * GST_SECOND; // ns; a minute more than the program allows
static const int indexPerFrame = 20; // bytes, well above what a frame's entries take
static const int leastIndex = 550; // bytes a second, the muxer's own default

static QByteArray number(guint64 value)
{
    return QByteArray::number(qulonglong(value));
}

// 4:2:0 pictures have an even number of lines and columns.
static QByteArray side(int camera, int divisor)
{
    return QByteArray::number((camera / divisor) & ~1);
}

// Frames of the camera wait in front of the source; behind it there is only the one that the
// encoder needs next. Encoded frames and sound are small: they wait for as long as a disk stands
// still, and sound waits for no picture.
static QByteArray description(const GstVideoInfo &format, const MovieEncoding &encoding)
{
    const int perSecond = format.fps_n / format.fps_d;
    return "appsrc name=frames format=time max-bytes=0"
           " ! videoconvertscale ! video/x-raw,format=I420,pixel-aspect-ratio=1/1,width="
        + side(format.width, encoding.divisor) + ",height=" + side(format.height, encoding.divisor)
        + " ! queue name=converted max-size-buffers=1 max-size-bytes=0 max-size-time=0 ! "
        + encoding.video
        + " ! queue name=encoded max-size-buffers=0 max-size-time=0 max-size-bytes="
        + number(encodedMemory)
        + " ! muxer. appsrc name=sound format=time max-bytes=0"
          " caps=audio/x-raw,format=S16LE,layout=interleaved,rate="
        + number(SoundTrack::rate) + ",channels=" + number(SoundTrack::channels)
        + " ! audioconvert ! " + encoding.sound
        + " ! queue max-size-buffers=0 max-size-bytes=0 max-size-time=0 ! muxer."
          " qtmux name=muxer reserved-max-duration="
        + number(longestMovie) + " reserved-moov-update-period=" + number(IndexPace::usualPeriod)
        + " reserved-bytes-per-sec="
        + number(guint64(qMax(leastIndex, perSecond * indexPerFrame)))
        // Written at once: what waits in the program is lost when it is killed.
        + " ! filesink name=file async=false buffer-mode=unbuffered";
}

GstObjectHandle<GstElement> makeMoviePipeline(const GstVideoInfo &format,
                                              const MovieEncoding &encoding, const QString &path)
{
    GstObjectHandle<GstElement> pipeline = parsePipeline("movie", description(format, encoding));
    if (!pipeline)
        return nullptr;
    const GstObjectHandle<GstElement> file(gst_bin_get_by_name(GST_BIN(pipeline.get()), "file"));
    g_object_set(file.get(), "location", QFile::encodeName(path).constData(), nullptr);
    const GstObjectHandle<GstElement> muxer(gst_bin_get_by_name(GST_BIN(pipeline.get()), "muxer"));
    IndexPace::keep(muxer.get(), file.get());
    const GstObjectHandle<GstElement> frames(
        gst_bin_get_by_name(GST_BIN(pipeline.get()), "frames"));
    const GstMiniHandle<GstCaps> caps(gst_video_info_to_caps(&format));
    g_object_set(frames.get(), "caps", caps.get(), nullptr);
    return pipeline;
}
