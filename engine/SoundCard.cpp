#include "SoundCard.h"

#include "EngineLog.h"
#include "GstHandles.h"

using std::chrono::milliseconds;
using std::chrono::steady_clock;

static const milliseconds remembered(2000);

static bool opens()
{
    const GstObjectHandle<GstElement> source =
        ownFloating(gst_element_factory_make("alsasrc", nullptr));
    if (!source)
        return false;
    const bool opened =
        gst_element_set_state(source.get(), GST_STATE_READY) != GST_STATE_CHANGE_FAILURE;
    gst_element_set_state(source.get(), GST_STATE_NULL);
    return opened;
}

SoundCard::SoundCard(std::function<void()> changed)
    : m_changed(std::move(changed))
{
}

bool SoundCard::canBeOpened(milliseconds limit)
{
    const auto now = steady_clock::now();
    if (!m_trial && m_tried && now < m_triedAt + remembered)
        return m_opened;
    if (!m_trial)
        m_trial.emplace(opens);
    const std::optional<bool> opened = m_trial->waitUntil(now + limit);
    if (!opened) {
        qCWarning(engineLog, "the sound card does not answer");
        return false;
    }
    m_trial.reset();
    const bool isOther = m_tried && *opened != m_opened;
    m_tried = true;
    m_triedAt = steady_clock::now();
    m_opened = *opened;
    qCInfo(engineLog, m_opened ? "the sound card can be opened" : "no sound card can be opened");
    if (isOther)
        m_changed();
    return m_opened;
}
