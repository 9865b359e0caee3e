#include "MovieMaker.h"

#include "BoundedTask.h"
#include "EngineLog.h"
#include "MovieCompletion.h"
#include "MovieRecorder.h"
#include "PatientWait.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

#include <mutex>

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

// For each step of a start; all of them together end with the operation that they are part of, so
// that on a slow machine one may take the time that the others leave.
static const milliseconds startLimit = PatientCall::usualLimit;
static const milliseconds finishLimit(4000); // and 1 s for the microphone
static const seconds exitLimit(10); // for files that are still being completed

namespace {

/// A movie cannot go on.
class MovieEndedEvent : public QEvent {
public:
    explicit MovieEndedEvent(int number)
        : QEvent(QEvent::User)
        , movie(number)
    {
    }

    const int movie;
};

} // namespace

/// Brings the news of a failed movie from its pipeline's thread to the GUI's.
class MovieMaker::Watch : public QObject {
public:
    explicit Watch(std::function<void()> ended)
        : m_ended(std::move(ended))
        , m_address(std::make_shared<Address>())
    {
        m_address->watch = this;
    }

    ~Watch() override
    {
        const std::lock_guard<std::mutex> lock(m_address->mutex);
        m_address->watch = nullptr;
    }

    Q_DISABLE_COPY(Watch)

    /// What the recorder of the next movie shall call. Any thread may, at any time.
    std::function<void()> next()
    {
        return [address = m_address, movie = ++m_movie] {
            const std::lock_guard<std::mutex> lock(address->mutex);
            if (address->watch)
                QCoreApplication::postEvent(address->watch, new MovieEndedEvent(movie));
        };
    }

    void forget() { ++m_movie; } ///< the movie is over: news of it are none

protected:
    bool event(QEvent *event) override
    {
        const auto *news = dynamic_cast<MovieEndedEvent *>(event);
        if (!news)
            return QObject::event(event);
        if (news->movie == m_movie)
            m_ended();
        return true;
    }

private:
    /// Where the news go, which may come from a pipeline that hangs, long after.
    struct Address {
        std::mutex mutex; ///< guards watch
        Watch *watch = nullptr;
    };

    const std::function<void()> m_ended;
    const std::shared_ptr<Address> m_address;
    int m_movie = 0; ///< number of the one that is watched
};

MovieMaker::MovieMaker(MicrophoneFinder &microphones, std::function<void()> ended)
    : m_microphones(microphones)
    , m_tap(std::make_shared<FrameTap>())
    , m_watch(std::make_unique<Watch>(std::move(ended)))
{
}

MovieMaker::~MovieMaker()
{
    stop();
    if (!MovieCompletion::waitForAll(steady_clock::now() + exitLimit))
        qCWarning(engineLog, "a capture is not completed; of a movie the last moment may miss");
}

void MovieMaker::prepare(const QSize &size, double rate)
{
    if (m_search && size == m_searchedSize && qFuzzyCompare(rate, m_searchedRate))
        return;
    m_searchedSize = size;
    m_searchedRate = rate;
    m_search = std::make_unique<EncoderSearch>(size, rate);
}

void MovieMaker::record(const QString &path, const GstVideoInfo &format)
{
    if (m_recorder)
        return;
    devicesChanged(); // from now on the question is about this movie
    m_outcome = begin(path, format);
    if (m_outcome != MovieOutcome::Begun) {
        qCInfo(engineLog) << "no movie begins, outcome" << int(m_outcome);
        m_watch->forget();
        m_microphone.reset();
        m_recorder.reset();
    }
    if (m_outcome == MovieOutcome::NoMicrophone)
        m_microphones.refuse();
}

void MovieMaker::refuse(MovieOutcome why)
{
    if (m_recorder)
        return;
    devicesChanged();
    m_outcome = why;
}

// An encoder's driver and a disk may hang: a movie that begins too late is ended by its last owner,
// and its file goes with it.
static std::shared_ptr<MovieRecorder> startWithin(milliseconds limit, const QString &path,
                                                  const GstVideoInfo &format,
                                                  const MovieEncoding &encoding,
                                                  const std::function<void()> &failed)
{
    const BoundedTask starting([path, format, encoding, failed] {
        return MovieRecorder::start(path, format, encoding, failed);
    });
    return starting.waitUntil(steady_clock::now() + limit).value_or(nullptr);
}

MovieOutcome MovieMaker::begin(const QString &path, const GstVideoInfo &format)
{
    if (!m_microphones.chosen())
        return MovieOutcome::NoMicrophone;
    const MovieEncoding encoding =
        m_search ? m_search->waitUntil(steady_clock::now() + startLimit) : MovieEncoding();
    if (!encoding.isComplete())
        return MovieOutcome::NoEncoder;
    m_microphone = m_microphones.open(startLimit);
    if (!m_microphone)
        return MovieOutcome::NoMicrophone;
    m_recorder = startWithin(startLimit, path, format, encoding, m_watch->next());
    if (!m_recorder)
        return MovieOutcome::NoFile;
    m_encoder = encoding.video;
    m_microphone->handTo(m_recorder);
    m_tap->handTo(m_recorder);
    return MovieOutcome::Begun;
}

void MovieMaker::stop()
{
    if (!m_recorder)
        return;
    m_recorder->finish(finishLimit);
    m_watch->forget();
    if (m_recorder->encoderFailed())
        m_search->reject(m_encoder);
    m_tap->handTo(nullptr);
    m_microphone.reset();
    m_recorder.reset();
    m_outcome = MovieOutcome::None;
}

void MovieMaker::devicesChanged()
{
    m_outcome = MovieOutcome::None;
    m_microphones.forgetRefusal();
}
