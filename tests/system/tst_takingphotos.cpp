#include "LabPattern.h"
#include "Patience.h"
#include "Session.h"

#include <QRegularExpression>

#include <csignal>
#include <memory>
#include <sys/resource.h>

// Photos from the live picture to the file: what is on the screen and what is on the disk.
class TestTakingPhotos : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void theWindowCoversTheScreenAndShowsTheCamera();
    void everyCaptureButtonCanBePressed();
    void aHeldButtonLooksPressed();
    void aPhotoStandsStillBesideTheLivePicture();
    void aPhotoFileIsTheCamerasPictureAtFullSize();
    void acceptShowsThePhotoInFullAndLiveGoesBack();
    void retryDeletesExactlyTheLastPhoto();
    void aPhotoThatCannotBeWrittenIsToldAndTheNextOneCan();
    void liveWhileLiveDisturbsNothing();

private:
    std::unique_ptr<Session> m_user;
};

void TestTakingPhotos::initTestCase()
{
    // Inherited by the program: a file that grows too large for it fails, and does not kill it.
    std::signal(SIGXFSZ, SIG_IGN);
}

void TestTakingPhotos::init()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    m_user->program().setEnvironment("QT_LOGGING_RULES", "orvanta.engine.info=true");
    QVERIFY(m_user->startLive());
}

void TestTakingPhotos::cleanup()
{
    QVERIFY2(m_user->program().isRunning(), qPrintable(m_user->program().output()));
    m_user.reset();
}

void TestTakingPhotos::theWindowCoversTheScreenAndShowsTheCamera()
{
    QCOMPARE(m_user->mainWindow().geometry, QRect(0, 0, 1024, 768));
    QCOMPARE(m_user->mainWindow().title, QString("Orvanta"));
    const QRect video = m_user->map().videoRect();
    QCOMPARE(video.top(), 0);
    QVERIFY(m_user->isLiveAt(video));
    // What the picture leaves free is black.
    QCOMPARE(m_user->desktop().pixel(QPoint(512, video.bottom() + 3)), QColor(Qt::black));
}

void TestTakingPhotos::everyCaptureButtonCanBePressed()
{
    QVERIFY(m_user->waitForPressable(
        WindowMap::LiveScreen,
        {"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"}));
}

void TestTakingPhotos::aHeldButtonLooksPressed()
{
    const auto looksLike = [this](WindowMap::Look look) {
        return m_user->map().look(m_user->desktop().screenshot(), WindowMap::LiveScreen, "Live")
            == look;
    };
    m_user->desktop().pressMouse(m_user->map().button(WindowMap::LiveScreen, "Live").center());
    QTRY_VERIFY(looksLike(WindowMap::Down));
    m_user->desktop().releaseMouse();
    QTRY_VERIFY(looksLike(WindowMap::Up));
}

void TestTakingPhotos::aPhotoStandsStillBesideTheLivePicture()
{
    QVERIFY(m_user->takePhotoForPreview());
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().previewLiveRect()));
    QVERIFY(m_user->isStillAt(m_user->map().previewPhotoRect()));
    QVERIFY(m_user->waitForPressable(WindowMap::PreviewScreen, {"Apply", "Retry"}));
}

void TestTakingPhotos::aPhotoFileIsTheCamerasPictureAtFullSize()
{
    QVERIFY(m_user->takePhotoForPreview());
    const QStringList files = m_user->program().captured();
    QVERIFY2(QRegularExpression("^photo\\d{17}\\.png$").match(files.value(0)).hasMatch(),
             qPrintable(files.value(0)));
    const QImage photo(m_user->program().temporaryArea() + "/" + files.value(0));
    QCOMPARE(photo.size(), QSize(1280, 720));
    QVERIFY(LabPattern::worstDifference(photo, m_user->ground()) < 12);
    QTRY_COMPARE(m_user->counterAt(m_user->map().previewPhotoRect()), LabPattern::counterOf(photo));
}

void TestTakingPhotos::acceptShowsThePhotoInFullAndLiveGoesBack()
{
    QVERIFY(m_user->takePhotoForPreview());
    const QStringList files = m_user->program().captured();
    const QImage photo(m_user->program().temporaryArea() + "/" + files.value(0));
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QTRY_COMPARE(m_user->counterAt(m_user->map().videoRect()), LabPattern::counterOf(photo));
    QVERIFY(m_user->isStillAt(m_user->map().videoRect()));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Live"));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QCOMPARE(m_user->program().captured(), files);
}

void TestTakingPhotos::retryDeletesExactlyTheLastPhoto()
{
    QVERIFY(m_user->takePhotoForPreview());
    const QStringList first = m_user->program().captured();
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Live"));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QVERIFY(m_user->takePhotoForPreview());
    QCOMPARE(m_user->program().captured().size(), 2);
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Retry"));
    QTRY_COMPARE(m_user->program().captured(), first);
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
}

// As on a disk that is full.
void TestTakingPhotos::aPhotoThatCannotBeWrittenIsToldAndTheNextOneCan()
{
    QVERIFY(m_user->waitForPressable(
        WindowMap::LiveScreen,
        {"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"}));
    const auto pid = pid_t(m_user->program().pid());
    rlimit usual = {};
    QCOMPARE(prlimit(pid, RLIMIT_FSIZE, nullptr, &usual), 0);
    const rlimit small = {1000, usual.rlim_max}; // bytes
    QCOMPARE(prlimit(pid, RLIMIT_FSIZE, &small, nullptr), 0);
    m_user->press(WindowMap::LiveScreen, "Photo");
    QVERIFY2(m_user->waitForDialog("Orvanta"), qPrintable(m_user->program().output()));
    QTRY_VERIFY(m_user->messageSays("Save failed."));
    QCOMPARE(prlimit(pid, RLIMIT_FSIZE, &usual, nullptr), 0);
    QVERIFY(m_user->confirmMessage());
    QCOMPARE(m_user->program().captured(), QStringList());
    QTRY_COMPARE(m_user->counterAt(m_user->map().previewPhotoRect()), -1);
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Retry"));
    QVERIFY(m_user->takePhotoForPreview());
}

void TestTakingPhotos::liveWhileLiveDisturbsNothing()
{
    const QRect video = m_user->map().videoRect();
    int seen = m_user->counterAt(video);
    m_user->press(WindowMap::LiveScreen, "Live");
    // Neither black nor begun anew: whoever looks sees this picture or a later one.
    const int goal = seen + 30;
    QTRY_VERIFY_WITH_TIMEOUT(
        [&] {
            const int before = seen;
            seen = m_user->counterAt(video);
            return seen < before || seen >= goal;
        }(),
        10000);
    QVERIFY2(seen >= goal, qPrintable(QString::number(seen)));
    // Each opening of the camera says in which mode.
    QCOMPARE(m_user->program().output().count(QRegularExpression("cam1.* in .*1280")), 1);
    QVERIFY(m_user->waitForPressable(
        WindowMap::LiveScreen,
        {"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"}));
}

QTEST_MAIN(TestTakingPhotos)
#include "tst_takingphotos.moc"
