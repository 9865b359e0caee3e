#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "Patience.h"
#include "PictureListView.h"
#include "PictureWidget.h"
#include "SpareTime.h"
#include "TimerWidget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int secondMs = 100; // the length of a second in these tests
// A tick may come late on a busy machine, but never a whole second.
constexpr int toleranceMs = secondMs * 3 / 4;

QByteArray selfTimer(int seconds, int shots)
{
    return "AutoShoot=1\nAutoShootTime=" + QByteArray::number(seconds)
        + "\nContinuShootCount=" + QByteArray::number(shots) + '\n';
}

QByteArray byHand(int shots)
{
    return "AutoShoot=0\nContinuShootCount=" + QByteArray::number(shots) + '\n';
}

QVector<PictureWidget *> tilesOf(CVistrelDlg &dialog)
{
    QVector<PictureWidget *> tiles;
    const auto all = dialog.findChildren<PictureWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (PictureWidget *each : all)
        if (each->isVisible())
            tiles.append(each);
    return tiles;
}

/** A window with settings of its own, whose clock runs faster; it notes when photos are taken. */
class Series : public DialogFixture {
public:
    explicit Series(const QByteArray &settings, int second = secondMs)
    {
        setSettings(settings);
        // A small picture: the time it takes to write is no part of these tests.
        FakeEngine::script().picture = QImage(64, 36, QImage::Format_RGB32);
        build();
        child<TimerWidget>().setTickInterval(second);
        QObject::connect(&child<TimerWidget>(), &TimerWidget::shot, &dialog(),
                         [this] { timed.append(clock.elapsed()); });
    }

    void start()
    {
        clock.start();
        click("PhotoMulti");
    }

    PictureWidget &photo() const { return child<PictureWidget>(); }
    PictureListView &strip() const { return child<PictureListView>(); }
    TimerWidget &timer() const { return child<TimerWidget>(); }
    int taken() const { return FakeEngine::callCount(QStringLiteral("SaveBitmap")); }

    /// Later by no more than the machine was.
    bool isAbout(qint64 milliseconds, int seconds) const
    {
        const qint64 late = milliseconds - qint64(seconds) * secondMs;
        return late >= -toleranceMs && double(late) <= toleranceMs + 1000 * time.lateness();
    }

    const SpareTime time;
    QElapsedTimer clock;
    QVector<qint64> timed; ///< ms after the start, of the photos that the self-timer took
};

} // namespace

/** Photos in a row, by the self-timer or one a press, and all of them side by side at the end. */
class SeriesFlowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutSelfTimerEachPressTakesOnePhoto();
    void theSelfTimerShowsItsFirstNumberAfterASecond();
    void timedPhotosAreOneSecondMoreThanTheSelfTimerApart();
    void aPressInARunningSeriesTakesAPhotoAndRestartsTheCountdown();
    void nineTimedPhotosDoNotDrift();
    void onlyTheSeriesAndLiveCanBePressed();
    void liveAndPhotoStandSideBySideAboveTheStrip();
    void thePhotosOfASeriesCannotBeSelected();
    void liveEndsASeriesAndKeepsItsPhotos();
    void theNextSeriesCountsFromOneAgain();
    void changedSettingsTakeEffectAtTheNextSeries();
    void aPhotoThatFailsCountsAllTheSame();
    void aFullDiskStartsNoSeries();
    void aFullDiskDoesNotStopTimedPhotos();
    void aFullDiskStopsAPressInARunningSeries();
    void noTimedPhotoIsTakenBehindTheDiskWarningNorAfterIt();
    void theListEndsASeries();
    void aSeriesBegunBetweenTwoTicksOfARunningClockHasItsFullFirstSecond();
    void aStripLeftWithASelectionDoesNotShowInTheSeries();
    void backFromAZoomedPhotoShowsTheSeriesAgain();
    void aSeriesMakesTheListShowPhotos();
};

void SeriesFlowTest::withoutSelfTimerEachPressTakesOnePhoto()
{
    Series series(byHand(2));
    series.start();
    QCOMPARE(series.taken(), 1);
    QCOMPARE(series.dialog().displayMode(), PhotSeqMode);
    QCOMPARE(series.photo().labelText(), QStringLiteral("1/2"));
    QCOMPARE(series.photo().fileName(), series.captures().value(0));
    QCOMPARE(series.strip().count(), 1);
    QVERIFY(!series.timer().isVisible());

    QTest::qWait(2); // nothing to wait for: names are stamped to the millisecond
    series.click("PhotoMulti");
    QCOMPARE(series.taken(), 2);
    const auto tiles = tilesOf(series.dialog());
    QCOMPARE(tiles.size(), 2);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(tiles[i]->fileName(), series.captures().value(i));
        QCOMPARE(tiles[i]->labelText(), QString::number(i + 1));
    }
    QVERIFY(!series.strip().isVisible());
    QVERIFY(!series.child<LiveVideoWidget>().isVisible());
    QCOMPARE(series.usableButtons(), (QStringList{"Live", "List", "Close", "PutPhoto"}));
}

void SeriesFlowTest::theSelfTimerShowsItsFirstNumberAfterASecond()
{
    Series series(selfTimer(3, 4));
    series.start();
    QVERIFY(!series.timer().isVisible());
    QCOMPARE(series.timer().text(), QString());
    for (int number : {3, 2, 1}) {
        QTRY_COMPARE(series.timer().text(), QStringLiteral(" %1 second to capture").arg(number));
        QVERIFY(series.timer().isVisible());
        QCOMPARE(series.taken(), 0);
    }
    QTRY_COMPARE(series.taken(), 1);
    QCOMPARE(series.timer().text(), QString());
    QCOMPARE(series.photo().labelText(), QStringLiteral("1/4"));
}

void SeriesFlowTest::timedPhotosAreOneSecondMoreThanTheSelfTimerApart()
{
    Series series(selfTimer(3, 4));
    series.start();
    QTRY_COMPARE(series.timed.size(), 4);
    for (int i = 0; i < 4; ++i)
        QVERIFY2(series.isAbout(series.timed[i], 4 * (i + 1)),
                 qPrintable(QStringLiteral("photo %1 at %2 ms").arg(i + 1).arg(series.timed[i])));
    QCOMPARE(tilesOf(series.dialog()).size(), 4);
    QVERIFY(!series.timer().isVisible());
    // The clock has stopped.
    QTest::qWait(5 * secondMs); // nothing to wait for: a photo that must not be taken
    QCOMPARE(series.taken(), 4);
}

void SeriesFlowTest::aPressInARunningSeriesTakesAPhotoAndRestartsTheCountdown()
{
    Series series(selfTimer(3, 4));
    series.start();
    QTRY_COMPARE(series.taken(), 1);
    QTRY_COMPARE(series.timer().text(), QStringLiteral(" 2 second to capture"));
    const qint64 pressed = series.clock.elapsed();
    series.click("PhotoMulti");
    QCOMPARE(series.taken(), 2);
    QCOMPARE(series.photo().labelText(), QStringLiteral("2/4"));
    QCOMPARE(series.timer().text(), QStringLiteral(" 3 second to capture"));
    QVERIFY(series.timer().isVisible());
    QTRY_COMPARE(series.timed.size(), 3);
    QVERIFY2(series.isAbout(series.timed[1] - pressed, 3),
             qPrintable(QString::number(series.timed[1])));
    QVERIFY2(series.isAbout(series.timed[2] - pressed, 7),
             qPrintable(QString::number(series.timed[2])));
    QCOMPARE(tilesOf(series.dialog()).size(), 4);
}

void SeriesFlowTest::nineTimedPhotosDoNotDrift()
{
    // Photos that take most of a tick to write must not push the later ones back.
    Series series(selfTimer(3, 9));
    FakeEngine::script().picture = QImage(1280, 720, QImage::Format_RGB32);
    series.start();
    QTRY_COMPARE_WITH_TIMEOUT(series.timed.size(), 9, 20000);
    // A busy machine delays single photos; the most punctual of the first and of the last count.
    QVector<qint64> late;
    for (int i = 0; i < 9; ++i)
        late.append(series.timed[i] - qint64(4) * (i + 1) * secondMs);
    const qint64 drift =
        std::min({late[6], late[7], late[8]}) - std::min({late[0], late[1], late[2]});
    QVERIFY2(double(qAbs(drift)) < secondMs + 1000 * series.time.lateness(),
             qPrintable(QStringLiteral("%1 ms").arg(drift)));
}

void SeriesFlowTest::onlyTheSeriesAndLiveCanBePressed()
{
    Series series(selfTimer(3, 4));
    series.start();
    QCOMPARE(series.usableButtons(), (QStringList{"Live", "PhotoMulti"}));
    QVERIFY(!series.button("Settings").isVisible());
    QVERIFY(series.button("Close").isVisible());
}

void SeriesFlowTest::liveAndPhotoStandSideBySideAboveTheStrip()
{
    Series series(byHand(3));
    series.start();
    const QRect live = series.child<LiveVideoWidget>().geometry();
    QVERIFY(series.child<LiveVideoWidget>().isVisible());
    QVERIFY(series.strip().isVisible());
    QCOMPARE(series.photo().geometry(), live.translated(400, 0));
    QCOMPARE(series.strip().geometry(), QRect(0, 425, 800, 107));
    QVERIFY(live.bottom() < series.strip().y());
    QVERIFY(live.right() < 400);
}

void SeriesFlowTest::thePhotosOfASeriesCannotBeSelected()
{
    Series series(byHand(3));
    series.start();
    QTest::mouseClick(series.strip().viewport(), Qt::LeftButton, {},
                      series.strip().visualItemRect(series.strip().item(0)).center());
    QVERIFY(series.strip().selectedItems().isEmpty());
}

void SeriesFlowTest::liveEndsASeriesAndKeepsItsPhotos()
{
    Series series(selfTimer(1, 4));
    series.start();
    QTRY_COMPARE(series.taken(), 2);
    series.click("Live");
    QCOMPARE(series.dialog().displayMode(), LiveMode);
    QVERIFY(series.child<LiveVideoWidget>().isVisible());
    QCOMPARE(series.child<LiveVideoWidget>().geometry(), series.dialog().videoRect());
    QVERIFY(!series.timer().isVisible());
    QVERIFY(!series.strip().isVisible());
    QVERIFY(tilesOf(series.dialog()).isEmpty());
    QTest::qWait(4 * secondMs); // nothing to wait for: photos that must not be taken
    QCOMPARE(series.taken(), 2);
    QCOMPARE(series.captures().size(), 2);
    QVERIFY(series.button("Close").isEnabled());
}

void SeriesFlowTest::theNextSeriesCountsFromOneAgain()
{
    Series series(byHand(3));
    series.start();
    series.click("Live");
    QTest::qWait(2); // nothing to wait for: names are stamped to the millisecond
    series.click("PhotoMulti");
    QCOMPARE(series.photo().labelText(), QStringLiteral("1/3"));
    QCOMPARE(series.strip().count(), 1);
    QTest::qWait(2); // nothing to wait for: names are stamped to the millisecond
    series.click("PhotoMulti");
    QTest::qWait(2); // nothing to wait for: names are stamped to the millisecond
    series.click("PhotoMulti");
    QCOMPARE(tilesOf(series.dialog()).size(), 3);
    QCOMPARE(tilesOf(series.dialog())[0]->fileName(), series.captures().value(1));
}

void SeriesFlowTest::changedSettingsTakeEffectAtTheNextSeries()
{
    Series series(byHand(2));
    series.start();
    QTest::qWait(2); // nothing to wait for: names are stamped to the millisecond
    series.click("PhotoMulti");
    series.click("Live");
    series.setSettings(selfTimer(1, 3));
    DialogFixture::boxDuring([&] { series.click("Settings"); });
    series.start();
    QCOMPARE(series.taken(), 2); // nothing at once: the self-timer is on now
    QTRY_COMPARE(series.photo().labelText(), QStringLiteral("1/3"));
    QTRY_COMPARE(series.timed.size(), 3);
    QVERIFY(series.isAbout(series.timed[0], 2));
    QVERIFY(series.isAbout(series.timed[2], 6));
    QCOMPARE(tilesOf(series.dialog()).size(), 3);
}

void SeriesFlowTest::aPhotoThatFailsCountsAllTheSame()
{
    Series series(byHand(3));
    series.start();
    const QString first = series.photo().fileName();
    FakeEngine::script().saveBitmapSucceeds = false;
    series.click("PhotoMulti");
    QCOMPARE(series.photo().labelText(), QStringLiteral("2/3"));
    QCOMPARE(series.photo().fileName(), first);
    QCOMPARE(series.strip().count(), 2);
    FakeEngine::script().saveBitmapSucceeds = true;
    QTest::qWait(2); // nothing to wait for: names are stamped to the millisecond
    series.click("PhotoMulti");
    const auto tiles = tilesOf(series.dialog());
    QCOMPARE(tiles.size(), 3);
    QCOMPARE(tiles[0]->fileName(), first);
    QCOMPARE(tiles[1]->fileName(), QString());
    QCOMPARE(tiles[2]->fileName(), series.captures().value(1));
}

void SeriesFlowTest::aFullDiskStartsNoSeries()
{
    Series series(byHand(2));
    DialogFixture::fillTheDisk();
    const QString text = DialogFixture::boxDuring([&] { series.click("PhotoMulti"); });
    QVERIFY(text.startsWith(QStringLiteral("The disk free space is insufficient.\n")));
    QCOMPARE(series.taken(), 0);
    QCOMPARE(series.dialog().displayMode(), LiveMode);
    QCOMPARE(series.usableButtons(), (QStringList{"List", "Close"}));
}

void SeriesFlowTest::aFullDiskDoesNotStopTimedPhotos()
{
    Series series(selfTimer(1, 2));
    series.start();
    DialogFixture::fillTheDisk();
    QCOMPARE(DialogFixture::boxDuring([&] { QTRY_COMPARE(series.timed.size(), 2); }), QString());
    QCOMPARE(series.taken(), 2);
}

void SeriesFlowTest::aFullDiskStopsAPressInARunningSeries()
{
    Series series(byHand(3));
    series.start();
    DialogFixture::fillTheDisk();
    const QString text = DialogFixture::boxDuring([&] { series.click("PhotoMulti"); });
    QVERIFY(text.startsWith(QStringLiteral("The disk free space is insufficient.\n")));
    QCOMPARE(series.taken(), 1);
    QVERIFY(series.dialog().hasError());
}

void SeriesFlowTest::noTimedPhotoIsTakenBehindTheDiskWarningNorAfterIt()
{
    Series series(selfTimer(1, 9));
    series.start();
    QTRY_COMPARE(series.timed.size(), 1);
    DialogFixture::fillTheDisk();
    int whileTold = -1;
    QTimer::singleShot(0, [&] {
        QTest::qWait(4 * secondMs); // nothing to wait for: photos that must not be taken
        whileTold = series.taken();
        QApplication::activeModalWidget()->close();
    });
    series.click("PhotoMulti");
    QCOMPARE(whileTold, 1);
    QCOMPARE(series.usableButtons(), QStringList{QStringLiteral("List")});
    QVERIFY(!series.timer().isVisible());
    QVERIFY(!QTest::qWaitFor([&] { return series.taken() > 1; }, 4 * secondMs));
    series.click("List");
    QVERIFY(!QTest::qWaitFor([&] { return series.taken() > 1; }, 4 * secondMs));
    QCOMPARE(series.dialog().displayMode(), ListMode);
}

void SeriesFlowTest::theListEndsASeries()
{
    Series series(selfTimer(1, 9));
    series.start();
    QTRY_COMPARE(series.taken(), 1);
    series.dialog().OnList();
    const QStringList kept = series.captures();
    QVERIFY(!QTest::qWaitFor([&] { return series.taken() > 1; }, 4 * secondMs));
    QCOMPARE(series.dialog().displayMode(), ListMode);
    QCOMPARE(series.captures(), kept);
    QCOMPARE(series.strip().count(), 1);
}

void SeriesFlowTest::aSeriesBegunBetweenTwoTicksOfARunningClockHasItsFullFirstSecond()
{
    constexpr int longSecondMs = 600;
    Series series(selfTimer(3, 4), longSecondMs);
    QElapsedTimer clock;
    clock.start();
    series.timer().run();
    QTRY_VERIFY(clock.elapsed() > longSecondMs / 2);
    series.start();
    QTRY_VERIFY(!series.timer().text().isEmpty());
    // A tick of the old clock would have come after half a second.
    QVERIFY2(series.clock.elapsed() > longSecondMs * 9 / 10,
             qPrintable(QString::number(series.clock.elapsed())));
    QCOMPARE(series.timer().text(), QStringLiteral(" 3 second to capture"));
}

void SeriesFlowTest::aStripLeftWithASelectionDoesNotShowInTheSeries()
{
    Series series(selfTimer(3, 2));
    series.click("Photo");
    series.click("Apply");
    series.click("List");
    series.strip().item(0)->setSelected(true);
    QVERIFY(series.photo().isVisible());
    series.click("Live");
    series.start();
    QCOMPARE(series.photo().fileName(), QString());
    QVERIFY(!series.button("Show").isEnabled());
}

void SeriesFlowTest::backFromAZoomedPhotoShowsTheSeriesAgain()
{
    Series series(byHand(2));
    series.start();
    QTest::qWait(2); // nothing to wait for: names are stamped to the millisecond
    series.click("PhotoMulti");
    const auto before = tilesOf(series.dialog());
    before[1]->OnZoom();
    QCOMPARE(tilesOf(series.dialog()), QVector<PictureWidget *>{before[1]});
    before[1]->OnBack();
    const auto after = tilesOf(series.dialog());
    QCOMPARE(after.size(), 2);
    for (int i = 0; i < 2; ++i)
        QCOMPARE(after[i]->fileName(), series.captures().value(i));
}

void SeriesFlowTest::aSeriesMakesTheListShowPhotos()
{
    Series series(byHand(2));
    series.click("List");
    series.click("SwitchMovie");
    QVERIFY(series.strip().movieMode());
    series.click("Live");
    series.start();
    QTest::qWait(2); // nothing to wait for: names are stamped to the millisecond
    series.click("PhotoMulti");
    series.click("List");
    QVERIFY(!series.strip().movieMode());
    QCOMPARE(series.strip().count(), 2);
}

QTEST_MAIN(SeriesFlowTest)
#include "tst_cvistreldlg_series.moc"
