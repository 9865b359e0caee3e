#include "MovieCoding.h"

#include "BoundedTask.h"
#include "EngineLog.h"
#include "GstHandles.h"
#include "MovieCodingCache.h"
#include "PatientWait.h"
#include "PipelineTools.h"

#include <QThread>
#include <QVector>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

using std::chrono::seconds;
using std::chrono::steady_clock;

namespace {

/// An encoder that comes into question.
struct Encoder {
    QByteArray chain;
    QByteArray element; ///< that does the work
    bool isSure; ///< it works wherever it exists: no driver has a say
};

} // namespace

static const double bitsOfPixel = 0.11;
static const int trialFrames = 8;
// Longer than any encoder needs that is merely slow, or waits for the machine.
static const GstClockTime trialLimit = 30 * GST_SECOND;
static const seconds trialPatience(3); // before the next best is tried as well
static const int politeness = 4; // as much as a movie's own threads are
static const double fewestFrames = 8; // a second, for a picture that still moves
static const int smallestWidth = 320; // px

int movieBitRate(const QSize &size, double rate)
{
    return int(bitsOfPixel * size.width() * size.height() * rate);
}

int movieDivisor(double frameTime, const QSize &size)
{
    int divisor = 1;
    while (frameTime / (divisor * divisor) > 1 / fewestFrames
           && size.width() / (divisor + 1) >= smallestWidth)
        ++divisor;
    return divisor;
}

// Best first. A key frame each second, for seeking; none that refers forward, which would delay the
// picture.
static QVector<Encoder> videoEncoders(const QSize &size, double rate)
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

static QVector<Encoder> soundEncoders()
{
    return {{"avenc_aac bitrate=128000", "avenc_aac", true},
            {"fdkaacenc bitrate=128000", "fdkaacenc", true},
            {"voaacenc bitrate=128000", "voaacenc", true}};
}

static bool exists(const QByteArray &element)
{
    const GstObjectHandle<GstElementFactory> factory(gst_element_factory_find(element.constData()));
    return factory != nullptr;
}

static GstPadProbeReturn noteArrival(GstPad *, GstPadProbeInfo *, gpointer arrivals)
{
    static_cast<std::vector<steady_clock::time_point> *>(arrivals)->push_back(steady_clock::now());
    return GST_PAD_PROBE_OK;
}

// The time between two frames that the machine did not interrupt, in s.
static double frameTimeOf(const std::vector<steady_clock::time_point> &arrivals)
{
    std::vector<double> times;
    for (size_t i = 1; i < arrivals.size(); ++i)
        times.push_back(std::chrono::duration<double>(arrivals[i] - arrivals[i - 1]).count());
    if (times.empty())
        return 0;
    const auto quarter = times.begin() + std::ptrdiff_t(times.size() / 4);
    std::nth_element(times.begin(), quarter, times.end());
    return *quarter;
}

/// Lets @p encoder encode what @p source gives. What it needs for one piece of it, in s; negative
/// when it does not work.
static double tryEncoder(const QByteArray &source, const QByteArray &encoder)
{
    setpriority(PRIO_PROCESS, id_t(syscall(SYS_gettid)), politeness);
    const GstObjectHandle<GstElement> pipeline =
        parsePipeline("trial", source + " ! " + encoder + " ! fakesink name=end");
    if (!pipeline)
        return -1;
    std::vector<steady_clock::time_point> arrivals; // the pipeline's; ours once it has stopped
    const GstObjectHandle<GstElement> end(gst_bin_get_by_name(GST_BIN(pipeline.get()), "end"));
    const GstObjectHandle<GstPad> pad(gst_element_get_static_pad(end.get(), "sink"));
    gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_BUFFER, noteArrival, &arrivals, nullptr);
    gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
    const GstObjectHandle<GstBus> bus(gst_element_get_bus(pipeline.get()));
    const GstMiniHandle<GstMessage> last(gst_bus_timed_pop_filtered(
        bus.get(), trialLimit, GstMessageType(GST_MESSAGE_EOS | GST_MESSAGE_ERROR)));
    const bool isComplete = last && GST_MESSAGE_TYPE(last.get()) == GST_MESSAGE_EOS;
    if (last && !isComplete)
        qCInfo(engineLog) << "the trial of an encoder fails:" << errorText(last.get());
    dumpPipeline(pipeline.get(), isComplete ? "end" : "error");
    gst_element_set_state(pipeline.get(), GST_STATE_NULL);
    return isComplete && !arrivals.empty() ? frameTimeOf(arrivals) : -1;
}

/// What is known so far, and who finds out more.
class MovieCodingSearch::State : public std::enable_shared_from_this<State> {
public:
    State(const QSize &size, double rate);
    void search(); ///< the trials, best first
    bool waitUntilDecided(steady_clock::time_point deadline);
    MovieCoding best();
    void reject(const QByteArray &video);

private:
    enum class Verdict { Unknown, Works, Fails };
    struct Candidate {
        Encoder encoder;
        Verdict verdict = Verdict::Unknown;
        double frameTime = 0; ///< s
    };
    using Candidates = std::vector<Candidate>;

    static Candidates existing(const QVector<Encoder> &encoders);
    static const Candidate *bestOf(const Candidates &candidates);
    static bool isDecided(const Candidates &candidates);
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

MovieCodingSearch::State::State(const QSize &size, double rate)
    : m_size(size)
    , m_rate(rate)
    , m_video(existing(videoEncoders(size, rate)))
    , m_sound(existing(soundEncoders()))
{
    QByteArrayList elements;
    for (const Encoder &encoder : videoEncoders(size, rate) + soundEncoders())
        elements.append(encoder.element);
    m_key = MovieCodingCache::keyOf(size, rate, elements);
    recall();
}

MovieCodingSearch::State::Candidates
MovieCodingSearch::State::existing(const QVector<Encoder> &encoders)
{
    Candidates candidates;
    for (const Encoder &encoder : encoders)
        if (exists(encoder.element))
            candidates.push_back({encoder});
    return candidates;
}

// The best that works; while there is none, the best that should.
const MovieCodingSearch::State::Candidate *
MovieCodingSearch::State::bestOf(const Candidates &candidates)
{
    for (const Candidate &candidate : candidates) {
        const bool isHoped = candidate.encoder.isSure && candidate.verdict != Verdict::Fails;
        if (candidate.verdict == Verdict::Works || isHoped)
            return &candidate;
    }
    return nullptr;
}

bool MovieCodingSearch::State::isDecided(const Candidates &candidates)
{
    for (const Candidate &candidate : candidates)
        if (candidate.verdict != Verdict::Fails)
            return candidate.verdict == Verdict::Works;
    return true;
}

bool MovieCodingSearch::State::waitUntilDecided(steady_clock::time_point deadline)
{
    return waitPatiently(
        deadline,
        [this](steady_clock::time_point until) {
            std::unique_lock<std::mutex> lock(m_mutex);
            return m_changed.wait_until(
                lock, until, [this] { return isDecided(m_video) && isDecided(m_sound); });
        });
}

MovieCoding MovieCodingSearch::State::best()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    MovieCoding coding;
    if (const Candidate *video = bestOf(m_video)) {
        coding.video = video->encoder.chain;
        coding.divisor = movieDivisor(video->frameTime, m_size);
    }
    if (const Candidate *sound = bestOf(m_sound))
        coding.sound = sound->encoder.chain;
    return coding;
}

void MovieCodingSearch::State::reject(const QByteArray &video)
{
    MovieCodingCache::forget();
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (Candidate &candidate : m_video)
        if (candidate.encoder.chain == video)
            candidate.verdict = Verdict::Fails;
}

// Only of encoders without a driver it is believed that they still work.
void MovieCodingSearch::State::recall()
{
    const TriedCoding known = MovieCodingCache::load(m_key);
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

void MovieCodingSearch::State::remember()
{
    TriedCoding tried;
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
    MovieCodingCache::store(m_key, tried);
}

void MovieCodingSearch::State::judge(Candidates State::*kind, size_t index, double frameTime)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    Candidate &candidate = (this->*kind)[index];
    if (candidate.verdict != Verdict::Unknown)
        return;
    candidate.verdict = frameTime < 0 ? Verdict::Fails : Verdict::Works;
    candidate.frameTime = qMax(0.0, frameTime);
    qCInfo(engineLog) << candidate.encoder.element
                      << (frameTime < 0 ? "does not work" : "works, a piece takes ms:")
                      << frameTime * 1000;
    m_changed.notify_all();
}

// Until one works. One that hangs keeps only itself: the next is tried meanwhile.
void MovieCodingSearch::State::tryOut(Candidates State::*kind, const QByteArray &source)
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
        const QByteArray chain = (this->*kind)[i].encoder.chain;
        const BoundedTask trial([state = shared_from_this(), kind, i, source, chain] {
            state->judge(kind, i, tryEncoder(source, chain));
        });
        if (trial.waitUntil(steady_clock::now() + trialPatience)) {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if ((this->*kind)[i].verdict == Verdict::Works)
                return;
        }
    }
}

void MovieCodingSearch::State::search()
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

MovieCodingSearch::MovieCodingSearch(const QSize &size, double rate)
    : m_state(std::make_shared<State>(size, rate))
    // Nobody waits for all of it: what it has found so far is there at any time.
    , m_searching([state = m_state] { state->search(); })
{
}

bool MovieCodingSearch::hasEnded(steady_clock::time_point deadline) const
{
    return m_searching.waitUntil(deadline);
}

MovieCoding MovieCodingSearch::waitUntil(steady_clock::time_point deadline) const
{
    m_state->waitUntilDecided(deadline);
    MovieCoding coding = m_state->best();
    qCInfo(engineLog) << "movies are written with" << coding.video << "and" << coding.sound
                      << "smaller by" << coding.divisor;
    return coding;
}

void MovieCodingSearch::reject(const QByteArray &video)
{
    m_state->reject(video);
}
