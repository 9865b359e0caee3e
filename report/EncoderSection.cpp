#include "DeviceList.h"
#include "EncoderSearch.h"
#include "ModeChooser.h"
#include "Report.h"
#include "Sections.h"

static const CameraMode usualMode{CameraMode::Encoding::Raw, "YUY2", 1280, 720, 30, 1};

static CameraMode modeOfFirst(const QVector<CameraHandle> &cameras)
{
    QVector<DeviceRecord> records;
    for (const CameraHandle &camera : cameras)
        records.append(camera->record());
    const QVector<ListedDevice> devices = listedDevices(records);
    if (devices.isEmpty())
        return usualMode;
    const QVector<CameraMode> modes = cameras.at(devices.first().record)->modes();
    return modes.value(bestMode(modes), usualMode);
}

static QString verdictOn(const EncoderFinding &finding)
{
    switch (finding.verdict) {
    case EncoderFinding::Verdict::Missing:
        return QStringLiteral("not there");
    case EncoderFinding::Verdict::Untried:
        return QStringLiteral("there, not tried");
    case EncoderFinding::Verdict::Fails:
        return QStringLiteral("there, does not work");
    case EncoderFinding::Verdict::Works:
        break;
    }
    return finding.frameTime > 0
        ? QStringLiteral("works, %1 ms a piece").arg(finding.frameTime * 1000, 0, 'f', 1)
        : QStringLiteral("works");
}

static void writeFindings(Report &report, const QString &kind,
                          const QVector<EncoderFinding> &findings)
{
    for (const EncoderFinding &finding : findings)
        report.publicFact(kind + QLatin1Char(' ') + QString::fromUtf8(finding.element),
                          verdictOn(finding));
}

static QString named(const QByteArray &encoder)
{
    return encoder.isEmpty() ? QStringLiteral("none") : QString::fromUtf8(encoder);
}

void Sections::writeEncoders(Report &report, const QVector<CameraHandle> &cameras,
                             std::chrono::steady_clock::time_point deadline)
{
    report.beginSection("Encoders");
    const CameraMode mode = modeOfFirst(cameras);
    const EncoderSearch search(mode.size(), mode.rate());
    const bool hasEnded = search.hasEnded(deadline);
    report.publicFact(
        "for movies of",
        QStringLiteral("%1x%2 at %3").arg(mode.width).arg(mode.height).arg(mode.rate(), 0, 'g', 4));
    writeFindings(report, "picture", search.findings().video);
    writeFindings(report, "sound", search.findings().sound);
    const MovieEncoding encoding = search.waitUntil(deadline);
    report.publicFact("movies' picture", named(encoding.video));
    report.publicFact("movies' sound", named(encoding.sound));
    report.number("movies are smaller than the camera's picture by", encoding.divisor);
    if (!hasEnded)
        report.unknown("whether that is final", "the encoders: their trial takes too long");
}
