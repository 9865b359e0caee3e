#include "LiveVideoData.h"

#include "BoundedTask.h"
#include "CameraFrame.h"
#include "CameraPipeline.h"
#include "DeviceList.h"
#include "DeviceProviders.h"
#include "EngineLog.h"
#include "GrabThread.h"
#include "GstStart.h"
#include "MicrophoneFinder.h"
#include "ModeChooser.h"
#include "MovieCompletion.h"
#include "MovieMaker.h"
#include "PatientWait.h"
#include "PictureConverter.h"
#include "SoundServer.h"
#include "StillSaving.h"
#include "StillWriter.h"
#include "TargetPainter.h"

#include <QTimer>

#include <utility>

using std::chrono::steady_clock;

// On a slow machine every moment that a person will wait counts: a camera that is listed late is
// one that was not there.
static const std::chrono::milliseconds listLimit = PatientCall::usualLimit;
static const int openLimit = 4400; // ms of longLimit, which leaves a moment for closing again
static const int wakeLimit = 2000; // ms; a camera that is well sends within a tenth of that
static const std::chrono::milliseconds stillLimit = StillSaving::limit;
static const std::chrono::seconds completionLimit(10);
// The sound server was connected to with the camera: a movie waits only for one started anew.
static const std::chrono::milliseconds microphoneLimit(200);
// How long a camera's frames are taken unseen: a photo is taken when its screen is there already,
// and whoever looks at one for a moment only has the live picture back as it is.
static const std::chrono::milliseconds restDelay(1000);

class LiveVideoData::Private {
public:
    explicit Private(LiveVideoData *engine)
        : q(engine)
        , providers(lookAgain(engine))
        , microphones(lookAgain(engine))
    {
        restTimer.setSingleShot(true);
        connect(&restTimer, &QTimer::timeout, engine, [this] { letRest(); });
    }

    static std::function<void()> lookAgain(LiveVideoData *engine);
    static QVector<CameraHandle> findCameras();
    bool open(const CameraHandle &chosen, const QSize &size);
    void close();
    void loseCamera();
    std::chrono::milliseconds closingLimit() const;
    void setShowing(bool on);
    void followTarget();
    void letRest();
    std::shared_ptr<const CameraFrame> newestFrame();
    QVector<CameraMode> modes() const;

    LiveVideoData *q;
    DeviceProviders providers;
    MicrophoneFinder microphones;
    TargetPainter painter;
    QVector<ListedDevice> lastList; ///< what the indices of SetVideoDevice() mean
    DeviceChoice choice;

    // Of the open camera.
    GrabThread *thread = nullptr; ///< null while there is none, or it is lost
    CameraHandle camera; ///< null while there is none, or it is lost
    bool showing = false;
    QTimer restTimer; ///< runs while a picture that is to be shown is out of sight
    QImage savedPicture; ///< of the last photo, until it is taken
    StillSaving saving;
    MovieMaker movie{microphones, [this] { Q_EMIT q->recordend(); }};
};

// What any thread calls when a device came or went.
std::function<void()> LiveVideoData::Private::lookAgain(LiveVideoData *engine)
{
    return [engine] { QMetaObject::invokeMethod(engine, "device", Qt::QueuedConnection); };
}

QVector<CameraHandle> LiveVideoData::Private::findCameras()
{
    if (!startGstreamer())
        return {};
    const auto deadline = steady_clock::now() + listLimit;
    MicrophoneFinder::begin(); // so that all servers think at the same time
    DeviceProviders::start(deadline);
    MicrophoneFinder::waitUntil(deadline);
    return DeviceProviders::cameras();
}

static QVector<ListedDevice> listed(const QVector<CameraHandle> &cameras)
{
    QVector<DeviceRecord> records;
    for (const CameraHandle &camera : cameras)
        records.append(camera->record());
    return listedDevices(records);
}

static std::unique_ptr<CameraPipeline> makePipeline(const Camera &camera, const QSize &size)
{
    const QVector<CameraMode> modes = camera.modes();
    const int best = bestMode(modes, size);
    if (best < 0)
        return nullptr;
    const CameraMode &mode = modes.at(best);
    qCInfo(engineLog) << camera.record().name << "in" << mode.format << mode.size() << mode.rate();
    return CameraPipeline::build(camera.makeSource(), camera.formatOf(mode), mode);
}

bool LiveVideoData::Private::open(const CameraHandle &chosen, const QSize &size)
{
    std::unique_ptr<CameraPipeline> pipeline = makePipeline(*chosen, size);
    if (!pipeline)
        return false;
    camera = chosen;
    microphones.setDemonstration(camera->record().origin == DeviceRecord::Origin::Demonstration);
    pipeline->setTap(movie.tap());
    const double rate = pipeline->mode().rate();
    // While the camera opens there is time to find an encoder.
    movie.prepare(pipeline->mode().size(), rate);
    thread = new GrabThread;
    connect(thread, &GrabThread::grabtrue, q, &LiveVideoData::grab);
    connect(thread, &GrabThread::deviceerr, q, &LiveVideoData::device);
    thread->capture(std::move(pipeline));
    const bool opened = thread->waitForFrame(openLimit);
    const std::shared_ptr<const CameraFrame> frame = thread->newestFrame();
    if (!opened || !frame) {
        qCInfo(engineLog) << chosen->record().name << "gives no picture";
        if (thread->hasFailed())
            DeviceProviders::doubt(chosen);
        close();
        return false;
    }
    q->nativeWidth = frame->size().width();
    q->nativeHeight = frame->size().height();
    movie.prepare(frame->size(), rate);
    return true;
}

void LiveVideoData::Private::close()
{
    restTimer.stop();
    movie.stop();
    GrabThread::retire(thread);
    thread = nullptr;
    camera.reset();
    microphones.setDemonstration(std::nullopt);
    painter.repaintSoon();
}

void LiveVideoData::Private::loseCamera()
{
    close();
    showing = false;
    Q_EMIT q->devicestop();
    Q_EMIT q->deviceerr();
    Q_EMIT q->disconnectDevice();
}

// A movie is completed before its camera is let go.
std::chrono::milliseconds LiveVideoData::Private::closingLimit() const
{
    return movie.isRecording() ? PatientCall::longLimit : PatientCall::usualLimit;
}

void LiveVideoData::Private::setShowing(bool on)
{
    showing = on;
    followTarget();
    painter.repaintSoon();
}

// Tells the worker what is wanted on the screen now: nothing while the target cannot be seen.
void LiveVideoData::Private::followTarget()
{
    if (!thread)
        return;
    const bool seen = showing && painter.hasRoom();
    thread->setSeen(seen);
    thread->setResting(false);
    if (showing && !seen)
        restTimer.start(restDelay);
    else
        restTimer.stop();
}

void LiveVideoData::Private::letRest()
{
    if (thread && !movie.isRecording())
        thread->setResting(true);
}

// For a photo or a movie: of a camera that rested, the first of after its rest.
std::shared_ptr<const CameraFrame> LiveVideoData::Private::newestFrame()
{
    followTarget();
    const bool there = thread && thread->waitForFrame(wakeLimit);
    return there ? thread->newestFrame() : nullptr;
}

QVector<CameraMode> LiveVideoData::Private::modes() const
{
    return camera ? camera->modes() : QVector<CameraMode>();
}

LiveVideoData::LiveVideoData()
    : d(std::make_unique<Private>(this))
{
    TargetPainter::Source source;
    source.size = [this] {
        return d->thread && d->showing ? QSize(nativeWidth, nativeHeight) : QSize();
    };
    source.paintInto = [this](QImage *picture) { return d->thread->paintInto(picture); };
    source.picture = [this](const QSize &size) { return d->thread->takePicture(size); };
    d->painter.setSource(source);
    connect(&d->painter, &TargetPainter::roomChanged, this, [this] { d->followTarget(); });
    connect(&d->saving, &StillSaving::ended, this, [this](const QImage &written) {
        d->savedPicture = written;
        Q_EMIT bitmapSaved(!written.isNull());
    });
}

LiveVideoData::~LiveVideoData()
{
    finishSaving(); // whoever sees the photo takes it to be there
    const PatientCall call(d->closingLimit());
    d->painter.disconnect(this);
    d->movie.stop();
    GrabThread::retire(d->thread);
    d->thread = nullptr;
}

void LiveVideoData::beginList()
{
    MicrophoneFinder::begin();
    DeviceProviders::begin();
}

void LiveVideoData::SetInterruption(const std::function<bool()> &wanted)
{
    PatientCall::setInterruption(wanted);
}

void LiveVideoData::SetMeanwhile(const std::function<void()> &work)
{
    PatientCall::setMeanwhile(work);
}

void LiveVideoData::SetTarget(QWidget *target)
{
    d->painter.setTarget(target);
}

QStringList LiveVideoData::GetVideoDeviceList()
{
    const PatientCall call;
    d->lastList = listed(Private::findCameras());
    QStringList names;
    for (const ListedDevice &device : qAsConst(d->lastList))
        names.append(device.name);
    return names;
}

bool LiveVideoData::IsListComplete() const
{
    using Answer = DeviceProviders::Answer;
    const SoundServer &sound = MicrophoneFinder::server();
    return DeviceProviders::videoNodes() != Answer::Late
        && DeviceProviders::mediaServer() != Answer::Late
        && (!sound.isThere() || sound.hasAnswered());
}

void LiveVideoData::SetVideoDevice(int index)
{
    d->choice = choiceOf(d->lastList, index);
}

void LiveVideoData::Create()
{
    const PatientCall call(PatientCall::longLimit);
    if (d->thread)
        return;
    d->movie.devicesChanged();
    created = false;
    videoPresent = false;
    nativeWidth = 0;
    nativeHeight = 0;
    supported = startGstreamer();
    if (!supported)
        return;
    const QVector<CameraHandle> cameras = Private::findCameras();
    const QVector<ListedDevice> devices = listed(cameras);
    const int index = indexOfChoice(devices, d->choice);
    if (index < 0)
        return;
    // From now on the camera is known by what it is, also when nobody chose it.
    if (d->choice.identity.isEmpty())
        d->choice = choiceOf(devices, index);
    created = d->open(cameras.at(devices.at(index).record), {});
    videoPresent = created;
    if (!created)
        Q_EMIT deviceerr();
}

void LiveVideoData::Start()
{
    if (d->thread && !d->showing)
        d->setShowing(true);
}

void LiveVideoData::Stop()
{
    if (d->showing)
        d->setShowing(false);
}

void LiveVideoData::Reset()
{
    d->followTarget();
    d->painter.repaintSoon();
}

void LiveVideoData::Release()
{
    const PatientCall call(d->closingLimit());
    if (!created)
        return;
    const bool wasOpen = d->thread != nullptr;
    created = false;
    d->showing = false;
    d->close();
    d->movie.devicesChanged();
    if (wasOpen)
        Q_EMIT devicestop();
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): by value in the agreed interface
bool LiveVideoData::SaveBitmap(QString path)
{
    const PatientCall call(stillLimit);
    d->savedPicture = QImage();
    const std::shared_ptr<const CameraFrame> frame = d->newestFrame();
    if (!frame)
        return false;
    const BoundedTask writing([frame, path] {
        PictureConverter converter(QImage::Format_RGB888);
        const QImage picture = converter.convert(*frame, frame->size());
        return writeStill(picture, path) ? picture : QImage();
    });
    d->savedPicture = writing.waitUntil(steady_clock::now() + stillLimit).value_or(QImage());
    return !d->savedPicture.isNull();
}

QImage LiveVideoData::takeSavedPicture()
{
    return std::exchange(d->savedPicture, QImage());
}

QImage LiveVideoData::startSaving(const QString &path)
{
    const PatientCall call;
    const std::shared_ptr<const CameraFrame> frame = d->newestFrame();
    return frame ? d->saving.begin(frame, path) : QImage();
}

// No PatientCall over all of it: who hears the end may open a box.
void LiveVideoData::finishSaving()
{
    d->saving.finish();
}

void LiveVideoData::Record(const QString &path)
{
    const PatientCall call;
    const std::shared_ptr<const CameraFrame> frame = d->newestFrame();
    if (!frame) {
        d->movie.refuse(MovieOutcome::NoCamera);
        return;
    }
    MicrophoneFinder::begin();
    MicrophoneFinder::waitUntil(steady_clock::now() + microphoneLimit);
    d->movie.record(path, frame->picture().info);
}

void LiveVideoData::RecordStop()
{
    const PatientCall call(PatientCall::longLimit);
    RecordMovie();
}

bool LiveVideoData::CompleteMovies()
{
    const PatientCall call(completionLimit);
    return MovieCompletion::waitForAll(steady_clock::now() + completionLimit);
}

void LiveVideoData::completeUnseen()
{
    blockSignals(true);
    PatientCall::showNothing();
    d->movie.stop();
    finishSaving();
    CompleteMovies();
}

// What is asked right after Record() is asked about that: a camera or a server that changes in the
// meantime must not make a movie that runs look like one that was refused, nor the other way round.
bool LiveVideoData::IsValidVideoDevice()
{
    const PatientCall call;
    return d->movie.outcome() == MovieOutcome::Begun || (d->thread && !d->thread->hasFailed());
}

bool LiveVideoData::IsValidAudioDevice()
{
    const PatientCall call;
    if (!startGstreamer())
        return false;
    if (d->movie.outcome() == MovieOutcome::Begun)
        return true;
    MicrophoneFinder::begin();
    MicrophoneFinder::waitUntil(steady_clock::now() + listLimit);
    return d->microphones.canBeUsed();
}

bool LiveVideoData::IsRecording()
{
    return d->movie.isRecording();
}

QStringList LiveVideoData::GetResoList()
{
    const PatientCall call;
    return resolutionNames(d->modes());
}

void LiveVideoData::SetResolution(int width, int height)
{
    const PatientCall call(PatientCall::longLimit);
    const QSize size(width, height);
    if (bestMode(d->modes(), size) < 0 || size.isEmpty()
        || size == QSize(nativeWidth, nativeHeight))
        return;
    const CameraHandle camera = d->camera;
    d->close();
    if (d->open(camera, size))
        d->followTarget();
    else
        d->loseCamera();
}

void LiveVideoData::grab()
{
    d->painter.repaintSoon();
}

void LiveVideoData::RecordMovie()
{
    const PatientCall call(PatientCall::longLimit);
    d->movie.stop();
    d->followTarget();
}

void LiveVideoData::device()
{
    const PatientCall call(d->closingLimit());
    d->movie.devicesChanged();
    if (!d->thread)
        return;
    const bool unplugged = !DeviceProviders::contains(*d->camera);
    if (unplugged || d->thread->hasFailed()) {
        qCInfo(engineLog) << d->camera->record().name << "is lost";
        DeviceProviders::doubt(d->camera);
        d->loseCamera();
    }
}
