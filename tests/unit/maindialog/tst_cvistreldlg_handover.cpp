#include "DialogFixture.h"
#include "FakeEngine.h"
#include "Patience.h"
#include "PictureListView.h"
#include "PictureWidget.h"
#include "WebcamUtil.h"

#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QMimeData>
#include <QRegularExpression>
#include <QSound>
#include <QTime>
#include <QUrl>

namespace {

/** The window with photos taken by hand, two a series, and a reader of what it hands over. */
class Paste : public DialogFixture {
public:
    Paste()
    {
        setSettings("AutoShoot=0\nContinuShootCount=2\n");
        FakeEngine::script().picture = QImage(64, 36, QImage::Format_RGB32);
        build();
    }

    QString folder() const { return temporaryArea() + QStringLiteral("/tmp"); }
    QStringList files() const { return QDir(folder()).entryList(QDir::Files, QDir::Name); }

    // The content of the file that is there, of the newest one if there are several.
    QByteArray handedOver() const
    {
        QFile file(folder() + QLatin1Char('/') + files().value(files().size() - 1));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }

    // Full paths of all captures.
    QStringList captured() const
    {
        QStringList paths;
        for (const QString &name : captures())
            paths.append(temporaryArea() + QLatin1Char('/') + name);
        return paths;
    }

    void pastePhoto()
    {
        click("Photo");
        click("Apply");
        click("PutPhoto");
    }

    void takeSeries()
    {
        click("PhotoMulti");
        QTest::qWait(2); // nothing to wait for: names are stamped to the millisecond
        click("PhotoMulti");
    }
};

const QMimeData &clipboard()
{
    static const QMimeData nothing;
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data ? *data : nothing;
}

QStringList clipboardFiles()
{
    QStringList paths;
    for (const QUrl &url : clipboard().urls())
        paths.append(url.toLocalFile());
    return paths;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

QByteArray lines(const QStringList &lines)
{
    return (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8();
}

// Runs the test from the beginning of a second, so that two hand-overs share their name.
void awaitBeginningOfASecond()
{
    QTRY_VERIFY(QTime::currentTime().msec() < 500);
}

} // namespace

/** "Paste": the file for the whiteboard software, to the byte, and the sound of the shutter. */
class HandOverTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thePhotoShownIsNamed();
    void aFailedPhotoLeavesAnEmptyLine();
    void theTilesShownAreNamedInTheirOrder();
    void aZoomedTileIsNamedAlone();
    void theTilesOfASeriesAreNamed();
    void theLiveScreenNamesNothing();
    void anUnknownScreenNamesNothing();
    void thePlaybackScreenHandsNothingOver();
    void theFileIsCalledByTheSecond();
    void twiceWithinASecondTheSecondReplacesTheFirst();
    void filesOfDifferentSecondsAccumulate();
    void aFolderThatCannotBeMadeIsNotReported();
    void anAreaThatVanishedIsNotMadeOpenToOthers();
    void aFileThatCannotBeOpenedIsNotReported();
    void withoutATemporaryAreaNothingIsWrittenElsewhere();
    void theFolderSurvivesDiscarding();
    void theClipboardHasThePhotoAsPictureAndAsFile();
    void theClipboardHasTheTilesAsFiles();
    void whatHasNoPhotoLeavesTheClipboardAsItIs();
    void theClipboardNamesTheFilesThatWereSaved();
    void theClipboardNamesNoFileThatWasDeleted();
    void theClipboardNamesNoFileThatIsLeftBehind();
    void whatOthersCopiedMeanwhileStays();
    void theUnusedHandOversDoNothing();
    void aSoundBesideTheProgramIsTheShutters();
    void aPhotoTakenAtOnceHasItsSound();
    void withoutASoundThereIsNoShutter();
};

void HandOverTest::thePhotoShownIsNamed()
{
    Paste paste;
    paste.click("Photo");
    paste.click("Apply");
    const QString photo = paste.captures().value(0);
    paste.click("PutPhoto");
    QCOMPARE(paste.handedOver(), lines({"0", "800x450", photo}));
}

void HandOverTest::aFailedPhotoLeavesAnEmptyLine()
{
    Paste paste;
    FakeEngine::script().saveBitmapSucceeds = false;
    paste.click("Photo");
    paste.click("Apply");
    paste.click("PutPhoto");
    QCOMPARE(paste.handedOver(), QByteArray("0\n800x450\n\n"));
}

void HandOverTest::theTilesShownAreNamedInTheirOrder()
{
    Paste paste;
    paste.takeSeries();
    paste.click("Live");
    QTest::qWait(2); // nothing to wait for: names are stamped to the millisecond
    paste.takeSeries();
    const QStringList photos = paste.captures();
    paste.click("List");
    for (int row : {2, 0, 3})
        paste.child<PictureListView>().item(row)->setSelected(true);
    paste.click("Show");
    paste.click("PutPhoto");
    QCOMPARE(paste.handedOver(), lines({"0", "800x450", photos[2], photos[0], photos[3]}));
}

void HandOverTest::aZoomedTileIsNamedAlone()
{
    Paste paste;
    paste.takeSeries();
    const QStringList photos = paste.captures();
    const auto tiles =
        paste.dialog().findChildren<PictureWidget *>(QString(), Qt::FindDirectChildrenOnly);
    tiles.last()->OnZoom();
    paste.click("PutPhoto");
    QCOMPARE(paste.handedOver(), lines({"0", "800x450", photos[1]}));
}

void HandOverTest::theTilesOfASeriesAreNamed()
{
    Paste paste;
    paste.takeSeries();
    const QStringList photos = paste.captures();
    QCOMPARE(paste.dialog().displayMode(), PhotSeqMode);
    paste.click("PutPhoto");
    QCOMPARE(paste.handedOver(), lines({"0", "800x450", photos[0], photos[1]}));
}

void HandOverTest::theLiveScreenNamesNothing()
{
    Paste paste;
    paste.dialog().OnTVS();
    QCOMPARE(paste.handedOver(), QByteArray("0\n800x450\n"));
}

void HandOverTest::anUnknownScreenNamesNothing()
{
    Paste paste;
    paste.dialog().TransitionMode(DisplayMode(7));
    paste.dialog().OnTVS();
    QCOMPARE(paste.handedOver(), QByteArray("0\n800x450\n"));
}

void HandOverTest::thePlaybackScreenHandsNothingOver()
{
    Paste paste;
    paste.dialog().TransitionMode(MovieMode);
    paste.dialog().OnTVS();
    QVERIFY(!QDir(paste.folder()).exists());
}

void HandOverTest::theFileIsCalledByTheSecond()
{
    Paste paste;
    const QDateTime before = QDateTime::currentDateTime();
    paste.dialog().PutTVSPhoto();
    const QDateTime after = QDateTime::currentDateTime();
    const QString name = paste.files().value(0);
    QVERIFY(QRegularExpression("^PUTTVS\\d{14}$").match(name).hasMatch());
    const QString layout = QStringLiteral("'PUTTVS'yyyyMMddhhmmss");
    QVERIFY(name >= before.toString(layout));
    QVERIFY(name <= after.toString(layout));
}

void HandOverTest::twiceWithinASecondTheSecondReplacesTheFirst()
{
    Paste paste;
    paste.takeSeries();
    awaitBeginningOfASecond();
    paste.click("PutPhoto");
    QCOMPARE(paste.handedOver().count('\n'), 4);
    paste.click("Live");
    paste.dialog().OnTVS();
    QCOMPARE(paste.files().size(), 1);
    QCOMPARE(paste.handedOver(), QByteArray("0\n800x450\n"));
}

void HandOverTest::filesOfDifferentSecondsAccumulate()
{
    Paste paste;
    paste.dialog().OnTVS();
    const QString first = paste.files().value(0);
    QTRY_VERIFY(first
                != QStringLiteral("PUTTVS")
                    + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMddhhmmss")));
    paste.dialog().OnTVS();
    QCOMPARE(paste.files().size(), 2);
    QCOMPARE(paste.files().first(), first);
}

void HandOverTest::aFolderThatCannotBeMadeIsNotReported()
{
    Paste paste;
    QFile inTheWay(paste.folder());
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    QCOMPARE(DialogFixture::boxDuring([&] { paste.dialog().OnTVS(); }), QString());
    QVERIFY(QFileInfo(paste.folder()).isFile());
}

void HandOverTest::anAreaThatVanishedIsNotMadeOpenToOthers()
{
    Paste paste;
    QVERIFY(QDir(paste.temporaryArea()).removeRecursively());
    paste.dialog().OnTVS();
    QCOMPARE(paste.files().size(), 1);
    const QFileInfo area(paste.temporaryArea());
    QCOMPARE(area.permissions()
                 & (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther),
             QFile::Permissions());
}

void HandOverTest::aFileThatCannotBeOpenedIsNotReported()
{
    Paste paste;
    // Folders stand where the files of this second and the next would go.
    const QDateTime now = QDateTime::currentDateTime();
    for (int second : {0, 1, 2})
        QVERIFY(QDir().mkpath(paste.folder() + QStringLiteral("/PUTTVS")
                              + now.addSecs(second).toString(QStringLiteral("yyyyMMddhhmmss"))));
    QCOMPARE(DialogFixture::boxDuring([&] { paste.dialog().OnTVS(); }), QString());
    QVERIFY(paste.files().isEmpty());
}

void HandOverTest::withoutATemporaryAreaNothingIsWrittenElsewhere()
{
    Paste paste;
    const auto strays = [] {
        return QDir(QStringLiteral("/tmp")).entryList({QStringLiteral("PUTTVS*")}, QDir::Files);
    };
    const QStringList before = strays();
    DialogFixture::fillTheDisk();
    paste.dialog().OnTVS();
    QCOMPARE(strays(), before);
}

void HandOverTest::theFolderSurvivesDiscarding()
{
    Paste paste;
    paste.click("Photo");
    paste.click("Apply");
    paste.click("PutPhoto");
    DialogFixture::boxDuring([&] { paste.click("Close"); }, QStringLiteral("No"));
    QVERIFY(paste.captures().isEmpty());
    QCOMPARE(paste.files().size(), 1);
}

void HandOverTest::theClipboardHasThePhotoAsPictureAndAsFile()
{
    Paste paste;
    paste.pastePhoto();
    QCOMPARE(clipboardFiles(), paste.captured());
    QCOMPARE(clipboard().data("image/png"), contentOf(paste.captured().value(0)));
    QCOMPARE(clipboard().data("x-special/gnome-copied-files"),
             "copy\n" + QUrl::fromLocalFile(paste.captured().value(0)).toEncoded());
}

void HandOverTest::theClipboardHasTheTilesAsFiles()
{
    Paste paste;
    paste.takeSeries();
    paste.click("PutPhoto");
    QCOMPARE(paste.captured().size(), 2);
    QCOMPARE(clipboardFiles(), paste.captured());
    QVERIFY(!clipboard().hasFormat("image/png"));
}

void HandOverTest::whatHasNoPhotoLeavesTheClipboardAsItIs()
{
    Paste paste;
    QGuiApplication::clipboard()->setText("a word");
    paste.dialog().PutTVSPhoto(); // at the live picture
    QCOMPARE(clipboard().text(), QString("a word"));
    FakeEngine::script().saveBitmapSucceeds = false;
    paste.pastePhoto();
    QCOMPARE(clipboard().text(), QString("a word"));
}

void HandOverTest::theClipboardNamesTheFilesThatWereSaved()
{
    Paste paste;
    paste.pastePhoto();
    const QString photo = paste.captured().value(0);
    const QByteArray picture = contentOf(photo);
    DialogFixture::boxDuring([&] { paste.click("Close"); }, QStringLiteral("Yes"));
    const QStringList files = clipboardFiles();
    QCOMPARE(files.size(), 1);
    QVERIFY(files.first().startsWith(paste.home() + "/TavelinCamera/"));
    QCOMPARE(contentOf(files.first()), picture);
    QCOMPARE(clipboard().data("x-special/gnome-copied-files"),
             "copy\n" + QUrl::fromLocalFile(files.first()).toEncoded());
    QCOMPARE(clipboard().data("image/png"), picture);
}

void HandOverTest::theClipboardNamesNoFileThatWasDeleted()
{
    Paste paste;
    paste.pastePhoto();
    DialogFixture::boxDuring([&] { paste.click("Close"); }, QStringLiteral("No"));
    QCOMPARE(clipboard().formats(), QStringList("image/png"));
    QVERIFY(!QImage::fromData(clipboard().data("image/png")).isNull());
}

void HandOverTest::theClipboardNamesNoFileThatIsLeftBehind()
{
    Paste paste;
    paste.takeSeries();
    paste.click("PutPhoto");
    paste.dialog().close();
    QCOMPARE(clipboard().formats(), QStringList());
}

void HandOverTest::whatOthersCopiedMeanwhileStays()
{
    Paste paste;
    paste.pastePhoto();
    QGuiApplication::clipboard()->setText("a word");
    DialogFixture::boxDuring([&] { paste.click("Close"); }, QStringLiteral("Yes"));
    QCOMPARE(clipboard().text(), QString("a word"));
    QCOMPARE(clipboardFiles(), QStringList());
}

void HandOverTest::theUnusedHandOversDoNothing()
{
    Paste paste;
    paste.dialog().PutTVSMovie();
    paste.dialog().isPutCompeate();
    QVERIFY(!QDir(paste.folder()).exists());
}

void HandOverTest::aSoundBesideTheProgramIsTheShutters()
{
    Paste paste;
    const QString sound = paste.home() + QStringLiteral("/photo.wav");
    QVERIFY(QFile::copy(QStringLiteral(SHUTTER_SOUND), sound));
    paste.dialog().SetPluginPath(paste.home());
    QVERIFY(!paste.dialog().findChild<QSound *>()); // the first live picture comes first
    QTRY_VERIFY(paste.dialog().findChild<QSound *>());
    QCOMPARE(paste.dialog().findChild<QSound *>()->fileName(), sound);
}

void HandOverTest::aPhotoTakenAtOnceHasItsSound()
{
    Paste paste;
    QVERIFY(
        QFile::copy(QStringLiteral(SHUTTER_SOUND), paste.home() + QStringLiteral("/photo.wav")));
    paste.dialog().SetPluginPath(paste.home());
    QVERIFY(QMetaObject::invokeMethod(&paste.dialog(), "OnPhoto"));
    QCOMPARE(paste.dialog().findChildren<QSound *>().size(), 1);
    QTest::qWait(1200); // nothing to wait for: a second sound that must not come
    QCOMPARE(paste.dialog().findChildren<QSound *>().size(), 1);
}

void HandOverTest::withoutASoundThereIsNoShutter()
{
    Paste paste;
    paste.dialog().SetPluginPath(paste.home());
    QTest::qWait(1200); // nothing to wait for: a sound that must not come
    QVERIFY(!paste.dialog().findChild<QSound *>());
}

QTEST_MAIN(HandOverTest)
#include "tst_cvistreldlg_handover.moc"
