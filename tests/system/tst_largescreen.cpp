#include "CStretchBitmapButton.h"
#include "LabCommands.h"
#include "LabPattern.h"
#include "LayoutScale.h"
#include "Patience.h"
#include "Session.h"

#include <QApplication>

// A screen of twice the usual size in each direction: everything is as large to the eye as ever.
class TestLargeScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thePictureAndTheButtonsAreTwiceAsLarge();
    void aPhotoIsTakenAndHandedOverInItsSizeOnTheScreen();
    void aDesktopThatIsDrawnLargeEnlargesNothingTwice();

private:
    static QSize settingsAt(int dpi);
};

void TestLargeScreen::thePictureAndTheButtonsAreTwiceAsLarge()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    QCOMPARE(user.mainWindow().geometry, QRect(0, 0, 3840, 2160));
    const QRect photo = user.map().button(WindowMap::LiveScreen, "Photo");
    // A cell of the window's layout is a sixth of 1920 px wide, or as wide as the bitmap.
    const CStretchBitmapButton unscaled("Photo", nullptr);
    QCOMPARE(photo.size(), unscaled.size() * 2);
    QVERIFY(user.waitForPressable(
        WindowMap::LiveScreen,
        {"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"}));

    CStretchBitmapButton twin("Photo", nullptr);
    twin.setCaptionText("Photo");
    twin.setAttribute(Qt::WA_DontShowOnScreen);
    twin.setFocusPolicy(Qt::NoFocus);
    twin.show();
    QImage expected = twin.grab().toImage().convertToFormat(QImage::Format_RGB32);
    expected.setDevicePixelRatio(1);
    QCOMPARE(user.seenAt(photo), expected);
}

void TestLargeScreen::aPhotoIsTakenAndHandedOverInItsSizeOnTheScreen()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    QVERIFY(user.takePhotoForPreview());
    const QString name = user.program().captured().value(0);
    const QImage photo(user.program().temporaryArea() + "/" + name);
    QCOMPARE(photo.size(), QSize(1280, 720));
    QTRY_COMPARE(user.counterAt(user.map().previewPhotoRect()), LabPattern::counterOf(photo));
    QVERIFY(user.pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QTRY_COMPARE(user.counterAt(user.map().videoRect()), LabPattern::counterOf(photo));
    QVERIFY(user.pressWhenReady(WindowMap::PhotoScreen, "PutPhoto"));
    const QSize shown = user.map().videoRect().size();
    QTRY_COMPARE(
        user.program().handedOver(),
        QString("0\n%1x%2\n%3\n").arg(shown.width()).arg(shown.height()).arg(name).toUtf8());
}

// With the desktop's texts of that size; empty when they did not come.
QSize TestLargeScreen::settingsAt(int dpi)
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    const bool areOpen = wantTexts(dpi) && user.startLive()
        && user.pressWhenReady(WindowMap::LiveScreen, "Settings") && user.waitForDialog("Settings");
    return areOpen ? user.dialog().geometry.size() : QSize();
}

void TestLargeScreen::aDesktopThatIsDrawnLargeEnlargesNothingTwice()
{
    const QSize plain = settingsAt(96);
    const QSize twice = settingsAt(192);
    const QSize twiceWithLargeTexts = settingsAt(288);
    QVERIFY(wantTexts(96));
    QVERIFY(!plain.isEmpty());
    QCOMPARE(twice, plain);
    QVERIFY(twiceWithLargeTexts.width() > plain.width());
    QVERIFY(twiceWithLargeTexts.width() < plain.width() * 3 / 2);
}

int main(int argc, char *argv[])
{
    LayoutScale::apply(); // as the program does it, for the twins of its buttons
    const QApplication application(argc, argv);
    qunsetenv("QT_SCALE_FACTOR"); // the program finds it out by itself
    qunsetenv("QT_FONT_DPI");
    TestLargeScreen test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_largescreen.moc"
