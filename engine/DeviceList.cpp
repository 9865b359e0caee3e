#include "DeviceList.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <tuple>

// Many webcams call themselves "Name: Name", the second half cut off at 31 letters.
static QString tidyName(const QString &name)
{
    const QString whole = name.simplified();
    const int colon = whole.indexOf(QLatin1String(": "));
    if (colon > 0 && whole.left(colon).startsWith(whole.mid(colon + 2)))
        return whole.left(colon);
    return whole.isEmpty() ? QStringLiteral("Camera") : whole;
}

static bool isCamera(const DeviceRecord &record)
{
    if (!record.deviceClass.contains(QLatin1String("Video/Source")))
        return false;
    if (!record.role.isEmpty() && record.role != QLatin1String("Camera"))
        return false; // a shared screen
    return record.hasColour; // metadata nodes have no picture, infra-red ones a grey one
}

// A node of the media server that leads to a camera which is listed by its video node already.
static bool standsForAny(const DeviceRecord &node, const QVector<DeviceRecord> &records)
{
    if (node.origin != DeviceRecord::Origin::PipeWire)
        return false;
    return std::any_of(records.begin(), records.end(), [&node](const DeviceRecord &video) {
        if (video.origin != DeviceRecord::Origin::V4l2 || !isCamera(video))
            return false;
        const bool samePath = !node.devicePath.isEmpty() && node.devicePath == video.devicePath;
        const bool sameUsb = !node.libcameraPath.isEmpty() && !video.usbIds.isEmpty()
            && node.libcameraPath.endsWith(video.usbIds, Qt::CaseInsensitive);
        return samePath || sameUsb;
    });
}

static QString baseIdentity(const DeviceRecord &record)
{
    switch (record.origin) {
    case DeviceRecord::Origin::V4l2:
        // A camera that is not on a bus (a loopback) has only its node to be known by.
        if (record.busPath.isEmpty() && record.serial.isEmpty())
            return QStringLiteral("video:%1").arg(record.devicePath);
        return QStringLiteral("video:%1|%2").arg(record.busPath, record.serial);
    case DeviceRecord::Origin::PipeWire:
        return QStringLiteral("node:%1").arg(record.nodeName);
    case DeviceRecord::Origin::Demonstration:
        break;
    }
    return QStringLiteral("demonstration");
}

static int nodeNumber(const QString &devicePath)
{
    const auto digits = std::find_if_not(devicePath.rbegin(), devicePath.rend(),
                                         [](QChar letter) { return letter.isDigit(); });
    return devicePath.right(int(std::distance(devicePath.rbegin(), digits))).toInt();
}

// Two nodes of one camera share its socket and serial: the second is "#2", and so on.
static void numberIdentities(QVector<ListedDevice> &devices)
{
    QHash<QString, int> seen;
    for (ListedDevice &device : devices) {
        const int ordinal = ++seen[device.identity];
        if (ordinal > 1)
            device.identity += QStringLiteral("#%1").arg(ordinal);
    }
}

static void numberTwins(QVector<ListedDevice> &devices)
{
    QHash<QString, int> population;
    QSet<QString> taken;
    for (const ListedDevice &device : qAsConst(devices)) {
        ++population[device.model];
        taken.insert(device.model);
    }
    QHash<QString, int> last;
    for (ListedDevice &device : devices) {
        device.name = device.model;
        if (population.value(device.model) < 2)
            continue;
        do {
            device.name = QStringLiteral("%1 (%2)").arg(device.model).arg(++last[device.model]);
        } while (taken.contains(device.name));
        taken.insert(device.name);
    }
}

QVector<ListedDevice> listedDevices(const QVector<DeviceRecord> &records)
{
    QVector<ListedDevice> devices;
    for (int i = 0; i < records.size(); ++i) {
        const DeviceRecord &record = records.at(i);
        if (!isCamera(record) || standsForAny(record, records))
            continue;
        ListedDevice device;
        device.record = i;
        device.model = tidyName(record.name);
        device.identity = baseIdentity(record);
        device.serial = record.serial;
        devices.append(device);
    }
    const auto order = [&records](const ListedDevice &device) {
        const DeviceRecord &record = records.at(device.record);
        return std::make_tuple(record.origin, device.identity, nodeNumber(record.devicePath),
                               device.model);
    };
    std::stable_sort(devices.begin(), devices.end(),
                     [&order](const ListedDevice &left, const ListedDevice &right) {
                         return order(left) < order(right);
                     });
    numberIdentities(devices);
    numberTwins(devices);
    return devices;
}

template <typename Matches>
static int findDevice(const QVector<ListedDevice> &devices, Matches matches)
{
    const auto found = std::find_if(devices.begin(), devices.end(), matches);
    return found == devices.end() ? -1 : int(std::distance(devices.begin(), found));
}

int indexOfChoice(const QVector<ListedDevice> &devices, const DeviceChoice &choice)
{
    if (choice.identity.isEmpty())
        return choice.index >= 0 && choice.index < devices.size() ? choice.index : -1;
    int index = findDevice(
        devices, [&](const ListedDevice &device) { return device.identity == choice.identity; });
    if (index < 0)
        index = findDevice(devices, [&](const ListedDevice &device) {
            return device.model == choice.model && device.serial == choice.serial;
        });
    if (index < 0)
        index = findDevice(
            devices, [&](const ListedDevice &device) { return device.model == choice.model; });
    if (index < 0 && choice.onlyOne && !devices.isEmpty())
        index = 0;
    return index;
}

DeviceChoice choiceOf(const QVector<ListedDevice> &devices, int index)
{
    DeviceChoice choice;
    choice.index = index;
    if (index >= 0 && index < devices.size()) {
        choice.identity = devices.at(index).identity;
        choice.model = devices.at(index).model;
        choice.serial = devices.at(index).serial;
        choice.onlyOne = devices.size() == 1;
    }
    return choice;
}
