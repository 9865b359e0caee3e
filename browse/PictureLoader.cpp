#include "PictureLoader.h"

#include "CapturedPicture.h"

#include <QCoreApplication>
#include <QMutexLocker>

#include <utility>

// KB of pictures that are kept: the thumbnails of several visits to the strip, and nine tiles of a
// Full-HD screen.
static constexpr int mostKept = 32 * 1024;

// Pictures decoded beyond one a processor. Workers that are done wait for the window to take their
// picture; with these at hand the processors need not wait meanwhile.
static constexpr int stepsAhead = 2;

bool operator==(const PictureLoader::Key &left, const PictureLoader::Key &right)
{
    return left.version == right.version && left.fit == right.fit;
}

uint qHash(const PictureLoader::Key &key, uint seed)
{
    return qHash(key.version, seed) ^ uint(key.fit.width() * 8192 + key.fit.height());
}

PictureLoader &PictureLoader::shared()
{
    static QPointer<PictureLoader> loader;
    if (!loader)
        loader = new PictureLoader(QCoreApplication::instance());
    return *loader;
}

PictureLoader::PictureLoader(QObject *parent)
    : QObject(parent)
    , m_known(mostKept)
{
    connect(this, &PictureLoader::resultReady, this, &PictureLoader::takeResults,
            Qt::QueuedConnection);
}

PictureLoader::~PictureLoader()
{
    m_pool.clear();
    m_pool.waitForDone();
}

QImage PictureLoader::scaled(const QImage &whole, QSize fit)
{
    return whole.isNull() ? whole : whole.scaled(fit, Qt::KeepAspectRatio, Qt::FastTransformation);
}

QImage PictureLoader::now(const QString &name, QSize fit)
{
    const Key key{PictureVersion::of(CapturedPicture::path(name)), fit};
    if (const QImage *known = m_known.object(key))
        return *known;
    QImage picture = scaled(CapturedPicture::whole(name), fit);
    if (PictureVersion::of(key.version.path) == key.version && key.version.isSettled())
        keep(key, picture);
    return picture;
}

void PictureLoader::later(const QString &name, QSize fit, QObject *receiver, Delivery deliver)
{
    const Key key{PictureVersion::of(CapturedPicture::path(name)), fit};
    if (const QImage *known = m_known.object(key)) {
        const QImage picture = *known;
        deliver(picture);
        return;
    }
    m_waiting.enqueue({key, receiver, std::move(deliver)});
    startWaiting();
}

void PictureLoader::prepare(const QString &name)
{
    for (const QSize fit : qAsConst(m_usualSizes))
        prepare(name, fit);
}

void PictureLoader::prepare(const QString &name, QSize fit)
{
    const PictureVersion version = PictureVersion::of(CapturedPicture::path(name));
    const QImage whole = CapturedPicture::remembered(version);
    if (!whole.isNull() && !m_known.contains({version, fit}))
        keep({version, fit}, scaled(whole, fit));
}

void PictureLoader::forget(const QObject *receiver)
{
    QQueue<Request> others;
    for (const Request &request : qAsConst(m_waiting))
        if (request.receiver != receiver)
            others.enqueue(request);
    m_waiting = others;
    for (Request &request : m_running)
        if (request.receiver == receiver)
            request.deliver = nullptr;
}

void PictureLoader::startWaiting()
{
    while (m_workers < m_pool.maxThreadCount() + stepsAhead && !m_waiting.isEmpty()) {
        const Request request = m_waiting.dequeue();
        if (!request.receiver)
            continue;
        ++m_workers;
        m_running.insert(++m_lastNumber, request);
        m_pool.start([this, number = m_lastNumber, key = request.key] { work(number, key); });
    }
}

// Runs on a worker.
void PictureLoader::work(int number, const Key &key)
{
    Result result{number, key, scaled(CapturedPicture::read(key.version.path), key.fit)};
    result.isFinal = PictureVersion::of(key.version.path) == key.version && key.version.isSettled();
    {
        const QMutexLocker lock(&m_mutex);
        m_results.append(result);
    }
    Q_EMIT resultReady();
}

void PictureLoader::keep(const Key &key, const QImage &picture)
{
    m_known.insert(key, new QImage(picture), 1 + int(picture.sizeInBytes() / 1024));
}

void PictureLoader::takeResults()
{
    QVector<Result> results;
    {
        const QMutexLocker lock(&m_mutex);
        m_results.swap(results);
    }
    m_workers -= results.size();
    startWaiting();
    for (const Result &result : qAsConst(results)) {
        if (result.isFinal)
            keep(result.key, result.picture);
        const Request request = m_running.take(result.number);
        if (request.receiver && request.deliver)
            request.deliver(result.picture);
    }
}
