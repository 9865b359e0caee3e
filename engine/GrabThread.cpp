#include "GrabThread.h"

#include "CameraFrame.h"
#include "CameraPipeline.h"
#include "EngineLog.h"
#include "PatientWait.h"
#include "PictureConverter.h"
#include "SilenceWatch.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>

#include <atomic>
#include <condition_variable>
#include <mutex>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

static const milliseconds closeLimit(2000);
static const milliseconds pullLimit(50); // how long a stop may go unnoticed
// How long a failure or a silence may go unnoticed while nobody needs a frame.
static const milliseconds restingLook(500);

class GrabThread::Private {
public:
    enum class State { Opening, Running, Resting, Failed };

    // Worker only.
    std::unique_ptr<CameraPipeline> camera; ///< handed over before the worker starts
    quint64 frames = 0;

    PictureConverter converter{QImage::Format_RGB32}; ///< GUI thread only
    std::atomic<quint64> painted{0};

    std::atomic<bool> stop{false};

    /// Guards everything below, and the thread's m_lastFrame.
    mutable std::mutex mutex;
    std::condition_variable changed; ///< of state, mayRest or stop
    State state = State::Opening;
    std::shared_ptr<const CameraFrame> frame;
    bool seen = false;
    bool mayRest = false;
    bool announced = false; ///< grabtrue() is under way and its frame was not painted yet
};

GrabThread::GrabThread(QObject *parent)
    : QThread(parent)
    , d(std::make_unique<Private>())
{
    setObjectName(QStringLiteral("grab"));
}

GrabThread::~GrabThread() = default;

void GrabThread::capture(std::unique_ptr<CameraPipeline> camera)
{
    d->camera = std::move(camera);
    start();
}

bool GrabThread::waitForFrame(int limit)
{
    waitPatiently(steady_clock::now() + milliseconds(limit), [this](auto until) {
        std::unique_lock<std::mutex> lock(d->mutex);
        return d->changed.wait_until(lock, until, [this] {
            return d->state == Private::State::Running || d->state == Private::State::Failed;
        }) || PatientCall::isInterrupted();
    });
    const std::lock_guard<std::mutex> lock(d->mutex);
    return d->state == Private::State::Running;
}

bool GrabThread::hasFailed() const
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    return d->state == Private::State::Failed;
}

void GrabThread::setSeen(bool seen)
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    d->seen = seen;
}

void GrabThread::setResting(bool resting)
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    d->mayRest = resting;
    d->changed.notify_all();
}

std::shared_ptr<const CameraFrame> GrabThread::takeFrame()
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    d->announced = false;
    return d->frame;
}

bool GrabThread::paintInto(QImage *picture)
{
    const std::shared_ptr<const CameraFrame> frame = takeFrame();
    if (!frame || !d->converter.fill(*frame, picture))
        return false;
    ++d->painted;
    return true;
}

QImage GrabThread::takePicture(const QSize &size)
{
    const std::shared_ptr<const CameraFrame> frame = takeFrame();
    m_picture = frame ? d->converter.convert(*frame, size, std::move(m_picture)) : QImage();
    return m_picture;
}

std::shared_ptr<const CameraFrame> GrabThread::newestFrame() const
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    return d->frame;
}

void GrabThread::retire(GrabThread *thread)
{
    if (!thread)
        return;
    thread->disconnect();
    {
        const std::lock_guard<std::mutex> lock(thread->d->mutex);
        thread->d->stop = true;
        thread->d->changed.notify_all();
    }
    // Deletes itself when it ends late; until then nothing refers to it any more.
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    const bool ended =
        waitPatiently(steady_clock::now() + closeLimit, [thread](steady_clock::time_point until) {
            return thread->wait(QDeadlineTimer(until));
        });
    if (ended) {
        thread->disconnect();
        delete thread;
    } else {
        qCWarning(engineLog, "the camera does not close; it is left behind");
    }
}

void GrabThread::run()
{
    if (d->camera->play())
        grabUntilEnd();
    else
        qCInfo(engineLog) << "the camera refuses:" << d->camera->failure();
    forgetFrames();
    if (!d->stop) {
        {
            const std::lock_guard<std::mutex> lock(d->mutex);
            d->state = Private::State::Failed;
            d->changed.notify_all();
        }
        Q_EMIT deviceerr();
    }
    d->camera.reset(); // may take long, so everybody has been told before
    qCDebug(engineLog) << d->frames << "frames taken," << d->painted << "painted";
}

// A camera that hangs reports nothing: its frames just stop.
void GrabThread::grabUntilEnd()
{
    SilenceWatch watch(d->camera->mode().rate());
    while (!d->stop) {
        QElapsedTimer look;
        look.start();
        const bool rests = beginRest();
        const std::shared_ptr<CameraFrame> frame = rests
            ? nullptr
            : CameraFrame::fromSample(d->camera->nextSample(int(pullLimit.count())));
        const bool sends = frame || (rests && rest());
        const QString failure = d->camera->failure();
        if (!failure.isEmpty()) {
            qCInfo(engineLog) << "the camera failed:" << failure;
            return;
        }
        if (frame) {
            keepFrame(frame);
            announceFrame();
        }
        if (sends) {
            watch.frameCame();
            continue;
        }
        // One look more than the limit asks for, in case the frame comes just now.
        if (d->frames > 0 && watch.isOver()) {
            qCInfo(engineLog) << "no frame for" << watch.silence().count() << "ms";
            return;
        }
        watch.lookedInVain(milliseconds(look.elapsed()), rests ? restingLook : pullLimit);
    }
}

bool GrabThread::beginRest()
{
    const std::lock_guard<std::mutex> lock(d->mutex);
    if (!d->mayRest || d->state == Private::State::Opening)
        return false;
    d->state = Private::State::Resting;
    return true;
}

// One look at a camera of which nobody needs a frame; whether it sends. Ends early when one is
// needed.
bool GrabThread::rest()
{
    d->camera->rest();
    std::unique_lock<std::mutex> lock(d->mutex);
    const bool ends =
        d->changed.wait_for(lock, restingLook, [this] { return !d->mayRest || d->stop; });
    lock.unlock();
    if (ends)
        d->camera->wake();
    return d->camera->sendsStill();
}

void GrabThread::keepFrame(const std::shared_ptr<CameraFrame> &frame)
{
    ++d->frames;
    std::shared_ptr<const CameraFrame> previous = frame;
    const std::lock_guard<std::mutex> lock(d->mutex);
    m_lastFrame = frame->view();
    d->frame.swap(previous);
    if (d->state != Private::State::Running) {
        d->state = Private::State::Running;
        d->changed.notify_all();
    }
}

// Newest wins: of a frame that was not painted yet nothing more is said. Nothing is converted for
// a window that is minimised, or for a program that is busy.
void GrabThread::announceFrame()
{
    {
        const std::lock_guard<std::mutex> lock(d->mutex);
        if (!d->seen || d->announced)
            return;
        d->announced = true;
    }
    Q_EMIT grabtrue();
}

void GrabThread::forgetFrames()
{
    std::shared_ptr<const CameraFrame> last;
    const std::lock_guard<std::mutex> lock(d->mutex);
    m_lastFrame = cv::Mat();
    d->frame.swap(last);
}
