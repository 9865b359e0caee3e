#include "LabPattern.h"
#include "SpareTime.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTest>
#include <QVector>

#include <gst/app/gstappsink.h>
#include <gst/gst.h>
#include <gst/video/video.h>

namespace {

// A plain receiver of one camera of the lab.
class Receiver {
public:
    explicit Receiver(const QString &camera, const QString &decoding = "video/x-raw",
                      const QString &beside = QString())
        : m_pipeline(gst_parse_launch(
            QStringLiteral(
                "pipewiresrc target-object=%1 do-timestamp=true always-copy=true ! %2 ! "
                "videoconvert ! video/x-raw,format=BGRx ! appsink name=sink sync=false %3")
                .arg(camera, decoding, beside)
                .toUtf8()
                .constData(),
            nullptr))
        , m_sink(gst_bin_get_by_name(GST_BIN(m_pipeline), "sink"))
        , m_sound(gst_bin_get_by_name(GST_BIN(m_pipeline), "sound"))
    {
        gst_element_set_state(m_pipeline, GST_STATE_PLAYING);
    }

    ~Receiver()
    {
        gst_element_set_state(m_pipeline, GST_STATE_NULL);
        gst_object_unref(m_sink);
        g_clear_pointer(&m_sound, gst_object_unref);
        gst_object_unref(m_pipeline);
    }

    Receiver(const Receiver &) = delete;
    Receiver &operator=(const Receiver &) = delete;

    // The next frame, or a null picture when none comes in time.
    QImage next(int milliseconds = 2000)
    {
        GstSample *sample = gst_app_sink_try_pull_sample(GST_APP_SINK(m_sink),
                                                         GstClockTime(milliseconds) * GST_MSECOND);
        if (!sample)
            return {};
        m_lastTime = double(GST_BUFFER_PTS(gst_sample_get_buffer(sample))) / GST_SECOND;
        GstVideoInfo info;
        gst_video_info_from_caps(&info, gst_sample_get_caps(sample));
        GstMapInfo map;
        gst_buffer_map(gst_sample_get_buffer(sample), &map, GST_MAP_READ);
        QImage picture =
            QImage(map.data, info.width, info.height, info.stride[0], QImage::Format_RGB32).copy();
        gst_buffer_unmap(gst_sample_get_buffer(sample), &map);
        gst_sample_unref(sample);
        return picture;
    }

    // When the last frame was taken, in seconds of the pipeline.
    double lastTime() const { return m_lastTime; }

    // Listens to the next piece of sound and appends where a tone begins in it; false when no
    // sound comes.
    bool nextToneBegin(bool *silent, QVector<double> *begins)
    {
        GstSample *sample = gst_app_sink_try_pull_sample(GST_APP_SINK(m_sound), 2 * GST_SECOND);
        if (!sample)
            return false;
        GstBuffer *buffer = gst_sample_get_buffer(sample);
        GstMapInfo map;
        gst_buffer_map(buffer, &map, GST_MAP_READ);
        const auto *samples = reinterpret_cast<const qint16 *>(map.data);
        int quiet = 0;
        for (gsize i = 0; i < map.size / sizeof(qint16); ++i) {
            const bool loud = qAbs(int(samples[i])) > 2000;
            if (loud && *silent)
                begins->append(double(GST_BUFFER_PTS(buffer)) / GST_SECOND + double(i) / 48000);
            quiet = loud ? 0 : quiet + 1;
            *silent = !loud && (*silent || quiet > 100);
        }
        gst_buffer_unmap(buffer, &map);
        gst_sample_unref(sample);
        return true;
    }

    QVector<int> counters(int frames)
    {
        QVector<int> seen;
        for (int i = 0; i < frames; ++i)
            seen.append(LabPattern::counterOf(next()));
        return seen;
    }

private:
    GstElement *m_pipeline;
    GstElement *m_sink;
    GstElement *m_sound; // null without a microphone
    double m_lastTime = 0;
};

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

int gapsIn(const QVector<int> &counters)
{
    int gaps = 0;
    for (int i = 1; i < counters.size(); ++i)
        gaps += counters[i] == counters[i - 1] + 1 ? 0 : 1;
    return gaps;
}

} // namespace

// The lab itself, so that a failing picture test can be believed.
class TestLab : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theMachinesOwnDevicesAreNotLookedFor();
    void theCounterCanBeReadBackFromEveryFrame();
    void everySixtiethFrameIsMarked();
    void aForeignPictureHasNoCounter();
    void aCameraKeepsItsPaceAndLosesNoFrame_data();
    void aCameraKeepsItsPaceAndLosesNoFrame();
    void theColoursArriveAsSent_data();
    void theColoursArriveAsSent();
    void receiversThatComeAndGoDoNotDisturbTheOthers();
    void aFrozenCameraSendsNothingAndGoesOnLater();
    void aCameraCanBePulledOutAndPluggedInAgain();
    void theToneIsHeardWhenItsFrameIsSeen();
    void theMicrophoneCanBePulledOutAndPluggedInAgain();
    void theServersCanBeRestarted();
    void aCameraInUseOutlivesTheSessionManager();
    void theDesktopHasAWindowManager();
};

void TestLab::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    gst_init(nullptr, nullptr);
}

// The session manager would look for them with what it has loaded.
void TestLab::theMachinesOwnDevicesAreNotLookedFor()
{
    const QByteArray maps = mapsOf("wireplumber");
    QVERIFY(maps.contains("libspa-"));
    for (const char *finder : {"libspa-alsa", "libspa-v4l2", "libspa-libcamera", "libspa-bluez5"})
        QVERIFY2(!maps.contains(finder), finder);
}

void TestLab::theCounterCanBeReadBackFromEveryFrame()
{
    for (const quint32 counter : {0U, 1U, 2U, 12345U, 0xAAAAAU, 0xFFFFFU}) {
        const QImage picture = LabPattern::frame(320, 180, counter, LabPattern::groundOf("cam1"));
        QCOMPARE(LabPattern::counterOf(picture), int(counter));
        QCOMPARE(LabPattern::worstDifference(picture, LabPattern::groundOf("cam1")), 0);
        QCOMPARE(LabPattern::counterOf(picture.scaled(96, 54)), int(counter));
    }
}

void TestLab::everySixtiethFrameIsMarked()
{
    for (const QString camera : {"cam1", "cam2", "beeper"}) {
        int marked = 0;
        for (quint32 counter = 0; counter < 180; ++counter) {
            const QImage picture = LabPattern::frame(96, 54, counter, LabPattern::groundOf(camera));
            QCOMPARE(LabPattern::isMarked(picture), counter % LabPattern::beatFrames == 0);
            marked += LabPattern::isMarked(picture);
        }
        QCOMPARE(marked, 3);
    }
    QVERIFY(!LabPattern::isMarked(QImage()));
}

void TestLab::aForeignPictureHasNoCounter()
{
    QImage picture(320, 180, QImage::Format_RGB32);
    for (const QRgb colour : {0xff000000U, 0xffffffffU, 0xff808080U}) {
        picture.fill(colour);
        QCOMPARE(LabPattern::counterOf(picture), -1);
        QVERIFY(LabPattern::worstDifference(picture, LabPattern::groundOf("cam1")) > 100);
    }
    QCOMPARE(LabPattern::counterOf(QImage()), -1);
}

void TestLab::aCameraKeepsItsPaceAndLosesNoFrame_data()
{
    QTest::addColumn<QString>("camera");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("rate");
    QTest::newRow("high definition at 30") << "cam1" << QSize(1280, 720) << 30;
    QTest::newRow("small at 15") << "cam2" << QSize(640, 480) << 15;
}

void TestLab::aCameraKeepsItsPaceAndLosesNoFrame()
{
    QFETCH(QString, camera);
    QFETCH(QSize, size);
    QFETCH(int, rate);
    Receiver receiver(camera);
    QCOMPARE(receiver.next(5000).size(), size);
    const SpareTime time;
    QElapsedTimer timer;
    timer.start();
    const QVector<int> seen = receiver.counters(3 * rate);
    const double measured = 3.0 * rate * 1000 / double(timer.elapsed());
    QVERIFY(gapsIn(seen) <= rate * time.lateness());
    QVERIFY2(qAbs(measured - rate) < (0.1 + time.lateness() / 3) * rate,
             qPrintable(QString::number(measured)));
}

void TestLab::theColoursArriveAsSent_data()
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

void TestLab::theColoursArriveAsSent()
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

void TestLab::receiversThatComeAndGoDoNotDisturbTheOthers()
{
    Receiver steady("cam1");
    QVERIFY(!steady.next(5000).isNull());
    QVector<int> seen;
    for (int visit = 0; visit < 3; ++visit) {
        Receiver guest("cam1");
        QVERIFY(!guest.next(5000).isNull());
        seen += steady.counters(15);
    }
    seen += steady.counters(15);
    // Joining and leaving may each hold the graph up for a frame, but never change its pace.
    QVERIFY2(seen.last() - seen.first() <= seen.size() + 8,
             qPrintable(QString::number(seen.last() - seen.first())));
    QVERIFY(!seen.contains(-1));
}

void TestLab::aFrozenCameraSendsNothingAndGoesOnLater()
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

void TestLab::aCameraCanBePulledOutAndPluggedInAgain()
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

void TestLab::theToneIsHeardWhenItsFrameIsSeen()
{
    const SpareTime time;
    QCOMPARE(labctl({"plug", "beeper", "640x480", "--beep", "micfeed"}), 0);
    Receiver receiver(
        "beeper", "video/x-raw",
        "pulsesrc provide-clock=false ! audio/x-raw,format=S16LE,rate=48000,channels=1"
        " ! appsink name=sound sync=false");
    QVector<double> seen;
    QVector<double> heard;
    bool silent = true;
    while (seen.size() < 2) {
        const QImage picture = receiver.next(5000);
        QVERIFY(!picture.isNull());
        if (LabPattern::isMarked(picture)) {
            QCOMPARE(LabPattern::counterOf(picture) % int(LabPattern::beatFrames), 0);
            seen.append(receiver.lastTime());
        }
    }
    while (heard.isEmpty() || heard.last() < seen.last() - 0.5)
        QVERIFY(receiver.nextToneBegin(&silent, &heard));
    QCOMPARE(labctl({"unplug", "beeper"}), 0);
    const double offset = heard.last() - seen.last();
    QVERIFY2(qAbs(offset) < 0.05 + time.lateness(), qPrintable(QString::number(offset)));
}

void TestLab::theMicrophoneCanBePulledOutAndPluggedInAgain()
{
    QCOMPARE(outputOf("pactl", {"get-default-source"}), QString("labmic"));
    QCOMPARE(labctl({"microphone", "off"}), 0);
    QVERIFY(!outputOf("pactl", {"list", "short", "sources"}).contains("labmic"));
    QCOMPARE(labctl({"microphone", "on"}), 0);
    QCOMPARE(outputOf("pactl", {"get-default-source"}), QString("labmic"));
    QCOMPARE(outputOf("pactl", {"get-default-sink"}), QString("labspeaker"));
}

void TestLab::theServersCanBeRestarted()
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
void TestLab::aCameraInUseOutlivesTheSessionManager()
{
    for (int i = 0; i < 3; ++i) {
        Receiver receiver("cam1", "video/x-raw,format=UYVY,width=1280,height=720,framerate=30/1");
        QVERIFY(!receiver.next(5000).isNull());
        QCOMPARE(labctl({"restart-session-manager"}), 0);
        for (int frame = 0; frame < 30 && !receiver.next(500).isNull(); ++frame) { }
        QVERIFY(outputOf("pw-dump", {}).contains("\"node.name\": \"cam1\""));
    }
}

void TestLab::theDesktopHasAWindowManager()
{
    QVERIFY(outputOf("xprop", {"-root", "_NET_SUPPORTING_WM_CHECK"}).contains("window id"));
    QVERIFY(outputOf("xdpyinfo", {}).contains("1024x768"));
}

QTEST_GUILESS_MAIN(TestLab)
#include "tst_lab.moc"
