#include "CStretchBitmapButton.h"
#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "Patience.h"
#include "PictureListView.h"
#include "PictureWidget.h"
#include "TimerWidget.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QSignalSpy>
#include <phonon/mediaobject.h>

namespace {

QString photoName(int number)
{
    return QStringLiteral("photo200903040905%1.png").arg(number, 5, 10, QLatin1Char('0'));
}

QString movieStem(int number)
{
    return QStringLiteral("movie200903040905%1").arg(number, 2, 10, QLatin1Char('0'));
}

/** The window over a temporary area that holds captures of an earlier run. */
class Browser : public DialogFixture {
public:
    explicit Browser(int photos = 0, int movies = 0)
    {
        const QDateTime morning(QDate(2009, 3, 4), QTime(9, 5));
        for (int i = 1; i <= photos; ++i)
            addPicture(photoName(i), colorOf(i), morning.addSecs(i));
        for (int i = 1; i <= movies; ++i) {
            addFile(movieStem(i) + QStringLiteral(".mov"), "a movie", morning.addSecs(i));
            addPicture(movieStem(i) + QStringLiteral("tmp.png"), colorOf(i), morning.addSecs(i));
        }
        build();
    }

    // In 8 bits, as a file keeps it.
    static QColor colorOf(int number)
    {
        return {QColor::fromHsv(number * 37 % 360, 220, 200).rgb()};
    }

    void addPicture(const QString &name, const QColor &color, const QDateTime &time) const
    {
        QImage picture(160, 90, QImage::Format_RGB32);
        picture.fill(color);
        if (!picture.save(temporaryArea() + QLatin1Char('/') + name))
            qFatal("A picture cannot be written.");
        setTime(name, time);
    }

    void addFile(const QString &name, const QByteArray &content, const QDateTime &time) const
    {
        QFile file(temporaryArea() + QLatin1Char('/') + name);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("A file cannot be written.");
        file.close();
        setTime(name, time);
    }

    PictureListView &strip() const { return child<PictureListView>(); }
    PictureWidget &preview() const { return child<PictureWidget>(); }

    void openAndSelect(const QVector<int> &rows)
    {
        click("List");
        for (int row : rows)
            strip().item(row)->setSelected(true);
    }

    QStringList texts() const
    {
        QStringList texts;
        for (int row = 0; row < strip().count(); ++row)
            texts.append(strip().item(row)->text());
        return texts;
    }

    // Those on the screen, in the order of their making.
    QVector<PictureWidget *> tiles()
    {
        QVector<PictureWidget *> shown;
        const auto all =
            dialog().findChildren<PictureWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (PictureWidget *each : all)
            if (each != &preview() && each->isVisible())
                shown.append(each);
        return shown;
    }

    static QWidget *cornerButton(PictureWidget *tile, const char *name)
    {
        return tile->findChild<CStretchBitmapButton *>(QLatin1String(name));
    }

private:
    void setTime(const QString &name, const QDateTime &time) const
    {
        QFile file(temporaryArea() + QLatin1Char('/') + name);
        if (!file.open(QIODevice::ReadWrite)
            || !file.setFileTime(time, QFileDevice::FileModificationTime))
            qFatal("A file cannot be given its time.");
    }
};

QColor middleOf(QWidget *widget)
{
    const QImage shown = widget->grab().toImage();
    return shown.pixelColor(shown.rect().center());
}

QStringList photoNames(int first, int last)
{
    QStringList names;
    for (int i = first; i <= last; ++i)
        names.append(photoName(i));
    return names;
}

} // namespace

/** The strip, the preview, the tiles, zooming, and the way to a movie. */
class BrowsingFlowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theStripShowsTheLastPhotosOldestFirst_data();
    void theStripShowsTheLastPhotosOldestFirst();
    void theStripShowsTheLastMoviesOldestFirst_data();
    void theStripShowsTheLastMoviesOldestFirst();
    void anEmptyStripCannotBeViewed();
    void theSwitchesChangeBetweenPhotosAndMovies();
    void thumbnailsComeInWhileTheStripIsOpen();
    void leavingTheStripWhileThumbnailsComeInIsHarmless();
    void strangeFilesAreBlackTilesAndStay();

    void selectingEnablesViewAndShowsTheLastOneSelected();
    void deselectingAllKeepsThePreviewAndDisablesView();
    void thePreviewKeepsThePicturesShapeAboveTheStrip();
    void openingTheStripAgainForgetsTheSelection();

    void viewShowsTheSelectionInTheOrderOfSelecting_data();
    void viewShowsTheSelectionInTheOrderOfSelecting();
    void aSingleTileHasNoZoomButton();
    void tilesShowTheirPhotos();
    void listDestroysTheTiles();
    void liveDestroysTheTiles();

    void zoomFillsThePictureAreaAndBackRebuildsTheTiles();
    void aZoomedPhotoHasItsFullQuality();
    void aChosenPhotoIsEnlargedWithoutBeingReadAgain();
    void repeatedZoomAndBackAreHarmless();

    void viewOnAMovieLeadsToItsPlayback();
};

void BrowsingFlowTest::theStripShowsTheLastPhotosOldestFirst_data()
{
    QTest::addColumn<int>("there");
    QTest::addColumn<int>("first");
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("49") << 49 << 1;
    QTest::newRow("50") << 50 << 1;
    QTest::newRow("51") << 51 << 2;
    QTest::newRow("60") << 60 << 11;
}

void BrowsingFlowTest::theStripShowsTheLastPhotosOldestFirst()
{
    QFETCH(int, there);
    QFETCH(int, first);
    Browser browser(there);
    browser.click("List");
    QCOMPARE(browser.dialog().displayMode(), ListMode);
    QVERIFY(browser.strip().isVisible());
    QCOMPARE(browser.texts(), photoNames(first, there));
    QVERIFY(!browser.child<LiveVideoWidget>().isVisible());
    QVERIFY(!browser.preview().isVisible());
}

void BrowsingFlowTest::theStripShowsTheLastMoviesOldestFirst_data()
{
    QTest::addColumn<int>("there");
    QTest::addColumn<int>("first");
    QTest::newRow("24") << 24 << 1;
    QTest::newRow("25") << 25 << 1;
    QTest::newRow("26") << 26 << 2;
    QTest::newRow("30") << 30 << 6;
}

void BrowsingFlowTest::theStripShowsTheLastMoviesOldestFirst()
{
    QFETCH(int, there);
    QFETCH(int, first);
    Browser browser(3, there);
    browser.click("List");
    browser.click("SwitchMovie");
    QStringList expected;
    for (int i = first; i <= there; ++i)
        expected.append(movieStem(i) + QStringLiteral(".mov"));
    QCOMPARE(browser.texts(), expected);
}

void BrowsingFlowTest::anEmptyStripCannotBeViewed()
{
    Browser browser;
    browser.click("List");
    QCOMPARE(browser.strip().count(), 0);
    QVERIFY(browser.strip().isVisible());
    QCOMPARE(browser.usableButtons(), (QStringList{"Live", "Close", "SwitchMovie"}));
    QVERIFY(browser.button("Show").isVisible());
}

void BrowsingFlowTest::theSwitchesChangeBetweenPhotosAndMovies()
{
    Browser browser(2, 1);
    browser.click("List");
    QCOMPARE(browser.texts(), photoNames(1, 2));
    QVERIFY(!browser.button("SwitchPhoto").isVisible());

    browser.click("SwitchMovie");
    QCOMPARE(browser.texts(), QStringList{movieStem(1) + QStringLiteral(".mov")});
    QVERIFY(browser.strip().movieMode());
    QVERIFY(browser.button("SwitchPhoto").isVisible());
    QVERIFY(!browser.button("SwitchMovie").isVisible());
    QCOMPARE(browser.dialog().displayMode(), ListMode);

    browser.click("SwitchPhoto");
    QCOMPARE(browser.texts(), photoNames(1, 2));
    QVERIFY(!browser.strip().movieMode());
    QVERIFY(browser.button("SwitchMovie").isVisible());
}

void BrowsingFlowTest::thumbnailsComeInWhileTheStripIsOpen()
{
    Browser browser(12);
    browser.click("List");
    QCOMPARE(browser.strip().count(), 12);
    for (int row = 0; row < 12; ++row) {
        QTRY_VERIFY(!browser.strip().item(row)->icon().isNull());
        const QSize iconSize = browser.strip().iconSize();
        const QImage thumbnail = browser.strip().item(row)->icon().pixmap(iconSize).toImage();
        QCOMPARE(thumbnail.size(), QSize(160, 90).scaled(iconSize, Qt::KeepAspectRatio));
        QCOMPARE(thumbnail.pixelColor(thumbnail.rect().center()), Browser::colorOf(row + 1));
    }
}

void BrowsingFlowTest::leavingTheStripWhileThumbnailsComeInIsHarmless()
{
    Browser browser(40, 2);
    browser.click("List");
    browser.click("SwitchMovie");
    browser.click("SwitchPhoto");
    browser.click("Live");
    QTest::qWait(50); // nothing to wait for: some thumbnails, whichever are done by then
    browser.click("List");
    QCOMPARE(browser.strip().count(), 40);
    QTRY_VERIFY(!browser.strip().item(39)->icon().isNull());
    QTRY_VERIFY(!browser.strip().item(0)->icon().isNull());
}

void BrowsingFlowTest::strangeFilesAreBlackTilesAndStay()
{
    Browser browser(1);
    const QDateTime now = QDateTime::currentDateTime().addSecs(-60);
    browser.addFile(QStringLiteral("photo-empty.png"), {}, now);
    browser.addFile(QStringLiteral("photo-text.png"), "no picture", now.addSecs(1));
    QByteArray huge = QByteArray::fromHex(
        "89504e470d0a1a0a0000000d4948445200002710000027100802000000"); // 10000x10000 points
    browser.addFile(QStringLiteral("photo-huge.png"), huge, now.addSecs(2));
    browser.addFile(QStringLiteral("photograph of the class.doc"), "a letter", now.addSecs(3));
    const QStringList before = browser.captures();

    browser.openAndSelect({0, 1, 2, 3, 4});
    QCOMPARE(browser.strip().count(), 5);
    QTRY_VERIFY(!browser.strip().item(0)->icon().isNull());
    QTest::qWait(50); // nothing to wait for: thumbnails that must not come
    for (int row = 1; row < 5; ++row)
        QVERIFY(browser.strip().item(row)->icon().isNull());
    browser.click("Show");
    const auto tiles = browser.tiles();
    QCOMPARE(tiles.size(), 5);
    QTRY_COMPARE(middleOf(tiles[0]), Browser::colorOf(1));
    for (int i = 1; i < 5; ++i)
        QCOMPARE(middleOf(tiles[i]), QColor(Qt::black));
    browser.click("List");
    QCOMPARE(browser.captures(), before);
}

void BrowsingFlowTest::selectingEnablesViewAndShowsTheLastOneSelected()
{
    Browser browser(4);
    browser.click("List");
    QVERIFY(!browser.button("Show").isEnabled());
    for (int row : {2, 0, 3}) {
        browser.strip().item(row)->setSelected(true);
        QVERIFY(browser.button("Show").isEnabled());
        QVERIFY(browser.preview().isVisible());
        QCOMPARE(browser.preview().fileName(), photoName(row + 1));
    }
}

void BrowsingFlowTest::deselectingAllKeepsThePreviewAndDisablesView()
{
    Browser browser(3);
    browser.openAndSelect({1});
    browser.strip().item(1)->setSelected(false);
    QVERIFY(!browser.button("Show").isEnabled());
    QVERIFY(browser.preview().isVisible());
    QCOMPARE(browser.preview().fileName(), photoName(2));
}

void BrowsingFlowTest::thePreviewKeepsThePicturesShapeAboveTheStrip()
{
    Browser browser(1);
    browser.openAndSelect({0});
    // The video area is 800x450 and the strip 107 high; what is left over the strip is 343.
    QCOMPARE(browser.preview().geometry(), QRect(95, 0, 609, 343));
}

void BrowsingFlowTest::openingTheStripAgainForgetsTheSelection()
{
    Browser browser(3);
    browser.openAndSelect({1, 2});
    browser.click("Show");
    browser.click("List");
    QVERIFY(browser.strip().selectedNames().isEmpty());
    QVERIFY(browser.strip().selectedItems().isEmpty());
    QVERIFY(!browser.button("Show").isEnabled());
    QVERIFY(!browser.preview().isVisible());
}

void BrowsingFlowTest::viewShowsTheSelectionInTheOrderOfSelecting_data()
{
    QTest::addColumn<QVector<int>>("rows");
    QTest::addColumn<QVector<QRect>>("places");
    using Rows = QVector<int>;
    using Places = QVector<QRect>;
    // The video area is 800x450 at the top of the window.
    QTest::newRow("1") << Rows{4} << Places{QRect(0, 0, 800, 450)};
    QTest::newRow("2") << Rows{3, 1} << Places{QRect(0, 112, 400, 225), QRect(400, 112, 400, 225)};
    QTest::newRow("4") << Rows{3, 0, 2, 1}
                       << Places{QRect(0, 0, 400, 225), QRect(400, 0, 400, 225),
                                 QRect(0, 225, 400, 225), QRect(400, 225, 400, 225)};
    QTest::newRow("5") << Rows{8, 6, 4, 2, 0}
                       << Places{QRect(0, 75, 266, 150), QRect(266, 75, 266, 150),
                                 QRect(532, 75, 266, 150), QRect(0, 225, 266, 150),
                                 QRect(266, 225, 266, 150)};
    Places nine;
    for (int i = 0; i < 9; ++i)
        nine.append(QRect(i % 3 * 266, i / 3 * 150, 266, 150));
    QTest::newRow("9") << Rows{8, 7, 6, 5, 4, 3, 2, 1, 0} << nine;
}

void BrowsingFlowTest::viewShowsTheSelectionInTheOrderOfSelecting()
{
    QFETCH(QVector<int>, rows);
    QFETCH(QVector<QRect>, places);
    Browser browser(9);
    browser.openAndSelect(rows);
    browser.click("Show");
    QVERIFY(!browser.strip().isVisible());
    QVERIFY(!browser.preview().isVisible());
    QCOMPARE(browser.dialog().displayMode(), ListMode);
    QCOMPARE(browser.usableButtons(), (QStringList{"Live", "List", "Close", "PutPhoto"}));
    const auto tiles = browser.tiles();
    QCOMPARE(tiles.size(), rows.size());
    for (int i = 0; i < tiles.size(); ++i) {
        QCOMPARE(tiles[i]->fileName(), photoName(rows[i] + 1));
        QCOMPARE(tiles[i]->labelText(), QString::number(i + 1));
        QCOMPARE(tiles[i]->geometry(), places[i]);
    }
}

void BrowsingFlowTest::aSingleTileHasNoZoomButton()
{
    Browser browser(2);
    browser.openAndSelect({0});
    browser.click("Show");
    QCOMPARE(browser.tiles().size(), 1);
    QVERIFY(!Browser::cornerButton(browser.tiles().first(), "Zoom"));
    browser.click("List");
    browser.openAndSelect({0, 1});
    browser.click("Show");
    for (PictureWidget *tile : browser.tiles()) {
        QVERIFY(Browser::cornerButton(tile, "Zoom")->isVisible());
        QVERIFY(!Browser::cornerButton(tile, "Back")->isVisible());
    }
}

void BrowsingFlowTest::tilesShowTheirPhotos()
{
    Browser browser(9);
    browser.openAndSelect({0, 1, 2, 3, 4, 5, 6, 7, 8});
    browser.click("Show");
    const auto tiles = browser.tiles();
    for (int i = 0; i < 9; ++i)
        QTRY_COMPARE(middleOf(tiles[i]), Browser::colorOf(i + 1));
}

void BrowsingFlowTest::listDestroysTheTiles()
{
    Browser browser(2);
    browser.openAndSelect({0, 1});
    browser.click("Show");
    const QPointer<PictureWidget> tile = browser.tiles().first();
    browser.click("List");
    QVERIFY(browser.tiles().isEmpty());
    QTRY_VERIFY(!tile);
}

void BrowsingFlowTest::liveDestroysTheTiles()
{
    Browser browser(2);
    browser.openAndSelect({0, 1});
    browser.click("Show");
    const QPointer<PictureWidget> tile = browser.tiles().first();
    browser.click("Live");
    QVERIFY(browser.tiles().isEmpty());
    QVERIFY(browser.child<LiveVideoWidget>().isVisible());
    QTRY_VERIFY(!tile);
}

void BrowsingFlowTest::zoomFillsThePictureAreaAndBackRebuildsTheTiles()
{
    Browser browser(5);
    browser.openAndSelect({4, 2, 0});
    browser.click("Show");
    const auto before = browser.tiles();
    QVector<QPointer<PictureWidget>> watched;
    for (PictureWidget *tile : before)
        watched.append(tile);

    QTest::mouseClick(Browser::cornerButton(before[2], "Zoom"), Qt::LeftButton);
    QCOMPARE(browser.tiles(), QVector<PictureWidget *>{before[2]});
    QCOMPARE(before[2]->geometry(), browser.dialog().videoRect());
    QCOMPARE(before[2]->fileName(), photoName(1));
    QCOMPARE(before[2]->labelText(), QString());
    QWidget *back = Browser::cornerButton(before[2], "Back");
    QVERIFY(back->isVisible());
    QCOMPARE(back->geometry().bottomRight(), before[2]->rect().bottomRight());

    QTest::mouseClick(back, Qt::LeftButton);
    for (const QPointer<PictureWidget> &tile : watched)
        QTRY_VERIFY(!tile);
    const auto after = browser.tiles();
    QCOMPARE(after.size(), 3);
    const QVector<int> rows{4, 2, 0};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(after[i]->fileName(), photoName(rows[i] + 1));
        QCOMPARE(after[i]->labelText(), QString::number(i + 1));
        QVERIFY(Browser::cornerButton(after[i], "Zoom")->isVisible());
    }
}

void BrowsingFlowTest::aZoomedPhotoHasItsFullQuality()
{
    Browser browser(1);
    // Stripes one point wide: a tile cannot show them, the zoomed photo does.
    QImage stripes(800, 450, QImage::Format_RGB32);
    for (int y = 0; y < 450; ++y)
        for (int x = 0; x < 800; ++x)
            stripes.setPixel(x, y, x % 2 ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    QVERIFY(stripes.save(browser.temporaryArea() + QStringLiteral("/photo-stripes.png")));
    browser.openAndSelect({0, 1});
    browser.click("Show");
    PictureWidget *tile = browser.tiles().value(1);
    PictureWidget *other = browser.tiles().value(0);
    QTRY_COMPARE(middleOf(other), Browser::colorOf(1));
    tile->OnZoom();
    const QImage shown = tile->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(shown.copy(200, 100, 300, 200), stripes.copy(200, 100, 300, 200));
}

void BrowsingFlowTest::aChosenPhotoIsEnlargedWithoutBeingReadAgain()
{
    Browser browser(2);
    browser.openAndSelect({0, 1});
    browser.click("Show");
    PictureWidget *tile = browser.tiles().value(0);
    QTRY_COMPARE(middleOf(tile), Browser::colorOf(1));
    // As large and as old as the photo, and no picture any more.
    const QString path = browser.temporaryArea() + QLatin1Char('/') + photoName(1);
    const QFileInfo photo(path);
    browser.addFile(photoName(1), QByteArray(int(photo.size()), 'x'), photo.lastModified());
    QVERIFY(QPixmap(path).isNull());
    tile->OnZoom();
    QVERIFY(tile->hasPicture());
    QCOMPARE(middleOf(tile), Browser::colorOf(1));
}

void BrowsingFlowTest::repeatedZoomAndBackAreHarmless()
{
    Browser browser(3);
    browser.openAndSelect({0, 1, 2});
    browser.click("Show");
    PictureWidget *tile = browser.tiles()[1];
    tile->ListMode(); // one click now asks twice
    QSignalSpy asked(tile, &PictureWidget::onZoom);
    QTest::mouseClick(Browser::cornerButton(tile, "Zoom"), Qt::LeftButton);
    QCOMPARE(asked.count(), 2);
    QCOMPARE(browser.tiles(), QVector<PictureWidget *>{tile});
    QCOMPARE(tile->geometry(), browser.dialog().videoRect());

    QSignalSpy askedBack(tile, &PictureWidget::onBack);
    QTest::mouseClick(Browser::cornerButton(tile, "Back"), Qt::LeftButton);
    QCOMPARE(askedBack.count(), 2); // one of ours, one for each time the photo was zoomed
    QCOMPARE(browser.tiles().size(), 3);
    QTest::qWait(10); // nothing to wait for: a second change that must not come
    QCOMPARE(browser.tiles().size(), 3);
}

void BrowsingFlowTest::viewOnAMovieLeadsToItsPlayback()
{
    Browser browser(2, 3);
    browser.click("List");
    browser.click("SwitchMovie");
    browser.strip().item(1)->setSelected(true);
    QCOMPARE(browser.preview().fileName(), movieStem(2) + QStringLiteral("tmp.png"));
    browser.click("Show");
    QCOMPARE(browser.dialog().displayMode(), MovieMode);
    QVERIFY(browser.child<MovieWidget>().isVisible());
    QCOMPARE(browser.child<MovieWidget>().geometry(), browser.dialog().videoRect());
    QVERIFY(browser.child<MovieWidget>().isCreated());
    QCOMPARE(browser.child<MovieWidget>().mediaObject()->currentSource().fileName(),
             browser.temporaryArea() + QLatin1Char('/') + movieStem(2) + QStringLiteral(".mov"));
    QVERIFY(!browser.child<MovieWidget>().isPlaying());
    QVERIFY(browser.tiles().isEmpty());
    QCOMPARE(browser.usableButtons(), (QStringList{"Live", "List", "Close", "MoviePlay"}));
}

QTEST_MAIN(BrowsingFlowTest)
#include "tst_cvistreldlg_browsing.moc"
