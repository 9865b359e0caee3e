#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "PictureListView.h"
#include "PictureWidget.h"

#include <QFile>
#include <QTest>

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

void PhotoFlowTest::aFullDiskTakesNoPhoto()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    DialogFixture::fillTheDisk();
    const QString text = DialogFixture::boxDuring([&] { dialog.OnPhoto(); });
    QVERIFY(text.startsWith(QStringLiteral("The disk free space is insufficient.\n")));
    QCOMPARE(FakeEngine::callCount(QStringLiteral("SaveBitmap")), 0);
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
