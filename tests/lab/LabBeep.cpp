#include "LabBeep.h"

#include <pipewire/pipewire.h>
#include <spa/param/audio/format-utils.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int rate = 48000;
constexpr qint64 second = 1000000000;
constexpr qint64 toneLength = second / 10;

float sampleAt(qint64 sinceBeat)
{
    if (sinceBeat < 0 || sinceBeat >= toneLength)
        return 0;
    return float(0.5 * std::sin(2 * M_PI * 1000 * double(sinceBeat) / double(second)));
}

} // namespace

struct LabBeepEvents : pw_stream_events {
    LabBeepEvents()
        : pw_stream_events()
    {
        version = PW_VERSION_STREAM_EVENTS;
        process = [](void *self) { static_cast<LabBeep *>(self)->play(); };
    }
};

LabBeep::LabBeep(pw_loop *loop, const std::string &sink)
    : m_events(std::make_unique<LabBeepEvents>())
{
    m_stream =
        pw_stream_new_simple(loop, "labbeep",
                             pw_properties_new(PW_KEY_MEDIA_TYPE, "Audio", PW_KEY_MEDIA_CATEGORY,
                                               "Playback", PW_KEY_TARGET_OBJECT, sink.c_str(),
                                               PW_KEY_NODE_LATENCY, "256/48000", nullptr),
                             m_events.get(), this);
    if (!m_stream)
        return;
    uint8_t memory[512];
    spa_pod_builder builder = {};
    spa_pod_builder_init(&builder, memory, sizeof(memory));
    spa_audio_info_raw format = {};
    format.format = SPA_AUDIO_FORMAT_F32;
    format.channels = 1;
    format.rate = rate;
    const spa_pod *offer = spa_format_audio_raw_build(&builder, SPA_PARAM_EnumFormat, &format);
    pw_stream_connect(m_stream, PW_DIRECTION_OUTPUT, PW_ID_ANY,
                      pw_stream_flags(PW_STREAM_FLAG_AUTOCONNECT | PW_STREAM_FLAG_MAP_BUFFERS),
                      &offer, 1);
}

LabBeep::~LabBeep()
{
    if (m_stream)
        pw_stream_destroy(m_stream);
}

void LabBeep::play()
{
    pw_buffer *buffer = pw_stream_dequeue_buffer(m_stream);
    if (!buffer)
        return;
    pw_time clock = {};
    pw_stream_get_time_n(m_stream, &clock, sizeof(clock));
    spa_data &data = buffer->buffer->datas[0];
    const uint32_t room = data.maxsize / sizeof(float);
    const uint32_t wanted = buffer->requested > 0 ? uint32_t(buffer->requested) : room;
    const uint32_t count = std::min(room, wanted);
    auto *samples = static_cast<float *>(data.data);
    for (uint32_t i = 0; samples && i < count; ++i)
        samples[i] = sampleAt(clock.now + qint64(i) * second / rate - m_beat);
    data.chunk->offset = 0;
    data.chunk->stride = sizeof(float);
    data.chunk->size = count * sizeof(float);
    pw_stream_queue_buffer(m_stream, buffer);
}
