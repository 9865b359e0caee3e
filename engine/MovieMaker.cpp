#include "MovieMaker.h"

#include "EngineLog.h"
#include "MovieRecorder.h"

using std::chrono::milliseconds;
using std::chrono::steady_clock;

static const milliseconds codingLimit(600);
static const milliseconds microphoneLimit(1000);
static const milliseconds finishLimit(4000); // and 1 s for the microphone

MovieMaker::MovieMaker()
    : m_tap(std::make_shared<FrameTap>())
{
}

MovieMaker::~MovieMaker()
{
    stop();
}

void MovieMaker::prepare(const QSize &size, double rate)
{
    if (m_search && size == m_searchedSize && qFuzzyCompare(rate, m_searchedRate))
        return;
    m_searchedSize = size;
    m_searchedRate = rate;
    m_search = std::make_unique<MovieCodingSearch>(size, rate);
}

MovieCoding MovieMaker::coding() const
{
    return m_search ? m_search->waitUntil(steady_clock::now() + codingLimit) : MovieCoding();
}

void MovieMaker::record(const QString &path, const GstVideoInfo &format)
{
    if (m_recorder)
        return;
    const MovieCoding found = coding();
    m_pictureFailed = !found.isComplete();
    if (m_pictureFailed)
        return;
    m_microphone = Microphone::open(microphoneLimit);
    m_microphoneFailed = !m_microphone;
    if (m_microphoneFailed)
        return;
    m_recorder = MovieRecorder::start(path, format, found);
    m_pictureFailed = !m_recorder;
    if (m_pictureFailed) {
        m_microphone.reset();
        return;
    }
    m_microphone->record(m_recorder);
    m_tap->record(m_recorder);
}

void MovieMaker::stop()
{
    if (!m_recorder)
        return;
    m_recorder->finish(finishLimit);
    m_tap->record(nullptr);
    m_microphone.reset();
    m_recorder.reset();
}

bool MovieMaker::hasPicture() const
{
    return !m_pictureFailed && coding().isComplete();
}

bool MovieMaker::hasSound() const
{
    return !m_microphoneFailed;
}

bool MovieMaker::isListening() const
{
    return m_microphone != nullptr;
}

void MovieMaker::devicesChanged()
{
    m_microphoneFailed = false;
}
