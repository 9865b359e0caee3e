#include "LabPattern.h"
#include "LiveVideoData.h"
#include "MovieFile.h"
#include "Opening.h"
#include "Patience.h"
#include "UvcPlug.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFrame>
#include <QImage>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

static const int reactionLimit = 60000; // ms, of an emulated machine
// What is added there to the limit that an operation keeps.
static const int slack = 1500; // ms
static const QStringList smallPicture{"MJPG:320x240:15"};

// The nodes of cameras that this process has open or mapped.
static QStringList heldNodes()
{
    QStringList held;
    const QDir descriptors("/proc/self/fd");
    for (const QString &name : descriptors.entryList(QDir::Files | QDir::System)) {
        const QString target = QFile::symLinkTarget(descriptors.filePath(name));
        if (target.contains("/video") || target.contains("dmabuf"))
            held.append(target);
    }
    QFile maps("/proc/self/maps");
    if (maps.open(QIODevice::ReadOnly))
        for (const QByteArray &line : maps.readAll().split('\n'))
            if (line.contains("/dev/video") || line.contains("dmabuf"))
                held.append(QString::fromUtf8(line));
    return held;
}

// Cameras behind the kernel's own driver for USB cameras.
class TestUvcCameras : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aCameraOfTwoNodesIsListedOnce();
    void jpegAtFullSpeedIsTakenBeforeALargerRawPicture();
    void tornAndEmptyPicturesAreLeftOut();
    void aCameraThatPausesIsNotLost();
    void aCameraThatStandsStillIsLostOnce();
    void aLooseContactIsToldAsALoss();
    void aPulledCameraIsLostOnceAndFoundInAnotherPort();
    void ofAReleasedCameraNothingIsHeldOpen();
    void ofAPulledCameraNothingIsHeldOpen();
    void aMovieOfAPulledCameraIsComplete();
    void aCameraThatAnswersNothingHoldsNobodyUp();
    void aCameraThatIsMuteWhenItIsOpenedHoldsNobodyUp();
    void twoOfOneModelAreKeptApart();
    void twoOfOneModelThatChangedPlacesAreKeptApart();
    void theOneThatIsPulledBesideItsTwinIsTheOneThatIsLost();

private:
    void open(const QStringList &names, int index = 0);
    QImage photo() const;
    bool showsCameraOf(const QString &serial) const;
    bool movesOn() const;

    QFrame m_target;
    QTemporaryDir m_folder;
    std::unique_ptr<LiveVideoData> m_engine;
    std::unique_ptr<QSignalSpy> m_losses;
};

// The cameras are told apart by the colour of their pictures.
void TestUvcCameras::initTestCase()
{
    QCOMPARE(QProcess::execute("modprobe", {"-a", "vhci-hcd", "uvcvideo", "snd-aloop"}), 0);
    const QImage picture = LabPattern::frame(64, 48, 1, LabPattern::groundOf("A1"));
    QVERIFY(LabPattern::worstDifference(picture, LabPattern::groundOf("C7")) > 48);
}

void TestUvcCameras::init()
{
    m_target.resize(320, 240);
    m_target.show();
    m_engine = std::make_unique<LiveVideoData>();
    m_engine->SetTarget(&m_target);
    m_losses = std::make_unique<QSignalSpy>(m_engine.get(), &LiveVideoData::disconnectDevice);
}

void TestUvcCameras::cleanup()
{
    m_losses.reset();
    m_engine.reset();
}

void TestUvcCameras::open(const QStringList &names, int index)
{
    QTRY_COMPARE_WITH_TIMEOUT(m_engine->GetVideoDeviceList(), names, reactionLimit);
    m_engine->SetVideoDevice(index);
    QVERIFY(opens(*m_engine));
    m_engine->Start();
}

QImage TestUvcCameras::photo() const
{
    const QString path = m_folder.filePath("photo.png");
    QFile::remove(path);
    return m_engine->SaveBitmap(path) ? QImage(path) : QImage();
}

bool TestUvcCameras::showsCameraOf(const QString &serial) const
{
    return LabPattern::worstDifference(photo(), LabPattern::groundOf(serial)) < 24;
}

bool TestUvcCameras::movesOn() const
{
    const int before = LabPattern::counterOf(photo());
    return QTest::qWaitFor(
        [&] {
            const int now = LabPattern::counterOf(photo());
            return now >= 0 && now != before;
        },
        reactionLimit);
}

void TestUvcCameras::aCameraOfTwoNodesIsListedOnce()
{
    UvcPlug camera("A1", smallPicture);
    QVERIFY(camera.plugIn(0));
    QCOMPARE(camera.nodes().size(), 2);
    open({"Desk Camera"});
    QVERIFY(camera.says("streams MJPG 320x240 15"));
    QVERIFY(showsCameraOf("A1"));
    QVERIFY(movesOn());
    QCOMPARE(m_losses->count(), 0);
    QVERIFY(camera.command("go"));
    m_engine->Release();
    QVERIFY(camera.says("rests"));
}

void TestUvcCameras::jpegAtFullSpeedIsTakenBeforeALargerRawPicture()
{
    UvcPlug camera("A1", {"MJPG:640x480:30", "YUYV:1280x720:10", "YUYV:320x240:30"});
    QVERIFY(camera.plugIn(0));
    open({"Desk Camera"});
    QVERIFY(camera.says("streams MJPG 640x480 30"));
    QCOMPARE(m_engine->nativeWidth, 640);
    QCOMPARE(m_engine->GetResoList(), (QStringList{"1280x720", "640x480", "320x240"}));
}

void TestUvcCameras::tornAndEmptyPicturesAreLeftOut()
{
    UvcPlug camera("A1", smallPicture);
    QVERIFY(camera.plugIn(0));
    open({"Desk Camera"});
    for (const char *fault : {"torn 5", "empty 5"}) {
        QVERIFY(camera.command(fault));
        QVERIFY(movesOn());
        QVERIFY(movesOn());
        QVERIFY(showsCameraOf("A1"));
    }
    QCOMPARE(m_losses->count(), 0);
}

void TestUvcCameras::aCameraThatPausesIsNotLost()
{
    UvcPlug camera("A1", smallPicture);
    QVERIFY(camera.plugIn(0));
    open({"Desk Camera"});
    QVERIFY(camera.command("stall 2000"));
    const int before = LabPattern::counterOf(photo());
    const int missed = 15; // in one of its two seconds
    QTRY_VERIFY_WITH_TIMEOUT(LabPattern::counterOf(photo()) > before + missed, reactionLimit);
    QCOMPARE(m_losses->count(), 0);
}

void TestUvcCameras::aCameraThatStandsStillIsLostOnce()
{
    UvcPlug camera("A1", smallPicture);
    QVERIFY(camera.plugIn(0));
    open({"Desk Camera"});
    QVERIFY(camera.command("stall"));
    QTRY_COMPARE_WITH_TIMEOUT(m_losses->count(), 1, reactionLimit);
    QVERIFY(!m_engine->SaveBitmap(m_folder.filePath("late.png")));
    m_engine->Release();
    QVERIFY(camera.command("go"));
    open({"Desk Camera"});
    QVERIFY(movesOn());
    QCOMPARE(m_losses->count(), 1);
}

void TestUvcCameras::aLooseContactIsToldAsALoss()
{
    UvcPlug camera("A1", smallPicture);
    QVERIFY(camera.plugIn(0));
    open({"Desk Camera"});
    QVERIFY(camera.command("halt"));
    QTRY_COMPARE_WITH_TIMEOUT(m_losses->count(), 1, reactionLimit);
    m_engine->Release();
    open({"Desk Camera"});
    QVERIFY(movesOn());
}

void TestUvcCameras::aPulledCameraIsLostOnceAndFoundInAnotherPort()
{
    UvcPlug camera("A1", smallPicture);
    QVERIFY(camera.plugIn(0));
    open({"Desk Camera"});
    const QStringList nodes = camera.nodes();
    QVERIFY(camera.pullOut());
    QTRY_COMPARE_WITH_TIMEOUT(m_losses->count(), 1, reactionLimit);
    m_engine->Release();

    // Something else has taken its port and its node meanwhile.
    UvcPlug other("C7", smallPicture);
    QVERIFY(other.plugIn(0));
    QVERIFY(camera.plugIn(3));
    QVERIFY(camera.nodes() != nodes);
    QTRY_COMPARE_WITH_TIMEOUT(m_engine->GetVideoDeviceList().size(), 2, reactionLimit);
    QVERIFY(opens(*m_engine));
    QVERIFY(showsCameraOf("A1"));
    QCOMPARE(m_losses->count(), 1);
}

// What is held open keeps its memory in the kernel, and the number of its node.
void TestUvcCameras::ofAReleasedCameraNothingIsHeldOpen()
{
    UvcPlug camera("A1", {"YUYV:320x240:15"}); // its frames lie in the driver's memory
    QVERIFY(camera.plugIn(0));
    for (int round = 0; round < 2; ++round) {
        open({"Desk Camera"});
        QVERIFY(showsCameraOf("A1"));
        QVERIFY(!heldNodes().isEmpty());
        m_engine->Release();
        QTRY_COMPARE_WITH_TIMEOUT(heldNodes(), QStringList(), reactionLimit / 10);
    }
}

void TestUvcCameras::ofAPulledCameraNothingIsHeldOpen()
{
    UvcPlug camera("A1", smallPicture);
    QStringList nodes;
    for (int round = 0; round < 3; ++round) {
        QVERIFY(camera.plugIn(0));
        if (round == 0)
            nodes = camera.nodes();
        QCOMPARE(camera.nodes(), nodes);
        open({"Desk Camera"});
        QVERIFY(!heldNodes().isEmpty());
        QVERIFY(camera.pullOut());
        QTRY_COMPARE_WITH_TIMEOUT(m_losses->count(), round + 1, reactionLimit);
        m_engine->Release();
        QTRY_COMPARE_WITH_TIMEOUT(heldNodes(), QStringList(), reactionLimit / 10);
    }
}

// The microphone is the other end of a sound card that is a loop.
void TestUvcCameras::aMovieOfAPulledCameraIsComplete()
{
    UvcPlug camera("A1", smallPicture);
    QVERIFY(camera.plugIn(0));
    open({"Desk Camera"});
    QTRY_VERIFY_WITH_TIMEOUT(m_engine->IsValidAudioDevice(), reactionLimit);
    const QString path = m_folder.filePath("movie.mov");
    QVERIFY(records(*m_engine, path));
    const int begin = LabPattern::counterOf(photo());
    QTRY_VERIFY_WITH_TIMEOUT(LabPattern::counterOf(photo()) > begin + 45, reactionLimit);
    QVERIFY(camera.pullOut());
    QTRY_COMPARE_WITH_TIMEOUT(m_losses->count(), 1, reactionLimit);
    QVERIFY(!m_engine->IsRecording());
    QTRY_VERIFY_WITH_TIMEOUT(m_engine->CompleteMovies(), reactionLimit);
    const MovieFile movie(path);
    QVERIFY2(movie.complaints().isEmpty(), qPrintable(movie.complaints().join('\n')));
    QVERIFY2(movie.duration() > 2, qPrintable(QString::number(movie.duration())));
    const QVector<int> counters = movie.counters();
    QVERIFY(!counters.isEmpty());
    QVERIFY2(counters.last() > begin + 30, qPrintable(QString::number(counters.last() - begin)));
}

void TestUvcCameras::aCameraThatAnswersNothingHoldsNobodyUp()
{
    UvcPlug camera("A1", smallPicture);
    QVERIFY(camera.plugIn(0));
    open({"Desk Camera"});
    QVERIFY(camera.command("mute"));
    QElapsedTimer watch;
    watch.start();
    m_engine->Release();
    QVERIFY2(watch.elapsed() < 2800 + slack, qPrintable(QString::number(watch.elapsed())));
    watch.start();
    QVERIFY(m_engine->GetVideoDeviceList().size() <= 1);
    QVERIFY2(watch.elapsed() < 2800 + slack, qPrintable(QString::number(watch.elapsed())));
    watch.start();
    m_engine->Create();
    QVERIFY2(watch.elapsed() < 4800 + slack, qPrintable(QString::number(watch.elapsed())));
    m_engine->Release();
    QVERIFY(camera.command("go"));
    // What is still under way with the camera ends first.
    QTRY_VERIFY_WITH_TIMEOUT((m_engine->Create(), m_engine->created), reactionLimit);
    QVERIFY(movesOn());
}

void TestUvcCameras::aCameraThatIsMuteWhenItIsOpenedHoldsNobodyUp()
{
    UvcPlug camera("A1", smallPicture);
    QVERIFY(camera.plugIn(0));
    QTRY_COMPARE_WITH_TIMEOUT(m_engine->GetVideoDeviceList(), QStringList{"Desk Camera"},
                              reactionLimit);
    QVERIFY(camera.command("mute"));
    m_engine->SetVideoDevice(0);
    QElapsedTimer watch;
    watch.start();
    m_engine->Create();
    QVERIFY(!m_engine->created);
    QVERIFY2(watch.elapsed() < 4800 + slack, qPrintable(QString::number(watch.elapsed())));
    QVERIFY(camera.command("go"));
    QTRY_VERIFY_WITH_TIMEOUT((m_engine->Create(), m_engine->created), reactionLimit);
    QVERIFY(movesOn());
}

void TestUvcCameras::twoOfOneModelAreKeptApart()
{
    UvcPlug first("A1", smallPicture);
    UvcPlug second("C7", smallPicture);
    QVERIFY(first.plugIn(0));
    QVERIFY(second.plugIn(1));
    const QStringList names{"Desk Camera (1)", "Desk Camera (2)"};
    open(names, 0);
    QVERIFY(showsCameraOf("A1"));
    m_engine->Release();
    open(names, 1);
    QVERIFY(showsCameraOf("C7"));
}

void TestUvcCameras::twoOfOneModelThatChangedPlacesAreKeptApart()
{
    UvcPlug first("A1", smallPicture);
    UvcPlug second("C7", smallPicture);
    QVERIFY(first.plugIn(0));
    QVERIFY(second.plugIn(1));
    open({"Desk Camera (1)", "Desk Camera (2)"}, 0);
    QVERIFY(showsCameraOf("A1"));
    m_engine->Release();
    QVERIFY(first.pullOut());
    QVERIFY(second.pullOut());
    QVERIFY(second.plugIn(0));
    QVERIFY(first.plugIn(1));
    QTRY_COMPARE_WITH_TIMEOUT(m_engine->GetVideoDeviceList().size(), 2, reactionLimit);
    QVERIFY(opens(*m_engine));
    QVERIFY(showsCameraOf("A1"));
}

void TestUvcCameras::theOneThatIsPulledBesideItsTwinIsTheOneThatIsLost()
{
    UvcPlug first("A1", smallPicture);
    UvcPlug second("C7", smallPicture);
    QVERIFY(first.plugIn(0));
    QVERIFY(second.plugIn(1));
    open({"Desk Camera (1)", "Desk Camera (2)"}, 1);
    QVERIFY(first.pullOut());
    QVERIFY(movesOn());
    QCOMPARE(m_losses->count(), 0);
    QVERIFY(second.pullOut());
    QTRY_COMPARE_WITH_TIMEOUT(m_losses->count(), 1, reactionLimit);
}

QTEST_MAIN(TestUvcCameras)
#include "tst_uvccameras.moc"
