#include "CameraFrame.h"
#include "CameraPipeline.h"
#include "CapsModes.h"
#include "GrabThread.h"
#include "GstStart.h"
#include "LabCommands.h"
#include "LabPattern.h"
#include "LiveVideoData.h"
#include "Opening.h"
#include "Patience.h"
#include "PictureConverter.h"

#include <QElapsedTimer>
#include <QFrame>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>

// A camera that goes away while it is open, and comes back.
class TestEngineLoss : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aLossIsReportedOnceAndSoon_data();
    void aLossIsReportedOnceAndSoon();
    void aCameraPluggedInAgainIsFoundUnderAnyIndex();
    void anotherCameraIsNotTakenForTheChosenOne();
    void theEngineMayBeReleasedFromInsideTheReport();
    void anotherCameraThatGoesIsNoLoss();
    void aCameraThatBecameTheDefaultLeavesTheListWhenItGoes();
    void aCameraThatPausesIsNoLoss();
    void aProcessThatStoodStillKeepsItsCamera();
    void aCameraThatSendsNothingIsNotOpened();
    void aFrameSurvivesItsCamera();

private:
    QImage seen() const; ///< what the target shows
    bool targetIsBlack() const;

    QFrame m_target;
    std::unique_ptr<LiveVideoData> m_engine;
    std::unique_ptr<QSignalSpy> m_losses;
    QTemporaryDir m_folder;
};

void TestEngineLoss::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    m_target.resize(320, 240);
    m_target.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_target));
}

// Opens "first", with "second" beside it.
void TestEngineLoss::init()
{
    m_engine = std::make_unique<LiveVideoData>();
    m_losses = std::make_unique<QSignalSpy>(m_engine.get(), &LiveVideoData::disconnectDevice);
    m_engine->SetTarget(&m_target);
    QTRY_COMPARE(m_engine->GetVideoDeviceList(), (QStringList{"first", "second"}));
    m_engine->SetVideoDevice(0);
    QVERIFY(opens(*m_engine));
    m_engine->Start();
    QTRY_VERIFY(!targetIsBlack());
}

void TestEngineLoss::cleanup()
{
    m_losses.reset();
    m_engine.reset();
}

QImage TestEngineLoss::seen() const
{
    return const_cast<QFrame &>(m_target).grab().toImage();
}

bool TestEngineLoss::targetIsBlack() const
{
    const QImage picture = seen();
    QImage black(picture.size(), picture.format());
    black.fill(Qt::black);
    return picture == black;
}

void TestEngineLoss::aLossIsReportedOnceAndSoon_data()
{
    QTest::addColumn<QStringList>("end");
    QTest::addColumn<QStringList>("restore");
    QTest::addColumn<int>("earliest"); // ms
    QTest::addColumn<int>("latest"); // ms, with what the lab itself takes
    QTest::newRow("unplugged") << QStringList{"unplug", "first"}
                               << QStringList{"plug", "first", "1280x720"} << 0 << 1500;
    QTest::newRow("frozen") << QStringList{"freeze", "first"} << QStringList{"thaw", "first"}
                            << 2900 << 6000;
}

void TestEngineLoss::aLossIsReportedOnceAndSoon()
{
    QFETCH(QStringList, end);
    QFETCH(QStringList, restore);
    QFETCH(int, earliest);
    QFETCH(int, latest);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(labctl(end));
    QTRY_COMPARE_WITH_TIMEOUT(m_losses->count(), 1, latest + 1000);
    QVERIFY2(timer.elapsed() >= earliest, qPrintable(QString::number(timer.elapsed())));
    QVERIFY2(timer.elapsed() < latest, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(targetIsBlack());
    QVERIFY(m_engine->created);
    QVERIFY(!m_engine->SaveBitmap(m_folder.filePath("late.png")));
    QTest::qWait(1000); // nothing to wait for: a second report must not come
    QCOMPARE(m_losses->count(), 1);
    m_engine->Release();
    QVERIFY(!m_engine->created);
    QVERIFY(labctl(restore));
    QTRY_VERIFY((m_engine->Create(), m_engine->created));
    m_engine->Start();
    QTRY_VERIFY(!targetIsBlack());
}

void TestEngineLoss::aCameraPluggedInAgainIsFoundUnderAnyIndex()
{
    QVERIFY(labctl({"unplug", "first"}));
    QTRY_COMPARE(m_losses->count(), 1);
    m_engine->Release();
    QVERIFY(labctl({"plug", "another", "320x240"}));
    QVERIFY(labctl({"plug", "first", "1280x720"}));
    QTRY_COMPARE(m_engine->GetVideoDeviceList(), (QStringList{"another", "first", "second"}));
    QVERIFY(opens(*m_engine));
    QCOMPARE(QSize(m_engine->nativeWidth, m_engine->nativeHeight), QSize(1280, 720));
    QVERIFY(labctl({"unplug", "another"}));
}

void TestEngineLoss::anotherCameraIsNotTakenForTheChosenOne()
{
    QVERIFY(labctl({"unplug", "first"}));
    QTRY_COMPARE(m_losses->count(), 1);
    m_engine->Release();
    m_engine->Create();
    QVERIFY(m_engine->supported);
    QVERIFY(!m_engine->created);
    QVERIFY(!m_engine->videoPresent);
    QVERIFY(labctl({"plug", "first", "1280x720"}));
    QTRY_VERIFY((m_engine->Create(), m_engine->created));
    QVERIFY(m_engine->videoPresent);
}

void TestEngineLoss::theEngineMayBeReleasedFromInsideTheReport()
{
    connect(m_engine.get(), &LiveVideoData::disconnectDevice, m_engine.get(),
            &LiveVideoData::Release);
    QVERIFY(labctl({"unplug", "first"}));
    QTRY_VERIFY(!m_engine->created);
    QCOMPARE(m_losses->count(), 1);
    QVERIFY(labctl({"plug", "first", "1280x720"}));
}

void TestEngineLoss::anotherCameraThatGoesIsNoLoss()
{
    QVERIFY(labctl({"unplug", "second"}));
    QTRY_COMPARE(m_engine->GetVideoDeviceList(), QStringList{"first"});
    QVERIFY(labctl({"plug", "second", "640x480"}));
    QCOMPARE(m_losses->count(), 0);
    QVERIFY(m_engine->SaveBitmap(m_folder.filePath("still.png")));
}

// What provides the list tells of such a camera by a new object, and may forget to take that away.
void TestEngineLoss::aCameraThatBecameTheDefaultLeavesTheListWhenItGoes()
{
    const QStringList both{"first", "second"};
    for (const char *camera : {"first", "second", "first"}) {
        QVERIFY(labctl({"default-camera", camera}));
        QCOMPARE(m_engine->GetVideoDeviceList(), both);
    }
    QVERIFY(labctl({"default-camera", "second"}));
    QVERIFY(labctl({"unplug", "second"}));
    QTRY_COMPARE(m_engine->GetVideoDeviceList(), QStringList{"first"});
    QVERIFY(labctl({"plug", "second", "640x480"}));
    QTRY_COMPARE(m_engine->GetVideoDeviceList(), both);
    QCOMPARE(m_losses->count(), 0);
}

// For its focus, or to open up in the dark.
void TestEngineLoss::aCameraThatPausesIsNoLoss()
{
    QVERIFY(labctl({"freeze", "first"}));
    const QImage before = seen();
    QTest::qWait(2000); // nothing to wait for: the pause itself
    QCOMPARE(m_losses->count(), 0);
    QVERIFY(labctl({"thaw", "first"}));
    QTRY_VERIFY(seen() != before);
    QCOMPARE(m_losses->count(), 0);
}

// Stopped by a debugger or the desktop, or on a machine that was suspended.
void TestEngineLoss::aProcessThatStoodStillKeepsItsCamera()
{
    const QString self = QString::number(QCoreApplication::applicationPid());
    QElapsedTimer timer;
    timer.start();
    const QString pause = QStringLiteral("sleep 6"); // nothing to wait for: it stands still
    QVERIFY(QProcess::startDetached(
        "sh", {"-c", "kill -STOP " + self + "; " + pause + "; kill -CONT " + self}));
    QTRY_VERIFY_WITH_TIMEOUT(timer.elapsed() >= 6000, 30000);
    const QImage before = seen();
    QTRY_VERIFY(seen() != before);
    QCOMPARE(m_losses->count(), 0);
}

void TestEngineLoss::aCameraThatSendsNothingIsNotOpened()
{
    m_engine->SetVideoDevice(1);
    m_engine->Release();
    QVERIFY(labctl({"freeze", "second"}));
    QElapsedTimer timer;
    timer.start();
    m_engine->Create();
    QVERIFY(!m_engine->created);
    QVERIFY(!m_engine->videoPresent);
    QVERIFY2(timer.elapsed() < 6000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(labctl({"thaw", "second"}));
    QVERIFY(opens(*m_engine));
    QCOMPARE(m_losses->count(), 0);
}

// A picture that is being saved must stay whole when the cable is pulled.
void TestEngineLoss::aFrameSurvivesItsCamera()
{
    m_engine.reset();
    const CameraMode mode{CameraMode::Encoding::Raw, "UYVY", 1280, 720, 30, 1};
    const GstMiniHandle<GstCaps> offered(gst_caps_new_empty_simple("video/x-raw"));
    GstObjectHandle<GstElement> source =
        ownFloating(gst_element_factory_make("pipewiresrc", nullptr));
    g_object_set(source.get(), "target-object", "first", nullptr);
    auto *thread = new GrabThread;
    thread->capture(CameraPipeline::build(std::move(source), fixedCaps(offered.get(), mode), mode));
    QVERIFY(thread->waitForFrame(5000));
    const std::shared_ptr<const CameraFrame> frame = thread->newestFrame();
    QVERIFY(frame);
    QVERIFY(labctl({"unplug", "first"}));
    QTRY_VERIFY(thread->hasFailed());
    QVERIFY(!thread->newestFrame());
    GrabThread::retire(thread);
    const QImage picture = PictureConverter(QImage::Format_RGB888).convert(*frame, frame->size());
    QVERIFY(LabPattern::worstDifference(picture, LabPattern::groundOf("first")) < 14);
    QVERIFY(labctl({"plug", "first", "1280x720"}));
}

QTEST_MAIN(TestEngineLoss)
#include "tst_engineloss.moc"
