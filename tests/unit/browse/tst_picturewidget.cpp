#include "CStretchBitmapButton.h"
#include "CaptureFolder.h"
#include "Patience.h"
#include "PictureLoader.h"
#include "PictureWidget.h"

#include <QLabel>
#include <QSignalSpy>

namespace {

const QColor black(Qt::black);

CStretchBitmapButton *button(const PictureWidget &widget, const QString &name)
{
    return widget.findChild<CStretchBitmapButton *>(name);
}

QLabel *caption(const PictureWidget &widget)
{
    return widget.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
}

// The rectangle of everything in the grabbed widget that is not black.
QRect litArea(PictureWidget &widget)
{
    const QImage shown = widget.grab().toImage();
    QRect lit;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x)
            if (shown.pixelColor(x, y) != black)
                lit |= QRect(x, y, 1, 1);
    }
    return lit;
}

// Black and white columns, one pixel each.
QImage stripes(QSize size)
{
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            picture.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::white);
    return picture;
}

} // namespace

class TestPictureWidget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void anEmptyNameLoadsTheSameFileAgain();
    void afterReleaseTheWidgetIsBlackWithoutCaption();
    void listModeShowsTheCaptionAgainWithItsLastText();
    void thePictureIsAsLargeAsFitsAndCentred_data();
    void thePictureIsAsLargeAsFitsAndCentred();
    void besideThePictureTheWidgetIsBlackOnAnyParent();
    void aFileThatCannotBeReadIsBlack();
    void aPictureIsShownBeforeItsFileIsThere();
    void growingAgainShowsACoarsePictureUntilItIsLoadedAgain();
    void aPictureEnlargedWhileItsSmallVersionLoadsStaysSharp();
    void theCaptionIsThinGreenOnBlackInTheCorner();
    void aNewCaptionFitsItsTextAndIsShown();
    void theCaptionCanBeHiddenAndShown();
    void thereAreNoButtonsBeforeTheFirstMode();
    void listModePutsZoomInTheCorner();
    void zoomModePutsBackInTheCornerInTheSizeOfZoom();
    void zoomModeLeavesAVisibleEmptyCaption();
    void aClickCarriesTheWidget();
    void listModeTwiceAsksTwiceForOneClick();
    void zoomModeTwiceAsksTwiceForOneClick();
    void assistiveToolsAreToldWhatTheButtonsDo();

private:
    CaptureFolder m_folder;
};

void TestPictureWidget::initTestCase()
{
    QVERIFY(CaptureFolder::save("photored.png", QSize(40, 30), Qt::red));
}

void TestPictureWidget::anEmptyNameLoadsTheSameFileAgain()
{
    QVERIFY(CaptureFolder::save("photoa.png", QSize(40, 30), Qt::red));
    PictureWidget widget(nullptr);
    widget.resize(400, 300);
    widget.Loadbmp("photoa.png");
    QCOMPARE(widget.grab().toImage().pixelColor(200, 200), QColor(Qt::red));

    QVERIFY(CaptureFolder::save("photoa.png", QSize(40, 30), Qt::blue));
    widget.Loadbmp("");
    QCOMPARE(widget.fileName(), QString("photoa.png"));
    QCOMPARE(widget.grab().toImage().pixelColor(200, 200), QColor(Qt::blue));
}

void TestPictureWidget::afterReleaseTheWidgetIsBlackWithoutCaption()
{
    PictureWidget widget(nullptr);
    widget.resize(400, 300);
    widget.Loadbmp("photored.png");
    QVERIFY(!litArea(widget).isEmpty());
    widget.Release();
    QVERIFY(widget.fileName().isEmpty());
    QVERIFY(caption(widget)->isHidden());
    QCOMPARE(litArea(widget), QRect());
}

void TestPictureWidget::listModeShowsTheCaptionAgainWithItsLastText()
{
    PictureWidget widget(nullptr);
    widget.setLabelText("3");
    widget.Release();
    widget.ListMode();
    QVERIFY(!caption(widget)->isHidden());
    QCOMPARE(widget.labelText(), QString("3"));
}

void TestPictureWidget::thePictureIsAsLargeAsFitsAndCentred_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSize>("widget");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("same shape") << QSize(40, 30) << QSize(400, 300) << QRect(0, 0, 400, 300);
    QTest::newRow("wider") << QSize(40, 10) << QSize(400, 300) << QRect(0, 100, 400, 100);
    QTest::newRow("taller") << QSize(10, 40) << QSize(400, 300) << QRect(162, 0, 75, 300);
    QTest::newRow("shrunk") << QSize(800, 600) << QSize(400, 400) << QRect(0, 50, 400, 300);
    QTest::newRow("odd height left") << QSize(40, 10) << QSize(400, 301) << QRect(0, 100, 400, 100);
    QTest::newRow("odd width left") << QSize(10, 30) << QSize(401, 300) << QRect(150, 0, 100, 300);
}

void TestPictureWidget::thePictureIsAsLargeAsFitsAndCentred()
{
    QFETCH(QSize, picture);
    QVERIFY(CaptureFolder::save("photoshape.png", picture, Qt::yellow));
    QFETCH(QSize, widget);
    PictureWidget view(nullptr);
    view.labelVisible(false);
    view.resize(widget);
    view.Loadbmp("photoshape.png");
    QTEST(litArea(view), "expected");
    // Painting again must not let it shrink or wander.
    QTEST(litArea(view), "expected");
}

void TestPictureWidget::besideThePictureTheWidgetIsBlackOnAnyParent()
{
    QWidget parent;
    parent.resize(500, 400);
    parent.setPalette(QPalette(Qt::magenta));
    auto *widget = new PictureWidget(&parent);
    widget->labelVisible(false);
    widget->setGeometry(50, 50, 400, 300);
    QVERIFY(CaptureFolder::save("photowide.png", QSize(40, 10), Qt::yellow));
    widget->Loadbmp("photowide.png");
    parent.show();
    const QImage shown = parent.grab().toImage();
    QCOMPARE(shown.pixelColor(250, 200), QColor(Qt::yellow));
    QCOMPARE(shown.pixelColor(250, 60), black);
    QVERIFY(shown.pixelColor(250, 20) != black);
}

void TestPictureWidget::aFileThatCannotBeReadIsBlack()
{
    QVERIFY(CaptureFolder::saveBytes("photobad.png", "no picture"));
    PictureWidget widget(nullptr);
    widget.labelVisible(false);
    widget.resize(100, 80);
    for (const char *name : {"photomissing.png", "photobad.png"}) {
        widget.Loadbmp("photored.png");
        QVERIFY(!litArea(widget).isEmpty());
        widget.Loadbmp(name);
        QCOMPARE(widget.fileName(), QString(name));
        QCOMPARE(litArea(widget), QRect());
    }
}

void TestPictureWidget::aPictureIsShownBeforeItsFileIsThere()
{
    QImage picture(80, 60, QImage::Format_RGB32);
    picture.fill(Qt::yellow);
    PictureWidget widget(nullptr);
    widget.resize(80, 60);
    widget.showPicture(QStringLiteral("not-there.png"), picture);
    QCOMPARE(widget.fileName(), QStringLiteral("not-there.png"));
    QCOMPARE(widget.grab().toImage().pixelColor(70, 50), QColor(Qt::yellow));
}

void TestPictureWidget::growingAgainShowsACoarsePictureUntilItIsLoadedAgain()
{
    const QImage fine = stripes(QSize(64, 48));
    QVERIFY(CaptureFolder::save("photofine.png", fine));
    PictureWidget widget(nullptr);
    widget.labelVisible(false);
    widget.Loadbmp("photofine.png");
    widget.resize(16, 12);
    widget.grab();
    widget.resize(64, 48);
    QVERIFY(widget.grab().toImage().convertToFormat(QImage::Format_RGB32) != fine);
    widget.Loadbmp("");
    QCOMPARE(widget.grab().toImage().convertToFormat(QImage::Format_RGB32), fine);
}

void TestPictureWidget::aPictureEnlargedWhileItsSmallVersionLoadsStaysSharp()
{
    QVERIFY(CaptureFolder::save("photoEnlarged.png", stripes({200, 100})));
    PictureWidget widget(nullptr);
    widget.resize(20, 10);
    widget.loadLater("photoEnlarged.png");
    widget.Loadbmp(QString());
    widget.resize(200, 100);
    widget.labelVisible(false);
    QVERIFY(widget.hasPicture());
    QCOMPARE(widget.grab().toImage().convertToFormat(QImage::Format_RGB32), stripes({200, 100}));
    // The small version is delivered to those who still wait for it.
    bool delivered = false;
    PictureLoader::shared().later("photoEnlarged.png", QSize(20, 10), &widget,
                                  [&](const QImage &) { delivered = true; });
    QTRY_VERIFY(delivered);
    QCOMPARE(widget.grab().toImage().convertToFormat(QImage::Format_RGB32), stripes({200, 100}));
}

void TestPictureWidget::theCaptionIsThinGreenOnBlackInTheCorner()
{
    const PictureWidget widget(nullptr);
    const QLabel *label = caption(widget);
    QCOMPARE(label->text(), QString("Photo"));
    QCOMPARE(label->pos(), QPoint(0, 0));
    QCOMPARE(label->size(), label->sizeHint());
    QCOMPARE(label->font().family(), QString("Arial"));
    QCOMPARE(label->font().pointSize(), 24);
    QCOMPARE(label->font().weight(), 5);
    QVERIFY(label->autoFillBackground());
    for (const QPalette &colors : {widget.palette(), label->palette()}) {
        for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QCOMPARE(colors.color(group, QPalette::Window), black);
            QCOMPARE(colors.color(group, QPalette::WindowText), QColor(Qt::green));
        }
    }
}

void TestPictureWidget::aNewCaptionFitsItsTextAndIsShown()
{
    PictureWidget widget(nullptr);
    widget.labelVisible(false);
    widget.setLabelText("9");
    const int narrow = caption(widget)->width();
    QVERIFY(!caption(widget)->isHidden());
    widget.setLabelText("10 / 10");
    QVERIFY(caption(widget)->width() > narrow);
    QCOMPARE(caption(widget)->size(), caption(widget)->sizeHint());
}

void TestPictureWidget::theCaptionCanBeHiddenAndShown()
{
    PictureWidget widget(nullptr);
    widget.labelVisible(false);
    QVERIFY(caption(widget)->isHidden());
    widget.labelVisible(true);
    QVERIFY(!caption(widget)->isHidden());
}

void TestPictureWidget::thereAreNoButtonsBeforeTheFirstMode()
{
    PictureWidget widget(nullptr);
    QVERIFY(widget.findChildren<CStretchBitmapButton *>().isEmpty());
    widget.ListMode();
    widget.ZoomMode();
    widget.ListMode();
    QCOMPARE(widget.findChildren<CStretchBitmapButton *>().size(), 2);
}

void TestPictureWidget::listModePutsZoomInTheCorner()
{
    PictureWidget widget(nullptr);
    widget.resize(400, 300);
    widget.ListMode();
    QCOMPARE(button(widget, "Zoom")->geometry(), QRect(340, 260, 60, 40));
    QVERIFY(!button(widget, "Zoom")->isHidden());
    QVERIFY(button(widget, "Back")->isHidden());
}

void TestPictureWidget::zoomModePutsBackInTheCornerInTheSizeOfZoom()
{
    PictureWidget widget(nullptr);
    widget.resize(400, 300);
    widget.ListMode();
    QCOMPARE(button(widget, "Back")->size(), QSize(80, 50));
    widget.resize(800, 600);
    widget.ZoomMode();
    QCOMPARE(button(widget, "Back")->geometry(), QRect(740, 560, 60, 40));
    QVERIFY(!button(widget, "Back")->isHidden());
    QVERIFY(button(widget, "Zoom")->isHidden());
}

void TestPictureWidget::zoomModeLeavesAVisibleEmptyCaption()
{
    PictureWidget widget(nullptr);
    widget.setLabelText("3");
    for (bool visible : {true, false}) {
        widget.labelVisible(visible);
        widget.ZoomMode();
        QVERIFY(!caption(widget)->isHidden());
        QVERIFY(widget.labelText().isEmpty());
        widget.setLabelText("3");
    }
}

void TestPictureWidget::aClickCarriesTheWidget()
{
    PictureWidget widget(nullptr);
    widget.resize(400, 300);
    const QSignalSpy zoomed(&widget, &PictureWidget::onZoom);
    const QSignalSpy returned(&widget, &PictureWidget::onBack);
    widget.ListMode();
    widget.show();
    QTest::mouseClick(button(widget, "Zoom"), Qt::LeftButton);
    QCOMPARE(zoomed.count(), 1);
    QCOMPARE(zoomed.first().first().value<PictureWidget *>(), &widget);
    QCOMPARE(returned.count(), 0);

    widget.ZoomMode();
    QTest::mouseClick(button(widget, "Back"), Qt::LeftButton);
    QCOMPARE(zoomed.count(), 1);
    QCOMPARE(returned.count(), 1);
    QCOMPARE(returned.first().first().value<PictureWidget *>(), &widget);
}

void TestPictureWidget::listModeTwiceAsksTwiceForOneClick()
{
    PictureWidget widget(nullptr);
    const QSignalSpy zoomed(&widget, &PictureWidget::onZoom);
    widget.ListMode();
    widget.ListMode();
    button(widget, "Zoom")->click();
    QCOMPARE(zoomed.count(), 2);
}

void TestPictureWidget::zoomModeTwiceAsksTwiceForOneClick()
{
    PictureWidget widget(nullptr);
    const QSignalSpy returned(&widget, &PictureWidget::onBack);
    widget.ZoomMode();
    widget.ZoomMode();
    button(widget, "Back")->click();
    QCOMPARE(returned.count(), 2);
}

void TestPictureWidget::assistiveToolsAreToldWhatTheButtonsDo()
{
    PictureWidget widget(nullptr);
    QCOMPARE(widget.accessibleName(), QString("Photo"));
    QCOMPARE(widget.accessibleDescription(), QString("A captured photo"));
    widget.ListMode();
    const auto buttons = widget.findChildren<CStretchBitmapButton *>();
    QCOMPARE(buttons.size(), 2);
    for (const CStretchBitmapButton *one : buttons)
        QVERIFY(!one->accessibleDescription().isEmpty());
    // Not the names of the bitmaps, which are the same in every language.
    QCOMPARE(button(widget, "Zoom")->accessibleName(), QString("Enlarge this photo"));
    QCOMPARE(button(widget, "Back")->accessibleName(), QString("Back to all photos"));
}

QTEST_MAIN(TestPictureWidget)
#include "tst_picturewidget.moc"
