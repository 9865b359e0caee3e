#include "CStretchBitmapButton.h"
#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "TimerWidget.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

/** How the window comes into being: look, buttons, camera and connections. */
class ConstructionTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theWindowFillsTheFreeScreenWithoutAFrame();
    void theWindowIsBlackWithWhiteText();
    void everyButtonHasItsCaption_data();
    void everyButtonHasItsCaption();
    void everyButtonSpeaksToScreenReaders();
    void theCameraIsOpenedAndStartedOnce();
    void theVideoRectHasTheCamerasShape();
    void aCameraWithoutASizeGetsASquare();
    void aCancelledChooserStopsTheConstruction();
    void oneCameraNeedsNoChooser();
    void everyButtonRunsItsFlow_data();
    void everyButtonRunsItsFlow();
    void theBackButtonIsNotConnected();
    void pictureViewsAreNeverMirrored();
};

void ConstructionTest::theWindowFillsTheFreeScreenWithoutAFrame()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    QVERIFY(dialog.isDeviceSelected());
    QCOMPARE(dialog.geometry(), QGuiApplication::primaryScreen()->availableGeometry());
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
    QCOMPARE(dialog.windowType(), Qt::Dialog);
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Orvanta"));
    QVERIFY(!dialog.windowIcon().isNull());
}

void ConstructionTest::theWindowIsBlackWithWhiteText()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(dialog.palette().color(group, QPalette::Window), QColor(Qt::black));
        QCOMPARE(dialog.palette().color(group, QPalette::WindowText), QColor(Qt::white));
    }
}

void ConstructionTest::everyButtonHasItsCaption_data()
{
    QTest::addColumn<QString>("caption");
    const char *const captions[][2] = {
        {"Live", "Live"},
        {"Photo", "Photo"},
        {"PhotoMulti", "Continuous\nCapture"},
        {"Movie", "Movie"},
        {"MovieStop", "Stop"},
        {"List", "List"},
        {"Settings", "Settings"},
        {"Close", "Exit"},
        {"Apply", "Accept"},
        {"Retry", "Retry"},
        {"MoviePlay", "Play"},
        {"MoviePause", "Pause"},
        {"Show", "View"},
        {"SwitchPhoto", "Movie /\n    Photo"},
        {"SwitchMovie", "Photo /\n    Movie"},
        {"Back", "Back"},
        {"PutPhoto", "Paste"},
        {"PutMovie", "Paste"},
    };
    for (const auto &row : captions)
        QTest::newRow(row[0]) << QString::fromLatin1(row[1]);
}

void ConstructionTest::everyButtonHasItsCaption()
{
    QFETCH(QString, caption);
    DialogFixture fixture;
    fixture.build();
    QStringList shown;
    const auto labels = fixture.button(QTest::currentDataTag()).findChildren<QLabel *>();
    for (const QLabel *label : labels)
        shown << label->text();
    QVERIFY2(shown.contains(caption), qPrintable(shown.join(QLatin1Char('|'))));
}

void ConstructionTest::everyButtonSpeaksToScreenReaders()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    const auto buttons = dialog.findChildren<CStretchBitmapButton *>();
    for (const CStretchBitmapButton *each : buttons) {
        QVERIFY2(!each->accessibleName().isEmpty(), qPrintable(each->objectName()));
        QVERIFY2(!each->accessibleDescription().isEmpty(), qPrintable(each->objectName()));
        QVERIFY2(!each->accessibleName().contains(QLatin1Char('\n')),
                 qPrintable(each->objectName()));
    }
}

void ConstructionTest::theCameraIsOpenedAndStartedOnce()
{
    DialogFixture fixture;
    fixture.build();
    QCOMPARE(FakeEngine::callCount(QStringLiteral("Create")), 1);
    QCOMPARE(FakeEngine::callCount(QStringLiteral("Start")), 1);
    QVERIFY(FakeEngine::script().target);
}

void ConstructionTest::theVideoRectHasTheCamerasShape()
{
    DialogFixture fixture;
    FakeEngine::script().nativeSize = QSize(640, 480);
    CVistrelDlg &dialog = fixture.build();
    QCOMPARE(dialog.videoRect(), QRect(45, 0, 709, 532));
    QCOMPARE(fixture.child<LiveVideoWidget>().geometry(), dialog.videoRect());
    QCOMPARE(fixture.child<MovieWidget>().geometry(), dialog.videoRect());
}

void ConstructionTest::aCameraWithoutASizeGetsASquare()
{
    DialogFixture fixture;
    FakeEngine::script().nativeSize = QSize(0, 0);
    CVistrelDlg &dialog = fixture.build();
    QCOMPARE(dialog.videoRect(), QRect(134, 0, 532, 532));
}

void ConstructionTest::aCancelledChooserStopsTheConstruction()
{
    DialogFixture fixture;
    FakeEngine::script().deviceNames = QStringList{"First", "Second"};
    const QString text =
        DialogFixture::boxDuring([&] { fixture.build(); }, QStringLiteral("no such button"));
    QCOMPARE(text, QStringLiteral("Please select a device:"));
    QVERIFY(!fixture.dialog().isDeviceSelected());
    QVERIFY(!fixture.dialog().isVisible());
    QCOMPARE(FakeEngine::callCount(QStringLiteral("Create")), 0);
}

void ConstructionTest::oneCameraNeedsNoChooser()
{
    DialogFixture fixture;
    QCOMPARE(DialogFixture::boxDuring([&] { fixture.build(); }), QString());
    QCOMPARE(FakeEngine::script().videoDevice, 0);
}

void ConstructionTest::everyButtonRunsItsFlow_data()
{
    QTest::addColumn<QString>("engineCall"); // what the flow asks of the engine; empty: nothing
    QTest::addColumn<int>("screen"); // where it ends
    QTest::newRow("Photo") << "startSaving" << int(PhotoMode);
    QTest::newRow("Movie") << "Record" << int(LiveMode);
    QTest::newRow("PhotoMulti") << "Reset" << int(PhotSeqMode);
    QTest::newRow("List") << "" << int(ListMode);
}

void ConstructionTest::everyButtonRunsItsFlow()
{
    QFETCH(QString, engineCall);
    QFETCH(int, screen);
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    const int before = FakeEngine::callCount(engineCall);
    fixture.click(QTest::currentDataTag());
    QCOMPARE(int(dialog.displayMode()), screen);
    if (!engineCall.isEmpty())
        QVERIFY(FakeEngine::callCount(engineCall) > before);
}

void ConstructionTest::theBackButtonIsNotConnected()
{
    // On three screens, because most flows do nothing on one of them.
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    for (const char *leadingOn : {"Live", "Photo", "Apply", "List"}) {
        fixture.click(leadingOn);
        const QStringList shown = fixture.shownButtons();
        const QStringList calls = FakeEngine::script().calls;
        const QStringList captures = fixture.captures();
        const DisplayMode screen = dialog.displayMode();
        auto &back = static_cast<CStretchBitmapButton &>(fixture.button("Back"));
        QVERIFY(back.isEnabled());
        const QSignalSpy clicked(&back, &CStretchBitmapButton::clicked);
        QCOMPARE(DialogFixture::boxDuring([&] { back.click(); }), QString());
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(fixture.shownButtons(), shown);
        QCOMPARE(FakeEngine::script().calls, calls);
        QCOMPARE(fixture.captures(), captures);
        QCOMPARE(dialog.displayMode(), screen);
    }
}

void ConstructionTest::pictureViewsAreNeverMirrored()
{
    QApplication::setLayoutDirection(Qt::RightToLeft);
    DialogFixture fixture;
    fixture.build();
    QCOMPARE(fixture.child<LiveVideoWidget>().layoutDirection(), Qt::LeftToRight);
    QCOMPARE(fixture.child<MovieWidget>().layoutDirection(), Qt::LeftToRight);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

QTEST_MAIN(ConstructionTest)
#include "tst_cvistreldlg_construction.moc"
