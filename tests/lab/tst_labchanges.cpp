#include "LabPattern.h"
#include "Patience.h"
#include "Receiver.h"

#include <QDir>
#include <QFile>
#include <QProcess>

namespace {

int labctl(const QStringList &arguments)
{
    return QProcess::execute(QStringLiteral("labctl"), arguments);
}

QString outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(5000);
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// What the program of this name that runs in this lab has mapped into its memory.
QByteArray mapsOf(const QByteArray &program)
{
    const QByteArray mark = "ORVANTA_LAB=" + qgetenv("ORVANTA_LAB") + '\0';
    const QStringList processes =
        QDir("/proc").entryList({"[1-9]*"}, QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &process : processes) {
        const QString folder = "/proc/" + process;
        if (contentOf(folder + "/comm").trimmed() == program
            && contentOf(folder + "/environ").contains(mark))
            return contentOf(folder + "/maps");
    }
    return {};
}

} // namespace

// What is plugged into the lab, pulled out of it and started anew in it, and what its cameras show.
class TestLabChanges : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theMachinesOwnDevicesAreNotLookedFor();
    void theColoursArriveAsSent_data();
    void theColoursArriveAsSent();
    void aFrozenCameraSendsNothingAndGoesOnLater();
    void aCameraCanBePulledOutAndPluggedInAgain();
    void theMicrophoneCanBePulledOutAndPluggedInAgain();
    void theServersCanBeRestarted();
    void aCameraInUseOutlivesTheSessionManager();
    void theDesktopHasAWindowManager();
};

void TestLabChanges::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    gst_init(nullptr, nullptr);
}

// The session manager would look for them with what it has loaded.
void TestLabChanges::theMachinesOwnDevicesAreNotLookedFor()
{
    const QByteArray maps = mapsOf("wireplumber");
    QVERIFY(maps.contains("libspa-"));
    for (const char *finder : {"libspa-alsa", "libspa-v4l2", "libspa-libcamera", "libspa-bluez5"})
        QVERIFY2(!maps.contains(finder), finder);
}

void TestLabChanges::theColoursArriveAsSent_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("format");
    QTest::newRow("packed, high definition") << "1280x720"
                                             << "UYVY";
    QTest::newRow("packed, small") << "640x480"
                                   << "YUY2";
    QTest::newRow("planar, high definition") << "1920x1080"
                                             << "NV12";
    QTest::newRow("plain colours, odd stride") << "322x240"
                                               << "RGB";
    QTest::newRow("plain colours") << "800x600"
                                   << "BGRx";
}

void TestLabChanges::theColoursArriveAsSent()
{
    QFETCH(QString, size);
    QFETCH(QString, format);
    QCOMPARE(labctl({"plug", "painter", size, "--format", format}), 0);
    QImage picture;
    {
        Receiver receiver("painter", format == "MJPG" ? "image/jpeg ! jpegdec" : "video/x-raw");
        picture = receiver.next(5000);
    }
    QCOMPARE(labctl({"unplug", "painter"}), 0);
    const int worst = LabPattern::worstDifference(picture, LabPattern::groundOf("painter"));
    QVERIFY2(worst < 12, qPrintable(QString::number(worst)));
    QVERIFY(LabPattern::counterOf(picture) >= 0);
}

void TestLabChanges::aFrozenCameraSendsNothingAndGoesOnLater()
{
    Receiver receiver("cam1");
    QVERIFY(!receiver.next(5000).isNull());
    QCOMPARE(labctl({"freeze", "cam1"}), 0);
    while (!receiver.next(300).isNull()) { // what was on its way
    }
    QVERIFY(receiver.next(700).isNull());
    QCOMPARE(labctl({"thaw", "cam1"}), 0);
    QVERIFY(!receiver.next().isNull());
}

void TestLabChanges::aCameraCanBePulledOutAndPluggedInAgain()
{
    QVERIFY(outputOf("pw-dump", {}).contains("\"node.name\": \"cam2\""));
    QCOMPARE(labctl({"unplug", "cam2"}), 0);
    QVERIFY(!outputOf("pw-dump", {}).contains("\"node.name\": \"cam2\""));
    QCOMPARE(outputOf("labctl", {"list"}), QString("cam1"));
    QCOMPARE(labctl({"plug", "cam2", "640x480"}), 0);
    QCOMPARE(outputOf("labctl", {"list"}), QString("cam1\ncam2"));
    Receiver receiver("cam2");
    QCOMPARE(receiver.next(5000).size(), QSize(640, 480));
}

void TestLabChanges::theMicrophoneCanBePulledOutAndPluggedInAgain()
{
    QCOMPARE(outputOf("pactl", {"get-default-source"}), QString("labmic"));
    QCOMPARE(labctl({"microphone", "off"}), 0);
    QVERIFY(!outputOf("pactl", {"list", "short", "sources"}).contains("labmic"));
    QCOMPARE(labctl({"microphone", "on"}), 0);
    QCOMPARE(outputOf("pactl", {"get-default-source"}), QString("labmic"));
    QCOMPARE(outputOf("pactl", {"get-default-sink"}), QString("labspeaker"));
}

void TestLabChanges::theServersCanBeRestarted()
{
    const auto hasSound = [] {
        return outputOf("pactl", {"get-default-source"}) == "labmic"
            && outputOf("pactl", {"get-default-sink"}) == "labspeaker";
    };
    QCOMPARE(labctl({"restart-sound-server"}), 0);
    QTRY_VERIFY(hasSound());
    QCOMPARE(labctl({"restart-session-manager"}), 0);
    {
        Receiver receiver("cam1");
        QVERIFY(!receiver.next(5000).isNull());
    }
    QCOMPARE(labctl({"stop-media-server"}), 0);
    QVERIFY(outputOf("labctl", {"list"}).isEmpty());
    QVERIFY(!outputOf("pw-dump", {}).contains("node.name"));
    QCOMPARE(labctl({"start-media-server"}), 0);
    QTRY_VERIFY(hasSound());
    QCOMPARE(labctl({"plug", "cam1", "1280x720"}), 0);
    QCOMPARE(labctl({"plug", "cam2", "640x480", "--format", "YUY2", "--rate", "15"}), 0);
    QVERIFY(outputOf("pw-dump", {}).contains("\"node.name\": \"cam1\""));
}

// Who looked at it may have to begin anew.
void TestLabChanges::aCameraInUseOutlivesTheSessionManager()
{
    for (int i = 0; i < 3; ++i) {
        Receiver receiver("cam1", "video/x-raw,format=UYVY,width=1280,height=720,framerate=30/1");
        QVERIFY(!receiver.next(5000).isNull());
        QCOMPARE(labctl({"restart-session-manager"}), 0);
        for (int frame = 0; frame < 30 && !receiver.next(500).isNull(); ++frame) { }
        QVERIFY(outputOf("pw-dump", {}).contains("\"node.name\": \"cam1\""));
    }
}

void TestLabChanges::theDesktopHasAWindowManager()
{
    QVERIFY(outputOf("xprop", {"-root", "_NET_SUPPORTING_WM_CHECK"}).contains("window id"));
    QVERIFY(outputOf("xdpyinfo", {}).contains("1024x768"));
}

QTEST_GUILESS_MAIN(TestLabChanges)
#include "tst_labchanges.moc"
