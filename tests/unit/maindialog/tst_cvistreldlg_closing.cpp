#include "BoxGlance.h"
#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "Patience.h"
#include "TimerWidget.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QSignalSpy>

namespace {

const QString question = QStringLiteral("Do you want to save the Photo / Movie data?");

QString datedFolder(const QString &saveFolder)
{
    return saveFolder + QStringLiteral("/TavelinCamera/")
        + QDate::currentDate().toString(QStringLiteral("yyyyMMdd"));
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

// Runs @p action and closes the window while the first modal box that it opens stands; then the
// box goes too. The texts of all boxes that came.
QStringList closedUnderTheBoxOf(CVistrelDlg &dialog, const std::function<void()> &action)
{
    QStringList texts;
    const BoxGlance user([&](QWidget &box) {
        texts.append(static_cast<QMessageBox &>(box).text());
        if (dialog.isVisible())
            dialog.close();
        box.close();
    });
    action();
    return texts;
}

} // namespace

using Slot = void (CVistrelDlg::*)();
Q_DECLARE_METATYPE(Slot)

/** "Exit" and its question, and closing by the window system. */
class ClosingFlowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anEmptyTemporaryAreaClosesAtOnceWithNoQuestion();
    void yesMovesThePhotoIntoTheDatedFolder();
    void aMovieThatIsStillBeingCompletedIsSavedWhole();
    void noDeletesWhatWasCaptured();
    void cancelKeepsTheProgramOpenWithAllDataInPlace();
    void aStrayFileIsAskedAboutAndYesReportsAFailure();
    void aStrayFileStaysWhenNothingIsSaved();
    void aFailedSaveIsReportedAndTheProgramCloses();
    void loggingOutAsksAndSaves();
    void whoCancelsTheLoggingOutStays();
    void whereNobodyMayBeAskedCapturesAreKept();
    void withoutCapturesLoggingOutAsksNobody();
    void whoClosesTheWindowBeforeTheSessionLetsItAskIsNotAsked();
    void loggingOutAtTheQuestionAsksItAnew();
    void aRecordingRunsOnUntilTheLoggingOutIsAnswered();
    void closingByTheWindowSystemAsksNothingAndKeepsEverything();
    void closingReleasesTheCameraAndTheLiveView();
    void aShotThatFallsDueAfterClosingIsNotTaken();
    void whatIsUnderWayWhenTheWindowClosesEndsWithoutACamera_data();
    void whatIsUnderWayWhenTheWindowClosesEndsWithoutACamera();
    void aMovieBeingPlayedStopsWithTheWindow();
    void aWindowClosedUnderTheDiskWarningStaysClosed_data();
    void aWindowClosedUnderTheDiskWarningStaysClosed();
    void aWindowClosedUnderTheMicrophoneWarningStaysClosed();
    void aWindowClosedUnderTheMessageOfABrokenRecordingKeepsTheMovie();
    void aWindowClosedWhileTheCameraCannotBeOpenedStaysClosed();
};

void ClosingFlowTest::anEmptyTemporaryAreaClosesAtOnceWithNoQuestion()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    QCOMPARE(DialogFixture::boxDuring([&] { fixture.click("Close"); }), QString());
    QVERIFY(!dialog.isVisible());
}

void ClosingFlowTest::yesMovesThePhotoIntoTheDatedFolder()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    const QStringList photos = fixture.captures();
    const QString text =
        DialogFixture::boxDuring([&] { fixture.click("Close"); }, QStringLiteral("Yes"));
    QCOMPARE(text, question);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(fixture.captures(), QStringList());
    QCOMPARE(QDir(datedFolder(fixture.home())).entryList(QDir::Files), photos);
}

// On a slow machine its file may grow for some seconds after "Stop".
void ClosingFlowTest::aMovieThatIsStillBeingCompletedIsSavedWhole()
{
    DialogFixture fixture;
    fixture.build();
    const QString movie = fixture.temporaryArea() + QStringLiteral("/movie20240229101500.mov");
    writeFile(movie, "half of it");
    FakeEngine::script().completion = [movie] { writeFile(movie, "half of it and the rest"); };
    DialogFixture::boxDuring([&] { fixture.click("Close"); }, QStringLiteral("Yes"));
    QFile saved(datedFolder(fixture.home()) + QStringLiteral("/movie20240229101500.mov"));
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QCOMPARE(saved.readAll(), QByteArrayLiteral("half of it and the rest"));
}

void ClosingFlowTest::noDeletesWhatWasCaptured()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    DialogFixture::boxDuring([&] { fixture.click("Close"); }, QStringLiteral("No"));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(fixture.captures(), QStringList());
    QVERIFY(!QDir(datedFolder(fixture.home())).exists());
}

void ClosingFlowTest::cancelKeepsTheProgramOpenWithAllDataInPlace()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    const QStringList photos = fixture.captures();
    DialogFixture::boxDuring([&] { fixture.click("Close"); }, QStringLiteral("Cancel"));
    QVERIFY(dialog.isVisible());
    QCOMPARE(fixture.captures(), photos);
    QVERIFY(fixture.child<LiveVideoWidget>().isCreate());
    QCOMPARE(dialog.displayMode(), PhotoMode);
}

void ClosingFlowTest::aStrayFileIsAskedAboutAndYesReportsAFailure()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    writeFile(fixture.temporaryArea() + QStringLiteral("/notes.txt"), "notes");
    QStringList texts;
    // The question is answered by "Yes", the warning after it by closing it.
    texts << DialogFixture::boxDuring([&] { fixture.click("Close"); }, QStringLiteral("Yes"));
    QCOMPARE(texts.last(), QStringLiteral("Save failed."));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(fixture.captures(), QStringList{QStringLiteral("notes.txt")});
}

void ClosingFlowTest::aStrayFileStaysWhenNothingIsSaved()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    writeFile(fixture.temporaryArea() + QStringLiteral("/notes.txt"), "notes");
    QCOMPARE(DialogFixture::boxDuring([&] { fixture.click("Close"); }, QStringLiteral("No")),
             question);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(fixture.captures(), QStringList{QStringLiteral("notes.txt")});
}

void ClosingFlowTest::aFailedSaveIsReportedAndTheProgramCloses()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    const QStringList photos = fixture.captures();
    // A file stands where the folder would have to be made.
    writeFile(fixture.home() + QStringLiteral("/TavelinCamera"), "in the way");
    QCOMPARE(DialogFixture::boxDuring([&] { fixture.click("Close"); }, QStringLiteral("Yes")),
             QStringLiteral("Save failed."));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(fixture.captures(), photos);
}

void ClosingFlowTest::loggingOutAsksAndSaves()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    const QStringList photos = fixture.captures();
    bool leaves = false;
    const QString text = DialogFixture::boxDuring(
        [&] { leaves = dialog.leaveWithSession([] { return true; }); }, QStringLiteral("Yes"));
    QCOMPARE(text, question);
    QVERIFY(leaves);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(QDir(datedFolder(fixture.home())).entryList(QDir::Files), photos);
}

void ClosingFlowTest::whoCancelsTheLoggingOutStays()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    const QStringList photos = fixture.captures();
    bool leaves = true;
    DialogFixture::boxDuring([&] { leaves = dialog.leaveWithSession([] { return true; }); },
                             QStringLiteral("Cancel"));
    QVERIFY(!leaves);
    QVERIFY(dialog.isVisible());
    QCOMPARE(fixture.captures(), photos);
}

void ClosingFlowTest::whereNobodyMayBeAskedCapturesAreKept()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    const QStringList photos = fixture.captures();
    bool leaves = false;
    const QString text = DialogFixture::boxDuring(
        [&] { leaves = dialog.leaveWithSession([] { return false; }); }, QStringLiteral("Yes"));
    QCOMPARE(text, QString());
    QVERIFY(leaves);
    QCOMPARE(fixture.captures(), photos);
}

void ClosingFlowTest::withoutCapturesLoggingOutAsksNobody()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    bool hasAsked = false;
    QVERIFY(dialog.leaveWithSession([&] {
        hasAsked = true;
        return true;
    }));
    QVERIFY(!hasAsked);
    QVERIFY(dialog.isVisible());
}

void ClosingFlowTest::whoClosesTheWindowBeforeTheSessionLetsItAskIsNotAsked()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    const QStringList photos = fixture.captures();
    const auto leave = [&] {
        return dialog.leaveWithSession([&] {
            dialog.close();
            return true;
        });
    };
    for (const char *time : {"while it thinks", "when it asks again"}) {
        bool leaves = false;
        const QString text = DialogFixture::boxDuring([&] { leaves = leave(); });
        QVERIFY2(text.isNull(), time);
        QVERIFY2(leaves, time);
    }
    QCOMPARE(fixture.captures(), photos);
}

void ClosingFlowTest::loggingOutAtTheQuestionAsksItAnew()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    const QStringList photos = fixture.captures();
    QStringList texts;
    bool leaves = false;
    {
        bool isFirst = true;
        const BoxGlance user([&](QWidget &box) {
            if (!isFirst)
                return;
            isFirst = false;
            texts << DialogFixture::boxDuring(
                [&] { leaves = dialog.leaveWithSession([] { return true; }); },
                QStringLiteral("Yes"));
            texts << (box.isVisible() ? "still there" : "gone");
        });
        fixture.click("Close");
    }
    QCOMPARE(texts, (QStringList{question, "gone"}));
    QVERIFY(leaves);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(QDir(datedFolder(fixture.home())).entryList(QDir::Files), photos);
}

void ClosingFlowTest::aRecordingRunsOnUntilTheLoggingOutIsAnswered()
{
    DialogFixture fixture;
    FakeEngine::script().movie = "a movie";
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    const auto leave = [&] { dialog.leaveWithSession([] { return true; }); };
    FakeEngine::script().calls.clear();
    QCOMPARE(DialogFixture::boxDuring(leave, QStringLiteral("Cancel")), question);
    QCOMPARE(FakeEngine::script().calls.filter("RecordStop"), QStringList());
    QVERIFY(fixture.button("MovieStop").isVisible());
    DialogFixture::boxDuring(leave, QStringLiteral("Yes"));
    QCOMPARE(FakeEngine::script().calls.filter("RecordStop").size(), 1);
    QVERIFY(!QDir(datedFolder(fixture.home())).entryList(QDir::Files).filter("movie").isEmpty());
    QVERIFY(!dialog.isVisible());
}

void ClosingFlowTest::closingByTheWindowSystemAsksNothingAndKeepsEverything()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    const QStringList photos = fixture.captures();
    QCOMPARE(DialogFixture::boxDuring([&] { dialog.close(); }), QString());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(fixture.captures(), photos);
}

void ClosingFlowTest::closingReleasesTheCameraAndTheLiveView()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    dialog.close();
    QCOMPARE(FakeEngine::callCount(QStringLiteral("Release")), 1);
    QVERIFY(!dialog.findChild<LiveVideoWidget *>());
}

void ClosingFlowTest::aShotThatFallsDueAfterClosingIsNotTaken()
{
    DialogFixture fixture;
    fixture.setSettings("AutoShoot=1\nAutoShootTime=1\nContinuShootCount=9\n");
    CVistrelDlg &dialog = fixture.build();
    auto &countdown = fixture.child<TimerWidget>();
    countdown.setTickInterval(20);
    fixture.click("PhotoMulti");
    QTRY_COMPARE(fixture.captures().size(), 1);
    dialog.close();
    const int taken = fixture.captures().size();
    const QSignalSpy shots(&countdown, &TimerWidget::shot);
    QVERIFY(!QTest::qWaitFor([&] { return !shots.isEmpty(); }, 300));
    Q_EMIT countdown.shot(); // one that was due already
    QCOMPARE(fixture.captures().size(), taken);
}

void ClosingFlowTest::whatIsUnderWayWhenTheWindowClosesEndsWithoutACamera_data()
{
    QTest::addColumn<Slot>("slot");
    QTest::newRow("a photo") << Slot(&CVistrelDlg::OnPhoto);
    QTest::newRow("a series") << Slot(&CVistrelDlg::OnPhotSeq);
    QTest::newRow("a shot") << Slot(&CVistrelDlg::OnShot);
    QTest::newRow("a recording") << Slot(&CVistrelDlg::OnRecord);
    QTest::newRow("the end of a recording") << Slot(&CVistrelDlg::OnMovieStop);
    QTest::newRow("accepting") << Slot(&CVistrelDlg::OnAply);
    QTest::newRow("the live picture") << Slot(&CVistrelDlg::OnLive);
    QTest::newRow("the list") << Slot(&CVistrelDlg::OnList);
    QTest::newRow("viewing") << Slot(&CVistrelDlg::OnShow);
    QTest::newRow("the playing time") << Slot(&CVistrelDlg::setMovieTime);
    QTest::newRow("the end of a movie") << Slot(&CVistrelDlg::OnMovieFinished);
    QTest::newRow("a lost camera") << Slot(&CVistrelDlg::changeNodevicemode);
}

void ClosingFlowTest::whatIsUnderWayWhenTheWindowClosesEndsWithoutACamera()
{
    QFETCH(Slot, slot);
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    dialog.close();
    const QStringList captures = fixture.captures();
    const QStringList calls = FakeEngine::script().calls;
    QCOMPARE(DialogFixture::boxDuring([&] { (dialog.*slot)(); }), QString());
    QCOMPARE(fixture.captures(), captures);
    QCOMPARE(FakeEngine::script().calls, calls);
    QVERIFY(!dialog.isVisible());
}

void ClosingFlowTest::aMovieBeingPlayedStopsWithTheWindow()
{
    qputenv("PHONON_GST_VIDEOMODE", "software");
    DialogFixture fixture;
    FakeEngine::script().movie = DialogFixture::movieOf(100);
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    fixture.click("MovieStop");
    fixture.click("MoviePlay");
    auto &movie = fixture.child<MovieWidget>();
    QTRY_VERIFY_WITH_TIMEOUT(movie.isPlaying() && movie.currentTime() > 0, 10000);
    dialog.close();
    QTRY_VERIFY_WITH_TIMEOUT(!movie.isPlaying(), 2000); // long before its end
}

void ClosingFlowTest::aWindowClosedUnderTheDiskWarningStaysClosed_data()
{
    QTest::addColumn<QString>("screen");
    QTest::addColumn<QString>("button");
    QTest::newRow("at a photo") << ""
                                << "Photo";
    QTest::newRow("at a series") << ""
                                 << "PhotoMulti";
    QTest::newRow("in a series") << "PhotoMulti"
                                 << "PhotoMulti";
    QTest::newRow("at a movie") << ""
                                << "Movie";
    QTest::newRow("back at the live picture") << "List"
                                              << "Live";
}

void ClosingFlowTest::aWindowClosedUnderTheDiskWarningStaysClosed()
{
    QFETCH(QString, screen);
    QFETCH(QString, button);
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    if (!screen.isEmpty())
        fixture.click(qPrintable(screen));
    DialogFixture::fillTheDisk();
    const QStringList calls = FakeEngine::script().calls;
    const QStringList texts =
        closedUnderTheBoxOf(dialog, [&] { fixture.click(qPrintable(button)); });
    QCOMPARE(texts.size(), 1);
    QVERIFY(texts[0].startsWith(QStringLiteral("The disk free space is insufficient.\n")));
    QVERIFY(!dialog.isVisible());
    QVERIFY(!dialog.findChild<LiveVideoWidget *>());
    const QStringList later = FakeEngine::script().calls.mid(calls.size());
    QCOMPARE(later.filter(QStringLiteral("SaveBitmap")), QStringList());
    QCOMPARE(later.filter(QStringLiteral("Record(")), QStringList());
    QCOMPARE(later.last(), QStringLiteral("~LiveVideoData()"));
}

void ClosingFlowTest::aWindowClosedUnderTheMicrophoneWarningStaysClosed()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    FakeEngine::script().audioDeviceValid = false;
    const QStringList texts = closedUnderTheBoxOf(dialog, [&] { fixture.click("Movie"); });
    QCOMPARE(texts.size(), 1);
    QVERIFY(texts[0].startsWith(QStringLiteral("The audio device is invalid.")));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(FakeEngine::callCount(QStringLiteral("Release")), 1);
    // The view is still there, but nobody listens to it any more.
    QCOMPARE(DialogFixture::boxDuring([] { FakeEngine::loseCamera(); }), QString());
}

void ClosingFlowTest::aWindowClosedUnderTheMessageOfABrokenRecordingKeepsTheMovie()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Movie");
    const QStringList captures = fixture.captures();
    QCOMPARE(closedUnderTheBoxOf(dialog, [] { FakeEngine::endRecording(); }).size(), 1);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(fixture.captures(), captures);
}

void ClosingFlowTest::aWindowClosedWhileTheCameraCannotBeOpenedStaysClosed()
{
    DialogFixture fixture;
    CVistrelDlg &dialog = fixture.build();
    fixture.click("Photo");
    fixture.click("Apply");
    fixture.child<LiveVideoWidget>().Release();
    FakeEngine::script().supported = false;
    QCOMPARE(closedUnderTheBoxOf(dialog, [&] { fixture.click("Live"); }),
             QStringList{QStringLiteral("Not Suport")});
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.displayMode(), PhotoMode);
}

QTEST_MAIN(ClosingFlowTest)
#include "tst_cvistreldlg_closing.moc"
