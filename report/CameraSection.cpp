#include "DeviceList.h"
#include "DeviceProviders.h"
#include "ModeChooser.h"
#include "Report.h"
#include "Sections.h"

#include <QDir>
#include <QFileInfo>

static void writeAnswer(Report &report, const QString &source, DeviceProviders::Answer answer)
{
    switch (answer) {
    case DeviceProviders::Answer::None:
        report.publicFact(source, "none");
        break;
    case DeviceProviders::Answer::Late:
        report.unknown(source, QStringLiteral("the cameras: no answer from the ") + source);
        break;
    case DeviceProviders::Answer::Given:
        report.publicFact(source, "answers");
        break;
    }
}

// Many a camera that is not listed is one that its user may not open.
static void writeNodes(Report &report)
{
    int all = 0;
    int closed = 0;
    for (const QFileInfo &node :
         QDir(QStringLiteral("/dev")).entryInfoList({"video*"}, QDir::System)) {
        ++all;
        closed += node.isReadable() && node.isWritable() ? 0 : 1;
    }
    report.number("video nodes", all);
    report.number("video nodes that this user may not open", closed);
}

QVector<CameraHandle> Sections::findCameras(Report &report,
                                            std::chrono::steady_clock::time_point deadline)
{
    DeviceProviders::start(deadline);
    const QVector<CameraHandle> cameras = DeviceProviders::cameras();
    for (const CameraHandle &camera : cameras)
        report.redaction().add(camera->record().serial);
    report.beginSection("Sources of cameras");
    writeNodes(report);
    writeAnswer(report, "system", DeviceProviders::videoNodes());
    writeAnswer(report, "media server", DeviceProviders::mediaServer());
    return cameras;
}

static QString wayTo(const DeviceRecord &record)
{
    switch (record.origin) {
    case DeviceRecord::Origin::V4l2:
        return QStringLiteral("system");
    case DeviceRecord::Origin::PipeWire:
        return QStringLiteral("media server");
    case DeviceRecord::Origin::Demonstration:
        break;
    }
    return QStringLiteral("built in");
}

static QString pictureOf(const CameraMode &mode)
{
    const bool isJpeg = mode.encoding == CameraMode::Encoding::Jpeg;
    return QStringLiteral("%1 %2x%3")
        .arg(isJpeg ? QStringLiteral("JPEG") : QString::fromUtf8(mode.format))
        .arg(mode.width)
        .arg(mode.height);
}

static QString rateOf(const CameraMode &mode)
{
    return mode.rate() > 0 ? QString::number(mode.rate(), 'g', 4) : QStringLiteral("varying");
}

// A line for each size and format, with all its rates: cameras have up to a hundred modes.
static void writeOthers(Report &report, const QVector<CameraMode> &modes, const CameraMode &chosen)
{
    QStringList written;
    for (const CameraMode &first : modes) {
        const QString picture = pictureOf(first);
        if (written.contains(picture))
            continue;
        written.append(picture);
        QStringList rates;
        QVector<CameraMode> same;
        for (const CameraMode &mode : modes) {
            if (pictureOf(mode) != picture || mode == chosen)
                continue;
            same.append(mode);
            rates.append(rateOf(mode));
        }
        if (same.isEmpty())
            continue;
        const QByteArray advantage = advantageOf(chosen, same.at(bestMode(same)));
        report.publicFact("passed over",
                          QStringLiteral("%1 at %2 (the chosen one has %3)")
                              .arg(picture, rates.join(", "),
                                   advantage.isEmpty() ? QStringLiteral("nothing that it has not")
                                                       : QString::fromUtf8(advantage)),
                          1);
    }
}

static void writeModes(Report &report, const QVector<CameraMode> &modes)
{
    report.number("modes", modes.size(), 1);
    const int best = bestMode(modes);
    if (best < 0) {
        report.publicFact("mode chosen", "none", 1);
        return;
    }
    const CameraMode &chosen = modes.at(best);
    report.publicFact("mode chosen",
                      QStringLiteral("%1 at %2").arg(pictureOf(chosen), rateOf(chosen)), 1);
    writeOthers(report, modes, chosen);
}

void Sections::writeCameras(Report &report, const QVector<CameraHandle> &cameras)
{
    QVector<DeviceRecord> records;
    for (const CameraHandle &camera : cameras) {
        records.append(camera->record());
        report.redaction().add(camera->record().serial);
    }
    const QVector<ListedDevice> devices = listedDevices(records);
    report.beginSection("Cameras");
    report.number("cameras", devices.size());
    // Nodes without a picture, infra-red ones, shared screens, and other ways to the same camera.
    report.number("others that are not offered", cameras.size() - devices.size());
    report.publicFact("camera chosen",
                      devices.isEmpty()         ? QStringLiteral("none, there is none")
                          : devices.size() == 1 ? QStringLiteral("camera 1, the only one")
                                                : QStringLiteral("the program asks which"));
    int number = 0;
    for (const ListedDevice &device : devices) {
        report.fact(QStringLiteral("camera %1").arg(++number), device.name);
        report.publicFact("reached by", wayTo(records.at(device.record)), 1);
        writeModes(report, cameras.at(device.record)->modes());
    }
}
