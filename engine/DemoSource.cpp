#include "DemoSource.h"

#include "DemoDesk.h"
#include "DemoScene.h"

#include <gst/app/gstappsrc.h>

#include <QDateTime>

#include <cmath>

static constexpr int rate = 30; // pictures a second
static constexpr GstClockTime pictureTime = GST_SECOND / rate;
static constexpr int soundRate = 48000; // samples a second
static constexpr GstClockTime soundTime = 20 * GST_MSECOND; // of one buffer
static constexpr GstClockTime mostLate = GST_SECOND; // sound that is later than this is left out
static constexpr int samplesOfBuffer = int(soundRate * soundTime / GST_SECOND);

namespace {

/// The clock and the zero of the pipeline that a source is in.
class PipelineTime {
public:
    explicit PipelineTime(GstElement *source)
        : m_clock(gst_element_get_clock(source))
        , m_base(gst_element_get_base_time(source))
    {
    }

    /// False when the pipeline does not run.
    bool isThere() const { return m_clock != nullptr; }

    GstClockTime now() const
    {
        const GstClockTime time = gst_clock_get_time(m_clock.get());
        return time > m_base ? time - m_base : 0;
    }

    /// At most as long as a picture or a piece of sound lasts: who stops the source waits for it.
    void waitUntil(GstClockTime time) const
    {
        GstClockID alarm = gst_clock_new_single_shot_id(m_clock.get(), m_base + time);
        gst_clock_id_wait(alarm, nullptr);
        gst_clock_id_unref(alarm);
    }

    /// What the computer's clock shows at @p time, µs since 1970.
    qint64 wallTimeAt(GstClockTime time) const
    {
        return g_get_real_time() + (qint64(time) - qint64(now())) / 1000;
    }

private:
    const GstObjectHandle<GstClock> m_clock;
    const GstClockTime m_base;
};

/// Belongs to one source and is called by its streaming thread only.
struct PictureFeed {
    std::unique_ptr<DemoScene> scene; ///< drawn with the first picture
    GstClockTime last = GST_CLOCK_TIME_NONE;
};

struct SoundFeed {
    GstClockTime next = 0;
};

} // namespace

GstMiniHandle<GstCaps> DemoSource::pictureFormat()
{
    return GstMiniHandle<GstCaps>(gst_caps_new_simple(
        "video/x-raw", "format", G_TYPE_STRING, "I420", "width", G_TYPE_INT, DemoPlaces::width,
        "height", G_TYPE_INT, DemoPlaces::height, "framerate", GST_TYPE_FRACTION, rate, 1,
        "colorimetry", G_TYPE_STRING, "bt709", nullptr));
}

static void giveBack(gpointer held)
{
    auto *picture = static_cast<std::shared_ptr<DemoScene::Picture> *>(held);
    (*picture)->isFree = true;
    delete picture;
}

// Nobody may paint into it: what is there is not painted again for the next picture.
static GstBuffer *bufferOf(const std::shared_ptr<DemoScene::Picture> &picture)
{
    DemoCanvas &canvas = picture->canvas;
    return gst_buffer_new_wrapped_full(GST_MEMORY_FLAG_READONLY, canvas.pixels(), canvas.size(), 0,
                                       canvas.size(),
                                       new std::shared_ptr<DemoScene::Picture>(picture), giveBack);
}

static void sendPicture(GstAppSrc *source, guint, gpointer shared)
{
    auto &feed = *static_cast<PictureFeed *>(shared);
    if (!feed.scene)
        feed.scene = std::make_unique<DemoScene>();
    const PipelineTime time(GST_ELEMENT(source));
    if (!time.isThere())
        return;
    GstClockTime slot = (time.now() / pictureTime + 1) * pictureTime;
    if (slot == feed.last)
        slot += pictureTime;
    feed.last = slot;
    // A second that begins while the picture is shown is nearer to it than the one before.
    const qint64 moment = time.wallTimeAt(slot + pictureTime / 2) / 1000;
    GstBuffer *buffer = bufferOf(feed.scene->at(moment));
    GST_BUFFER_PTS(buffer) = slot;
    GST_BUFFER_DURATION(buffer) = pictureTime;
    time.waitUntil(slot);
    gst_app_src_push_buffer(source, buffer);
}

GstObjectHandle<GstElement> DemoSource::makePicture()
{
    GstObjectHandle<GstElement> source = ownFloating(gst_element_factory_make("appsrc", nullptr));
    if (!source)
        return nullptr;
    const GstMiniHandle<GstCaps> format = pictureFormat();
    g_object_set(source.get(), "is-live", TRUE, "format", GST_FORMAT_TIME, "caps", format.get(),
                 nullptr);
    GstAppSrcCallbacks callbacks = {};
    callbacks.need_data = sendPicture;
    gst_app_src_set_callbacks(GST_APP_SRC(source.get()), &callbacks, new PictureFeed,
                              [](gpointer feed) { delete static_cast<PictureFeed *>(feed); });
    return source;
}

void DemoSource::tick(qint16 *samples, int count, qint64 moment)
{
    static constexpr double loudness = 9000; // of 32767
    static constexpr double decay = 150; // a second
    for (int i = 0; i < count; ++i) {
        const qint64 at = moment + qint64(i) * 1000000 / soundRate;
        const double since = double(at % 1000000) / 1e6;
        const double pitch = at / 1000000 % 2 ? 1900 : 2300; // Hz: tick, tock
        samples[i] = since > 0.05
            ? qint16(0)
            : qint16(loudness * std::exp(-decay * since) * std::sin(2 * M_PI * pitch * since));
    }
}

static void sendSound(GstAppSrc *source, guint, gpointer shared)
{
    auto &feed = *static_cast<SoundFeed *>(shared);
    const PipelineTime time(GST_ELEMENT(source));
    if (!time.isThere())
        return;
    const GstClockTime now = time.now();
    if (feed.next + mostLate < now || feed.next > now + soundTime)
        feed.next = now;
    GstBuffer *buffer = gst_buffer_new_allocate(nullptr, samplesOfBuffer * sizeof(qint16), nullptr);
    GstMapInfo map;
    gst_buffer_map(buffer, &map, GST_MAP_WRITE);
    DemoSource::tick(reinterpret_cast<qint16 *>(map.data), samplesOfBuffer,
                     time.wallTimeAt(feed.next));
    gst_buffer_unmap(buffer, &map);
    GST_BUFFER_PTS(buffer) = feed.next;
    GST_BUFFER_DURATION(buffer) = soundTime;
    feed.next += soundTime;
    time.waitUntil(feed.next);
    gst_app_src_push_buffer(source, buffer);
}

void DemoSource::feedSound(GstElement *source)
{
    const GstMiniHandle<GstCaps> format(gst_caps_new_simple(
        "audio/x-raw", "format", G_TYPE_STRING, "S16LE", "layout", G_TYPE_STRING, "interleaved",
        "rate", G_TYPE_INT, soundRate, "channels", G_TYPE_INT, 1, nullptr));
    g_object_set(source, "is-live", TRUE, "format", GST_FORMAT_TIME, "caps", format.get(), nullptr);
    GstAppSrcCallbacks callbacks = {};
    callbacks.need_data = sendSound;
    gst_app_src_set_callbacks(GST_APP_SRC(source), &callbacks, new SoundFeed,
                              [](gpointer feed) { delete static_cast<SoundFeed *>(feed); });
}
