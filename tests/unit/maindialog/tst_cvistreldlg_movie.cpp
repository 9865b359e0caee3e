#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "MessageReader.h"
#include "MovieWidget.h"
#include "Patience.h"
#include "TimerWidget.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTimer>
#include <QTouchDevice>

/** Recording a movie, up to where it is ready to be played. */
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
    void aSecondPressRightAfterTheFirstDoesNotReachStop_data();
    void aSecondPressRightAfterTheFirstDoesNotReachStop();
    void aRecordingThatBreaksOffIsKeptAndTold_data();
    void aRecordingThatBreaksOffIsKeptAndTold();
    void theEndOfNoRecordingIsNotTold();
    void aCameraLostWhileRecordingIsToldOnce();
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
    QTRY_VERIFY(FakeEngine::script().recording.isEmpty());
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

void MovieFlowTest::aSecondPressRightAfterTheFirstDoesNotReachStop_data()
{
    QTest::addColumn<QString>("device");
    QTest::newRow("mouse") << "mouse";
    QTest::newRow("mouse, as a double click") << "double click";
    QTest::newRow("finger") << "finger";
    QTest::newRow("space") << "space";
}

void MovieFlowTest::aSecondPressRightAfterTheFirstDoesNotReachStop()
{
    QFETCH(QString, device);
    DialogFixture fixture;
    fixture.build();
    QApplication::setDoubleClickInterval(60000); // however slow this machine is
    QWidget &stop = fixture.button("MovieStop");
    static QTouchDevice *const finger = QTest::createTouchDevice();
    const auto press = [&] {
        if (device == "double click") {
            QTest::mouseDClick(&stop, Qt::LeftButton);
            QTest::mouseRelease(&stop, Qt::LeftButton);
        } else if (device == "finger") {
            QTest::touchEvent(&stop, finger).press(1, stop.rect().center(), &stop);
            QTest::touchEvent(&stop, finger).release(1, stop.rect().center(), &stop);
        } else if (device == "space") {
            QTest::keyClick(&stop, Qt::Key_Space);
        } else {
            QTest::mouseClick(&stop, Qt::LeftButton);
        }
    };
    fixture.click("Movie");
    QElapsedTimer sinceMovie;
    sinceMovie.start();
    press();
    QTRY_VERIFY(sinceMovie.elapsed() > 300);
    QCOMPARE(FakeEngine::callCount("RecordStop"), 0);
    QApplication::setDoubleClickInterval(200);
    press();
    QCOMPARE(FakeEngine::callCount("RecordStop"), 1);
}

void MovieFlowTest::aRecordingThatBreaksOffIsKeptAndTold_data()
{
    QTest::addColumn<bool>("isDiskFull");
    QTest::addColumn<QString>("message");
    QTest::newRow("full disk") << true
                               << "The disk free space is insufficient.\nTaking a picture is "
                                  "discontinued. Please secure the free space. ";
    QTest::newRow("broken encoder") << false
                                    << "The video device is invalid. Please confirm whether the "
                                       "device is correctly connected. ";
}

void MovieFlowTest::aRecordingThatBreaksOffIsKeptAndTold()
{
    QFETCH(bool, isDiskFull);
    QFETCH(QString, message);
    DialogFixture fixture;
    FakeEngine::script().movie = DialogFixture::movieOf(50);
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    const QStringList kept = fixture.captures();
    const QString area = fixture.temporaryArea();
    if (isDiskFull)
        DialogFixture::fillTheDisk();
    QString shownBelow;
    QCOMPARE(DialogFixture::boxDuring([&] {
                 QTimer::singleShot(0, [&] { shownBelow = fixture.usableButtons().join(' '); });
                 FakeEngine::endRecording();
             }),
             message);
    QCOMPARE(shownBelow, QString("Live List Close MoviePlay")); // ended before it is told
    QCOMPARE(FakeEngine::callCount("RecordStop"), 1);
    QCOMPARE(dialog.displayMode(), MovieMode);
    QCOMPARE(QDir(area).entryList(QDir::Files, QDir::Name), kept);
    QCOMPARE(fixture.usableButtons(), (QStringList{"Live", "List", "Close", "MoviePlay"}));
    fixture.click("MoviePlay");
    QTRY_VERIFY(fixture.child<MovieWidget>().isPlaying());
}

void MovieFlowTest::theEndOfNoRecordingIsNotTold()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    fixture.click("Live");
    QCOMPARE(DialogFixture::boxDuring([] { FakeEngine::endRecording(); }), QString()); // told late
    QCOMPARE(FakeEngine::callCount("RecordStop"), 1);
    QCOMPARE(dialog.displayMode(), LiveMode);
}

void MovieFlowTest::aCameraLostWhileRecordingIsToldOnce()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    const MessageReader reader;
    QTimer::singleShot(0, [] { FakeEngine::endRecording(); }); // while the message stands
    FakeEngine::loseCamera();
    QCOMPARE(reader.texts().size(), 1);
    QCOMPARE(dialog.displayMode(), LiveMode);
}

QTEST_MAIN(MovieFlowTest)
#include "tst_cvistreldlg_movie.moc"
