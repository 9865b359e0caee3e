#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "MessageReader.h"
#include "Patience.h"
#include "PictureListView.h"
#include "PictureWidget.h"

#include <QFile>

/** Taking a photo, keeping it, throwing it away, and coming back to the live picture. */
class PhotoFlowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPhotoIsShownBesideTheLivePicture();
    void aPhotoIsShownAsItWasTakenAndIsKnownToTheStrip();
    void acceptingShowsThePhotoAloneAndKeepsItsFile();
    void acceptingLeavesThePreviewSettingAsItWas();
    void retryRemovesExactlyTheLastPhoto();
    void withoutPreviewThePhotoIsKeptWhenItIsShown();
    void liveWhileLiveDoesNothing();
    void liveFromAPhotoKeepsThePhoto();
    void aPhotoThatFailsLeavesThePictureShownBefore();
    void aPhotoIsShownBeforeItsFileIsThere_data();
    void aPhotoIsShownBeforeItsFileIsThere();
    void theKeyboardStaysWhereItIsWhileAPhotoIsWritten();
    void aPhotoThatCannotBeWrittenIsToldAndGoesAway_data();
    void aPhotoThatCannotBeWrittenIsToldAndGoesAway();
    void withNothingShownBeforeALostPhotoLeavesBlack();
    void whatNeedsThePhotosFileWaitsForIt_data();
    void whatNeedsThePhotosFileWaitsForIt();
    void throwingAPhotoAwayLeavesNothingToBeWritten();
    void closingTheWindowWaitsForThePhoto();
    void aPhotoLostWhileTheWindowClosesOpensNoBox();
    void aCameraThatGoesWaitsForThePhoto();
    void aFullDiskTakesNoPhoto();
    void liveOpensACameraThatWasClosed();
    void withoutAShutterSoundEverythingRunsSilently();
};

void PhotoFlowTest::aPhotoIsShownBesideTheLivePicture()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    QCOMPARE(fixture.captures().size(), 1);
    QCOMPARE(dialog.displayMode(), PhotoMode);
    auto &picture = fixture.child<PictureWidget>();
    QVERIFY(picture.isVisible());
    QVERIFY(fixture.child<LiveVideoWidget>().isVisible());
    QCOMPARE(picture.fileName(), fixture.captures().first());
    QCOMPARE(picture.labelText(), QStringLiteral("Still"));
}

// The engine's picture has another colour than its file, so that a reading shows.
void PhotoFlowTest::aPhotoIsShownAsItWasTakenAndIsKnownToTheStrip()
{
    QImage taken(1280, 720, QImage::Format_RGB888);
    taken.fill(Qt::cyan);
    DialogFixture fixture;
    fixture.build();
    FakeEngine::script().savedPicture = taken;
    fixture.click("Photo");
    auto &picture = fixture.child<PictureWidget>();
    QCOMPARE(picture.grab().toImage().pixelColor(picture.rect().center()), QColor(Qt::cyan));
    fixture.click("Apply");
    fixture.click("Live");
    fixture.click("List");
    auto &strip = fixture.child<PictureListView>();
    QCOMPARE(strip.count(), 1);
    const QSize size = strip.iconSize();
    const QImage thumbnail = strip.item(0)->icon().pixmap(size).toImage();
    QVERIFY(!thumbnail.isNull()); // at once, and of the same picture
    QCOMPARE(thumbnail.pixelColor(thumbnail.rect().center()), QColor(Qt::cyan));
}

void PhotoFlowTest::acceptingShowsThePhotoAloneAndKeepsItsFile()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    const QStringList before = fixture.captures();
    fixture.click("Apply");
    QCOMPARE(fixture.captures(), before);
    QVERIFY(!fixture.child<LiveVideoWidget>().isVisible());
    QVERIFY(fixture.child<PictureWidget>().isVisible());
    QCOMPARE(fixture.child<PictureWidget>().geometry(), dialog.videoRect());
}

void PhotoFlowTest::acceptingLeavesThePreviewSettingAsItWas()
{
    DialogFixture fixture;
    fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    fixture.click("Live");
    fixture.click("Photo");
    QVERIFY(fixture.button("Apply").isVisible());
}

void PhotoFlowTest::retryRemovesExactlyTheLastPhoto()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    fixture.click("Live");
    const QStringList first = fixture.captures();
    QTest::qWait(2); // nothing to wait for: names are stamped to the millisecond
    fixture.click("Photo");
    QCOMPARE(fixture.captures().size(), 2);
    fixture.click("Retry");
    QCOMPARE(fixture.captures(), first);
    QCOMPARE(dialog.displayMode(), LiveMode);
    QVERIFY(fixture.child<LiveVideoWidget>().isVisible());
    QVERIFY(!fixture.child<PictureWidget>().isVisible());
}

void PhotoFlowTest::withoutPreviewThePhotoIsKeptWhenItIsShown()
{
    DialogFixture fixture;
    QFile settings(fixture.home() + QStringLiteral("/.halcyra_orvantacc.ini"));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("[General]\nPhotoPreview=0\n");
    settings.close();
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    QCOMPARE(fixture.captures().size(), 1);
    QVERIFY(!fixture.button("Apply").isVisible());
    QVERIFY(!fixture.child<LiveVideoWidget>().isVisible());
    QCOMPARE(fixture.child<PictureWidget>().geometry(), dialog.videoRect());
    QCOMPARE(fixture.usableButtons(), (QStringList{"Live", "List", "Close", "PutPhoto"}));
}

void PhotoFlowTest::liveWhileLiveDoesNothing()
{
    DialogFixture fixture;
    fixture.build();
    const QStringList before = FakeEngine::script().calls;
    fixture.click("Live");
    QCOMPARE(FakeEngine::script().calls, before);
}

void PhotoFlowTest::liveFromAPhotoKeepsThePhoto()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    fixture.click("Live");
    QCOMPARE(fixture.captures().size(), 1);
    QCOMPARE(dialog.displayMode(), LiveMode);
    QCOMPARE(fixture.child<LiveVideoWidget>().geometry(), dialog.videoRect());
}

void PhotoFlowTest::aPhotoThatFailsLeavesThePictureShownBefore()
{
    DialogFixture fixture;
    fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    const QString shown = fixture.child<PictureWidget>().fileName();
    fixture.click("Live");
    FakeEngine::script().saveBitmapSucceeds = false;
    fixture.click("Photo");
    QCOMPARE(fixture.child<PictureWidget>().fileName(), shown);
    QCOMPARE(fixture.captures().size(), 1);
    fixture.click("Retry"); // there is no last photo: nothing may be deleted
    QCOMPARE(fixture.captures().size(), 1);
}

void PhotoFlowTest::aPhotoIsShownBeforeItsFileIsThere_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QStringList>("usable");
    QTest::newRow("with the preview")
        << QByteArray("PhotoPreview=1\n") << QStringList{"Apply", "Retry"};
    QTest::newRow("without it") << QByteArray("PhotoPreview=0\n")
                                << QStringList{"Live", "List", "Close", "PutPhoto"};
}

void PhotoFlowTest::aPhotoIsShownBeforeItsFileIsThere()
{
    QFETCH(QByteArray, settings);
    QFETCH(QStringList, usable);
    DialogFixture fixture;
    fixture.setSettings(settings);
    fixture.build();
    FakeEngine::script().writesSlowly = true;
    fixture.click("Photo");
    auto &picture = fixture.child<PictureWidget>();
    QVERIFY(picture.isVisible());
    QCOMPARE(picture.grab().toImage().pixelColor(picture.rect().center()), QColor(Qt::darkCyan));
    QCOMPARE(fixture.captures(), QStringList());
    QCOMPARE(fixture.usableButtons(), QStringList());
    FakeEngine::writePhoto();
    QCOMPARE(fixture.captures(), QStringList{picture.fileName()});
    QCOMPARE(fixture.usableButtons(), usable);
}

void PhotoFlowTest::theKeyboardStaysWhereItIsWhileAPhotoIsWritten()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    FakeEngine::script().writesSlowly = true;
    fixture.click("Photo");
    FakeEngine::writePhoto();
    QCOMPARE(dialog.focusWidget(), &fixture.button("Apply"));
}

void PhotoFlowTest::aPhotoThatCannotBeWrittenIsToldAndGoesAway_data()
{
    QTest::addColumn<bool>("isFull");
    QTest::addColumn<QString>("message");
    QTest::newRow("although there is room") << false << "Save failed.";
    QTest::newRow("on a full disk")
        << true
        << "The disk free space is insufficient.\n"
           "Taking a picture is discontinued. Please secure the free space. ";
}

void PhotoFlowTest::aPhotoThatCannotBeWrittenIsToldAndGoesAway()
{
    QFETCH(bool, isFull);
    QFETCH(QString, message);
    DialogFixture fixture;
    fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    const QString before = fixture.child<PictureWidget>().fileName();
    fixture.click("Live");
    QTest::qWait(2); // nothing to wait for: names are stamped to the millisecond
    FakeEngine::script().writesSlowly = true;
    FakeEngine::script().fileSucceeds = false;
    fixture.click("Photo");
    QVERIFY(fixture.child<PictureWidget>().fileName() != before);
    if (isFull)
        DialogFixture::fillTheDisk();
    const MessageReader reader;
    FakeEngine::writePhoto();
    QCOMPARE(fixture.child<PictureWidget>().fileName(), before);
    QVERIFY(!fixture.child<PictureWidget>().labelText().isEmpty());
    QCOMPARE(fixture.usableButtons(), (QStringList{"Apply", "Retry"}));
    QTRY_COMPARE(reader.texts(), QStringList{message});
}

void PhotoFlowTest::withNothingShownBeforeALostPhotoLeavesBlack()
{
    DialogFixture fixture;
    fixture.build();
    FakeEngine::script().writesSlowly = true;
    FakeEngine::script().fileSucceeds = false;
    fixture.click("Photo");
    const MessageReader reader;
    FakeEngine::writePhoto();
    auto &picture = fixture.child<PictureWidget>();
    QVERIFY(!picture.hasPicture());
    QCOMPARE(picture.fileName(), QString());
    QTRY_COMPARE(reader.texts(), QStringList{"Save failed."});
    fixture.click("Retry"); // there is no photo: nothing may be deleted
    QCOMPARE(fixture.captures(), QStringList());
}

using Flow = void (CVistrelDlg::*)();
Q_DECLARE_METATYPE(Flow)

void PhotoFlowTest::whatNeedsThePhotosFileWaitsForIt_data()
{
    QTest::addColumn<Flow>("flow");
    QTest::newRow("Live") << Flow(&CVistrelDlg::OnLive);
    QTest::newRow("Accept") << Flow(&CVistrelDlg::OnAply);
    QTest::newRow("List") << Flow(&CVistrelDlg::OnList);
    QTest::newRow("Paste") << Flow(&CVistrelDlg::PutTVSPhoto);
    QTest::newRow("Continuous Capture") << Flow(&CVistrelDlg::OnPhotSeq);
    QTest::newRow("Movie") << Flow(&CVistrelDlg::OnRecord);
}

void PhotoFlowTest::whatNeedsThePhotosFileWaitsForIt()
{
    QFETCH(Flow, flow);
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    FakeEngine::script().writesSlowly = true;
    dialog.OnPhoto();
    const QString photo = fixture.child<PictureWidget>().fileName();
    QVERIFY(!photo.isEmpty());
    QVERIFY(!fixture.captures().contains(photo));
    (dialog.*flow)();
    QVERIFY(fixture.captures().contains(photo));
}

void PhotoFlowTest::throwingAPhotoAwayLeavesNothingToBeWritten()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    FakeEngine::script().writesSlowly = true;
    dialog.OnPhoto();
    dialog.OnRetake();
    QVERIFY(!FakeEngine::isSaving());
    QCOMPARE(fixture.captures(), QStringList());
    QCOMPARE(dialog.displayMode(), LiveMode);
}

void PhotoFlowTest::closingTheWindowWaitsForThePhoto()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    FakeEngine::script().writesSlowly = true;
    fixture.click("Photo");
    dialog.close();
    QCOMPARE(fixture.captures(), QStringList{fixture.child<PictureWidget>().fileName()});
}

// Nobody would be there to answer it at the end of a session.
void PhotoFlowTest::aPhotoLostWhileTheWindowClosesOpensNoBox()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    FakeEngine::script().writesSlowly = true;
    FakeEngine::script().fileSucceeds = false;
    fixture.click("Photo");
    const MessageReader reader;
    dialog.close();
    QTest::qWait(50); // nothing to wait for: a box that does not come
    QCOMPARE(reader.texts(), QStringList());
}

void PhotoFlowTest::aCameraThatGoesWaitsForThePhoto()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    FakeEngine::script().writesSlowly = true;
    fixture.click("Photo");
    const MessageReader reader;
    FakeEngine::loseCamera();
    QCOMPARE(reader.texts().size(), 1);
    QCOMPARE(fixture.captures().size(), 1);
    QCOMPARE(dialog.displayMode(), LiveMode);
    QCOMPARE(fixture.usableButtons(), (QStringList{"List", "Close"}));
}

void PhotoFlowTest::aFullDiskTakesNoPhoto()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    DialogFixture::fillTheDisk();
    const QString text = DialogFixture::boxDuring([&] { dialog.OnPhoto(); });
    QVERIFY(text.startsWith(QStringLiteral("The disk free space is insufficient.\n")));
    QCOMPARE(FakeEngine::callCount(QStringLiteral("startSaving")), 0);
    QVERIFY(dialog.hasError());
    QCOMPARE(fixture.usableButtons(), (QStringList{"List", "Close"}));
}

void PhotoFlowTest::liveOpensACameraThatWasClosed()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    fixture.child<LiveVideoWidget>().Release();
    FakeEngine::script().videoPresent = false;
    fixture.click("Live");
    QVERIFY(dialog.hasError());
    QCOMPARE(fixture.usableButtons(), (QStringList{"List", "Close"}));
    FakeEngine::script().videoPresent = true;
    fixture.click("List");
    fixture.click("Live");
    QVERIFY(!dialog.hasError());
    QVERIFY(fixture.child<LiveVideoWidget>().isVisible());
}

void PhotoFlowTest::withoutAShutterSoundEverythingRunsSilently()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    dialog.SetPluginPath(fixture.home()); // no photo.wav in it
    fixture.click("Photo");
    QCOMPARE(fixture.captures().size(), 1);
}

QTEST_MAIN(PhotoFlowTest)
#include "tst_cvistreldlg_photo.moc"
