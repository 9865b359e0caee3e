#include "MovieCoding.h"

#include "EngineLog.h"
#include "GstHandles.h"

#include <QVector>

static const double bitsOfPixel = 0.11;
static const int trialFrames = 5;
static const GstClockTime trialLimit = 3 * GST_SECOND;

int movieBitRate(const QSize &size, double rate)
{
    return int(bitsOfPixel * size.width() * size.height() * rate);
}

// A key frame each second, for seeking; none that refers forward, which would delay the picture.
static QVector<QByteArray> videoCoders(const QSize &size, double rate)
{
    const QByteArray second = QByteArray::number(qMax(1, qRound(rate)));
    const int bits = movieBitRate(size, rate);
    const QByteArray bps = QByteArray::number(bits);
    const QByteArray kbps = QByteArray::number(bits / 1000);
    const QByteArray va = " b-frames=0 target-usage=7 key-int-max=" + second + " bitrate=" + kbps;
    return {
        "videoconvert ! vah264enc" + va + " ! h264parse",
        "videoconvert ! vah264lpenc" + va + " ! h264parse",
        "v4l2h264enc extra-controls=\"controls,video_bitrate=" + bps
            + ",h264_i_frame_period=" + second + "\" ! video/x-h264,level=(string)4 ! h264parse",
        "x264enc tune=zerolatency speed-preset=ultrafast bframes=0 key-int-max=" + second
            + " bitrate=" + kbps + " ! h264parse",
        "openh264enc complexity=low rate-control=bitrate gop-size=" + second + " bitrate=" + bps
            + " max-bitrate=" + QByteArray::number(bits * 2) + " ! h264parse",
        "jpegenc quality=80",
    };
}

static QVector<QByteArray> soundCoders()
{
    return {"avenc_aac bitrate=128000", "fdkaacenc bitrate=128000", "voaacenc bitrate=128000"};
}

// Whether the last element of the chain received anything.
static bool hasArrived(GstElement *chain)
{
    const GstObjectHandle<GstElement> end(gst_bin_get_by_name(GST_BIN(chain), "end"));
    GstStructure *stats = nullptr;
    g_object_get(end.get(), "stats", &stats, nullptr);
    const GstStructureHandle owned(stats);
    guint64 rendered = 0;
    return stats && gst_structure_get_uint64(stats, "rendered", &rendered) && rendered > 0;
}

static bool works(const QByteArray &source, const QByteArray &coder)
{
    GError *reason = nullptr;
    const QByteArray description = source + " ! " + coder + " ! fakesink name=end";
    const GstObjectHandle<GstElement> chain = ownFloating(gst_parse_launch_full(
        description.constData(), nullptr, GST_PARSE_FLAG_FATAL_ERRORS, &reason));
    const GlibErrorHandle error(reason);
    if (!chain)
        return false;
    gst_element_set_state(chain.get(), GST_STATE_PLAYING);
    const GstObjectHandle<GstBus> bus(gst_element_get_bus(chain.get()));
    const GstMiniHandle<GstMessage> end(gst_bus_timed_pop_filtered(
        bus.get(), trialLimit, GstMessageType(GST_MESSAGE_EOS | GST_MESSAGE_ERROR)));
    const bool complete =
        end && GST_MESSAGE_TYPE(end.get()) == GST_MESSAGE_EOS && hasArrived(chain.get());
    gst_element_set_state(chain.get(), GST_STATE_NULL);
    return complete;
}

static QByteArray firstThatWorks(const QByteArray &source, const QVector<QByteArray> &coders)
{
    for (const QByteArray &coder : coders) {
        if (works(source, coder)) {
            qCInfo(engineLog) << "movies are written with" << coder;
            return coder;
        }
    }
    qCWarning(engineLog, "no coder for movies works");
    return {};
}

static MovieCoding find(const QSize &size, double rate)
{
    const QByteArray frames = "videotestsrc num-buffers=" + QByteArray::number(trialFrames)
        + " ! video/x-raw,format=I420,framerate=30/1,width=" + QByteArray::number(size.width() & ~1)
        + ",height=" + QByteArray::number(size.height() & ~1);
    const QByteArray sound = "audiotestsrc num-buffers=" + QByteArray::number(trialFrames)
        + " ! audioconvert ! audio/x-raw,rate=48000,channels=2";
    return {firstThatWorks(frames, videoCoders(size, rate)), firstThatWorks(sound, soundCoders())};
}

MovieCodingSearch::MovieCodingSearch(const QSize &size, double rate)
    : m_found(std::make_shared<MovieCoding>())
    , m_task([found = m_found, size, rate] { *found = find(size, rate); })
{
}

MovieCoding MovieCodingSearch::waitUntil(std::chrono::steady_clock::time_point deadline) const
{
    return m_task.waitUntil(deadline) ? *m_found : MovieCoding();
}
