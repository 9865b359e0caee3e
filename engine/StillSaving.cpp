#include "StillSaving.h"

#include "CameraFrame.h"
#include "EngineLog.h"
#include "PatientWait.h"
#include "PictureConverter.h"
#include "StillWriter.h"

#include <mutex>

using std::chrono::steady_clock;

// Nothing but arithmetic, so this is for a machine that is out of breath.
static constexpr std::chrono::milliseconds conversionLimit = PatientCall::usualLimit;

struct StillSaving::Desk {
    std::mutex mutex; ///< guards owner
    StillSaving *owner; ///< null once nobody waits there
};

static QImage pictureOf(const CameraFrame &frame, QImage::Format format)
{
    return PictureConverter(format).convert(frame, frame.size());
}

// What was written, as it can be shown; null when that failed.
static QImage written(const CameraFrame &frame, const QString &path)
{
    const QImage still = pictureOf(frame, QImage::Format_RGB888);
    return writeStill(still, path) ? still.convertToFormat(QImage::Format_RGB32) : QImage();
}

StillSaving::StillSaving()
    : m_desk(std::make_shared<Desk>())
{
    m_desk->owner = this;
    m_giveUp.setSingleShot(true);
    connect(&m_giveUp, &QTimer::timeout, this, &StillSaving::finish);
}

StillSaving::~StillSaving()
{
    const std::lock_guard<std::mutex> lock(m_desk->mutex);
    m_desk->owner = nullptr;
}

QImage StillSaving::begin(const std::shared_ptr<const CameraFrame> &frame, const QString &path)
{
    if (isRunning())
        return {};
    const BoundedTask converting([frame] { return pictureOf(*frame, QImage::Format_RGB32); });
    QImage picture = converting.waitUntil(steady_clock::now() + conversionLimit).value_or(QImage());
    if (picture.isNull())
        return {};
    m_deadline = steady_clock::now() + limit;
    m_giveUp.start(limit);
    m_writing.emplace([desk = m_desk, number = ++m_number, frame, path] {
        QImage still = written(*frame, path);
        const std::lock_guard<std::mutex> lock(desk->mutex);
        if (StillSaving *owner = desk->owner)
            QMetaObject::invokeMethod(
                owner, [owner, number] { owner->arrived(number); }, Qt::QueuedConnection);
        return still;
    });
    return picture;
}

void StillSaving::arrived(int number)
{
    if (number == m_number)
        finish();
}

void StillSaving::finish()
{
    if (!m_writing)
        return;
    const std::optional<QImage> still = m_writing->waitUntil(m_deadline);
    if (!still)
        qCInfo(engineLog) << "a photo is not on the disk in time";
    m_giveUp.stop();
    m_writing.reset();
    Q_EMIT ended(still.value_or(QImage()));
}
