#include "SoundCardTrial.h"

#include "EngineLog.h"
#include "GstHandles.h"

using std::chrono::milliseconds;
using std::chrono::steady_clock;

static const milliseconds
    remembered(2000); // a card plugged in is found the next time the user tries

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

bool SoundCardTrial::canBeOpened(milliseconds limit)
{
    const auto now = steady_clock::now();
    if (!m_trial && m_opened && now < m_triedAt + remembered)
        return *m_opened;
    if (!m_trial)
        m_trial.emplace(opens);
    m_opened = m_trial->waitUntil(now + limit);
    if (!m_opened) {
        qCWarning(engineLog, "the sound card does not answer");
        return false;
    }
    m_trial.reset();
    m_triedAt = steady_clock::now();
    qCInfo(engineLog, *m_opened ? "the sound card can be opened" : "no sound card can be opened");
    return *m_opened;
}
