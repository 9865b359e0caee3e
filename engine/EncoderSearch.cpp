#include "EncoderSearch.h"

#include "EncoderCache.h"
#include "EncoderTrial.h"
#include "EngineLog.h"
#include "GstHandles.h"
#include "PatientWait.h"

#include <condition_variable>
#include <mutex>
#include <vector>

using std::chrono::seconds;
using std::chrono::steady_clock;

static const int trialFrames = 8; // or pieces of sound: the fewest that show a usual time
static const seconds trialPatience(3); // before the next best is tried as well

static bool exists(const QByteArray &element)
{
    const GstObjectHandle<GstElementFactory> factory(gst_element_factory_find(element.constData()));
    return factory != nullptr;
}

/// What is known so far, and who finds out more.
class EncoderSearch::State : public std::enable_shared_from_this<State> {
public:
    State(const QSize &size, double rate);
    void search(); ///< the trials, best first
    bool waitUntilDecided(steady_clock::time_point deadline);
    MovieEncoding best();
    EncoderFindings findings();
    void reject(const QByteArray &video);

private:
    using Verdict = EncoderFinding::Verdict;
    struct Candidate {
        Encoder encoder;
        Verdict verdict = Verdict::Untried;
        double frameTime = 0; ///< s
    };
    using Candidates = std::vector<Candidate>;

    static Candidates existing(const QVector<Encoder> &encoders);
    static const Candidate *bestOf(const Candidates &candidates);
    static bool isDecided(const Candidates &candidates);
    static QVector<EncoderFinding> findingsOf(const QVector<Encoder> &encoders,
                                              const Candidates &candidates);
    void recall();
    void remember();
    void tryOut(Candidates State::*kind, const QByteArray &source);
    void judge(Candidates State::*kind, size_t index, double frameTime);

    const QSize m_size;
    const double m_rate;
    QByteArray m_key; ///< of the cache

    std::mutex m_mutex; ///< guards the candidates
    std::condition_variable m_changed;
    Candidates m_video; ///< best first
    Candidates m_sound;
};

EncoderSearch::State::State(const QSize &size, double rate)
    : m_size(size)
    , m_rate(rate)
    , m_video(existing(videoEncoders(size, rate)))
    , m_sound(existing(soundEncoders()))
{
    QByteArrayList elements;
    for (const Encoder &encoder : videoEncoders(size, rate) + soundEncoders())
        elements.append(encoder.element);
    m_key = EncoderCache::keyOf(size, rate, elements);
    recall();
}

EncoderSearch::State::Candidates EncoderSearch::State::existing(const QVector<Encoder> &encoders)
{
    Candidates candidates;
    for (const Encoder &encoder : encoders)
        if (exists(encoder.element))
            candidates.push_back({encoder});
    return candidates;
}

// The best that works; while there is none, the best that should.
const EncoderSearch::State::Candidate *EncoderSearch::State::bestOf(const Candidates &candidates)
{
    for (const Candidate &candidate : candidates) {
        const bool isHoped = candidate.encoder.isSure && candidate.verdict != Verdict::Fails;
        if (candidate.verdict == Verdict::Works || isHoped)
            return &candidate;
    }
    return nullptr;
}

bool EncoderSearch::State::isDecided(const Candidates &candidates)
{
    for (const Candidate &candidate : candidates)
        if (candidate.verdict != Verdict::Fails)
            return candidate.verdict == Verdict::Works;
    return true;
}

bool EncoderSearch::State::waitUntilDecided(steady_clock::time_point deadline)
{
    return waitPatiently(
        deadline,
        [this](steady_clock::time_point until) {
            std::unique_lock<std::mutex> lock(m_mutex);
            return m_changed.wait_until(
                lock, until, [this] { return isDecided(m_video) && isDecided(m_sound); });
        });
}

MovieEncoding EncoderSearch::State::best()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    MovieEncoding encoding;
    if (const Candidate *video = bestOf(m_video)) {
        encoding.video = video->encoder.description;
        encoding.divisor = movieDivisor(video->frameTime, m_size);
    }
    if (const Candidate *sound = bestOf(m_sound))
        encoding.sound = sound->encoder.description;
    return encoding;
}

QVector<EncoderFinding> EncoderSearch::State::findingsOf(const QVector<Encoder> &encoders,
                                                         const Candidates &candidates)
{
    QVector<EncoderFinding> findings;
    for (const Encoder &encoder : encoders) {
        EncoderFinding finding{encoder.element};
        for (const Candidate &candidate : candidates)
            if (candidate.encoder.element == encoder.element)
                finding = {encoder.element, candidate.verdict, candidate.frameTime};
        findings.append(finding);
    }
    return findings;
}

EncoderFindings EncoderSearch::State::findings()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return {findingsOf(videoEncoders(m_size, m_rate), m_video),
            findingsOf(soundEncoders(), m_sound)};
}

void EncoderSearch::State::reject(const QByteArray &video)
{
    EncoderCache::forget();
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (Candidate &candidate : m_video)
        if (candidate.encoder.description == video)
            candidate.verdict = Verdict::Fails;
}

// Only of encoders without a driver it is believed that they still work.
void EncoderSearch::State::recall()
{
    const TriedEncoders known = EncoderCache::load(m_key);
    if (known.isEmpty())
        return;
    for (Candidate &candidate : m_video) {
        if (known.failed.contains(candidate.encoder.element))
            candidate.verdict = Verdict::Fails;
        if (candidate.encoder.isSure && candidate.encoder.element == known.video) {
            candidate.verdict = Verdict::Works;
            candidate.frameTime = known.frameTime;
        }
    }
    for (Candidate &candidate : m_sound)
        if (candidate.encoder.element == known.sound)
            candidate.verdict = Verdict::Works;
}

void EncoderSearch::State::remember()
{
    TriedEncoders tried;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        const Candidate *video = bestOf(m_video);
        const Candidate *sound = bestOf(m_sound);
        if (!video || !sound || !isDecided(m_video) || !isDecided(m_sound)
            || !video->encoder.isSure)
            return;
        tried.video = video->encoder.element;
        tried.frameTime = video->frameTime;
        tried.sound = sound->encoder.element;
        for (const Candidate &candidate : m_video)
            if (candidate.verdict == Verdict::Fails)
                tried.failed.append(candidate.encoder.element);
    }
    EncoderCache::store(m_key, tried);
}

void EncoderSearch::State::judge(Candidates State::*kind, size_t index, double frameTime)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Candidate &candidate = (this->*kind)[index];
    if (candidate.verdict != Verdict::Untried)
        return;
    candidate.verdict = frameTime < 0 ? Verdict::Fails : Verdict::Works;
    candidate.frameTime = qMax(0.0, frameTime);
    qCInfo(engineLog) << candidate.encoder.element
                      << (frameTime < 0 ? "does not work" : "works, a piece takes ms:")
                      << frameTime * 1000;
    m_changed.notify_all();
}

// Until one works. One that hangs keeps only itself: the next is tried meanwhile.
void EncoderSearch::State::tryOut(Candidates State::*kind, const QByteArray &source)
{
    for (size_t i = 0; i < (this->*kind).size(); ++i) {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (isDecided(this->*kind))
                return;
            if ((this->*kind)[i].verdict == Verdict::Works)
                return;
            if ((this->*kind)[i].verdict == Verdict::Fails)
                continue;
        }
        const QByteArray description = (this->*kind)[i].encoder.description;
        const BoundedTask trial([state = shared_from_this(), kind, i, source, description] {
            state->judge(kind, i, tryEncoder(source, description));
        });
        if (trial.waitUntil(steady_clock::now() + trialPatience)) {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if ((this->*kind)[i].verdict == Verdict::Works)
                return;
        }
    }
}

void EncoderSearch::State::search()
{
    if (waitUntilDecided(steady_clock::now()))
        return; // by what was remembered
    const QByteArray sound = "audiotestsrc num-buffers=" + QByteArray::number(trialFrames)
        + " ! audioconvert ! audio/x-raw,rate=48000,channels=2";
    tryOut(&State::m_sound, sound);
    const QByteArray frames = "videotestsrc num-buffers=" + QByteArray::number(trialFrames)
        + " ! video/x-raw,format=I420,framerate=30/1,width="
        + QByteArray::number(m_size.width() & ~1)
        + ",height=" + QByteArray::number(m_size.height() & ~1);
    tryOut(&State::m_video, frames);
    if (!best().isComplete())
        qCWarning(engineLog, "no encoder for movies works");
    remember();
}

EncoderSearch::EncoderSearch(const QSize &size, double rate)
    : m_state(std::make_shared<State>(size, rate))
    // Nobody waits for all of it: what it has found so far is there at any time.
    , m_searching([state = m_state] { state->search(); })
{
}

bool EncoderSearch::hasEnded(steady_clock::time_point deadline) const
{
    return m_searching.waitUntil(deadline);
}

MovieEncoding EncoderSearch::waitUntil(steady_clock::time_point deadline) const
{
    m_state->waitUntilDecided(deadline);
    MovieEncoding encoding = m_state->best();
    qCInfo(engineLog) << "movies are written with" << encoding.video << "and" << encoding.sound
                      << "smaller by" << encoding.divisor;
    return encoding;
}

EncoderFindings EncoderSearch::findings() const
{
    return m_state->findings();
}

void EncoderSearch::reject(const QByteArray &video)
{
    m_state->reject(video);
}
