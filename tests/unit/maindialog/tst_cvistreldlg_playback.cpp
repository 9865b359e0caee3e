#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "Patience.h"
#include "PictureListView.h"
#include "TimerWidget.h"
#include "WebcamUtil.h"

#include <QSignalSpy>
#include <phonon/mediaobject.h>

/** Playing a movie that was just recorded, or is shown from the list. */
class PlaybackTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theTimeIsRoundedToTheNearestSecond();
    void theLengthIsShownAsSoonAsItIsKnown();
    void playPauseAndTheEndOfAMovie();
    void playAfterTheEndBeginsAgain();
    void aMovieThatCannotBePlayedLeavesTheScreenUsable_data();
    void aMovieThatCannotBePlayedLeavesTheScreenUsable();
    void leavingThePlaybackScreenStopsTheMovie_data();
    void leavingThePlaybackScreenStopsTheMovie();
    void theEndOfAMovieThatWasLeftTouchesNoOtherScreen();
    void theStillPictureStandsUntilTheMovieMoves();
};

void PlaybackTest::initTestCase()
{
    qputenv("PHONON_GST_VIDEOMODE", "software");
}

void PlaybackTest::theTimeIsRoundedToTheNearestSecond()
{
    DialogFixture fixture;
    FakeEngine::script().movie = DialogFixture::movieOf(610);
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    fixture.click("MoviePlay");
    auto &movie = fixture.child<MovieWidget>();
    QTRY_VERIFY(movie.isPlaying() && movie.totalTime() == 61000);
    movie.pause();
    QTRY_VERIFY(movie.isPaused());
    movie.seek(59600);
    QTRY_VERIFY(qAbs(movie.currentTime() - 59600) < 100);
    dialog.setMovieTime();
    QCOMPARE(fixture.child<TimerWidget>().text(), QString("01:00/01:01"));
}

void PlaybackTest::theLengthIsShownAsSoonAsItIsKnown()
{
    DialogFixture fixture;
    FakeEngine::script().movie = DialogFixture::movieOf(120);
    fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    auto &time = fixture.child<TimerWidget>();
    time.setTickInterval(1000000); // the press of "Play" is the only tick
    QCOMPARE(time.text(), QString());
    fixture.click("MoviePlay");
    QTRY_COMPARE(time.text(), QString("00:00/00:12"));
    // Not where no movie is being played for the user.
    fixture.click("Live");
    time.setText(QString());
    auto &movie = fixture.child<MovieWidget>();
    movie.Play();
    QTRY_VERIFY(movie.isPlaying() && movie.totalTime() > 0);
    QCOMPARE(time.text(), QString());
}

void PlaybackTest::playPauseAndTheEndOfAMovie()
{
    DialogFixture fixture;
    FakeEngine::script().movie = DialogFixture::movieOf(30);
    fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    auto &movie = fixture.child<MovieWidget>();
    auto &time = fixture.child<TimerWidget>();
    time.setTickInterval(50);
    fixture.click("MoviePlay");
    QVERIFY(fixture.button("MoviePause").isVisible());
    QTRY_VERIFY(time.text() == "00:01/00:03");
    fixture.click("MoviePause");
    QVERIFY(fixture.button("MoviePlay").isVisible());
    QTRY_VERIFY(movie.isPaused());
    const QSignalSpy finished(&movie, &MovieWidget::finished);
    fixture.click("MoviePlay");
    QTRY_COMPARE(finished.count(), 1);
    QTRY_VERIFY(fixture.button("MoviePlay").isVisible());
    QVERIFY(!fixture.button("MoviePause").isVisible());
    QTRY_VERIFY(!movie.isPlaying());
}

void PlaybackTest::playAfterTheEndBeginsAgain()
{
    DialogFixture fixture;
    FakeEngine::script().movie = DialogFixture::movieOf(20);
    fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    auto &movie = fixture.child<MovieWidget>();
    QSignalSpy finished(&movie, &MovieWidget::finished);
    fixture.click("MoviePlay");
    QVERIFY(finished.wait(patience));
    QTRY_VERIFY(fixture.button("MoviePlay").isVisible());
    fixture.click("MoviePlay");
    QTRY_VERIFY(movie.isPlaying() && movie.currentTime() < 1500);
    QVERIFY(finished.wait(patience));
    QCOMPARE(finished.count(), 2);
}

void PlaybackTest::aMovieThatCannotBePlayedLeavesTheScreenUsable_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("never got a frame") << false << QByteArray();
    QTest::newRow("empty") << true << QByteArray();
    QTest::newRow("rubbish") << true << QByteArray(5000, 'x');
    QTest::newRow("cut") << true << DialogFixture::movieOf(20).left(3000);
}

void PlaybackTest::aMovieThatCannotBePlayedLeavesTheScreenUsable()
{
    QFETCH(bool, isThere);
    QFETCH(QByteArray, content);
    DialogFixture fixture;
    FakeEngine::script().movieHasFrames = isThere;
    FakeEngine::script().movie = content;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    QCOMPARE(fixture.captures().filter(".mov").size(), isThere ? 1 : 0);
    auto &movie = fixture.child<MovieWidget>();
    for (int press = 0; press < 2; ++press) {
        fixture.click("MoviePlay");
        QCOMPARE(fixture.usableButtons(), (QStringList{"Live", "List", "Close", "MoviePause"}));
        QTRY_VERIFY(movie.mediaObject()->state() != Phonon::LoadingState);
        QVERIFY(!movie.isPlaying());
        fixture.click("MoviePause");
        QCOMPARE(fixture.usableButtons(), (QStringList{"Live", "List", "Close", "MoviePlay"}));
    }
    fixture.click("MoviePlay");
    fixture.click("List");
    QCOMPARE(dialog.displayMode(), ListMode);
    QCOMPARE(fixture.child<PictureListView>().count(), isThere ? 1 : 0);
    fixture.click("Live");
    QCOMPARE(dialog.displayMode(), LiveMode);
    QVERIFY(fixture.child<LiveVideoWidget>().isVisible());
    QVERIFY(!fixture.child<TimerWidget>().isVisible());

    // The next one can be made, and plays.
    const QString second = WebcamUtil::CurrentSecondString();
    QTRY_VERIFY(WebcamUtil::CurrentSecondString() != second); // movies are named by it
    FakeEngine::script().movieHasFrames = true;
    FakeEngine::script().movie = DialogFixture::movieOf(20);
    fixture.click("Movie");
    fixture.click("MovieStop");
    fixture.click("MoviePlay");
    QTRY_VERIFY(movie.isPlaying());
}

void PlaybackTest::leavingThePlaybackScreenStopsTheMovie_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QStringList>("next");
    QTest::newRow("to the list") << QByteArray("List")
                                 << QStringList{"Live", "Close", "SwitchPhoto"};
    QTest::newRow("to the live picture")
        << QByteArray("Live")
        << QStringList{"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"};
}

void PlaybackTest::leavingThePlaybackScreenStopsTheMovie()
{
    QFETCH(QByteArray, button);
    QFETCH(QStringList, next);
    DialogFixture fixture;
    FakeEngine::script().movie = DialogFixture::movieOf(50);
    fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    auto &movie = fixture.child<MovieWidget>();
    auto &time = fixture.child<TimerWidget>();
    time.setTickInterval(20);
    fixture.click("MoviePlay");
    QTRY_VERIFY(movie.isPlaying() && movie.currentTime() > 0);
    const QSignalSpy finished(&movie, &MovieWidget::finished);
    const QSignalSpy ticks(&time, &TimerWidget::set);
    fixture.click(button.constData());
    const int ticksBefore = ticks.count();
    QCOMPARE(fixture.usableButtons(), next);
    QTRY_VERIFY_WITH_TIMEOUT(!movie.isPlaying(), 2000);
    QVERIFY(!QTest::qWaitFor([&] { return !finished.isEmpty(); }, 1000));
    QCOMPARE(ticks.count(), ticksBefore);
    QCOMPARE(fixture.usableButtons(), next);
}

void PlaybackTest::theEndOfAMovieThatWasLeftTouchesNoOtherScreen()
{
    DialogFixture fixture;
    fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    fixture.click("List");
    fixture.click("Live");
    fixture.child<TimerWidget>().setTickInterval(20);
    fixture.click("Movie");
    const QStringList buttons = fixture.shownButtons();
    Q_EMIT fixture.child<MovieWidget>().finished(); // told late
    QCOMPARE(fixture.shownButtons(), buttons);
    const QString time = fixture.child<TimerWidget>().text();
    QTRY_VERIFY(fixture.child<TimerWidget>().text() != time); // the recording's clock goes on
}

void PlaybackTest::theStillPictureStandsUntilTheMovieMoves()
{
    DialogFixture fixture;
    FakeEngine::script().picture = QImage(160, 120, QImage::Format_RGB32);
    FakeEngine::script().picture.fill(Qt::magenta); // a colour that the movie does not begin with
    FakeEngine::script().movie = DialogFixture::movieOf(30);
    fixture.build();
    auto &movie = fixture.child<MovieWidget>();
    const auto showsTheStill = [&] {
        const QImage shown = movie.grab().toImage();
        return shown.pixelColor(shown.width() / 2, shown.height() / 2) == QColor(Qt::magenta);
    };
    fixture.click("Movie");
    fixture.click("MovieStop");
    QTRY_VERIFY(showsTheStill());
    fixture.click("MoviePlay");
    QTRY_VERIFY(!showsTheStill());
    QVERIFY(movie.isPlaying());
    fixture.click("MoviePause");
    QTRY_VERIFY(movie.isPaused());
    QVERIFY(!showsTheStill());
    const QSignalSpy finished(&movie, &MovieWidget::finished);
    fixture.click("MoviePlay");
    QTRY_COMPARE(finished.count(), 1);
    QTRY_VERIFY(showsTheStill());

    fixture.click("List");
    fixture.child<PictureListView>().item(0)->setSelected(true);
    fixture.click("Show");
    QTRY_VERIFY(showsTheStill());
}

QTEST_MAIN(PlaybackTest)
#include "tst_cvistreldlg_playback.moc"
