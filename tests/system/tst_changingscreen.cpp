#include "Patience.h"
#include "Session.h"

#include <QGuiApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>

#include <memory>

// A desktop of two screens, the window on the right one, which is the primary one; then that one
// changes.
class TestChangingScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theLiveScreenFindsItsNewPlaceAndTheOldOne();
    void aPhotoThatWaitsIsStillThereAndAccepted();
    void aRecordingGoesOn();
    void aSeriesGoesOn();
    void aMoviePlaysOnAndIsInTheList();
    void chosenThumbnailsStayChosen();
    void tilesAndAnEnlargedOneFindTheirPlaces();
    void theWindowMovesOverWhenItsScreenIsPulledOut();

private:
    static bool setMode(const QString &mode);

    const QSize m_camera{1280, 720};
    const QRect m_large{1024, 0, 1024, 768};
    const QRect m_small{1024, 0, 800, 600};
    std::unique_ptr<Session> m_user;
};

bool TestChangingScreen::setMode(const QString &mode)
{
    return QProcess::execute("xrandr", {"--output", "DUMMY1", "--mode", mode}) == 0;
}

void TestChangingScreen::init()
{
    m_user.reset();
    QVERIFY(setMode("1024x768"));
    // The window manager tells what is free of it a moment later.
    QTRY_COMPARE(QGuiApplication::primaryScreen()->availableGeometry(), m_large);
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", m_camera, m_large);
    QVERIFY(m_user->startLive());
}

void TestChangingScreen::theLiveScreenFindsItsNewPlaceAndTheOldOne()
{
    const QStringList buttons = {"Live", "Photo",    "PhotoMulti", "Movie",
                                 "List", "Settings", "Close"};
    QVERIFY(setMode("800x600"));
    QVERIFY(m_user->waitForMainWindowAt(m_small));
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, buttons));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QVERIFY(setMode("1024x768"));
    QVERIFY(m_user->waitForMainWindowAt(m_large));
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, buttons));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
}

void TestChangingScreen::aPhotoThatWaitsIsStillThereAndAccepted()
{
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(setMode("800x600"));
    QVERIFY(m_user->waitForMainWindowAt(m_small));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().previewLiveRect()));
    QTRY_VERIFY(m_user->isStillAt(m_user->map().previewPhotoRect()));
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(
        m_user->waitForPressable(WindowMap::PhotoScreen, {"Live", "PutPhoto", "List", "Close"}));
    QTRY_VERIFY(m_user->isStillAt(m_user->map().videoRect()));
}

void TestChangingScreen::aRecordingGoesOn()
{
    QVERIFY(m_user->beginMovie());
    QVERIFY(setMode("800x600"));
    QVERIFY(m_user->waitForMainWindowAt(m_small));
    QTRY_VERIFY(m_user->isRecording());
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QVERIFY(m_user->pressWhenReady(WindowMap::RecordingScreen, "MovieStop"));
    QVERIFY(m_user->pressWhenReady(WindowMap::MovieScreen, "Live"));
}

void TestChangingScreen::aSeriesGoesOn()
{
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "PhotoMulti"));
    QTRY_VERIFY(!m_user->program().captured().filter(QRegularExpression("^photo")).isEmpty());
    QVERIFY(setMode("800x600"));
    QVERIFY(m_user->waitForMainWindowAt(m_small));
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, {"Live", "PhotoMulti"}));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().seriesLiveRect()));
    QTRY_VERIFY(m_user->isStillAt(m_user->map().seriesPhotoRect()));
    // The next one comes by itself.
    QTRY_VERIFY(m_user->program().captured().filter(QRegularExpression("^photo")).size() > 1);
    QTRY_VERIFY(m_user->isStillAt(m_user->map().seriesPhotoRect()));
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Live"));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
}

void TestChangingScreen::aMoviePlaysOnAndIsInTheList()
{
    QVERIFY(m_user->beginMovie());
    QTest::qWait(6000); // nothing to wait for: the movie's length, to see it before its end
    QVERIFY(m_user->pressWhenReady(WindowMap::RecordingScreen, "MovieStop"));
    QVERIFY(m_user->pressWhenReady(WindowMap::MovieScreen, "MoviePlay"));
    QTRY_VERIFY(m_user->counterAt(m_user->map().videoRect()) > 0);
    QVERIFY(setMode("800x600"));
    QVERIFY(m_user->waitForMainWindowAt(m_small));
    const int counter = m_user->counterAt(m_user->map().videoRect());
    QTRY_VERIFY(m_user->counterAt(m_user->map().videoRect()) > counter);
    QVERIFY(m_user->pressWhenReady(WindowMap::MovieScreen, "MoviePlay")); // it has ended
    QVERIFY(m_user->pressWhenReady(WindowMap::PlayingScreen, "MoviePause"));

    QVERIFY(m_user->pressWhenReady(WindowMap::MovieScreen, "List"));
    QVERIFY(m_user->waitForPressable(WindowMap::MovieListScreen, {"Live", "SwitchPhoto", "Close"}));
    QVERIFY(setMode("1024x768"));
    QVERIFY(m_user->waitForMainWindowAt(m_large));
    m_user->desktop().click(m_user->map().thumbnail(0).center());
    QTRY_VERIFY(m_user->isStillAt(m_user->map().selectionRect()));
    QVERIFY(setMode("800x600"));
    QVERIFY(m_user->waitForMainWindowAt(m_small));
    QTRY_VERIFY(m_user->isStillAt(m_user->map().selectionRect()));
    QVERIFY(m_user->pressWhenReady(WindowMap::MovieListScreen, "Show"));
    QVERIFY(m_user->pressWhenReady(WindowMap::MovieScreen, "MoviePlay"));
}

void TestChangingScreen::chosenThumbnailsStayChosen()
{
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "List"));
    QVERIFY(m_user->waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"}));
    m_user->desktop().click(m_user->map().thumbnail(0).center());
    QVERIFY(setMode("800x600"));
    QVERIFY(m_user->waitForMainWindowAt(m_small));
    QTRY_VERIFY(m_user->isStillAt(m_user->map().selectionRect()));
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "Show"));
    QTRY_VERIFY(m_user->isStillAt(m_user->map().videoRect()));
}

void TestChangingScreen::tilesAndAnEnlargedOneFindTheirPlaces()
{
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Live"));
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "List"));
    QVERIFY(m_user->waitForPressable(WindowMap::ListScreen, {"Live", "SwitchMovie", "Close"}));
    for (int i = 0; i < 2; ++i)
        m_user->desktop().click(m_user->map().thumbnail(i).center());
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "Show"));
    QTRY_VERIFY(m_user->isStillAt(m_user->map().tile(2, 1)));
    QVERIFY(setMode("800x600"));
    QVERIFY(m_user->waitForMainWindowAt(m_small));
    for (int i = 0; i < 2; ++i)
        QTRY_VERIFY(m_user->isStillAt(m_user->map().tile(2, i)));
    m_user->desktop().click(m_user->map().cornerButton(m_user->map().tile(2, 0)));
    QTRY_VERIFY(m_user->isStillAt(m_user->map().videoRect()));
    QVERIFY(setMode("1024x768"));
    QVERIFY(m_user->waitForMainWindowAt(m_large));
    QTRY_VERIFY(m_user->isStillAt(m_user->map().videoRect()));
}

void TestChangingScreen::theWindowMovesOverWhenItsScreenIsPulledOut()
{
    const QRect other{0, 0, 1024, 768};
    QCOMPARE(QProcess::execute("xrandr", {"--output", "DUMMY1", "--off"}), 0);
    QVERIFY(m_user->waitForMainWindowAt(other));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QVERIFY(m_user->takePhotoForPreview());
}

QTEST_MAIN(TestChangingScreen)
#include "tst_changingscreen.moc"
