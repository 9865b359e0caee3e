#include "CaptureFolder.h"
#include "Contrast.h"
#include "MessageReader.h"
#include "PictureListView.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

namespace {

const QString refusal("You can not select 10 or more.");

QString photo(int number)
{
    return QString("photo%1.png").arg(number, 2, 10, QChar('0'));
}

QStringList photos(int count)
{
    QStringList names;
    for (int i = 1; i <= count; ++i)
        names.append(photo(i));
    return names;
}

// A strip as the main window has it, filled with photos and on the screen.
struct Strip {
    explicit Strip(int photoCount = 0, int height = 140)
    {
        window.resize(780, height);
        list = new PictureListView(&window);
        list->setGeometry(0, 0, 780, height);
        list->AddPicture(photos(photoCount));
        window.show();
        if (!QTest::qWaitForWindowExposed(&window))
            qFatal("The strip does not come up.");
    }

    QPoint centre(int row) const { return list->visualItemRect(list->item(row)).center(); }
    void click(int row) const
    {
        list->scrollToItem(list->item(row));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, centre(row));
    }

    QWidget window;
    PictureListView *list = nullptr;
};

} // namespace

class TestPictureListView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void theSameNameTwiceIsOnePicture();
    void theIconSizeFollowsTheHeightOfTheStrip_data();
    void theIconSizeFollowsTheHeightOfTheStrip();
    void anIconSizeThatWasSetIsKept();
    void aThumbnailKeepsTheShapeOfItsPicture();
    void aPictureThatCannotBeReadHasAnItemWithoutIcon();
    void anItemIsWhiteOnBlackAndCanOnlyBeChosen();
    void thePicturesStandInOneRowThatScrollsSideways();
    void theWheelScrollsSidewaysAndNothingMovesUpOrDown();

    void photosAreListedInTheOrderOfChoosing();
    void aSecondClickDeselects();
    void selectedPhotoComesWhenTheNamesAreReady();
    void aChosenPhotoLooksChosenWithoutFocusToo();
    void theNameOfAChosenPhotoCanBeRead();
    void aChosenPhotoIsTickedAndItsPictureStaysClear();
    void aPhotoChosenAlreadyIsNotTakenTwice();
    void unselectingTakesOutTheFirstOfThatName();

    void aTenthPhotoIsRefused_data();
    void aTenthPhotoIsRefused();
    void everyRefusalIsToldOnce();
    void choosingAllOfTwelveKeepsNineAndTellsOnce();
    void aRubberBandAroundTenKeepsNineAndTellsOnce();
    void offeringATenthNameDeselectsTheCurrentPhoto();
    void addingChosenPicturesHasNoLimit();
    void releasingTheStripWhileTheUserIsToldIsHarmless();

    void aMovieGoesByItsStillPicture();
    void anotherMovieReplacesTheFirst();
    void theMovieModeChangesHowManyCanBeChosen();

    void afterReleaseTheSameNameCanBeAddedAgain();
    void releaseEmptiesAndHidesButRemembersTheLastChosen();
    void theNamesCanBeClearedAlone();

private:
    CaptureFolder m_folder;
};

void TestPictureListView::initTestCase()
{
    for (int i = 1; i <= 12; ++i)
        QVERIFY(CaptureFolder::save(photo(i), QSize(160, 90), QColor::fromHsv(i * 25, 200, 200)));
    QVERIFY(CaptureFolder::save("cliptmp.png", QSize(160, 90), Qt::red));
    QVERIFY(CaptureFolder::save("movie2tmp.png", QSize(160, 90), Qt::green));
}

void TestPictureListView::theSameNameTwiceIsOnePicture()
{
    const Strip strip;
    strip.list->AddPicture(photo(1));
    strip.list->AddPicture(QStringList{photo(1), photo(2), photo(2)});
    QCOMPARE(strip.list->count(), 2);
    QCOMPARE(strip.list->item(0)->text(), photo(1));
    QCOMPARE(strip.list->item(1)->text(), photo(2));
}

void TestPictureListView::theIconSizeFollowsTheHeightOfTheStrip_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QSize>("iconSize");
    QTest::addColumn<QSize>("tile");
    QTest::newRow("120") << 120 << QSize(104, 80) << QSize(120, 104);
    QTest::newRow("the third is truncated first") << 134 << QSize(114, 88) << QSize(134, 114);
    QTest::newRow("187") << 187 << QSize(161, 124) << QSize(187, 161);
}

void TestPictureListView::theIconSizeFollowsTheHeightOfTheStrip()
{
    QFETCH(int, height);
    const Strip strip(1, height);
    QTEST(strip.list->iconSize(), "iconSize");
    QTEST(strip.list->item(0)->sizeHint(), "tile");

    strip.list->setPictSize(QSize(0, 0));
    strip.list->AddPicture(photo(2));
    QTEST(strip.list->iconSize(), "iconSize");
}

void TestPictureListView::anIconSizeThatWasSetIsKept()
{
    const Strip strip(0, 120);
    strip.list->setPictSize(QSize(50, 40));
    strip.list->AddPicture(photo(1));
    QCOMPARE(strip.list->iconSize(), QSize(50, 40));
    QCOMPARE(strip.list->item(0)->sizeHint(), QSize(120, 50));
}

void TestPictureListView::aThumbnailKeepsTheShapeOfItsPicture()
{
    const Strip strip(0, 120);
    strip.list->AddPicture(photo(1));
    const QList<QSize> sizes = strip.list->item(0)->icon().availableSizes();
    QCOMPARE(sizes, QList<QSize>{QSize(104, 58)});
}

void TestPictureListView::aPictureThatCannotBeReadHasAnItemWithoutIcon()
{
    const Strip strip;
    strip.list->AddPicture("photomissing.png");
    QCOMPARE(strip.list->count(), 1);
    QCOMPARE(strip.list->item(0)->text(), QString("photomissing.png"));
    QVERIFY(strip.list->item(0)->icon().isNull());
}

void TestPictureListView::anItemIsWhiteOnBlackAndCanOnlyBeChosen()
{
    const Strip strip(1);
    const QListWidgetItem *item = strip.list->item(0);
    QCOMPARE(item->background(), QBrush(Qt::black));
    QCOMPARE(item->foreground(), QBrush(Qt::white));
    QCOMPARE(item->flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    QCOMPARE(item->type(), 0);
    QVERIFY(!strip.list->dragEnabled());
    QVERIFY(!strip.list->viewport()->acceptDrops());
}

void TestPictureListView::thePicturesStandInOneRowThatScrollsSideways()
{
    const Strip strip(12);
    const int top = strip.list->visualItemRect(strip.list->item(0)).top();
    for (int row = 1; row < 12; ++row) {
        const QRect before = strip.list->visualItemRect(strip.list->item(row - 1));
        const QRect tile = strip.list->visualItemRect(strip.list->item(row));
        QCOMPARE(tile.top(), top);
        QCOMPARE(tile.left(), before.right() + 1 + 10);
    }
    QVERIFY(strip.list->horizontalScrollBar()->maximum() > 0);
    QVERIFY(!strip.list->verticalScrollBar()->isVisible());
}

void TestPictureListView::theWheelScrollsSidewaysAndNothingMovesUpOrDown()
{
    const Strip strip(12);
    const QPoint centre = strip.list->viewport()->rect().center();
    QWheelEvent down(centre, strip.list->viewport()->mapToGlobal(centre), {}, QPoint(0, -120),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(strip.list->viewport(), &down);
    QVERIFY(strip.list->horizontalScrollBar()->value() > 0);
    strip.list->scrollToItem(strip.list->item(11));
    QCOMPARE(strip.list->verticalScrollBar()->maximum(), 0);
    QCOMPARE(strip.list->visualItemRect(strip.list->item(11)).top(), 10);
}

void TestPictureListView::photosAreListedInTheOrderOfChoosing()
{
    const Strip strip(5);
    for (int row : {3, 0, 4, 1})
        strip.click(row);
    const QStringList expected{photo(4), photo(1), photo(5), photo(2)};
    QCOMPARE(strip.list->selectedNames(), expected);
    QCOMPARE(strip.list->lastSelected(), photo(2));
}

void TestPictureListView::aSecondClickDeselects()
{
    const Strip strip(3);
    strip.click(0);
    strip.click(1);
    strip.click(0);
    QCOMPARE(strip.list->selectedNames(), QStringList{photo(2)});
    strip.click(1);
    QVERIFY(strip.list->selectedNames().isEmpty());
    QCOMPARE(strip.list->lastSelected(), photo(2));
}

void TestPictureListView::selectedPhotoComesWhenTheNamesAreReady()
{
    const Strip strip(3);
    QList<QStringList> seen;
    connect(strip.list, &PictureListView::selectedPhoto, this,
            [&] { seen.append(strip.list->selectedNames()); });
    strip.click(1);
    strip.click(2);
    strip.click(1);
    const QList<QStringList> expected{{photo(2)}, {photo(2), photo(3)}, {photo(3)}};
    QCOMPARE(seen, expected);
}

void TestPictureListView::aChosenPhotoLooksChosenWithoutFocusToo()
{
    const Strip strip(2);
    strip.click(0);
    strip.list->clearFocus();
    const QImage shown = strip.list->viewport()->grab().toImage();
    const QColor chosen =
        shown.pixelColor(strip.list->visualItemRect(strip.list->item(0)).topLeft() + QPoint(3, 3));
    const QColor other =
        shown.pixelColor(strip.list->visualItemRect(strip.list->item(1)).topLeft() + QPoint(3, 3));
    QVERIFY(chosen.value() > 150);
    QCOMPARE(other, QColor(Qt::black));
}

void TestPictureListView::theNameOfAChosenPhotoCanBeRead()
{
    const Strip strip(1);
    const QRgb lit = strip.list->palette().color(QPalette::Highlight).rgb();
    QVERIFY(contrast(lit, strip.list->palette().color(QPalette::HighlightedText).rgb()) >= 7);
    QVERIFY(contrast(lit, qRgb(0, 0, 0)) > 2.5); // of the tiles beside it
}

void TestPictureListView::aChosenPhotoIsTickedAndItsPictureStaysClear()
{
    const Strip strip(1);
    const QIcon icon = strip.list->item(0)->icon();
    const QSize size = strip.list->iconSize();
    const auto shown = [&](QIcon::Mode mode) {
        return icon.pixmap(size, mode).toImage().convertToFormat(QImage::Format_RGB32);
    };
    const QImage chosen = shown(QIcon::Selected);
    const QImage other = shown(QIcon::Normal);
    const int side = qMin(other.width(), other.height()) / 3 + 1;
    const QRect corner(other.width() - side, 0, side, side);
    const QImage tick = chosen.copy(corner);
    QVERIFY(tick != other.copy(corner));
    QCOMPARE(tick.pixel(side / 4, side / 4), qRgb(0, 0, 0));
    int white = 0;
    for (int x = 0; x < side; ++x)
        for (int y = 0; y < side; ++y)
            white += tick.pixel(x, y) == qRgb(255, 255, 255) ? 1 : 0;
    QVERIFY(white > 0);
    const QRect left(0, 0, corner.left(), other.height());
    QCOMPARE(chosen.copy(left), other.copy(left));
}

void TestPictureListView::aPhotoChosenAlreadyIsNotTakenTwice()
{
    const Strip strip(2);
    strip.list->OnSelect(photo(1));
    strip.list->OnSelect(photo(2));
    strip.list->OnSelect(photo(1));
    const QStringList expected{photo(1), photo(2)};
    QCOMPARE(strip.list->selectedNames(), expected);
    QCOMPARE(strip.list->lastSelected(), photo(2));
}

void TestPictureListView::unselectingTakesOutTheFirstOfThatName()
{
    const Strip strip;
    for (const QString &name : {photo(1), photo(2), photo(1)})
        strip.list->AddPictureWithSelect(name);
    strip.list->UnSelect("photounknown.png");
    QCOMPARE(strip.list->selectedNames().size(), 3);
    strip.list->UnSelect(photo(1));
    const QStringList expected{photo(2), photo(1)};
    QCOMPARE(strip.list->selectedNames(), expected);
}

void TestPictureListView::aTenthPhotoIsRefused_data()
{
    QTest::addColumn<bool>("byKeyboard");
    QTest::newRow("by a click") << false;
    QTest::newRow("by the keyboard") << true;
}

void TestPictureListView::aTenthPhotoIsRefused()
{
    QFETCH(bool, byKeyboard);
    const Strip strip(12);
    const MessageReader boxes;
    for (int row = 0; row < 9; ++row)
        strip.click(row);
    QVERIFY(boxes.texts().isEmpty());
    if (byKeyboard) {
        QTest::keyClick(strip.list, Qt::Key_Right);
        QTest::keyClick(strip.list, Qt::Key_Space);
    } else {
        strip.click(9);
    }
    QCOMPARE(boxes.texts(), QStringList{refusal});
    QCOMPARE(strip.list->currentRow(), 9);
    QVERIFY(!strip.list->item(9)->isSelected());
    QCOMPARE(strip.list->selectedItems().size(), 9);
    QCOMPARE(strip.list->selectedNames(), photos(9));
}

void TestPictureListView::everyRefusalIsToldOnce()
{
    const Strip strip(12);
    const MessageReader boxes;
    for (int row = 0; row < 12; ++row)
        strip.click(row);
    const QStringList expected{refusal, refusal, refusal};
    QCOMPARE(boxes.texts(), expected);
    strip.click(0);
    strip.click(11);
    QCOMPARE(boxes.texts(), expected);
    QCOMPARE(strip.list->selectedNames().size(), 9);
    QCOMPARE(strip.list->lastSelected(), photo(12));
}

void TestPictureListView::choosingAllOfTwelveKeepsNineAndTellsOnce()
{
    const Strip strip(12);
    const MessageReader boxes;
    strip.list->setFocus();
    QTest::keyClick(strip.list, Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(boxes.texts(), QStringList{refusal});
    QCOMPARE(strip.list->selectedItems().size(), 9);
    QCOMPARE(strip.list->selectedNames().size(), 9);
}

void TestPictureListView::aRubberBandAroundTenKeepsNineAndTellsOnce()
{
    const Strip strip(12, 80);
    const MessageReader boxes;
    QWidget *viewport = strip.list->viewport();
    for (int row = 0; row < 6; ++row)
        strip.click(row);
    strip.list->scrollToItem(strip.list->item(11));
    // From the gap behind the last tile across six tiles, in one move.
    const QRect last = strip.list->visualItemRect(strip.list->item(11));
    const QRect first = strip.list->visualItemRect(strip.list->item(7));
    const QPoint from(last.right() + 5, 4);
    QTest::mousePress(viewport, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, first.center(), viewport->mapToGlobal(first.center()),
                     Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(viewport, &move);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, first.center());
    QCOMPARE(boxes.texts(), QStringList{refusal});
    QCOMPARE(strip.list->selectedItems().size(), 9);
    QCOMPARE(strip.list->selectedNames().size(), 9);
}

void TestPictureListView::offeringATenthNameDeselectsTheCurrentPhoto()
{
    const Strip strip(12);
    const MessageReader boxes;
    for (int row = 0; row < 9; ++row)
        strip.click(row);
    strip.list->OnSelect(photo(12));
    QCOMPARE(boxes.texts(), QStringList{refusal});
    QVERIFY(!strip.list->item(8)->isSelected());
    QCOMPARE(strip.list->selectedNames(), photos(8));
    QCOMPARE(strip.list->lastSelected(), photo(8));
}

void TestPictureListView::addingChosenPicturesHasNoLimit()
{
    const Strip strip;
    const MessageReader boxes;
    for (const QString &name : photos(12))
        strip.list->AddPictureWithSelect(name);
    QCOMPARE(strip.list->selectedNames(), photos(12));
    QCOMPARE(strip.list->count(), 12);
    QVERIFY(strip.list->selectedItems().isEmpty());
    QVERIFY(boxes.texts().isEmpty());
}

void TestPictureListView::releasingTheStripWhileTheUserIsToldIsHarmless()
{
    const Strip strip(12);
    const MessageReader boxes;
    // The camera is unplugged while the box is up: the main window leaves the list.
    QTimer unplugged;
    unplugged.setSingleShot(true);
    connect(&unplugged, &QTimer::timeout, strip.list, &PictureListView::Release);
    unplugged.start(0);
    strip.list->selectAll();
    QCOMPARE(boxes.texts(), QStringList{refusal});
    QCOMPARE(strip.list->count(), 0);
    QVERIFY(strip.list->selectedNames().isEmpty());
}

void TestPictureListView::aMovieGoesByItsStillPicture()
{
    const Strip strip;
    strip.list->setMovieMode(true);
    strip.list->AddPicture("cliptmp.png");
    QCOMPARE(strip.list->item(0)->text(), QString("clip.mov"));
    QVERIFY(!strip.list->item(0)->icon().isNull());
    strip.click(0);
    QCOMPARE(strip.list->selectedNames(), QStringList{"cliptmp.png"});
    QCOMPARE(strip.list->lastSelected(), QString("cliptmp.png"));
}

void TestPictureListView::anotherMovieReplacesTheFirst()
{
    const Strip strip;
    strip.list->setMovieMode(true);
    strip.list->AddPicture(QStringList{"cliptmp.png", "movie2tmp.png"});
    strip.click(0);
    strip.click(1);
    QCOMPARE(strip.list->selectedNames(), QStringList{"movie2tmp.png"});
    strip.list->OnSelect("clip.mov");
    QCOMPARE(strip.list->selectedNames(), QStringList{"cliptmp.png"});
}

void TestPictureListView::theMovieModeChangesHowManyCanBeChosen()
{
    const Strip strip;
    QVERIFY(!strip.list->movieMode());
    QCOMPARE(strip.list->selectionMode(), QAbstractItemView::MultiSelection);
    strip.list->setMovieMode(true);
    QVERIFY(strip.list->movieMode());
    QCOMPARE(strip.list->selectionMode(), QAbstractItemView::SingleSelection);
    strip.list->setMovieMode(false);
    QCOMPARE(strip.list->selectionMode(), QAbstractItemView::MultiSelection);
}

void TestPictureListView::afterReleaseTheSameNameCanBeAddedAgain()
{
    const Strip strip(3);
    strip.list->Release();
    QCOMPARE(strip.list->count(), 0);
    strip.list->AddPicture(photo(2));
    QCOMPARE(strip.list->count(), 1);
    QCOMPARE(strip.list->item(0)->text(), photo(2));
}

void TestPictureListView::releaseEmptiesAndHidesButRemembersTheLastChosen()
{
    const Strip strip(3);
    strip.click(0);
    strip.click(1);
    strip.list->Release();
    QVERIFY(strip.list->isHidden());
    QVERIFY(strip.list->selectedNames().isEmpty());
    QCOMPARE(strip.list->lastSelected(), photo(2));
}

void TestPictureListView::theNamesCanBeClearedAlone()
{
    const Strip strip(3);
    strip.click(0);
    strip.list->clearSelectedNames();
    QVERIFY(strip.list->selectedNames().isEmpty());
    QCOMPARE(strip.list->count(), 3);
}

QTEST_MAIN(TestPictureListView)
#include "tst_picturelistview.moc"
