#include "LabCamera.h"

#include "LabPattern.h"

#include <pipewire/pipewire.h>
#include <spa/param/video/format-utils.h>
#include <spa/pod/builder.h>

#include <csignal>
#include <cstdio>
#include <ctime>
#include <utility>

namespace {

constexpr quint32 dimCounter = 120; // the frame at which the light goes out

qint64 nanosecondsNow()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}

spa_video_format serverFormat(FramePainter::Format format)
{
    switch (format) {
    case FramePainter::UYVY:
        return SPA_VIDEO_FORMAT_UYVY;
    case FramePainter::YUY2:
        return SPA_VIDEO_FORMAT_YUY2;
    case FramePainter::RGB:
        return SPA_VIDEO_FORMAT_RGB;
    case FramePainter::BGRx:
        return SPA_VIDEO_FORMAT_BGRx;
    case FramePainter::NV12:
        return SPA_VIDEO_FORMAT_NV12;
    case FramePainter::MJPG:
        break;
    }
    return SPA_VIDEO_FORMAT_ENCODED;
}

// One size that the camera offers, with nothing left open.
spa_pod *offer(spa_pod_builder *builder, FramePainter::Format format, QSize size, int rate)
{
    const bool encoded = format == FramePainter::MJPG;
    spa_pod_frame frame = {};
    const spa_rectangle pixels = {uint32_t(size.width()), uint32_t(size.height())};
    const spa_fraction perSecond = {uint32_t(rate), 1};
    spa_pod_builder_push_object(builder, &frame, SPA_TYPE_OBJECT_Format, SPA_PARAM_EnumFormat);
    spa_pod_builder_add(builder, SPA_FORMAT_mediaType, SPA_POD_Id(SPA_MEDIA_TYPE_video),
                        SPA_FORMAT_mediaSubtype,
                        SPA_POD_Id(encoded ? SPA_MEDIA_SUBTYPE_mjpg : SPA_MEDIA_SUBTYPE_raw), 0);
    if (!encoded)
        spa_pod_builder_add(builder, SPA_FORMAT_VIDEO_format, SPA_POD_Id(serverFormat(format)), 0);
    spa_pod_builder_add(builder, SPA_FORMAT_VIDEO_size, SPA_POD_Rectangle(&pixels),
                        SPA_FORMAT_VIDEO_framerate, SPA_POD_Fraction(&perSecond), 0);
    return static_cast<spa_pod *>(spa_pod_builder_pop(builder, &frame));
}

} // namespace

// The media server's callbacks, which only hand over to the camera.
struct LabCameraEvents : pw_stream_events {
    LabCameraEvents()
        : pw_stream_events()
    {
        version = PW_VERSION_STREAM_EVENTS;
        state_changed = [](void *self, pw_stream_state, pw_stream_state state, const char *) {
            static_cast<LabCamera *>(self)->stateChanged(state);
        };
        param_changed = [](void *self, uint32_t id, const spa_pod *param) {
            if (id == SPA_PARAM_Format) {
                static_cast<LabCamera *>(self)->formatChosen(param);
            }
        };
        process = [](void *self) { static_cast<LabCamera *>(self)->sendFrame(); };
    }
};

LabCamera::LabCamera(Options options)
    : m_options(std::move(options))
    , m_events(std::make_unique<LabCameraEvents>())
{
    if (!m_options.times.empty())
        m_times.open(m_options.times);
    m_loop = pw_main_loop_new(nullptr);
    pw_loop *loop = pw_main_loop_get_loop(m_loop);
    m_timer = pw_loop_add_timer(
        loop, [](void *self, uint64_t) { static_cast<LabCamera *>(self)->tick(); }, this);
    const auto quit = [](void *self, int) {
        pw_main_loop_quit(static_cast<LabCamera *>(self)->m_loop);
    };
    pw_loop_add_signal(loop, SIGTERM, quit, this);
    pw_loop_add_signal(loop, SIGINT, quit, this);
    pw_loop_add_signal(
        loop, SIGUSR1, [](void *self, int) { static_cast<LabCamera *>(self)->m_frozen = true; },
        this);
    pw_loop_add_signal(
        loop, SIGUSR2, [](void *self, int) { static_cast<LabCamera *>(self)->m_frozen = false; },
        this);
}

LabCamera::~LabCamera()
{
    m_beep.reset();
    if (m_stream)
        pw_stream_destroy(m_stream);
    pw_main_loop_destroy(m_loop);
}

int LabCamera::run()
{
    connectStream();
    if (!m_options.beepSink.empty())
        m_beep = std::make_unique<LabBeep>(pw_main_loop_get_loop(m_loop), m_options.beepSink);
    pw_main_loop_run(m_loop);
    return m_announced ? 0 : 1;
}

void LabCamera::connectStream()
{
    pw_properties *properties = pw_properties_new(
        PW_KEY_MEDIA_CLASS, "Video/Source", PW_KEY_MEDIA_ROLE, "Camera", PW_KEY_NODE_NAME,
        m_options.name.c_str(), PW_KEY_NODE_DESCRIPTION, m_options.description.c_str(), nullptr);
    if (!m_options.serial.empty())
        pw_properties_set(properties, PW_KEY_DEVICE_SERIAL, m_options.serial.c_str());
    m_stream = pw_stream_new_simple(pw_main_loop_get_loop(m_loop), m_options.name.c_str(),
                                    properties, m_events.get(), this);
    if (!m_stream) {
        pw_main_loop_quit(m_loop);
        return;
    }
    std::vector<uint8_t> memory(m_options.sizes.size() * 512);
    spa_pod_builder builder = {};
    spa_pod_builder_init(&builder, memory.data(), uint32_t(memory.size()));
    std::vector<const spa_pod *> offers;
    for (const QSize size : m_options.sizes)
        offers.push_back(offer(&builder, m_options.format, size, m_options.rate));
    pw_stream_connect(m_stream, PW_DIRECTION_OUTPUT, PW_ID_ANY,
                      pw_stream_flags(PW_STREAM_FLAG_DRIVER | PW_STREAM_FLAG_MAP_BUFFERS),
                      offers.data(), uint32_t(offers.size()));
}

void LabCamera::stateChanged(int state)
{
    // Told of a viewer with whom no format could be agreed, too: the camera waits for the next one.
    if (state == PW_STREAM_STATE_ERROR
        && pw_stream_get_state(m_stream, nullptr) != PW_STREAM_STATE_ERROR)
        return;
    m_streaming = state == PW_STREAM_STATE_STREAMING;
    setPaced(m_streaming);
    if (state == PW_STREAM_STATE_PAUSED && !m_announced) {
        m_announced = true;
        std::printf("ready %u\n", pw_stream_get_node_id(m_stream));
        std::fflush(stdout);
    }
    if (state == PW_STREAM_STATE_ERROR || state == PW_STREAM_STATE_UNCONNECTED)
        pw_main_loop_quit(m_loop);
}

void LabCamera::formatChosen(const spa_pod *format)
{
    if (!format) {
        m_painter.reset();
        return;
    }
    spa_video_info info = {};
    if (spa_format_video_parse(format, &info) < 0)
        return;
    const spa_rectangle size =
        m_options.format == FramePainter::MJPG ? info.info.mjpg.size : info.info.raw.size;
    m_painter = std::make_unique<FramePainter>(
        m_options.format, QSize(int(size.width), int(size.height)),
        LabPattern::groundOf(QString::fromStdString(m_options.name)));
    if (!m_options.scene.empty())
        m_painter->setScene(QImage(QString::fromStdString(m_options.scene)));
    announceBuffers();
}

void LabCamera::announceBuffers()
{
    uint8_t memory[1024];
    spa_pod_builder builder = {};
    spa_pod_builder_init(&builder, memory, sizeof(memory));
    const spa_pod *params[2];
    spa_pod_frame frame = {};
    spa_pod_builder_push_object(&builder, &frame, SPA_TYPE_OBJECT_ParamBuffers, SPA_PARAM_Buffers);
    spa_pod_builder_add(&builder, SPA_PARAM_BUFFERS_buffers, SPA_POD_CHOICE_RANGE_Int(8, 2, 16),
                        SPA_PARAM_BUFFERS_blocks, SPA_POD_Int(1), SPA_PARAM_BUFFERS_size,
                        SPA_POD_Int(m_painter->frameBytes()), SPA_PARAM_BUFFERS_stride,
                        SPA_POD_Int(m_painter->stride()), 0);
    params[0] = static_cast<spa_pod *>(spa_pod_builder_pop(&builder, &frame));
    spa_pod_builder_push_object(&builder, &frame, SPA_TYPE_OBJECT_ParamMeta, SPA_PARAM_Meta);
    spa_pod_builder_add(&builder, SPA_PARAM_META_type, SPA_POD_Id(SPA_META_Header),
                        SPA_PARAM_META_size, SPA_POD_Int(int(sizeof(spa_meta_header))), 0);
    params[1] = static_cast<spa_pod *>(spa_pod_builder_pop(&builder, &frame));
    pw_stream_update_params(m_stream, params, 2);
}

void LabCamera::setPaced(bool paced)
{
    // A first expiry of zero would switch the timer off, so it comes after a nanosecond.
    timespec first = {0, paced ? 1 : 0};
    timespec period = {0, paced ? 1000000000L / m_options.rate : 0};
    if (paced && m_options.rate == 1)
        period = {1, 0}; // a timer takes no whole second for nanoseconds
    pw_loop_update_timer(pw_main_loop_get_loop(m_loop), m_timer, &first, &period, false);
}

void LabCamera::tick()
{
    if (!m_frozen && m_streaming) {
        m_frameDue = true;
        pw_stream_trigger_process(m_stream);
    }
}

void LabCamera::sendFrame()
{
    if (!m_frameDue || !m_painter)
        return;
    m_frameDue = false;
    if (m_times.is_open())
        m_times << m_counter << ' ' << nanosecondsNow() << std::endl;
    if (pw_buffer *buffer = pw_stream_dequeue_buffer(m_stream)) {
        fill(buffer);
        pw_stream_queue_buffer(m_stream, buffer);
    }
    ++m_counter;
    if (m_options.dimRate > 0 && m_counter == dimCounter) {
        m_options.rate = m_options.dimRate;
        setPaced(true);
    }
    announceBeat();
}

// Half a beat ahead, when the last tone is over.
void LabCamera::announceBeat()
{
    using LabPattern::beatFrames;
    const quint32 framesToGo = beatFrames - m_counter % beatFrames;
    if (m_beep && framesToGo == beatFrames / 2) {
        // The frame just sent was the one before m_counter.
        m_beep->setNextBeat(nanosecondsNow()
                            + qint64(framesToGo + 1) * 1000000000 / m_options.rate);
    }
}

void LabCamera::fill(pw_buffer *buffer)
{
    spa_data &data = buffer->buffer->datas[0];
    if (!data.data)
        return;
    data.chunk->offset = 0;
    data.chunk->stride = m_painter->stride();
    data.chunk->size = uint32_t(m_painter->paint(static_cast<uchar *>(data.data), m_counter));
    auto *header = static_cast<spa_meta_header *>(
        spa_buffer_find_meta_data(buffer->buffer, SPA_META_Header, sizeof(spa_meta_header)));
    if (header) {
        header->pts = nanosecondsNow();
        header->flags = 0;
        header->seq = m_counter;
        header->dts_offset = 0;
    }
}
