#include "CStretchBitmapButton.h"
#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "PictureListView.h"
#include "PictureWidget.h"
#include "TimerWidget.h"

#include <QSignalSpy>
#include <QTest>

// Places on the 800x600 screen, worked out by hand from the artwork's 640x332 and 640x166.
static const QStringList liveRow{
    QStringLiteral("Live 1,532 133x68"),         QStringLiteral("Photo 134,532 133x68"),
    QStringLiteral("PhotoMulti 267,532 133x68"), QStringLiteral("Movie 400,532 133x68"),
    QStringLiteral("List 533,532 133x68"),       QStringLiteral("Settings 667,532 133x34"),
    QStringLiteral("Close 667,566 133x34"),
};
static const QString closePlace = QStringLiteral("Close 667,566 133x34");

/** Each screen's exact set of buttons: shown where, and which of them can be pressed. */
class DisplayModesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theLiveScreenShowsTheCaptureButtons();
    void withoutACameraOnlyListAndExitCanBePressed();
    void thePlaybackScreen();
    void thePhotoScreen();
    void thePhotoPreviewShowsAcceptAndRetryAboveTheDeadRow();
    void theListScreenOffersTheMovies();
    void theListScreenAfterAMovieOffersThePhotos();
    void theTileScreen();
    void theSeriesScreenResetsTheEngineAndPlacesTheViews();
    void anUnknownModeShowsTheLiveScreenAndIsRemembered();
    void theErrorFlagLeavesListAndExit();
    void inErrorAllThatBrowsesCanBePressed();
    void aFullDiskIsReportedOnceAndSetsTheError();
    void disablingSparesExitAndBack();
    void hidingSparesExit();
    void blockedButtonsSendNothingExceptPaste();
    void settingButtonXReturnsTheNextCell();
};

void DisplayModesTest::theLiveScreenShowsTheCaptureButtons()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    QCOMPARE(dialog.displayMode(), LiveMode);
    QCOMPARE(fixture.shownButtons(), liveRow);
    QCOMPARE(fixture.usableButtons(),
             (QStringList{"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"}));
    QVERIFY(fixture.child<LiveVideoWidget>().isVisible());
    QVERIFY(!fixture.child<MovieWidget>().isVisible());
    QVERIFY(!fixture.child<PictureWidget>().isVisible());
    QVERIFY(!fixture.child<PictureListView>().isVisible());
    QVERIFY(!fixture.child<TimerWidget>().isVisible());
    QCOMPARE(fixture.button("MovieStop").geometry(), fixture.button("Movie").geometry());
}

void DisplayModesTest::withoutACameraOnlyListAndExitCanBePressed()
{
    DialogFixture fixture;
    FakeEngine::script().deviceNames.clear();
    FakeEngine::script().videoPresent = false;
    fixture.build();
    QCOMPARE(fixture.shownButtons(), liveRow);
    QCOMPARE(fixture.usableButtons(), (QStringList{"List", "Close"}));
    QVERIFY(!fixture.child<LiveVideoWidget>().isVisible());
}

void DisplayModesTest::thePlaybackScreen()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    dialog.TransitionMode(MovieMode);
    QCOMPARE(fixture.shownButtons(),
             (QStringList{"Live 67,532 133x68", "List 333,532 133x68", closePlace,
                          "MoviePlay 200,532 133x68"}));
    QCOMPARE(fixture.usableButtons(), (QStringList{"Live", "List", "Close", "MoviePlay"}));
    QVERIFY(fixture.button("MoviePause").isEnabled());
    QCOMPARE(fixture.button("MoviePause").geometry(), fixture.button("MoviePlay").geometry());
    QVERIFY(!fixture.child<LiveVideoWidget>().isVisible());
    QCOMPARE(fixture.child<MovieWidget>().geometry(), dialog.videoRect());
}

void DisplayModesTest::thePhotoScreen()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    dialog.OnPhoto(); // with the preview first,
    dialog.OnAply(); // then full size
    QCOMPARE(fixture.shownButtons(),
             (QStringList{"Live 134,532 133x68", "List 400,532 133x68", closePlace,
                          "PutPhoto 267,532 133x68"}));
    QCOMPARE(fixture.usableButtons(), (QStringList{"Live", "List", "Close", "PutPhoto"}));
    QCOMPARE(fixture.child<PictureWidget>().geometry(), dialog.videoRect());
}

void DisplayModesTest::thePhotoPreviewShowsAcceptAndRetryAboveTheDeadRow()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    dialog.TransitionMode(PhotoMode);
    QStringList expected = liveRow;
    expected << "Apply 267,464 133x68"
             << "Retry 400,464 133x68";
    QCOMPARE(fixture.shownButtons(), expected);
    QCOMPARE(fixture.usableButtons(), (QStringList{"Apply", "Retry"}));
    // The camera's 1280x720 gives 800x450 of video, half of that beside each other.
    QCOMPARE(fixture.child<LiveVideoWidget>().geometry(), QRect(0, 119, 400, 225));
    QCOMPARE(fixture.child<PictureWidget>().geometry(), QRect(400, 119, 400, 225));
    QCOMPARE(dialog.displayMode(), PhotoMode);
}

void DisplayModesTest::theListScreenOffersTheMovies()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    dialog.TransitionMode(ListMode);
    QCOMPARE(fixture.shownButtons(),
             (QStringList{"Live 134,532 133x68", closePlace, "Show 267,532 133x68",
                          "SwitchMovie 400,532 133x68"}));
    QCOMPARE(fixture.usableButtons(), (QStringList{"Live", "Close", "SwitchMovie"}));
    QCOMPARE(fixture.child<PictureListView>().geometry(), QRect(QPoint(0, 425), QPoint(799, 531)));
}

void DisplayModesTest::theListScreenAfterAMovieOffersThePhotos()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    dialog.TransitionMode(MovieMode);
    dialog.TransitionMode(ListMode);
    QCOMPARE(fixture.usableButtons(), (QStringList{"Live", "Close", "SwitchPhoto"}));
    QCOMPARE(fixture.button("SwitchPhoto").geometry(), QRect(400, 532, 133, 68));
}

void DisplayModesTest::theTileScreen()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    dialog.SetPictureListMode({});
    QCOMPARE(fixture.shownButtons(),
             (QStringList{"Live 134,532 133x68", "List 400,532 133x68", closePlace,
                          "PutPhoto 267,532 133x68"}));
    QCOMPARE(fixture.usableButtons(), (QStringList{"Live", "List", "Close", "PutPhoto"}));
}

void DisplayModesTest::theSeriesScreenResetsTheEngineAndPlacesTheViews()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    const int resets = FakeEngine::callCount(QStringLiteral("Reset"));
    dialog.TransitionMode(PhotSeqMode);
    QCOMPARE(FakeEngine::callCount(QStringLiteral("Reset")), resets + 1);
    QCOMPARE(fixture.shownButtons(), liveRow);
    // 800x450 of live picture fits 400x425 above the strip as 400x225.
    QCOMPARE(fixture.child<LiveVideoWidget>().geometry(), QRect(0, 100, 400, 225));
    QCOMPARE(fixture.child<PictureWidget>().geometry(), QRect(400, 100, 400, 225));
}

void DisplayModesTest::anUnknownModeShowsTheLiveScreenAndIsRemembered()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    dialog.TransitionMode(MovieMode);
    dialog.TransitionMode(DisplayMode(7));
    QCOMPARE(int(dialog.displayMode()), 7);
    QCOMPARE(fixture.shownButtons(), liveRow);
    dialog.setListButton();
    QVERIFY(fixture.button("SwitchMovie").isVisible());
    QVERIFY(!fixture.button("SwitchPhoto").isVisible());
}

void DisplayModesTest::theErrorFlagLeavesListAndExit()
{
    DialogFixture fixture;
    FakeEngine::script().createOpens = false; // a camera is there, but will not open
    CVistrelDlg &dialog = fixture.build();
    QVERIFY(dialog.hasError());
    QCOMPARE(fixture.usableButtons(), (QStringList{"List", "Close"}));
    dialog.TransitionMode(ListMode);
    dialog.TransitionMode(LiveMode);
    QCOMPARE(fixture.usableButtons(), (QStringList{"List", "Close"}));
}

void DisplayModesTest::inErrorAllThatBrowsesCanBePressed()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    DialogFixture::boxDuring([&] { dialog.changeNodevicemode(); });
    dialog.disableAllButton(true);
    dialog.setErrModeButtonEnable();
    const QStringList browsing{"List", "SwitchMovie", "SwitchPhoto", "Show", "Close", "Back"};
    const auto buttons = dialog.findChildren<CStretchBitmapButton *>();
    for (const CStretchBitmapButton *each : buttons)
        QVERIFY2(each->isEnabled() == browsing.contains(each->objectName()),
                 qPrintable(each->objectName()));
}

void DisplayModesTest::aFullDiskIsReportedOnceAndSetsTheError()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    QVERIFY(!dialog.hasError());
    DialogFixture::fillTheDisk();
    const QString text = DialogFixture::boxDuring([&] { dialog.TransitionMode(LiveMode); });
    QCOMPARE(text,
             QStringLiteral("The disk free space is insufficient.\nTaking a picture is "
                            "discontinued. Please secure the free space. "));
    QVERIFY(dialog.hasError());
    QCOMPARE(fixture.usableButtons(), (QStringList{"List", "Close"}));
    QCOMPARE(DialogFixture::boxDuring([&] { dialog.TransitionMode(LiveMode); }), QString());
}

void DisplayModesTest::disablingSparesExitAndBack()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    dialog.disableAllButton(false);
    const auto buttons = dialog.findChildren<CStretchBitmapButton *>();
    QCOMPARE(buttons.size(), 18);
    for (const CStretchBitmapButton *each : buttons)
        QCOMPARE(each->isEnabled(), each->objectName() == "Close" || each->objectName() == "Back");
    dialog.disableAllButton(true); // despite its name
    for (const CStretchBitmapButton *each : buttons)
        QVERIFY(each->isEnabled());
}

void DisplayModesTest::hidingSparesExit()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    dialog.hideAllButton();
    QCOMPARE(fixture.shownButtons(), QStringList{closePlace});
}

void DisplayModesTest::blockedButtonsSendNothingExceptPaste()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    dialog.SignalBlockAll(true);
    const auto buttons = dialog.findChildren<CStretchBitmapButton *>();
    for (const CStretchBitmapButton *each : buttons)
        QCOMPARE(each->signalsBlocked(), !each->objectName().startsWith("Put"));
    dialog.SignalBlockAll(false);
    for (const CStretchBitmapButton *each : buttons)
        QVERIFY(!each->signalsBlocked());
}

void DisplayModesTest::settingButtonXReturnsTheNextCell()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    auto &live = static_cast<CStretchBitmapButton &>(fixture.button("Live"));
    QCOMPARE(dialog.setButtonX(&live, 10.75), 143.75);
    QCOMPARE(live.geometry(), QRect(10, 532, 133, 68));
}

QTEST_MAIN(DisplayModesTest)
#include "tst_cvistreldlg_modes.moc"
