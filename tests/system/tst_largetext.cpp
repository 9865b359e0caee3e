#include "CStretchBitmapButton.h"
#include "LabCommands.h"
#include "LayoutScale.h"
#include "Patience.h"
#include "Session.h"

#include <QApplication>
#include <QLabel>

// A desktop whose user wants texts half as large again: whoever reads boxes reads them there, too.
class TestLargeText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void boxesGrowWithTheirTexts();
    void captionsAreAsLargeAsTheirButtonsLetThem();
    void aMessageIsShownWholeAndConfirmed();
    void theSettingsAreAnswered();

private:
    QSize questionAtExit();
};

void TestLargeText::init()
{
    QVERIFY(wantTexts(144));
}

// Empty when it did not come.
QSize TestLargeText::questionAtExit()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    const bool isAsked = user.startLive() && user.takePhotoForPreview()
        && user.pressWhenReady(WindowMap::PreviewScreen, "Apply")
        && user.pressWhenReady(WindowMap::PhotoScreen, "Close") && user.waitForDialog("Orvanta");
    return isAsked ? user.dialog().geometry.size() : QSize();
}

void TestLargeText::boxesGrowWithTheirTexts()
{
    const QSize large = questionAtExit();
    QVERIFY(wantTexts(96));
    const QSize plain = questionAtExit();
    QVERIFY(!plain.isEmpty());
    const double grown = double(large.width()) / plain.width();
    // Its rims are as wide as ever.
    QVERIFY2(grown > 1.4 && grown <= 1.5, qPrintable(QString::number(grown)));
    QVERIFY(large.height() > plain.height());
}

void TestLargeText::captionsAreAsLargeAsTheirButtonsLetThem()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    QVector<int> heights;
    for (const char *name : {"Photo", "PhotoMulti"}) {
        CStretchBitmapButton twin(name, nullptr);
        twin.setCaptionText(qstrcmp(name, "Photo") == 0 ? "Photo" : "Continuous\nCapture");
        twin.setAttribute(Qt::WA_DontShowOnScreen);
        twin.setFocusPolicy(Qt::NoFocus);
        twin.show();
        const QImage expected = twin.grab().toImage().convertToFormat(QImage::Format_RGB32);
        QTRY_COMPARE(user.seenAt(user.map().button(WindowMap::LiveScreen, name)), expected);
        heights.append(QFontInfo(twin.findChild<QLabel *>("caption")->font()).pixelSize());
    }
    QCOMPARE(heights.first(), 22); // 11 points, half as large again
    QVERIFY(heights.last() > 14 && heights.last() < 22);
}

void TestLargeText::aMessageIsShownWholeAndConfirmed()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    QVERIFY(labctl({"unplug", "cam1"}));
    const bool isSaid = user.messageSays("The video device is invalid. Please confirm whether the "
                                         "device is correctly connected. ");
    const QRect box = user.dialog().geometry;
    const bool isConfirmed = user.confirmMessage();
    QVERIFY(labctl({"plug", "cam1", "1280x720"}));
    QVERIFY(isSaid);
    QVERIFY(isConfirmed);
    QVERIFY(user.desktop().screen().contains(box));
}

void TestLargeText::theSettingsAreAnswered()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(user.startLive());
    QVERIFY(user.pressWhenReady(WindowMap::LiveScreen, "Settings"));
    QVERIFY(user.clickInSettings("chbPhotoPreview"));
    QVERIFY(user.desktop().screen().contains(user.dialog().geometry));
    QVERIFY(user.clickInSettings("btnOk"));
    QVERIFY(user.waitUntilNoDialog());
    QTRY_VERIFY(user.isLiveAt(user.map().videoRect()));
    QVERIFY(user.pressWhenReady(WindowMap::LiveScreen, "Photo"));
    // Without a preview: it was the box for that which was pressed.
    QVERIFY(user.waitForPressable(WindowMap::PhotoScreen, {"Live", "PutPhoto", "List", "Close"}));
}

int main(int argc, char *argv[])
{
    if (!wantTexts(144))
        return 99;
    LayoutScale::apply(); // as the program does it, for the twins of its buttons and boxes
    const QApplication application(argc, argv);
    qunsetenv("QT_SCALE_FACTOR"); // the program finds it out by itself
    TestLargeText test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_largetext.moc"
