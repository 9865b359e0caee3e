#include "LabCommands.h"
#include "LabPattern.h"
#include "Patience.h"
#include "Session.h"

#include <QDir>
#include <QProcess>

#include <memory>

namespace {

const QSize cameraSize(1280, 720);

// With its trailing blank.
const char lostText[] = "The video device is invalid. Please confirm whether the device is "
                        "correctly connected. ";

// A movie of a few seconds whose picture changes all the time.
bool makeMovie(const QString &path)
{
    return QProcess::execute("gst-launch-1.0",
                             {"-q", "videotestsrc", "pattern=ball", "num-buffers=300", "!",
                              "video/x-raw,format=I420,width=320,height=240,framerate=20/1", "!",
                              "x264enc", "tune=zerolatency", "key-int-max=10", "!", "qtmux", "!",
                              "filesink", "location=" + path})
        == 0;
}

} // namespace

// The camera's cable is pulled while the user is busy with something: one message, nothing that
// was captured is lost, and "List" and "Live" lead back to the picture.
class TestLosingMidway : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void inTheMiddleOfASeries();
    void whileRecording();
    void withAPhotoToAccept();
    void inTheList();
    void withPhotosSideBySide();
    void withAPhotoEnlarged();
    void duringPlayback();
    void withTheSettingsOpen();
    void atTheQuestionBeforeExit();

private:
    void showTwoPhotos();
    void pullTheCable();
    void expectOnlyListAndExit();
    void expectTheWayBack();
    void expectLiveAgainFrom(WindowMap::Screen screen);
    bool movesOnScreen(QRect place) const;
    bool showsThePicture(QRect thumbnail) const;

    std::unique_ptr<Session> m_user;
};

void TestLosingMidway::init()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", cameraSize);
}

void TestLosingMidway::cleanup()
{
    if (m_user->program().pid() != 0)
        QVERIFY2(m_user->program().isRunning(), qPrintable(m_user->program().output()));
    m_user.reset();
    labctl({"unplug", "cam1"});
    QVERIFY(labctl({"plug", "cam1", "1280x720"}));
}

// Of an earlier lesson; they stand on the screen as frames 1 and 2 of the camera.
void TestLosingMidway::showTwoPhotos()
{
    const QString area = m_user->program().temporaryArea();
    QVERIFY(QDir().mkpath(area));
    for (const int counter : {1, 2}) {
        const QImage photo = LabPattern::frame(cameraSize.width(), cameraSize.height(),
                                               quint32(counter), m_user->ground());
        QVERIFY(photo.save(area + QString("/photo2024022910150000%1.png").arg(counter)));
    }
    QVERIFY(m_user->startLive());
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "List"));
    const WindowMap &map = m_user->map();
    QVERIFY(m_user->waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"}));
    for (const int i : {0, 1}) {
        m_user->desktop().click(map.thumbnail(i).center());
        QTRY_COMPARE(m_user->counterAt(map.selectionRect()), i + 1);
    }
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "Show"));
    for (const int i : {0, 1})
        QTRY_COMPARE(m_user->counterAt(map.tile(2, i)), i + 1);
}

// Up to the message, which stays open.
void TestLosingMidway::pullTheCable()
{
    QVERIFY(labctl({"unplug", "cam1"}));
    QVERIFY(m_user->messageSays(lostText));
}

void TestLosingMidway::expectOnlyListAndExit()
{
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, {"List", "Close"}));
    QCOMPARE(m_user->counterAt(m_user->map().videoRect()), -1);
    // No second message.
    QVERIFY(!QTest::qWaitFor([this] { return m_user->dialog().id != 0; }, 1200));
}

void TestLosingMidway::expectTheWayBack()
{
    QVERIFY(labctl({"plug", "cam1", "1280x720"}));
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "List"));
    expectLiveAgainFrom(WindowMap::ListScreen);
}

void TestLosingMidway::expectLiveAgainFrom(WindowMap::Screen screen)
{
    QVERIFY(m_user->pressWhenReady(screen, "Live"));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QVERIFY(m_user->waitForPressable(
        WindowMap::LiveScreen,
        {"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"}));
}

bool TestLosingMidway::movesOnScreen(QRect place) const
{
    const QImage first = m_user->seenAt(place);
    return QTest::qWaitFor([&] { return m_user->seenAt(place) != first; }, 500);
}

// A third of the camera's picture is ground, but where depends on the frame: something moves on it.
bool TestLosingMidway::showsThePicture(QRect thumbnail) const
{
    const QImage seen = m_user->seenAt(thumbnail);
    const QRgb ground = m_user->ground();
    int count = 0;
    for (int y = 0; y < seen.height(); ++y)
        for (int x = 0; x < seen.width(); ++x) {
            const QRgb pixel = seen.pixel(x, y);
            count += qAbs(qRed(pixel) - qRed(ground)) < 16
                && qAbs(qGreen(pixel) - qGreen(ground)) < 16
                && qAbs(qBlue(pixel) - qBlue(ground)) < 16;
        }
    return count > seen.width() * seen.height() / 20;
}

// The self-timer takes a photo every six seconds; the cable goes while it counts to the second.
void TestLosingMidway::inTheMiddleOfASeries()
{
    QVERIFY(m_user->startLive());
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "PhotoMulti"));
    // Hidden while it is being written.
    QTRY_VERIFY(m_user->program().captured().value(0).startsWith("photo"));
    const QStringList captured = m_user->program().captured();
    pullTheCable();
    QVERIFY(m_user->confirmMessage());
    expectOnlyListAndExit();
    expectTheWayBack();
    QTest::qWait(3000); // nothing to wait for: a photo that must not be taken
    QCOMPARE(m_user->program().captured(), captured);
}

// What was filmed up to then is there to be played, and "List" shows the movies by itself.
void TestLosingMidway::whileRecording()
{
    QVERIFY(m_user->startLive());
    QVERIFY(m_user->beginMovie());
    QTest::qWait(2000); // nothing to wait for: the movie's length
    const WindowMap &map = m_user->map();
    const int filmed = m_user->counterAt(map.videoRect());
    pullTheCable();
    QVERIFY(m_user->confirmMessage());
    expectOnlyListAndExit();

    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "List"));
    QTRY_VERIFY(showsThePicture(map.thumbnail(0)));
    m_user->desktop().click(map.thumbnail(0).center());
    QTRY_VERIFY(m_user->counterAt(map.selectionRect()) >= 0);
    const int still = m_user->counterAt(map.selectionRect());
    QVERIFY2(still < filmed - 30, qPrintable(QString("%1 of %2").arg(still).arg(filmed)));
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "Show"));
    QVERIFY(m_user->pressWhenReady(WindowMap::MovieScreen, "MoviePlay"));
    // To the last half second; the very last frame is not waited for, the player leaves it at once.
    QTRY_VERIFY(m_user->counterAt(map.videoRect()) > filmed - 15);
    QCOMPARE(m_user->program().captured().size(), 2);
    QVERIFY(labctl({"plug", "cam1", "1280x720"}));
    expectLiveAgainFrom(WindowMap::MovieScreen);
}

void TestLosingMidway::withAPhotoToAccept()
{
    QVERIFY(m_user->startLive());
    QVERIFY(m_user->takePhotoForPreview());
    const QStringList captured = m_user->program().captured();
    pullTheCable();
    QVERIFY(m_user->confirmMessage());
    expectOnlyListAndExit();
    expectTheWayBack();
    QCOMPARE(m_user->program().captured(), captured);
}

void TestLosingMidway::inTheList()
{
    QVERIFY(m_user->startLive());
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "List"));
    QVERIFY(m_user->waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"}));
    pullTheCable();
    QVERIFY(m_user->confirmMessage());
    expectOnlyListAndExit();
    expectTheWayBack();
}

void TestLosingMidway::withPhotosSideBySide()
{
    showTwoPhotos();
    const QStringList captured = m_user->program().captured();
    pullTheCable();
    QVERIFY(m_user->confirmMessage());
    expectOnlyListAndExit();
    for (const int i : {0, 1})
        QCOMPARE(m_user->counterAt(m_user->map().tile(2, i)), -1);
    expectTheWayBack();
    QCOMPARE(m_user->program().captured(), captured);
}

void TestLosingMidway::withAPhotoEnlarged()
{
    showTwoPhotos();
    const QStringList captured = m_user->program().captured();
    const WindowMap &map = m_user->map();
    m_user->desktop().click(map.cornerButton(map.tile(2, 1)));
    QTRY_COMPARE(m_user->counterAt(map.videoRect()), 2);
    pullTheCable();
    QVERIFY(m_user->confirmMessage());
    expectOnlyListAndExit();
    expectTheWayBack();
    QCOMPARE(m_user->program().captured(), captured);
}

void TestLosingMidway::duringPlayback()
{
    const QString stem = m_user->program().temporaryArea() + "/movie20240229101500";
    QVERIFY(QDir().mkpath(m_user->program().temporaryArea()));
    QVERIFY(makeMovie(stem + ".mov"));
    QImage still(320, 240, QImage::Format_RGB32);
    still.fill(Qt::blue);
    QVERIFY(still.save(stem + "tmp.png"));
    QVERIFY(m_user->startLive());

    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "List"));
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "SwitchMovie"));
    const QRect show = m_user->map().button(WindowMap::ListScreen, "Show");
    const QPoint thumbnail(60, show.top() - 60);
    QTRY_COMPARE(m_user->desktop().pixel(thumbnail), QColor(Qt::blue));
    m_user->desktop().click(thumbnail);
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "Show"));
    QVERIFY(m_user->pressWhenReady(WindowMap::MovieScreen, "MoviePlay"));
    const QRect video = m_user->map().videoRect();
    QTRY_VERIFY(movesOnScreen(video));

    pullTheCable();
    const QRect aboveTheMessage = video.adjusted(0, 0, 0, -video.height() / 2 - 100);
    QTRY_VERIFY(!movesOnScreen(aboveTheMessage));
    QVERIFY(m_user->confirmMessage());
    expectOnlyListAndExit();
    expectTheWayBack();
    QCOMPARE(m_user->program().captured().size(), 2);
}

void TestLosingMidway::withTheSettingsOpen()
{
    QVERIFY(m_user->startLive());
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Settings"));
    QVERIFY(m_user->waitForDialog("Settings"));
    pullTheCable();
    m_user->desktop().pressKey("Return");
    QVERIFY(m_user->clickInSettings("btnCancel"));
    QVERIFY(m_user->waitUntilNoDialog());
    expectOnlyListAndExit();
    expectTheWayBack();
}

void TestLosingMidway::atTheQuestionBeforeExit()
{
    QVERIFY(m_user->startLive());
    QVERIFY(m_user->takePhotoForPreview());
    const QStringList captured = m_user->program().captured();
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Close"));
    QVERIFY(m_user->waitForDialog("Orvanta"));
    const quint32 question = m_user->dialog().id;
    pullTheCable();
    m_user->desktop().pressKey("Return");
    QTRY_COMPARE(m_user->dialog().id, question);
    QVERIFY(m_user->answerExitQuestion("Cancel"));
    QVERIFY(m_user->waitUntilNoDialog());
    expectOnlyListAndExit();
    QCOMPARE(m_user->program().captured(), captured);
    expectTheWayBack();
}

QTEST_MAIN(TestLosingMidway)
#include "tst_losingmidway.moc"
