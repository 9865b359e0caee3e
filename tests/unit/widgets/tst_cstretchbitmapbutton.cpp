#include "ButtonGeometry.h"
#include "CStretchBitmapButton.h"
#include "Patience.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

namespace {

// The left half of the test bitmaps, by state.
const QColor upColor(0, 0, 160);
const QColor downColor(160, 0, 0);
const QColor disabledColor(40, 40, 40);
const QColor upRightColor(0, 160, 0);

// A window with one button in it.
struct Stage {
    explicit Stage(const QString &name)
    {
        window.resize(400, 300);
        button = new CStretchBitmapButton(name, &window);
    }

    void open()
    {
        button->show();
        window.show();
        window.activateWindow();
    }
    QLabel *caption() const { return button->findChild<QLabel *>("caption"); }
    QColor colorAt(int x, int y) { return window.grab().toImage().pixelColor(x, y); }

    QWidget window;
    CStretchBitmapButton *button = nullptr;
};

// Counts how often a widget is drawn.
class Draws : public QObject {
public:
    explicit Draws(QWidget *widget) { widget->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

// Mirrors the whole program for the length of a test.
struct RightToLeft {
    RightToLeft() { QApplication::setLayoutDirection(Qt::RightToLeft); }
    ~RightToLeft() { QApplication::setLayoutDirection(Qt::LeftToRight); }
    Q_DISABLE_COPY(RightToLeft)
};

} // namespace

class TestCStretchBitmapButton : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBitmapIsShrunkToASixthOfTheScreenAndNeverEnlarged_data();
    void aBitmapIsShrunkToASixthOfTheScreenAndNeverEnlarged();
    void captionsShrinkOnNarrowScreens_data();
    void captionsShrinkOnNarrowScreens();
    void theButtonIsBornHiddenAndAsLargeAsItsBitmap_data();
    void theButtonIsBornHiddenAndAsLargeAsItsBitmap();
    void theBitmapIsStretchedOverTheWholeButton();
    void thePressedButtonShowsItsDownBitmap();
    void aDisabledButtonStaysDisabledLookingUnderThePress();
    void aButtonWithoutBitmapsDrawsNothing();
    void theCaptionStandsInTheRightThreeFifths();
    void theCaptionFontIsBlackWeightArial();
    void aLongCaptionNeitherEnlargesTheButtonNorMovesItsColumn();
    void aClickOnTheCaptionPressesTheButton();
    void aRightToLeftCaptionGetsTwoLeadingBlanks();
    void aRightToLeftLanguageLeavesThePictureAsItIs();
    void assistiveToolsHearTheCaptionOnOneLine_data();
    void assistiveToolsHearTheCaptionOnOneLine();
    void captionsAreWhiteAndDimmerWhenDisabled_data();
    void captionsAreWhiteAndDimmerWhenDisabled();
    void tabReachesTheButtonAndSpacePressesIt();
    void enterPressesOnceHoweverLongItIsHeld();
    void arrowsGoToTheNearestButtonThatWay_data();
    void arrowsGoToTheNearestButtonThatWay();
    void arrowsGoBesideAsTheRowStandsInEveryLanguage();
    void arrowsSkipWhatCannotBePressed();
    void onlyTheKeyboardFocusIsMarked();
    void whatCanBePressedFromNowOnIsDrawnTwice();
};

void TestCStretchBitmapButton::aBitmapIsShrunkToASixthOfTheScreenAndNeverEnlarged_data()
{
    QTest::addColumn<QSize>("bitmap");
    QTest::addColumn<int>("screenWidth");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("too wide on 1920") << QSize(400, 300) << 1920 << QSize(320, 240);
    QTest::newRow("fits on 1920") << QSize(300, 200) << 1920 << QSize(300, 200);
    QTest::newRow("exactly a cell") << QSize(320, 240) << 1920 << QSize(320, 240);
    QTest::newRow("the cell is truncated") << QSize(171, 171) << 1027 << QSize(171, 171);
    QTest::newRow("a pixel too wide") << QSize(172, 172) << 1027 << QSize(171, 171);
    QTest::newRow("no bitmap") << QSize(0, 0) << 1920 << QSize(0, 0);
}

void TestCStretchBitmapButton::aBitmapIsShrunkToASixthOfTheScreenAndNeverEnlarged()
{
    QFETCH(QSize, bitmap);
    QFETCH(int, screenWidth);
    QTEST(ButtonGeometry::fittedBitmapSize(bitmap, screenWidth), "expected");
}

void TestCStretchBitmapButton::captionsShrinkOnNarrowScreens_data()
{
    QTest::addColumn<int>("screenWidth");
    QTest::addColumn<int>("points");
    QTest::newRow("640") << 640 << 6;
    QTest::newRow("800") << 800 << 8;
    QTest::newRow("1023") << 1023 << 10;
    QTest::newRow("1024") << 1024 << 11;
    QTest::newRow("1920") << 1920 << 11;
}

void TestCStretchBitmapButton::captionsShrinkOnNarrowScreens()
{
    QFETCH(int, screenWidth);
    QTEST(ButtonGeometry::captionPointSize(screenWidth), "points");
}

void TestCStretchBitmapButton::theButtonIsBornHiddenAndAsLargeAsItsBitmap_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("bitmap");
    QTest::newRow("small") << "Small" << QSize(90, 60);
    QTest::newRow("wider than a cell") << "Wide" << QSize(200, 100);
    QTest::newRow("missing") << "NoSuchName" << QSize(0, 0);
}

void TestCStretchBitmapButton::theButtonIsBornHiddenAndAsLargeAsItsBitmap()
{
    QFETCH(QString, name);
    QFETCH(QSize, bitmap);
    const int screenWidth = QGuiApplication::primaryScreen()->availableGeometry().width();
    const QSize expected = ButtonGeometry::fittedBitmapSize(bitmap, screenWidth);

    const Stage stage(name);
    QVERIFY(stage.button->isHidden());
    QVERIFY(!stage.button->isCheckable());
    QCOMPARE(stage.button->objectName(), name);
    QCOMPARE(stage.button->size(), expected);
    QCOMPARE(stage.button->baseSize(), expected);
}

void TestCStretchBitmapButton::theBitmapIsStretchedOverTheWholeButton()
{
    Stage stage("Small");
    stage.button->setGeometry(10, 20, 200, 120);
    stage.open();
    QCOMPARE(stage.colorAt(10, 20), upColor);
    QCOMPARE(stage.colorAt(106, 139), upColor);
    QCOMPARE(stage.colorAt(114, 20), upRightColor);
    QCOMPARE(stage.colorAt(209, 139), upRightColor);
}

void TestCStretchBitmapButton::thePressedButtonShowsItsDownBitmap()
{
    Stage stage("Small");
    stage.open();
    QTest::mousePress(stage.button, Qt::LeftButton);
    QCOMPARE(stage.colorAt(2, 30), downColor);
    QTest::mouseRelease(stage.button, Qt::LeftButton);
    QCOMPARE(stage.colorAt(2, 30), upColor);
}

void TestCStretchBitmapButton::aDisabledButtonStaysDisabledLookingUnderThePress()
{
    Stage stage("Small");
    stage.button->setEnabled(false);
    stage.open();
    QTest::mousePress(stage.button, Qt::LeftButton);
    stage.button->setDown(true);
    QCOMPARE(stage.colorAt(2, 30), disabledColor);
}

void TestCStretchBitmapButton::aButtonWithoutBitmapsDrawsNothing()
{
    Stage stage("NoSuchName");
    stage.window.setPalette(QPalette(Qt::magenta));
    stage.button->setGeometry(0, 0, 100, 60);
    stage.open();
    const QImage shown = stage.window.grab().toImage();
    QCOMPARE(shown.pixelColor(50, 30), shown.pixelColor(300, 200));
    QCOMPARE(shown.pixelColor(0, 0), shown.pixelColor(300, 200));
}

void TestCStretchBitmapButton::theCaptionStandsInTheRightThreeFifths()
{
    Stage stage("Small");
    stage.button->setGeometry(0, 0, 200, 100);
    stage.button->setCaptionText("Live");
    stage.open();
    QCOMPARE(stage.caption()->geometry(), QRect(80, 0, 120, 100));
    QVERIFY(stage.caption()->wordWrap());
    QCOMPARE(stage.caption()->text(), QString("Live"));
}

void TestCStretchBitmapButton::theCaptionFontIsBlackWeightArial()
{
    const Stage stage("Small");
    const QFont font = stage.caption()->font();
    const int screenWidth = QGuiApplication::primaryScreen()->availableGeometry().width();
    QCOMPARE(font.family(), QString("Arial"));
    QCOMPARE(font.weight(), 87);
    QCOMPARE(font.italic(), false);
    QCOMPARE(font.pointSize(), ButtonGeometry::captionPointSize(screenWidth));
}

void TestCStretchBitmapButton::aLongCaptionNeitherEnlargesTheButtonNorMovesItsColumn()
{
    Stage stage("Small");
    stage.button->setCaptionText(QString("Unreasonably").repeated(10));
    stage.open();
    QCOMPARE(stage.button->size(), QSize(90, 60));
    QCOMPARE(stage.caption()->geometry(), QRect(36, 0, 54, 60));
    stage.button->setGeometry(0, 0, 50, 20);
    QCOMPARE(stage.button->size(), QSize(50, 20));
}

void TestCStretchBitmapButton::aClickOnTheCaptionPressesTheButton()
{
    Stage stage("Small");
    stage.button->setCaptionText("Photo");
    stage.open();
    const QSignalSpy clicked(stage.button, &QPushButton::clicked);
    const QPoint onCaption(60, 30);
    QCOMPARE(stage.window.childAt(onCaption), stage.button);
    QTest::mouseClick(stage.window.windowHandle(), Qt::LeftButton, {}, onCaption);
    QCOMPARE(clicked.count(), 1);
}

void TestCStretchBitmapButton::aRightToLeftCaptionGetsTwoLeadingBlanks()
{
    const RightToLeft mirrored;
    const Stage stage("Small");
    stage.button->setCaptionText("Live");
    QCOMPARE(stage.caption()->text(), QString("  Live"));
    QCOMPARE(stage.button->accessibleName(), QString("Live"));
}

void TestCStretchBitmapButton::aRightToLeftLanguageLeavesThePictureAsItIs()
{
    const RightToLeft mirrored;
    Stage stage("Small");
    stage.button->move(0, 0);
    stage.open();
    QCOMPARE(stage.button->layoutDirection(), Qt::LeftToRight);
    QCOMPARE(stage.caption()->layoutDirection(), Qt::RightToLeft);
    QCOMPARE(stage.caption()->x(), 36);
    QCOMPARE(stage.colorAt(2, 30), upColor);
}

void TestCStretchBitmapButton::assistiveToolsHearTheCaptionOnOneLine_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("spoken");
    QTest::newRow("plain") << "Live"
                           << "Live";
    QTest::newRow("two lines") << "Continuous\nCapture"
                               << "Continuous Capture";
    QTest::newRow("indented second line") << "Movie /\n    Photo"
                                          << "Movie / Photo";
    QTest::newRow("no caption") << ""
                                << "Small";
}

void TestCStretchBitmapButton::assistiveToolsHearTheCaptionOnOneLine()
{
    QFETCH(QString, caption);
    const Stage stage("Small");
    QCOMPARE(stage.button->accessibleName(), QString("Small"));
    stage.button->setCaptionText("Something else");
    stage.button->setCaptionText(caption);
    QCOMPARE(stage.caption()->text(), caption);
    QTEST(stage.button->accessibleName(), "spoken");
}

void TestCStretchBitmapButton::captionsAreWhiteAndDimmerWhenDisabled_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("brightest");
    QTest::addColumn<int>("dimmest");
    QTest::newRow("enabled") << true << 255 << 220;
    QTest::newRow("disabled") << false << 160 << 110;
}

void TestCStretchBitmapButton::captionsAreWhiteAndDimmerWhenDisabled()
{
    QFETCH(bool, enabled);
    QFETCH(int, brightest);
    QFETCH(int, dimmest);
    Stage stage("NoSuchName"); // no bitmap: the caption is all there is, on black
    QPalette colors;
    for (auto role : {QPalette::Window, QPalette::WindowText, QPalette::ButtonText})
        colors.setColor(role, Qt::black);
    stage.window.setPalette(colors);
    stage.button->setGeometry(0, 0, 200, 60);
    stage.button->setCaptionText("HHHHH");
    stage.button->setEnabled(enabled);
    stage.open();

    const QImage shown = stage.window.grab(QRect(0, 0, 200, 60)).toImage();
    int lightest = 0;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
            lightest = qMax(lightest, qGray(shown.pixel(x, y)));
    QVERIFY2(lightest <= brightest && lightest >= dimmest,
             QByteArray::number(lightest).constData());
}

void TestCStretchBitmapButton::tabReachesTheButtonAndSpacePressesIt()
{
    Stage stage("Small");
    auto *second = new CStretchBitmapButton("Small", &stage.window);
    second->move(100, 0);
    second->show();
    stage.open();
    QVERIFY(QTest::qWaitForWindowActive(&stage.window));
    const QSignalSpy clicked(second, &QPushButton::clicked);
    stage.button->setFocus();
    QTest::keyClick(&stage.window, Qt::Key_Tab);
    QVERIFY(second->hasFocus());
    QTest::keyClick(second, Qt::Key_Space);
    QCOMPARE(clicked.count(), 1);
}

void TestCStretchBitmapButton::enterPressesOnceHoweverLongItIsHeld()
{
    Stage stage("Small");
    stage.open();
    const QSignalSpy clicked(stage.button, &QPushButton::clicked);
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyPress(stage.button, enter);
        QVERIFY(stage.button->isDown());
        for (int i = 0; i < 3; ++i) {
            QKeyEvent held(QEvent::KeyPress, enter, Qt::NoModifier, QString(), true);
            QApplication::sendEvent(stage.button, &held);
        }
        QTest::keyRelease(stage.button, enter);
        QVERIFY(!stage.button->isDown());
    }
    QCOMPARE(clicked.count(), 2);
}

void TestCStretchBitmapButton::arrowsGoToTheNearestButtonThatWay_data()
{
    // The live screen at 1024x768: a row, and two small buttons on one another at its end.
    const QVector<QRect> row{{2, 692, 170, 76},   {172, 692, 170, 76}, {342, 692, 170, 76},
                             {854, 692, 170, 38}, {854, 730, 170, 38}, {342, 616, 170, 76}};
    QTest::addColumn<QVector<QRect>>("places");
    QTest::addColumn<int>("from");
    QTest::addColumn<Qt::Key>("arrow");
    QTest::addColumn<int>("expected");
    QTest::newRow("the next") << row << 0 << Qt::Key_Right << 1;
    QTest::newRow("the one before") << row << 2 << Qt::Key_Left << 1;
    QTest::newRow("nothing before the first") << row << 0 << Qt::Key_Left << -1;
    QTest::newRow("over a gap") << row << 2 << Qt::Key_Right << 3;
    QTest::newRow("down") << row << 3 << Qt::Key_Down << 4;
    QTest::newRow("up") << row << 4 << Qt::Key_Up << 3;
    QTest::newRow("back from the small ones") << row << 4 << Qt::Key_Left << 2;
    QTest::newRow("up to what stands above") << row << 2 << Qt::Key_Up << 5;
    QTest::newRow("nothing below the row") << row << 1 << Qt::Key_Down << -1;
}

void TestCStretchBitmapButton::arrowsGoToTheNearestButtonThatWay()
{
    QFETCH(QVector<QRect>, places);
    QFETCH(int, from);
    QFETCH(Qt::Key, arrow);
    QTEST(ButtonGeometry::nearest(places[from], places, arrow), "expected");
}

void TestCStretchBitmapButton::arrowsGoBesideAsTheRowStandsInEveryLanguage()
{
    const RightToLeft mirrored;
    Stage stage("Small");
    auto *second = new CStretchBitmapButton("Small", &stage.window);
    second->move(100, 0);
    second->show();
    stage.button->move(0, 0);
    stage.open();
    QVERIFY(QTest::qWaitForWindowActive(&stage.window));
    stage.button->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(stage.button, Qt::Key_Right);
    QVERIFY(second->hasFocus());
    QVERIFY(stage.colorAt(104, 30).value() > 200); // marked, as after Tab
    QTest::keyClick(second, Qt::Key_Right);
    QVERIFY(second->hasFocus());
    QTest::keyClick(second, Qt::Key_Left);
    QVERIFY(stage.button->hasFocus());
}

void TestCStretchBitmapButton::arrowsSkipWhatCannotBePressed()
{
    Stage stage("Small");
    stage.button->move(0, 0);
    QVector<CStretchBitmapButton *> row;
    for (int i = 1; i <= 3; ++i) {
        row.append(new CStretchBitmapButton("Small", &stage.window));
        row.last()->move(100 * i, 0);
    }
    row[0]->show();
    row[0]->setEnabled(false);
    row[2]->show(); // the second one stays hidden
    stage.open();
    QVERIFY(QTest::qWaitForWindowActive(&stage.window));
    stage.button->setFocus();
    QTest::keyClick(stage.button, Qt::Key_Right);
    QVERIFY(row[2]->hasFocus());
}

void TestCStretchBitmapButton::onlyTheKeyboardFocusIsMarked()
{
    Stage stage("Small");
    stage.button->move(0, 0);
    stage.open();
    QVERIFY(QTest::qWaitForWindowActive(&stage.window));
    stage.button->setFocus(Qt::MouseFocusReason);
    QVERIFY(stage.button->hasFocus());
    stage.window.setAttribute(Qt::WA_KeyboardFocusChange, false);
    QCOMPARE(stage.colorAt(4, 30), upColor);

    auto *second = new CStretchBitmapButton("Small", &stage.window);
    second->move(100, 0);
    second->show();
    QTest::keyClick(&stage.window, Qt::Key_Tab);
    QVERIFY(second->hasFocus());
    QCOMPARE(stage.colorAt(4, 30), upColor);
    // Bright on a dark rim, for faces of any colour.
    QVERIFY(stage.colorAt(104, 30).value() > 200);
    QVERIFY(stage.colorAt(101, 30).value() < upColor.value());
}

// A compositor may have missed the first time.
void TestCStretchBitmapButton::whatCanBePressedFromNowOnIsDrawnTwice()
{
    Stage stage("Small");
    stage.button->setEnabled(false);
    stage.open();
    QVERIFY(QTest::qWaitForWindowExposed(&stage.window));
    Draws draws(stage.button);
    QVERIFY(!QTest::qWaitFor([&] { return draws.count > 2; }, 1000));
    draws.count = 0;
    stage.button->setEnabled(true);
    QTRY_COMPARE(draws.count, 2);
    QVERIFY(!QTest::qWaitFor([&] { return draws.count > 2; }, 1000));
}

QTEST_MAIN(TestCStretchBitmapButton)
#include "tst_cstretchbitmapbutton.moc"
