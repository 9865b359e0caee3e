#include "DialogGeometry.h"

#include <QTest>

Q_DECLARE_METATYPE(QVector<QRect>)

namespace {

// Edges as the layout rules name them.
QRect edges(int left, int top, int right, int bottom)
{
    return {QPoint(left, top), QPoint(right, bottom)};
}

} // namespace

class DialogGeometryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theVideoRectIsTheLargestOfTheCamerasShapeAboveTheButtons_data();
    void theVideoRectIsTheLargestOfTheCamerasShapeAboveTheButtons();
    void theHalfScreenRectIsCentredAboveTwoButtonRows_data();
    void theHalfScreenRectIsCentredAboveTwoButtonRows();
    void theStillStandsDirectlyBesideTheLivePicture();
    void everyPlaceOfAScreenHasItsLikeOnAnother();
    void rowsAreCentredLeftOfTheSmallButtons_data();
    void rowsAreCentredLeftOfTheSmallButtons();
    void fiveButtonsAndTheSmallColumnFitSideBySide_data();
    void fiveButtonsAndTheSmallColumnFitSideBySide();
    void cellsStandAtTheTruncatedLeftEdge();
    void aSmallButtonIsShrunkOnlyWhenTallerThanHalfAButton_data();
    void aSmallButtonIsShrunkOnlyWhenTallerThanHalfAButton();
    void smallButtonsFillTheBottomRightCorner();
    void acceptAndRetryMeetAtTheCentre();
    void theStripIsAFifthOfTheFreeHeightDirectlyAboveTheButtons_data();
    void theStripIsAFifthOfTheFreeHeightDirectlyAboveTheButtons();
    void aSeriesCentresLivePictureAndPhotoEachInItsHalf();
    void theSelectionPreviewStandsAboveTheStrip();
    void tilesFollowTheirNumber_data();
    void tilesFollowTheirNumber();
};

void DialogGeometryTest::theVideoRectIsTheLargestOfTheCamerasShapeAboveTheButtons_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QSize>("button");
    QTest::addColumn<QSize>("camera");
    QTest::addColumn<QRect>("expected");

    QTest::newRow("4:3 camera, 128x96 buttons")
        << QSize(1024, 768) << QSize(128, 96) << QSize(640, 480) << QRect(64, 0, 896, 672);
    QTest::newRow("no size counts as square")
        << QSize(1024, 768) << QSize(128, 96) << QSize(0, 0) << QRect(176, 0, 672, 672);
    QTest::newRow("no height counts as square")
        << QSize(1024, 768) << QSize(128, 96) << QSize(640, 0) << QRect(176, 0, 672, 672);
    QTest::newRow("wide camera is limited by the width")
        << QSize(1024, 768) << QSize(170, 77) << QSize(1280, 720) << QRect(0, 0, 1024, 576);
    QTest::newRow("full HD, wide camera is limited by the height")
        << QSize(1920, 1080) << QSize(320, 144) << QSize(1920, 1080) << QRect(128, 0, 1664, 936);
    QTest::newRow("upright camera")
        << QSize(1920, 1080) << QSize(320, 144) << QSize(480, 640) << QRect(609, 0, 702, 936);
    QTest::newRow("odd remainders are cut toward zero")
        << QSize(1367, 769) << QSize(227, 102) << QSize(640, 480) << QRect(239, 0, 889, 667);
    QTest::newRow("4K") << QSize(3840, 2160) << QSize(640, 288) << QSize(1280, 720)
                        << QRect(256, 0, 3328, 1872);
}

void DialogGeometryTest::theVideoRectIsTheLargestOfTheCamerasShapeAboveTheButtons()
{
    QFETCH(QSize, screen);
    QFETCH(QSize, button);
    QFETCH(QSize, camera);
    QFETCH(QRect, expected);
    QCOMPARE(DialogGeometry(screen, button).videoRect(camera), expected);
}

void DialogGeometryTest::theHalfScreenRectIsCentredAboveTwoButtonRows_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QSize>("button");
    QTest::addColumn<QSize>("camera");
    QTest::addColumn<QRect>("expected");

    QTest::newRow("4:3") << QSize(1024, 768) << QSize(128, 96) << QSize(640, 480)
                         << QRect(0, 96, 512, 384);
    QTest::newRow("wide") << QSize(1920, 1080) << QSize(320, 144) << QSize(1920, 1080)
                          << QRect(0, 126, 960, 540);
    // 702x936 fits 960x936 as it is: (1080 - 288 - 936) / 2 lies above the screen's edge.
    QTest::newRow("upright") << QSize(1920, 1080) << QSize(320, 144) << QSize(480, 640)
                             << QRect(0, -72, 702, 936);
}

void DialogGeometryTest::theHalfScreenRectIsCentredAboveTwoButtonRows()
{
    QFETCH(QSize, screen);
    QFETCH(QSize, button);
    QFETCH(QSize, camera);
    QFETCH(QRect, expected);
    const DialogGeometry geometry(screen, button);
    QCOMPARE(geometry.halfScreenRect(geometry.videoRect(camera)), expected);
}

void DialogGeometryTest::theStillStandsDirectlyBesideTheLivePicture()
{
    QCOMPARE(DialogGeometry::besideHalfScreen(edges(0, 126, 959, 665)), edges(960, 126, 1919, 665));
    QCOMPARE(DialogGeometry::besideHalfScreen(edges(0, 10, 510, 99)), edges(511, 10, 1021, 99));
}

void DialogGeometryTest::rowsAreCentredLeftOfTheSmallButtons_data()
{
    QTest::addColumn<int>("closeWidth");
    QTest::addColumn<int>("buttonWidth");
    QTest::addColumn<int>("cells");
    QTest::addColumn<double>("expected");

    QTest::newRow("five") << 170 << 170 << 5 << 2.0;
    QTest::newRow("three") << 170 << 170 << 3 << 172.0;
    QTest::newRow("the product is halved as an integer") << 85 << 171 << 3 << 213.5;
    QTest::newRow("no column") << 0 << 128 << 5 << 192.0;
}

void DialogGeometryTest::rowsAreCentredLeftOfTheSmallButtons()
{
    QFETCH(int, closeWidth);
    QFETCH(int, buttonWidth);
    QFETCH(int, cells);
    QFETCH(double, expected);
    const DialogGeometry geometry(QSize(1024, 768), QSize(buttonWidth, 77), closeWidth);
    QCOMPARE(geometry.rowStart(cells), expected);
    QCOMPARE(geometry.movieRowStart(), (1024 - closeWidth) * 0.5 - 2 * buttonWidth);
}

void DialogGeometryTest::fiveButtonsAndTheSmallColumnFitSideBySide_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::newRow("1024x768") << QSize(1024, 768);
    QTest::newRow("1366x768") << QSize(1366, 768);
    QTest::newRow("1920x1080") << QSize(1920, 1080);
    QTest::newRow("3840x2160") << QSize(3840, 2160);
}

void DialogGeometryTest::fiveButtonsAndTheSmallColumnFitSideBySide()
{
    QFETCH(QSize, screen);
    // The shape of the artwork: 640x332, the small buttons as wide and half as high.
    const QSize button = QSize(640, 332).scaled(screen.width() / 6, 332, Qt::KeepAspectRatio);
    const QSize small(button.width(), button.height() / 2);
    if (screen.width() >= 1024)
        QVERIFY(small.height() >= 44); // a finger's
    const DialogGeometry geometry(screen, button, small.width());
    const QRect first = geometry.cellAt(geometry.rowStart(5));
    const QRect last = geometry.cellAt(geometry.rowStart(5) + 4 * button.width());
    QVERIFY(first.left() >= 0);
    QVERIFY(last.right() < geometry.closePosition(small).x());
    QVERIFY(geometry.settingsPosition(small, small).y() >= first.top());
}

void DialogGeometryTest::cellsStandAtTheTruncatedLeftEdge()
{
    const DialogGeometry geometry(QSize(1024, 768), QSize(171, 77), 85);
    QCOMPARE(geometry.buttonCell(), edges(0, 691, 170, 767));
    QCOMPARE(geometry.cellAt(213.9), QRect(213, 691, 171, 77));
}

void DialogGeometryTest::aSmallButtonIsShrunkOnlyWhenTallerThanHalfAButton_data()
{
    QTest::addColumn<QSize>("own");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("taller") << QSize(128, 96) << QSize(64, 48);
    QTest::newRow("exactly half") << QSize(100, 48) << QSize(100, 48);
    QTest::newRow("lower") << QSize(100, 30) << QSize(100, 30);
    QTest::newRow("wide and taller") << QSize(300, 60) << QSize(128, 25);
}

void DialogGeometryTest::aSmallButtonIsShrunkOnlyWhenTallerThanHalfAButton()
{
    QFETCH(QSize, own);
    QFETCH(QSize, expected);
    const DialogGeometry geometry(QSize(1024, 768), QSize(128, 96));
    QCOMPARE(geometry.smallButtonSize(own), expected);
}

void DialogGeometryTest::smallButtonsFillTheBottomRightCorner()
{
    const DialogGeometry geometry(QSize(1024, 768), QSize(170, 77), 170);
    QCOMPARE(geometry.closePosition(QSize(170, 38)), QPoint(854, 730));
    QCOMPARE(geometry.settingsPosition(QSize(170, 38), QSize(170, 38)), QPoint(854, 692));
}

void DialogGeometryTest::acceptAndRetryMeetAtTheCentre()
{
    const DialogGeometry geometry(QSize(1025, 768), QSize(170, 77), 170);
    QCOMPARE(geometry.acceptCell(), QRect(342, 614, 170, 77));
    QCOMPARE(geometry.retryCell(), QRect(512, 614, 170, 77));
}

void DialogGeometryTest::theStripIsAFifthOfTheFreeHeightDirectlyAboveTheButtons_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<int>("buttonHeight");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("1024x768") << QSize(1024, 768) << 77 << edges(0, 552, 1023, 690);
    QTest::newRow("1920x1080") << QSize(1920, 1080) << 144 << edges(0, 748, 1919, 935);
    QTest::newRow("even") << QSize(1000, 600) << 100 << edges(0, 400, 999, 499);
}

void DialogGeometryTest::theStripIsAFifthOfTheFreeHeightDirectlyAboveTheButtons()
{
    QFETCH(QSize, screen);
    QFETCH(int, buttonHeight);
    QFETCH(QRect, expected);
    QCOMPARE(DialogGeometry(screen, QSize(170, buttonHeight)).stripRect(), expected);
}

void DialogGeometryTest::aSeriesCentresLivePictureAndPhotoEachInItsHalf()
{
    const DialogGeometry geometry(QSize(1920, 1080), QSize(320, 144), 320);
    const QRect live = geometry.seriesLiveRect(QSize(1664, 936), 187);
    QCOMPARE(live, QRect(0, 104, 960, 540));
    QCOMPARE(geometry.seriesPhotoRect(live), QRect(960, 104, 960, 540));
    const QRect upright = geometry.seriesLiveRect(QSize(702, 936), 187);
    QCOMPARE(upright.size(), QSize(561, 749));
    QCOMPARE(upright.topLeft(), QPoint(199, 0));
}

void DialogGeometryTest::theSelectionPreviewStandsAboveTheStrip()
{
    const DialogGeometry geometry(QSize(1920, 1080), QSize(320, 144), 320);
    QCOMPARE(geometry.selectionRect(QRect(128, 0, 1664, 936), 188), QRect(295, 0, 1329, 748));
}

void DialogGeometryTest::tilesFollowTheirNumber_data()
{
    QTest::addColumn<QRect>("video");
    QTest::addColumn<int>("count");
    QTest::addColumn<QVector<QRect>>("expected");

    const QRect wide(128, 0, 1664, 936);
    using Tiles = QVector<QRect>;
    QTest::newRow("none") << wide << 0 << Tiles();
    QTest::newRow("one fills the area") << wide << 1 << Tiles{QRect(128, 0, 1664, 936)};
    QTest::newRow("two stand side by side, centred")
        << wide << 2 << Tiles{QRect(128, 234, 832, 468), QRect(960, 234, 832, 468)};
    QTest::newRow("three keep the picture's shape")
        << wide << 3
        << Tiles{QRect(128, 312, 554, 312), QRect(682, 312, 554, 312), QRect(1237, 312, 554, 312)};
    QTest::newRow("four fill the area")
        << wide << 4
        << Tiles{QRect(128, 0, 832, 468), QRect(960, 0, 832, 468), QRect(128, 468, 832, 468),
                 QRect(960, 468, 832, 468)};
    QTest::newRow("five stand in two rows of thirds")
        << wide << 5
        << Tiles{QRect(128, 156, 554, 312), QRect(682, 156, 554, 312), QRect(1236, 156, 554, 312),
                 QRect(128, 468, 554, 312), QRect(682, 468, 554, 312)};
    Tiles nine;
    for (int i = 0; i < 9; ++i)
        nine.append(QRect(64 + (i % 3) * 298, (i / 3) * 224, 298, 224));
    QTest::newRow("nine, 4:3") << QRect(64, 0, 896, 672) << 9 << nine;
    QTest::newRow("seven need a third row") << QRect(64, 0, 896, 672) << 7 << nine.mid(0, 7);
}

void DialogGeometryTest::tilesFollowTheirNumber()
{
    QFETCH(QRect, video);
    QFETCH(int, count);
    QFETCH(QVector<QRect>, expected);
    QCOMPARE(DialogGeometry::tileRects(video, count), expected);
}

// Whatever stands there when the screen changes moves to its like.
void DialogGeometryTest::everyPlaceOfAScreenHasItsLikeOnAnother()
{
    const DialogGeometry small(QSize(800, 600), QSize(133, 69), 133);
    const DialogGeometry large(QSize(1920, 1080), QSize(320, 166), 320);
    const QRect smallVideo = small.videoRect(QSize(1920, 1080));
    const QRect largeVideo = large.videoRect(QSize(1920, 1080));
    const auto movesAlong = [](const QVector<QRect> &from, const QVector<QRect> &to,
                               const QRect &place, const QRect &like) {
        return from.size() == to.size() && to.value(from.indexOf(place)) == like;
    };
    const auto viewMoves = [&](const QRect &place, const QRect &like) {
        return movesAlong(small.viewPlaces(smallVideo), large.viewPlaces(largeVideo), place, like);
    };
    const auto buttonMoves = [&](double place, double like) {
        return movesAlong(small.buttonPlaces(), large.buttonPlaces(), small.cellAt(place),
                          large.cellAt(like));
    };
    QVERIFY(viewMoves(smallVideo, largeVideo));
    const QRect smallSeries = small.seriesLiveRect(smallVideo.size(), small.stripRect().height());
    const QRect largeSeries = large.seriesLiveRect(largeVideo.size(), large.stripRect().height());
    QVERIFY(viewMoves(smallSeries, largeSeries));
    QVERIFY(viewMoves(small.seriesPhotoRect(smallSeries), large.seriesPhotoRect(largeSeries)));
    QVERIFY(viewMoves(small.stripRect(), large.stripRect()));
    for (int i = 0; i < 5; ++i)
        QVERIFY(buttonMoves(small.rowStart(5) + i * 133, large.rowStart(5) + i * 320));
    for (int i = 0; i < 3; ++i) {
        QVERIFY(buttonMoves(small.rowStart(3) + i * 133, large.rowStart(3) + i * 320));
        QVERIFY(buttonMoves(small.movieRowStart() + i * 133, large.movieRowStart() + i * 320));
    }
}

QTEST_APPLESS_MAIN(DialogGeometryTest)
#include "tst_dialoggeometry.moc"
