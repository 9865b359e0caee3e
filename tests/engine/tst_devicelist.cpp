#include "DeviceList.h"

#include <QStringList>
#include <QTest>

#include <algorithm>

namespace {

using Origin = DeviceRecord::Origin;

DeviceRecord videoNode(const QString &name, const QString &bus, int number,
                       const QString &serial = {})
{
    DeviceRecord record;
    record.name = name;
    record.deviceClass = "Video/Source";
    record.busPath = bus;
    record.devicePath = QStringLiteral("/dev/video%1").arg(number);
    record.serial = serial;
    record.hasColour = true;
    return record;
}

DeviceRecord serverNode(const QString &name, const QString &node)
{
    DeviceRecord record;
    record.origin = Origin::PipeWire;
    record.name = name;
    record.deviceClass = "Video/Source";
    record.nodeName = node;
    record.role = "Camera";
    record.hasColour = true;
    return record;
}

DeviceRecord demonstration()
{
    DeviceRecord record;
    record.origin = Origin::Demonstration;
    record.name = "Demonstration Camera";
    record.deviceClass = "Video/Source";
    record.hasColour = true;
    return record;
}

// A copy with one field set.
template <typename Member, typename Value>
DeviceRecord with(DeviceRecord record, Member member, const Value &value)
{
    record.*member = value;
    return record;
}

QStringList namesOf(const QVector<ListedDevice> &devices)
{
    QStringList names;
    for (const ListedDevice &device : devices)
        names.append(device.name);
    return names;
}

} // namespace

Q_DECLARE_METATYPE(DeviceRecord)

class TestDeviceList : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void camerasAreListed_data();
    void camerasAreListed();
    void theOrderOfTheRecordsDoesNotMatter();
    void identitiesAreUniqueAndIndependentOfTheName();
    void whatIsOnNoBusIsKnownByItsNode();
    void theChoiceIsFoundAgain_data();
    void theChoiceIsFoundAgain();
};

void TestDeviceList::camerasAreListed_data()
{
    QTest::addColumn<QVector<DeviceRecord>>("records");
    QTest::addColumn<QStringList>("names");
    const DeviceRecord webcam = videoNode("Webcam", "usb-1", 0, "A");

    QTest::newRow("nothing there") << QVector<DeviceRecord>() << QStringList();
    QTest::newRow("one camera") << QVector<DeviceRecord>{webcam} << QStringList{"Webcam"};
    QTest::newRow("twins are numbered by socket")
        << QVector<DeviceRecord>{videoNode("Webcam", "usb-2", 0), videoNode("Webcam", "usb-1", 2)}
        << QStringList{"Webcam (1)", "Webcam (2)"};
    QTest::newRow("a number that is taken is passed over")
        << QVector<DeviceRecord>{videoNode("Webcam (1)", "usb-1", 0),
                                 videoNode("Webcam", "usb-2", 2), videoNode("Webcam", "usb-3", 4)}
        << QStringList{"Webcam (1)", "Webcam (2)", "Webcam (3)"};
    QTest::newRow("a metadata or infra-red node is hidden")
        << QVector<DeviceRecord>{webcam,
                                 with(videoNode("Webcam", "usb-1", 1, "A"),
                                      &DeviceRecord::hasColour, false)}
        << QStringList{"Webcam"};
    QTest::newRow("an output node is hidden")
        << QVector<DeviceRecord>{with(webcam, &DeviceRecord::deviceClass, "Video/Sink")}
        << QStringList();
    QTest::newRow("a microphone is no camera")
        << QVector<DeviceRecord>{with(webcam, &DeviceRecord::deviceClass, "Audio/Source")}
        << QStringList();
    QTest::newRow("the server's node for a listed camera is skipped") << QVector<DeviceRecord>{
        with(serverNode("Webcam (V4L2)", "v4l2_input"), &DeviceRecord::devicePath, "/dev/video0"),
        webcam} << QStringList{"Webcam"};
    QTest::newRow("the server's node stays when the video node is closed to us")
        << QVector<DeviceRecord>{with(serverNode("Webcam", "v4l2_input"), &DeviceRecord::devicePath,
                                      "/dev/video0")}
        << QStringList{"Webcam"};
    QTest::newRow("the server's node stays when the video node is hidden") << QVector<DeviceRecord>{
        with(serverNode("Webcam", "v4l2_input"), &DeviceRecord::devicePath, "/dev/video0"),
        with(webcam, &DeviceRecord::hasColour, false)} << QStringList{"Webcam"};
    QTest::newRow("the server's nodes for other cameras stay") << QVector<DeviceRecord>{
        with(serverNode("A", "a"), &DeviceRecord::devicePath, "/dev/video9"),
        with(serverNode("B", "b"), &DeviceRecord::libcameraPath, "\\_SB_.HS06-6:1.0-04F2:b6c2"),
        with(webcam, &DeviceRecord::usbIds, "1234:5678")} << QStringList{"Webcam", "A", "B"};
    QTest::newRow("libcamera's node for a listed camera is skipped")
        << QVector<DeviceRecord>{with(serverNode("Webcam", "libcamera_input"),
                                      &DeviceRecord::libcameraPath, "\\_SB_.HS06-6:1.0-04F2:b6c2"),
                                 with(webcam, &DeviceRecord::usbIds, "04f2:b6c2")}
        << QStringList{"Webcam"};
    QTest::newRow("a shared screen is no camera") << QVector<DeviceRecord>{with(
        serverNode("Screen", "screen"), &DeviceRecord::role, "Screen")}
                                                  << QStringList();
    QTest::newRow("video nodes, then the server's, the demonstration last")
        << QVector<DeviceRecord>{demonstration(), serverNode("Phone", "phone"),
                                 serverNode("Alpha", "alpha"), webcam}
        << QStringList{"Webcam", "Alpha", "Phone", "Demonstration Camera"};
    QTest::newRow("a doubled name is said once")
        << QVector<DeviceRecord>{videoNode("Tavelin VX-2K: Tavelin VX-2K", "usb-1", 0),
                                 videoNode("Integrated Camera: Integrated C", "usb-2", 2),
                                 videoNode("HD: Front", "usb-3", 4)}
        << QStringList{"Tavelin VX-2K", "Integrated Camera", "HD: Front"};
    QTest::newRow("a camera without a name")
        << QVector<DeviceRecord>{videoNode("  ", "usb-1", 0)} << QStringList{"Camera"};
    QTest::newRow("two pictures of one camera are in the order of their nodes")
        << QVector<DeviceRecord>{videoNode("Desk", "usb-1", 10, "A"),
                                 videoNode("Face", "usb-1", 2, "A")}
        << QStringList{"Face", "Desk"};
}

void TestDeviceList::camerasAreListed()
{
    QFETCH(QVector<DeviceRecord>, records);
    QTEST(namesOf(listedDevices(records)), "names");
}

void TestDeviceList::theOrderOfTheRecordsDoesNotMatter()
{
    QVector<DeviceRecord> records{demonstration(),
                                  videoNode("Webcam", "usb-2", 4, "B"),
                                  videoNode("Webcam", "usb-1", 8, "A"),
                                  videoNode("Other", "usb-1", 9, "A"),
                                  serverNode("Phone", "phone"),
                                  serverNode("Phone", "phone2")};
    QVector<int> order{0, 1, 2, 3, 4, 5};
    QStringList expected;
    do {
        QVector<DeviceRecord> shuffled;
        for (const int place : qAsConst(order))
            shuffled.append(records.at(place));
        QStringList listed;
        const QVector<ListedDevice> devices = listedDevices(shuffled);
        for (const ListedDevice &device : devices)
            listed.append(device.name + '=' + device.identity);
        if (expected.isEmpty())
            expected = listed;
        QCOMPARE(listed, expected);
    } while (std::next_permutation(order.begin(), order.end()));
    QCOMPARE(expected.size(), 6);
}

void TestDeviceList::identitiesAreUniqueAndIndependentOfTheName()
{
    const QVector<ListedDevice> devices =
        listedDevices({videoNode("Webcam", "usb-1", 0, "A"), videoNode("Webcam", "usb-1", 1, "A"),
                       videoNode("Webcam", "usb-2", 4, "A"), serverNode("Webcam", "n1"),
                       serverNode("Webcam", "n1")});
    QStringList identities;
    for (const ListedDevice &device : devices)
        identities.append(device.identity);
    QCOMPARE(identities.size(), 5);
    QCOMPARE(identities.removeDuplicates(), 0);
    const QVector<ListedDevice> renamed = listedDevices({videoNode("Renamed", "usb-1", 7, "A")});
    QCOMPARE(renamed.first().identity, devices.first().identity);
}

// A loopback, or a camera on the board itself.
void TestDeviceList::whatIsOnNoBusIsKnownByItsNode()
{
    const auto identity = [](const QString &bus, const QString &serial, int number) {
        return listedDevices({videoNode("Screen", bus, number, serial)}).first().identity;
    };
    QVERIFY(identity({}, {}, 7) != identity({}, {}, 8));
    QCOMPARE(identity({}, "A", 7), identity({}, "A", 8));
    QCOMPARE(identity("usb-1", {}, 7), identity("usb-1", {}, 8));
}

void TestDeviceList::theChoiceIsFoundAgain_data()
{
    QTest::addColumn<QVector<DeviceRecord>>("before");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<QVector<DeviceRecord>>("after");
    QTest::addColumn<QString>("found");
    const DeviceRecord a = videoNode("Webcam", "usb-1", 0, "A");
    const DeviceRecord b = videoNode("Desk", "usb-2", 2, "B");
    const DeviceRecord c = videoNode("Extra", "usb-0", 4, "C");
    using Records = QVector<DeviceRecord>;

    QTest::newRow("under another index") << Records{a, b} << 0 << Records{a, b, c} << "Webcam";
    QTest::newRow("under another node")
        << Records{a, b} << 1
        << Records{a, with(b, &DeviceRecord::devicePath, QString("/dev/video9"))} << "Desk";
    QTest::newRow("in another socket")
        << Records{a, b} << 1 << Records{a, with(b, &DeviceRecord::busPath, QString("usb-7"))}
        << "Desk";
    const DeviceRecord twin = videoNode("Webcam", "usb-2", 2, "T");
    const auto onBus = [](const DeviceRecord &record, const char *bus) {
        return with(record, &DeviceRecord::busPath, QString(bus));
    };
    QTest::newRow("changed places with its twin")
        << Records{a, twin} << 0 << Records{onBus(a, "usb-2"), onBus(twin, "usb-1")}
        << "Webcam (2)";
    QTest::newRow("in another socket, behind its twin")
        << Records{a, twin} << 0 << Records{onBus(a, "usb-7"), twin} << "Webcam (2)";
    QTest::newRow("gone: its twin is of the same model")
        << Records{a, twin} << 0 << Records{twin} << "Webcam";
    QTest::newRow("gone: another one is not taken for it")
        << Records{a, b} << 1 << Records{a} << QString();
    QTest::newRow("gone, and it was the only one: the first now")
        << Records{b} << 0 << Records{c, a} << "Extra";
    QTest::newRow("gone, and none left") << Records{b} << 0 << Records{} << QString();
    QTest::newRow("chosen beyond the list") << Records{a} << 1 << Records{a} << QString();
    QTest::newRow("chosen below the list") << Records{a} << -1 << Records{a} << QString();
    QTest::newRow("chosen before any list") << Records{} << 1 << Records{a, b} << "Desk";
}

void TestDeviceList::theChoiceIsFoundAgain()
{
    QFETCH(QVector<DeviceRecord>, before);
    QFETCH(int, chosen);
    QFETCH(QVector<DeviceRecord>, after);
    QFETCH(QString, found);
    const DeviceChoice choice = choiceOf(listedDevices(before), chosen);
    const QVector<ListedDevice> devices = listedDevices(after);
    const int index = indexOfChoice(devices, choice);
    QCOMPARE(index < 0 ? QString() : devices.at(index).name, found);
}

QTEST_GUILESS_MAIN(TestDeviceList)
#include "tst_devicelist.moc"
