#include "EncoderCache.h"

#include "GstHandles.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>
#include <QSysInfo>
#include <QThread>

static const qint64 longestFile = 65536; // bytes; ours is far shorter
static const double longestFrameTime = 60; // s

static QString cachePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
        + QStringLiteral("/orvanta/movie-encoders.json");
}

// Where an element comes from; empty for one that is not there.
static QByteArray originOf(const QByteArray &element)
{
    const GstObjectHandle<GstElementFactory> factory(gst_element_factory_find(element.constData()));
    if (!factory)
        return {};
    const GstObjectHandle<GstPlugin> plugin(
        gst_plugin_feature_get_plugin(GST_PLUGIN_FEATURE(factory.get())));
    if (!plugin)
        return "built in";
    const QFileInfo file(QFile::decodeName(gst_plugin_get_filename(plugin.get())));
    return QByteArray(gst_plugin_get_version(plugin.get())) + ' '
        + QFile::encodeName(file.filePath()) + ' ' + QByteArray::number(file.size()) + ' '
        + QByteArray::number(file.lastModified().toMSecsSinceEpoch());
}

QByteArray EncoderCache::keyOf(const QSize &size, double rate, const QByteArrayList &encoders)
{
    const GlibString gstreamer(gst_version_string());
    QByteArrayList facts{"1",
                         gstreamer.get(),
                         QSysInfo::kernelVersion().toUtf8(),
                         QSysInfo::machineUniqueId(),
                         QByteArray::number(QThread::idealThreadCount()),
                         QByteArray::number(size.width()),
                         QByteArray::number(size.height()),
                         QByteArray::number(rate)};
    for (const QByteArray &encoder : encoders)
        facts.append(encoder + ' ' + originOf(encoder));
    const QStringList graphics = QDir(QStringLiteral("/dev/dri")).entryList(QDir::System);
    facts.append(graphics.join(' ').toUtf8());
    return QCryptographicHash::hash(facts.join('\n'), QCryptographicHash::Sha256).toHex();
}

TriedEncoders EncoderCache::load(const QByteArray &key)
{
    QFile file(cachePath());
    if (!file.open(QIODevice::ReadOnly) || file.size() > longestFile)
        return {};
    const QJsonObject all = QJsonDocument::fromJson(file.read(longestFile)).object();
    const QJsonObject known = all.value(QString::fromLatin1(key)).toObject();
    TriedEncoders tried;
    tried.video = known.value("video").toString().toUtf8();
    tried.sound = known.value("sound").toString().toUtf8();
    tried.frameTime = known.value("frame time").toDouble(-1);
    const QJsonArray failed = known.value("failed").toArray();
    for (const QJsonValue &encoder : failed)
        tried.failed.append(encoder.toString().toUtf8());
    const bool isSound = tried.frameTime > 0 && tried.frameTime < longestFrameTime;
    return isSound ? tried : TriedEncoders();
}

void EncoderCache::store(const QByteArray &key, const TriedEncoders &tried)
{
    QJsonArray failed;
    for (const QByteArray &encoder : tried.failed)
        failed.append(QString::fromUtf8(encoder));
    // One machine has few cameras: what was known of another mode may be tried again.
    const QJsonObject all{{QString::fromLatin1(key),
                           QJsonObject{{"video", QString::fromUtf8(tried.video)},
                                       {"sound", QString::fromUtf8(tried.sound)},
                                       {"frame time", tried.frameTime},
                                       {"failed", failed}}}};
    QDir().mkpath(QFileInfo(cachePath()).path());
    QSaveFile file(cachePath());
    if (file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(all).toJson()) > 0)
        file.commit();
}

void EncoderCache::forget()
{
    QFile::remove(cachePath());
}
