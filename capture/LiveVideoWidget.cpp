#include "LiveVideoWidget.h"

#include "CaptureLog.h"
#include "GreenCaption.h"
#include "Spoken.h"
#include "WebcamUtil.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>

static constexpr int burstInterval = 5000; // ms between two photos of a burst

LiveVideoWidget::LiveVideoWidget(QWidget *parent, Qt::WindowFlags f)
    : QWidget(parent, f)
    , m_shotTimer(new QTimer(this))
    , m_videoFrame(new QFrame(this))
{
    Spoken::asWhole(this, QAccessible::Graphic);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setAttribute(Qt::WA_NoSystemBackground, false);
    setAttribute(Qt::WA_PaintOnScreen, false);
    setPalette(GreenCaption::palette(palette()));
    // Black until the first picture comes, instead of the window behind.
    setAutoFillBackground(true);
    setAccessibleName(tr("Live picture"));
    setAccessibleDescription(tr("What the camera sees now"));

    connect(m_shotTimer, &QTimer::timeout, this, &LiveVideoWidget::execShot);
    connect(&m_engine, &LiveVideoData::disconnectDevice, this,
            &LiveVideoWidget::slotdisconnectDevice);
    connect(&m_engine, &LiveVideoData::bitmapSaved, this, &LiveVideoWidget::photoWritten);
    connect(&m_engine, &LiveVideoData::recordend, this, &LiveVideoWidget::recordingEnded);
    createVideoFrame();
    createLiveLabel();
}

// The engine, a member, closes the camera here, before the frame it draws into goes as a child.
// The engine's end may still tell of a photo, to whom is going as well.
LiveVideoWidget::~LiveVideoWidget()
{
    m_engine.disconnect(this);
}

void LiveVideoWidget::createVideoFrame()
{
    auto *box = new QHBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(m_videoFrame);
    adjustSize();
    m_engine.SetTarget(m_videoFrame);
}

void LiveVideoWidget::createLiveLabel()
{
    m_liveLabel = new QLabel(tr("LIVE"), this);
    m_liveLabel->setAutoFillBackground(true);
    m_liveLabel->setPalette(GreenCaption::palette(m_liveLabel->palette()));
    m_liveLabel->setFont(GreenCaption::font());
    m_liveLabel->adjustSize();
    m_liveLabel->raise();
    m_liveLabel->hide();
}

// Null: nothing is ever painted on this widget itself, the engine paints in the frame on top.
QPaintEngine *LiveVideoWidget::paintEngine() const
{
    return nullptr;
}

void LiveVideoWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_engine.Reset();
    update();
}

void LiveVideoWidget::beginDeviceList()
{
    LiveVideoData::beginList();
}

void LiveVideoWidget::setInterruption(const std::function<bool()> &wanted)
{
    LiveVideoData::SetInterruption(wanted);
}

void LiveVideoWidget::setMeanwhile(const std::function<void()> &work)
{
    LiveVideoData::SetMeanwhile(work);
}

QStringList LiveVideoWidget::getVideoDeviceList()
{
    return m_engine.GetVideoDeviceList();
}

bool LiveVideoWidget::isDeviceListComplete() const
{
    return m_engine.IsListComplete();
}

void LiveVideoWidget::setVideoDevice(int index)
{
    m_engine.SetVideoDevice(index);
}

void LiveVideoWidget::Create()
{
    if (m_engine.created)
        return;
    m_engine.Create();
    if (!m_engine.supported) {
        WebcamUtil::CriticalMessage(tr("Not Suport"), this); // this spelling is translated
        return;
    }
    m_videoValid = m_engine.videoPresent;
    m_audioValid = true;
    if (!m_videoValid) {
        // The window reports a missing camera later and in its own words, so no message here.
        qCInfo(captureLog) << tr("Cannot find Video Devices.");
    }
}

bool LiveVideoWidget::isCreate() const
{
    return m_engine.created;
}

QSize LiveVideoWidget::getNativeSize() const
{
    return {m_engine.nativeWidth, m_engine.nativeHeight};
}

void LiveVideoWidget::Start()
{
    if (!m_engine.created)
        return;
    m_liveLabel->hide();
    m_engine.Start();
    m_liveLabel->show();
}

void LiveVideoWidget::Stop()
{
    m_engine.Stop();
    endBurst();
}

void LiveVideoWidget::Reset()
{
    m_engine.Reset();
}

void LiveVideoWidget::Release()
{
    if (m_engine.created)
        m_engine.Release();
    endBurst();
    m_videoValid = false;
}

void LiveVideoWidget::endBurst()
{
    m_shotCount = 0;
    m_shotTimer->stop();
}

QStringList LiveVideoWidget::GetResoList()
{
    return m_engine.GetResoList();
}

void LiveVideoWidget::setResolution(const QString &text)
{
    const QStringList sides = text.split(QLatin1Char('x'));
    if (sides.size() >= 2 && m_engine.created)
        m_engine.SetResolution(sides.at(0).toInt(), sides.at(1).toInt());
}

static QString pathInArea(const QString &name)
{
    WebcamUtil::restoreTemporaryPath(); // nobody looks at the disk before the photos of a series
    return WebcamUtil::getTemporaryPath() + QLatin1Char('/') + name;
}

QString LiveVideoWidget::SaveBmp()
{
    if (!m_engine.created)
        return QString();
    const QString name = WebcamUtil::newPhotofilename();
    return m_engine.SaveBitmap(pathInArea(name)) ? name : QString();
}

QImage LiveVideoWidget::takeSavedPicture()
{
    return m_engine.takeSavedPicture();
}

LiveVideoWidget::Photo LiveVideoWidget::takePhoto()
{
    if (!m_engine.created)
        return {};
    const QString name = WebcamUtil::newPhotofilename();
    const QImage picture = m_engine.startSaving(pathInArea(name));
    return picture.isNull() ? Photo() : Photo{name, picture};
}

void LiveVideoWidget::finishPhoto()
{
    m_engine.finishSaving();
}

bool LiveVideoWidget::Record()
{
    m_movieFileName = WebcamUtil::newMoviefilename();
    m_engine.Record(m_movieFileName);
    if (!m_engine.IsValidVideoDevice())
        return recordWithoutVideo();
    if (!m_engine.IsValidAudioDevice())
        return recordWithoutAudio();
    if (!m_engine.IsRecording()) {
        // Neither device is to blame, and the next try may succeed: nothing is noted.
        WebcamUtil::WarningMessage(invalidVideoText(), this);
        return false;
    }
    // A movie without its still picture is still a movie.
    m_engine.SaveBitmap(WebcamUtil::stillNameOf(m_movieFileName));
    m_engine.takeSavedPicture(); // nobody shows it now
    return true;
}

QString LiveVideoWidget::invalidVideoText()
{
    return tr("The video device is invalid. "
              "Please confirm whether the device is correctly connected. ");
}

// Always false, for Record() to return.
bool LiveVideoWidget::recordWithoutVideo()
{
    m_videoValid = false;
    QString message = invalidVideoText();
    // Not inverted by mistake: with a working microphone the message names both devices, and both
    // count as missing until Create() has looked again. Without one it names the camera alone.
    if (m_engine.IsValidAudioDevice()) {
        message = tr("The video device and the audio device are invalid. "
                     "Please confirm whether the device is correctly connected. ");
        m_audioValid = false;
    }
    WebcamUtil::WarningMessage(message, this);
    return false;
}

// Always false, for Record() to return.
bool LiveVideoWidget::recordWithoutAudio()
{
    m_audioValid = false;
    WebcamUtil::WarningMessage(tr("The audio device is invalid. "
                                  "Please confirm whether the device is correctly connected."),
                               this);
    return false;
}

void LiveVideoWidget::RecordStop()
{
    m_engine.RecordStop();
}

bool LiveVideoWidget::completeMovies()
{
    return m_engine.CompleteMovies();
}

void LiveVideoWidget::completeUnseen()
{
    m_engine.completeUnseen();
}

bool LiveVideoWidget::isAudioDeviceValid()
{
    return m_engine.IsValidAudioDevice();
}

bool LiveVideoWidget::isAudioPresent()
{
    return m_audioValid && isAudioDeviceValid();
}

void LiveVideoWidget::ContinuesShot(int max)
{
    m_shotCount = 0;
    m_maximumShots = max;
    m_shotTimer->start(burstInterval);
}

void LiveVideoWidget::execShot()
{
    // The bare name, unlike a photo's: a burst writes into the current folder.
    const QString name = WebcamUtil::CreatePhotofilename();
    m_engine.SaveBitmap(name);
    ++m_shotCount;
    if (m_shotCount >= m_maximumShots) {
        m_shotTimer->stop();
        Q_EMIT ShotMax();
    }
}

void LiveVideoWidget::slotdisconnectDevice()
{
    Q_EMIT disconnectDevice();
}
