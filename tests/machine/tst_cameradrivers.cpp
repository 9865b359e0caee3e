#include "CameraDevice.h"
#include "CameraFrame.h"
#include "CameraPipeline.h"
#include "DeviceProviders.h"
#include "Devices.h"
#include "GstStart.h"
#include "LiveVideoData.h"
#include "Patience.h"
#include "PictureConverter.h"
#include "SpareTime.h"

#include <QFrame>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <glib.h>

using Kind = TestCameras::Kind;
using std::chrono::seconds;
using std::chrono::steady_clock;

static const int openingLimit = 120000; // ms, with several attempts, on a slow machine
static const int reactionLimit = 60000; // ms
static const int frameLimit = 30000; // ms
static const int colourTolerance = 24; // of what went through luma and chroma

// What GLib and GStreamer complain about as a fault of the program.
static int complaints = 0;

static void onLog(const gchar *domain, GLogLevelFlags level, const gchar *text, gpointer)
{
    if (level & (G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_ERROR))
        ++complaints;
    qWarning("%s: %s", domain ? domain : "?", text);
}

// The driver's bars, from left to right, at three quarters of their colours.
static const QRgb bars[] = {qRgb(191, 191, 191), qRgb(191, 191, 0), qRgb(0, 191, 191),
                            qRgb(0, 191, 0),     qRgb(191, 0, 191), qRgb(191, 0, 0),
                            qRgb(0, 0, 191),     qRgb(0, 0, 0)};

// Below the texts that the driver writes into its picture.
static int worstDifference(const QImage &picture)
{
    int worst = picture.isNull() ? 255 : 0;
    for (int bar = 0; bar < 8 && !picture.isNull(); ++bar) {
        const QRgb seen =
            picture.pixel((2 * bar + 1) * picture.width() / 16, picture.height() * 9 / 10);
        worst = std::max({worst, qAbs(qRed(seen) - qRed(bars[bar])),
                          qAbs(qGreen(seen) - qGreen(bars[bar])),
                          qAbs(qBlue(seen) - qBlue(bars[bar]))});
    }
    return worst;
}

/** The engine with cameras of a driver that behaves as real ones do, well or ill. */
class TestCameraDrivers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void aWebcamShowsItsColoursAtOnce();
    void televisionIsShownWithoutComplaint();
    void aCameraThatIsPulledOutIsLostOnceAndFoundAgain();
    void aCameraThatAnotherProgramUsesIsOpenedWhenItLetsGo();
    void twinsAreKeptApart();
    void onlyCamerasAreListed();
    void aFaultOfTheStreamIsALossThatCanBeMended_data();
    void aFaultOfTheStreamIsALossThatCanBeMended();
    void aCameraThatDoesNotStartIsOpenedTheNextTime();
    void aPictureThatIsDamagedIsNoLoss_data();
    void aPictureThatIsDamagedIsNoLoss();
    void hdmiThatChangesItsPictureIsFoundAgain();
    void everyFormatHasTheSameColours_data();
    void everyFormatHasTheSameColours();
    void framesComeAtTheRateThatWasChosen_data();
    void framesComeAtTheRateThatWasChosen();

private:
    void begin(const QList<Kind> &kinds);
    bool open();
    QImage photo();
    bool framesGoOn();
    static int framesInStep(CameraPipeline &camera, int rate, int frames);
    static std::unique_ptr<CameraPipeline> pipelineOf(const QByteArray &format, const QSize &size,
                                                      int rate);

    QTemporaryDir m_folder;
    std::unique_ptr<TestCameras> m_cameras; // goes after the engine, which holds its device
    std::unique_ptr<LiveVideoData> m_engine;
    std::unique_ptr<QSignalSpy> m_losses;
    int m_photos = 0;
};

void TestCameraDrivers::initTestCase()
{
    QVERIFY(startGstreamer());
    g_log_set_default_handler(onLog, nullptr);
}

void TestCameraDrivers::begin(const QList<Kind> &kinds)
{
    complaints = 0;
    m_cameras = std::make_unique<TestCameras>(kinds);
    QVERIFY(m_cameras->isLoaded());
    m_engine = std::make_unique<LiveVideoData>();
    m_losses = std::make_unique<QSignalSpy>(m_engine.get(), &LiveVideoData::disconnectDevice);
    QTRY_COMPARE_WITH_TIMEOUT(m_engine->GetVideoDeviceList().size(), kinds.size(), reactionLimit);
}

void TestCameraDrivers::cleanup()
{
    m_losses.reset();
    m_engine.reset();
    m_cameras.reset();
}

bool TestCameraDrivers::open()
{
    return QTest::qWaitFor([this] { return m_engine->Create(), m_engine->created; }, openingLimit);
}

QImage TestCameraDrivers::photo()
{
    const QString path = m_folder.filePath(QStringLiteral("%1.png").arg(++m_photos));
    return m_engine->SaveBitmap(path) ? QImage(path) : QImage();
}

// The driver writes a counter into each frame.
bool TestCameraDrivers::framesGoOn()
{
    const QImage before = photo();
    return !before.isNull()
        && QTest::qWaitFor(
            [&] {
                const QImage now = photo();
                return !now.isNull() && now != before;
            },
            frameLimit);
}

void TestCameraDrivers::aWebcamShowsItsColoursAtOnce()
{
    begin({Kind::Webcam});
    QFrame target;
    target.resize(320, 240);
    target.show();
    QVERIFY(QTest::qWaitForWindowExposed(&target));
    m_engine->SetTarget(&target);
    QVERIFY(open());
    QCOMPARE(QSize(m_engine->nativeWidth, m_engine->nativeHeight), QSize(640, 480));
    m_engine->Start();
    QTRY_VERIFY_WITH_TIMEOUT(worstDifference(target.grab().toImage()) < colourTolerance,
                             reactionLimit);
    const QImage saved = photo();
    QCOMPARE(saved.size(), QSize(640, 480));
    QVERIFY(worstDifference(saved) < colourTolerance);
    QVERIFY(framesGoOn());
    QCOMPARE(complaints, 0);
}

void TestCameraDrivers::televisionIsShownWithoutComplaint()
{
    begin({Kind::Television});
    QVERIFY(open());
    QVERIFY(framesGoOn());
    QVERIFY2(worstDifference(photo()) < colourTolerance,
             qPrintable(QString::number(worstDifference(photo()))));
    QCOMPARE(complaints, 0);
    QCOMPARE(m_losses->count(), 0);
}

void TestCameraDrivers::aCameraThatIsPulledOutIsLostOnceAndFoundAgain()
{
    begin({Kind::Webcam});
    QVERIFY(open());
    QVERIFY(TestCameras::pullOut());
    QTRY_COMPARE_WITH_TIMEOUT(m_losses->count(), 1, reactionLimit);
    m_engine->Release();
    QTRY_COMPARE_WITH_TIMEOUT(m_engine->GetVideoDeviceList().size(), 0, reactionLimit);
    QVERIFY(TestCameras::plugIn());
    QVERIFY(open());
    QVERIFY(framesGoOn());
    QCOMPARE(m_losses->count(), 1);
}

void TestCameraDrivers::aCameraThatAnotherProgramUsesIsOpenedWhenItLetsGo()
{
    begin({Kind::Webcam});
    std::unique_ptr<OtherProgram> other = OtherProgram::streaming(TestCameras::node());
    QVERIFY(other);
    m_engine->Create();
    QVERIFY(!m_engine->created);
    QVERIFY2(!m_engine->videoPresent, "the user is told that there is no camera to be used");
    QCOMPARE(m_engine->GetVideoDeviceList(), QStringList{"vivid"});
    other.reset();
    QVERIFY(open());
    QVERIFY(framesGoOn());
}

void TestCameraDrivers::twinsAreKeptApart()
{
    begin({Kind::Webcam, Kind::Webcam});
    QCOMPARE(m_engine->GetVideoDeviceList(), (QStringList{"vivid (1)", "vivid (2)"}));
    m_engine->SetVideoDevice(1);
    QVERIFY(open());
    QVERIFY(framesGoOn());
    QVERIFY(TestCameras::set("disconnect", 1, 0));
    QVERIFY(framesGoOn());
    QCOMPARE(m_losses->count(), 0);
    QVERIFY(TestCameras::set("disconnect", 1, 1));
    QTRY_COMPARE_WITH_TIMEOUT(m_losses->count(), 1, reactionLimit);
}

void TestCameraDrivers::onlyCamerasAreListed()
{
    // Picture, teletext and closed captions, radio, picture out, data beside the picture, touch.
    const uint everything = 0xe1d3d;
    m_cameras = std::make_unique<TestCameras>(everything);
    QVERIFY(m_cameras->isLoaded());
    m_engine = std::make_unique<LiveVideoData>();
    QTRY_COMPARE_WITH_TIMEOUT(m_engine->GetVideoDeviceList(), QStringList{"vivid"}, reactionLimit);
    QVERIFY(open());
    QVERIFY(framesGoOn());
}

void TestCameraDrivers::aFaultOfTheStreamIsALossThatCanBeMended_data()
{
    QTest::addColumn<QString>("fault");
    QTest::newRow("the driver gives up") << "inject_fatal_streaming_error";
    QTest::newRow("the device is gone without a word") << "disconnect";
}

void TestCameraDrivers::aFaultOfTheStreamIsALossThatCanBeMended()
{
    QFETCH(QString, fault);
    begin({Kind::Webcam});
    QVERIFY(open());
    QVERIFY(TestCameras::set(fault));
    QTRY_COMPARE_WITH_TIMEOUT(m_losses->count(), 1, reactionLimit);
    m_engine->Release();
    QVERIFY(open());
    QVERIFY(framesGoOn());
    QCOMPARE(m_losses->count(), 1);
}

void TestCameraDrivers::aCameraThatDoesNotStartIsOpenedTheNextTime()
{
    begin({Kind::Webcam});
    QVERIFY(open());
    m_engine->Release();
    QVERIFY(TestCameras::set("inject_vidioc_streamon_error"));
    m_engine->Create();
    QVERIFY(!m_engine->created);
    QVERIFY(open());
    QVERIFY(framesGoOn());
}

void TestCameraDrivers::aPictureThatIsDamagedIsNoLoss_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<int>("value");
    QTest::newRow("one is marked as torn") << "inject_v4l2_buf_flag_error" << 1;
    QTest::newRow("every second one is missing") << "percentage_of_dropped_buffers" << 50;
    QTest::newRow("half as many come") << "reduced_framerate" << 1;
}

void TestCameraDrivers::aPictureThatIsDamagedIsNoLoss()
{
    QFETCH(QString, fault);
    QFETCH(int, value);
    begin({Kind::Webcam});
    QVERIFY(open());
    QVERIFY(TestCameras::set(fault, value));
    for (int i = 0; i < 4; ++i)
        QVERIFY(framesGoOn());
    QCOMPARE(m_losses->count(), 0);
}

void TestCameraDrivers::hdmiThatChangesItsPictureIsFoundAgain()
{
    begin({Kind::Hdmi});
    QVERIFY(open());
    QVERIFY(framesGoOn());
    // No source, as when the computer at the other end changes its picture, then another one.
    QVERIFY(TestCameras::set("dv_timings_signal_mode", 1));
    QTRY_COMPARE_WITH_TIMEOUT(m_losses->count(), 1, reactionLimit);
    m_engine->Release();
    QVERIFY(TestCameras::set("dv_timings_signal_mode", 0));
    QVERIFY(run("v4l2-ctl", {"-d", TestCameras::node(), "--set-dv-bt-timings", "index=0"}));
    QVERIFY(open());
    QVERIFY(framesGoOn());
}

// The parts of the engine that are asked here have providers of their own.
std::unique_ptr<CameraPipeline> TestCameraDrivers::pipelineOf(const QByteArray &format,
                                                              const QSize &size, int rate)
{
    CameraHandle camera;
    CameraMode found;
    const auto offers = [&] {
        DeviceProviders::start(steady_clock::now() + seconds(10));
        const QVector<CameraHandle> cameras = DeviceProviders::cameras();
        if (cameras.size() != 1)
            return false;
        camera = cameras.first();
        const QVector<CameraMode> modes = camera->modes();
        const auto mode = std::find_if(modes.begin(), modes.end(), [&](const CameraMode &offered) {
            return offered.format == format && offered.size() == size
                && qRound(offered.rate()) == rate;
        });
        found = mode == modes.end() ? CameraMode() : *mode;
        return mode != modes.end();
    };
    if (!QTest::qWaitFor(offers, frameLimit))
        return nullptr;
    return CameraPipeline::build(camera->makeSource(), camera->formatOf(found), found);
}

void TestCameraDrivers::everyFormatHasTheSameColours_data()
{
    QTest::addColumn<QByteArray>("format");
    for (const char *format : {"YUY2", "UYVY", "NV12", "I420", "Y42B", "RGB", "BGRx"})
        QTest::newRow(format) << QByteArray(format);
}

void TestCameraDrivers::everyFormatHasTheSameColours()
{
    QFETCH(QByteArray, format);
    begin({Kind::Webcam});
    const std::unique_ptr<CameraPipeline> camera = pipelineOf(format, {320, 180}, 25);
    QVERIFY2(camera, "the driver does not have this format");
    QVERIFY(camera->play());
    const auto frame = CameraFrame::fromSample(camera->nextSample(frameLimit));
    QVERIFY2(frame, qPrintable(camera->failure()));
    PictureConverter whole(QImage::Format_RGB888);
    QVERIFY(worstDifference(whole.convert(*frame, frame->size())) < colourTolerance);
    PictureConverter screen(QImage::Format_RGB32);
    QVERIFY(worstDifference(screen.convert(*frame, {256, 144})) < colourTolerance);
}

void TestCameraDrivers::framesComeAtTheRateThatWasChosen_data()
{
    QTest::addColumn<int>("rate");
    for (int rate : {10, 30, 60})
        QTest::addRow("%d", rate) << rate;
}

// Of the next frames, how many came as many periods after the one before as the rate says. By the
// times of the driver, which on a machine without time are those of when it had some.
int TestCameraDrivers::framesInStep(CameraPipeline &camera, int rate, int frames)
{
    GstClockTime last = GST_CLOCK_TIME_NONE;
    int inStep = 0;
    for (int i = 0; i < frames; ++i) {
        const GstMiniHandle<GstSample> sample = camera.nextSample(frameLimit);
        if (!sample)
            return -1;
        const GstClockTime time = GST_BUFFER_PTS(gst_sample_get_buffer(sample.get()));
        if (last != GST_CLOCK_TIME_NONE) {
            const double steps = double(time - last) * rate / double(GST_SECOND);
            inStep += std::round(steps) >= 1 && std::fabs(steps - std::round(steps)) < 0.25;
        }
        last = time;
    }
    return inStep;
}

// A slow machine loses frames, but none comes at a wrong time.
void TestCameraDrivers::framesComeAtTheRateThatWasChosen()
{
    QFETCH(int, rate);
    begin({Kind::Webcam});
    const std::unique_ptr<CameraPipeline> camera = pipelineOf("YUY2", {320, 180}, rate);
    QVERIFY(camera);
    QVERIFY(camera->play());
    const int frames = 12;
    const int mostTries = 10;
    for (int i = 0; i < mostTries; ++i) {
        const SpareTime spare;
        const int inStep = framesInStep(*camera, rate, frames);
        QVERIFY2(inStep >= 0, qPrintable(camera->failure()));
        if (inStep >= frames - 3)
            return;
        QVERIFY2(!spare.isPlenty(), qPrintable(QString::number(inStep)));
    }
    QSKIP("the machine had no time for a camera that keeps its rate");
}

QTEST_MAIN(TestCameraDrivers)
#include "tst_cameradrivers.moc"
