#include "Devices.h"
#include "GstStart.h"
#include "LiveVideoData.h"

#include <QFrame>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <glib.h>

using Kind = TestCameras::Kind;

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

private:
    void begin(const QList<Kind> &kinds);
    bool open();
    QImage photo();
    bool framesGoOn();

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

QTEST_MAIN(TestCameraDrivers)
#include "tst_cameradrivers.moc"
