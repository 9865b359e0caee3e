#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QTest>

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

} // namespace

/** "Exit" and its question, and closing by the window system. */
class ClosingFlowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anEmptyTemporaryAreaClosesAtOnceWithNoQuestion();
    void yesMovesThePhotoIntoTheDatedFolder();
    void noDeletesWhatWasCaptured();
    void cancelKeepsTheProgramOpenWithAllDataInPlace();
    void aStrayFileIsAskedAboutAndYesReportsAFailure();
    void aStrayFileStaysWhenNothingIsSaved();
    void aFailedSaveIsReportedAndTheProgramCloses();
    void closingByTheWindowSystemAsksNothingAndKeepsEverything();
    void closingReleasesTheCameraAndTheLiveView();
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

QTEST_MAIN(ClosingFlowTest)
#include "tst_cvistreldlg_closing.moc"
