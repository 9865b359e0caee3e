#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "TimerWidget.h"

#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <phonon/mediaobject.h>

namespace {

constexpr int patience = 10000; // ms

/// A movie of @p frames frames at 10 a second, without sound.
QByteArray movieOf(int frames)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.mov"));
    QProcess recorder;
    recorder.start(QStringLiteral("gst-launch-1.0"),
                   {"-q", "videotestsrc", QStringLiteral("num-buffers=%1").arg(frames), "!",
                    "video/x-raw,format=I420,width=160,height=120,framerate=10/1", "!", "x264enc",
                    "tune=zerolatency", "key-int-max=10", "!", "qtmux", "!", "filesink",
                    "location=" + path});
    recorder.waitForFinished(30000);
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/** Recording a movie and playing it. */
class MovieFlowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void recordingLeavesOnlyStop();
    void aRecordingCountsFromZeroAndKeepsTheLivePicture();
    void aRecordingLeftAloneStopsAtTenMinutes();
    void pressingMovieTwiceStartsOneRecording();
    void stopShowsTheMovieReadyToPlay();
    void stopOutsideARecordingDoesNothing();
    void missingDevicesLeaveEverythingAsItWas_data();
    void missingDevicesLeaveEverythingAsItWas();
    void aFullDiskRecordsNothing();
    void aCameraLostWhileRecordingKeepsTheMovie();
    void closingTheWindowWhileRecordingReleasesTheCamera();
    void theTimeIsRoundedToTheNearestSecond();
    void theLengthIsShownAsSoonAsItIsKnown();
    void playPauseAndTheEndOfAMovie();
    void playAfterTheEndBeginsAgain();
    void aMovieThatCannotBePlayedLeavesTheScreenUsable();
};

void MovieFlowTest::initTestCase()
{
    qputenv("PHONON_GST_VIDEOMODE", "software");
}

void MovieFlowTest::recordingLeavesOnlyStop()
{
    DialogFixture fixture;
    fixture.build();
    fixture.click("Movie");
    QCOMPARE(fixture.usableButtons(), QStringList{"MovieStop"});
    QVERIFY(!fixture.button("Movie").isVisible());
    QCOMPARE(fixture.captures().size(), 2);
    QString still = fixture.captures().filter(".mov").first();
    still.replace(".mov", "tmp.png");
    QVERIFY(fixture.captures().contains(still));
}

void MovieFlowTest::aRecordingCountsFromZeroAndKeepsTheLivePicture()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    auto &time = fixture.child<TimerWidget>();
    time.setTickInterval(100);
    fixture.click("Movie");
    QCOMPARE(time.text(), QString("00:00"));
    QVERIFY(time.isVisible());
    QCOMPARE(dialog.displayMode(), LiveMode);
    QVERIFY(fixture.child<LiveVideoWidget>().isVisible());
    QTRY_COMPARE(time.text(), QString("00:01"));
    QTRY_COMPARE(time.text(), QString("00:02"));
}

void MovieFlowTest::aRecordingLeftAloneStopsAtTenMinutes()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    auto &time = fixture.child<TimerWidget>();
    time.setTickInterval(1);
    QStringList shown;
    connect(&time, &TimerWidget::movieTimeOver, this, [&] { shown.append(time.text()); });
    fixture.click("Movie");
    QTRY_VERIFY_WITH_TIMEOUT(FakeEngine::script().recording.isEmpty(), patience);
    QCOMPARE(FakeEngine::callCount("RecordStop"), 1);
    QCOMPARE(dialog.displayMode(), MovieMode);
    // The movie screen clears the label in the same tick.
    QVERIFY(shown.size() == 1);
}

void MovieFlowTest::pressingMovieTwiceStartsOneRecording()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    dialog.OnRecord();
    QCOMPARE(FakeEngine::callCount("Record"), 1);
    QCOMPARE(fixture.captures().filter(".mov").size(), 1);
}

void MovieFlowTest::stopShowsTheMovieReadyToPlay()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    QCOMPARE(FakeEngine::callCount("RecordStop"), 1);
    QCOMPARE(dialog.displayMode(), MovieMode);
    QVERIFY(!fixture.child<LiveVideoWidget>().isVisible());
    auto &movie = fixture.child<MovieWidget>();
    QVERIFY(movie.isVisible());
    QVERIFY(!movie.isPlaying());
    QCOMPARE(movie.geometry(), dialog.videoRect());
    QCOMPARE(fixture.child<TimerWidget>().text(), QString());
    QVERIFY(fixture.child<TimerWidget>().isVisible());
    QCOMPARE(fixture.usableButtons(), (QStringList{"Live", "List", "Close", "MoviePlay"}));
}

void MovieFlowTest::stopOutsideARecordingDoesNothing()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    const QStringList calls = FakeEngine::script().calls;
    dialog.OnMovieStop();
    Q_EMIT fixture.child<TimerWidget>().movieTimeOver();
    QCOMPARE(FakeEngine::script().calls, calls);
    QCOMPARE(dialog.displayMode(), LiveMode);
}

void MovieFlowTest::missingDevicesLeaveEverythingAsItWas_data()
{
    QTest::addColumn<bool>("video");
    QTest::addColumn<bool>("audio");
    QTest::addColumn<QString>("message");
    QTest::newRow("no microphone") << true << false
                                   << "The audio device is invalid. Please confirm whether the "
                                      "device is correctly connected.";
    QTest::newRow("no camera") << false << false
                               << "The video device is invalid. Please confirm whether the device "
                                  "is correctly connected. ";
    QTest::newRow("no camera but a microphone")
        << false << true
        << "The video device and the audio device are invalid. Please confirm whether the device "
           "is correctly connected. ";
}

void MovieFlowTest::missingDevicesLeaveEverythingAsItWas()
{
    QFETCH(bool, video);
    QFETCH(bool, audio);
    QFETCH(QString, message);
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    FakeEngine::script().videoDeviceValid = video;
    FakeEngine::script().audioDeviceValid = audio;
    const QStringList buttons = fixture.usableButtons();
    QCOMPARE(DialogFixture::boxDuring([&] { fixture.click("Movie"); }), message);
    QCOMPARE(FakeEngine::callCount("Record"), 1);
    QCOMPARE(FakeEngine::callCount("RecordStop"), 0);
    QCOMPARE(fixture.usableButtons(), buttons);
    QCOMPARE(dialog.displayMode(), LiveMode);
    QVERIFY(fixture.captures().isEmpty());
}

void MovieFlowTest::aFullDiskRecordsNothing()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    DialogFixture::fillTheDisk();
    QVERIFY(!DialogFixture::boxDuring([&] { fixture.click("Movie"); }).isEmpty());
    QCOMPARE(FakeEngine::callCount("Record"), 0);
    QVERIFY(dialog.hasError());
}

void MovieFlowTest::aCameraLostWhileRecordingKeepsTheMovie()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    const QStringList kept = fixture.captures();
    QVERIFY(!DialogFixture::boxDuring([] { FakeEngine::loseCamera(); }).isEmpty());
    QVERIFY(FakeEngine::script().recording.isEmpty());
    QCOMPARE(fixture.captures(), kept);
    QVERIFY(fixture.usableButtons().contains("List"));
    QVERIFY(fixture.usableButtons().contains("Close"));
    QCOMPARE(dialog.displayMode(), LiveMode);
}

void MovieFlowTest::closingTheWindowWhileRecordingReleasesTheCamera()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    QVERIFY(dialog.close());
    QCOMPARE(FakeEngine::callCount("Release"), 1);
    QVERIFY(FakeEngine::script().recording.isEmpty());
    QCOMPARE(fixture.captures().size(), 2);
}

void MovieFlowTest::theTimeIsRoundedToTheNearestSecond()
{
    DialogFixture fixture;
    FakeEngine::script().movie = movieOf(610);
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    fixture.click("MoviePlay");
    auto &movie = fixture.child<MovieWidget>();
    QTRY_VERIFY_WITH_TIMEOUT(movie.isPlaying() && movie.totalTime() == 61000, patience);
    movie.pause();
    QTRY_VERIFY_WITH_TIMEOUT(movie.isPaused(), patience);
    movie.seek(59600);
    QTRY_VERIFY_WITH_TIMEOUT(qAbs(movie.currentTime() - 59600) < 100, patience);
    dialog.setMovieTime();
    QCOMPARE(fixture.child<TimerWidget>().text(), QString("01:00/01:01"));
}

void MovieFlowTest::theLengthIsShownAsSoonAsItIsKnown()
{
    DialogFixture fixture;
    FakeEngine::script().movie = movieOf(120);
    fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    auto &time = fixture.child<TimerWidget>();
    time.setTickInterval(1000000); // the press of "Play" is the only tick
    QCOMPARE(time.text(), QString());
    fixture.click("MoviePlay");
    QTRY_COMPARE_WITH_TIMEOUT(time.text(), QString("00:00/00:12"), patience);
    // Not where no movie is being played for the user.
    fixture.click("Live");
    time.setText(QString());
    auto &movie = fixture.child<MovieWidget>();
    movie.Play();
    QTRY_VERIFY_WITH_TIMEOUT(movie.isPlaying() && movie.totalTime() > 0, patience);
    QCOMPARE(time.text(), QString());
}

void MovieFlowTest::playPauseAndTheEndOfAMovie()
{
    DialogFixture fixture;
    FakeEngine::script().movie = movieOf(30);
    fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    auto &movie = fixture.child<MovieWidget>();
    auto &time = fixture.child<TimerWidget>();
    time.setTickInterval(50);
    fixture.click("MoviePlay");
    QVERIFY(fixture.button("MoviePause").isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(time.text() == "00:01/00:03", patience);
    fixture.click("MoviePause");
    QVERIFY(fixture.button("MoviePlay").isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(movie.isPaused(), patience);
    const QSignalSpy finished(&movie, &MovieWidget::finished);
    fixture.click("MoviePlay");
    QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, patience);
    QTRY_VERIFY(fixture.button("MoviePlay").isVisible());
    QVERIFY(!fixture.button("MoviePause").isVisible());
    QTRY_VERIFY(!movie.isPlaying());
}

void MovieFlowTest::playAfterTheEndBeginsAgain()
{
    DialogFixture fixture;
    FakeEngine::script().movie = movieOf(20);
    fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    auto &movie = fixture.child<MovieWidget>();
    QSignalSpy finished(&movie, &MovieWidget::finished);
    fixture.click("MoviePlay");
    QVERIFY(finished.wait(patience));
    QTRY_VERIFY(fixture.button("MoviePlay").isVisible());
    fixture.click("MoviePlay");
    QTRY_VERIFY_WITH_TIMEOUT(movie.isPlaying() && movie.currentTime() < 1500, patience);
    QVERIFY(finished.wait(patience));
    QCOMPARE(finished.count(), 2);
}

void MovieFlowTest::aMovieThatCannotBePlayedLeavesTheScreenUsable()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    fixture.click("MoviePlay");
    QTest::qWait(500);
    QVERIFY(!fixture.child<MovieWidget>().isPlaying());
    QVERIFY(fixture.usableButtons().contains("Live"));
    fixture.click("Live");
    QCOMPARE(dialog.displayMode(), LiveMode);
    QVERIFY(fixture.child<LiveVideoWidget>().isVisible());
}

QTEST_MAIN(MovieFlowTest)
#include "tst_cvistreldlg_movie.moc"
