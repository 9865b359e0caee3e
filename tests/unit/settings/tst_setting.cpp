#include "BoxGlance.h"
#include "ContextTranslator.h"
#include "ForeignLocale.h"
#include "MessageReader.h"
#include "OrdinaryUser.h"
#include "Setting.h"
#include "StoreFolders.h"
#include "WebcamUtil.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QTest>
#include <QTranslator>

#include <algorithm>
#include <sys/stat.h>

namespace {

template <typename Control> Control *find(const Setting &dialog, const char *name)
{
    auto *control = dialog.findChild<Control *>(QLatin1String(name));
    if (!control)
        qFatal("the form has no %s", name);
    return control;
}

QCheckBox *selfTimer(const Setting &dialog)
{
    return find<QCheckBox>(dialog, "chbAutoShooting");
}
QComboBox *seconds(const Setting &dialog)
{
    return find<QComboBox>(dialog, "cmbAutoShooting");
}
QComboBox *shots(const Setting &dialog)
{
    return find<QComboBox>(dialog, "cmbContinuousShooting");
}
QCheckBox *preview(const Setting &dialog)
{
    return find<QCheckBox>(dialog, "chbPhotoPreview");
}
QComboBox *resolution(const Setting &dialog)
{
    return find<QComboBox>(dialog, "cmbResolution");
}
QRadioButton *useDefault(const Setting &dialog)
{
    return find<QRadioButton>(dialog, "rbtnDefault");
}
QRadioButton *useOther(const Setting &dialog)
{
    return find<QRadioButton>(dialog, "rbtnCustom");
}
QLineEdit *folder(const Setting &dialog)
{
    return find<QLineEdit>(dialog, "txbSaveDirectory");
}
QToolButton *browse(const Setting &dialog)
{
    return find<QToolButton>(dialog, "tolSaveDirectory");
}

// The file of the user whose home the test has made.
QString settingsFile(const StoreFolders &folders)
{
    return folders.home() + "/.halcyra_orvantacc.ini";
}

bool writeSettings(const StoreFolders &folders, const QByteArray &lines)
{
    return StoreFolders::write(settingsFile(folders), "[General]\n" + lines);
}

// The lines of the file, without the order that the toolkit gives them.
QStringList linesOf(const StoreFolders &folders)
{
    QStringList lines = QString::fromUtf8(StoreFolders::read(settingsFile(folders)))
                            .split('\n', Qt::SkipEmptyParts);
    lines.sort();
    return lines;
}

bool chooseOther(const Setting &dialog, const QString &path)
{
    QTest::mouseClick(useOther(dialog), Qt::LeftButton);
    folder(dialog)->setText(path);
    return useOther(dialog)->isChecked();
}

/** Translates every text to itself and two fifths more, as other languages do. */
class LongerLanguage : public QTranslator {
public:
    QString translate(const char *, const char *text, const char *, int) const override
    {
        const QString english = QLatin1String(text);
        return english + QString((english.size() * 2 + 4) / 5, QLatin1Char('n'));
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class SettingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutAFileTheDefaultsAreShownAndAllSixAreSaved();
    void whatTheFileSaysIsShownAndSavedAgain_data();
    void whatTheFileSaysIsShownAndSavedAgain();
    void whatIsSetInTheControlsIsSaved();
    void aFolderTypedIntoTheFileIsReadAsItStands_data();
    void aFolderTypedIntoTheFileIsReadAsItStands();
    void everyFolderComesBackFromTheFile_data();
    void everyFolderComesBackFromTheFile();
    void whatIsWrittenIsPlainAscii();
    void theFileIsTheSameInEveryCountry_data();
    void theFileIsTheSameInEveryCountry();
    void aSelfTimerOf2IsRejectedAndDisablesTheSeconds();
    void whatIsRejectedLeavesThePreferenceAsItWas();
    void aFileThatCannotBeReadGivesTheDefaults();
    void aFileThatCannotBeWrittenIsNotNoticed();
    void theSaveFolderIsWrittenOnlyWhenItIsChosen();
    void everyShowingReadsTheFileAgain();
    void gettersAnswerFromTheControls();
    void emptyBoxesAnswerWithWhatIsNoNumber();

    void theBoxesOfferTheirLists();
    void theFormShowsTheCaptionsOfUsers();
    void theFormHasItsOwnTextsBefore();
    void textsBelongToTheDialog();
    void fontsAreThoseOfTheForm();
    void theSizeIsThatOfTheFormAndFixed();
    void rowsStandBelowEachOtherInOrder();
    void nothingIsClipped_data();
    void nothingIsClipped();
    void theWindowStaysOnTopWithoutAHelpButton();
    void aBlackWindowBehindItLeavesTheDialogsColours();
    void isShownCentredOverItsParent();

    void uncheckingTheSelfTimerDisablesItsSecondsAtOnce();
    void cancellingForgetsWhatWasChanged_data();
    void cancellingForgetsWhatWasChanged();
    void aTypedFolderSurvivesADetourToTheDefault();
    void theBrowseButtonFollowsTheRadioButtonsUntilSetByHand();
    void theBrowseButtonAsksForAFolder_data();
    void theBrowseButtonAsksForAFolder();
    void okAcceptsTheDefaultLocation();
    void okChecksTheSaveFolder_data();
    void okChecksTheSaveFolder();
    void okRefusesAReadOnlyFolder();
    void enterIsOk();
    void theKeyboardWalksThroughTheControlsInOrder();
    void boxesWithoutALabelAreNamedForScreenReaders();

    void aListOfResolutionsIsOfferedOnce_data();
    void aListOfResolutionsIsOfferedOnce();
    void theResolutionCanBeLocked();
};

void SettingTest::withoutAFileTheDefaultsAreShownAndAllSixAreSaved()
{
    const StoreFolders folders;
    Setting dialog;
    QVERIFY(!QFileInfo::exists(settingsFile(folders)));
    QVERIFY(dialog.getAutoShooting());
    QCOMPARE(dialog.getAutoShootingTime(), 5);
    QVERIFY(seconds(dialog)->isEnabled());
    QCOMPARE(dialog.getContinuousShooting(), 4);
    QVERIFY(dialog.getPhotoPreview());
    QCOMPARE(dialog.getResolution(), QString("640x480"));
    QVERIFY(useDefault(dialog)->isChecked());
    QVERIFY(!folder(dialog)->isEnabled());
    QVERIFY(!browse(dialog)->isEnabled());
    QCOMPARE(dialog.getSaveDirectory(), folders.home());

    dialog.SaveFile();
    QCOMPARE(linesOf(folders),
             QStringList({"AutoShoot=1", "AutoShootTime=5", "ContinuShootCount=4", "PhotoPreview=1",
                          "Resolution=640x480", "SaveDirectory=", "[General]"}));
}

void SettingTest::whatTheFileSaysIsShownAndSavedAgain_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("key"); // what the next save writes under it
    QTest::addColumn<QString>("written");
    const auto row = [](const char *name, const char *lines, const char *key, const char *written) {
        QTest::newRow(name) << QByteArray(lines) << QString(key) << QString(written);
    };
    row("self-timer off", "AutoShoot=0\n", "AutoShoot", "0");
    row("self-timer on", "AutoShoot=1\n", "AutoShoot", "1");
    row("self-timer below its range", "AutoShoot=-1\n", "AutoShoot", "1");
    row("self-timer above its range", "AutoShoot=2\n", "AutoShoot", "1");
    row("self-timer no number", "AutoShoot=abc\n", "AutoShoot", "0");
    row("self-timer spelled as a truth", "AutoShoot=true\n", "AutoShoot", "0");
    row("seconds least", "AutoShootTime=1\n", "AutoShootTime", "1");
    row("seconds most", "AutoShootTime=30\n", "AutoShootTime", "30");
    row("seconds offered", "AutoShootTime=20\n", "AutoShootTime", "20");
    row("seconds in range but not offered", "AutoShootTime=7\n", "AutoShootTime", "1");
    row("seconds below the range", "AutoShootTime=0\n", "AutoShootTime", "5");
    row("seconds above the range", "AutoShootTime=31\n", "AutoShootTime", "5");
    row("seconds no number", "AutoShootTime=abc\n", "AutoShootTime", "5");
    row("shots least", "ContinuShootCount=2\n", "ContinuShootCount", "2");
    row("shots most", "ContinuShootCount=9\n", "ContinuShootCount", "9");
    row("shots in range but not offered", "ContinuShootCount=5\n", "ContinuShootCount", "2");
    row("shots below the range", "ContinuShootCount=1\n", "ContinuShootCount", "4");
    row("shots above the range", "ContinuShootCount=10\n", "ContinuShootCount", "4");
    row("shots no number", "ContinuShootCount=abc\n", "ContinuShootCount", "4");
    row("preview off", "PhotoPreview=0\n", "PhotoPreview", "0");
    row("preview above its range", "PhotoPreview=2\n", "PhotoPreview", "1");
    row("preview no number", "PhotoPreview=abc\n", "PhotoPreview", "0");
    row("a resolution that is not offered", "Resolution=1280x720\n", "Resolution", "640x480");
    row("another folder", "SaveDirectory=/media/stick\n", "SaveDirectory", "/media/stick");
    row("the default folder", "SaveDirectory=\n", "SaveDirectory", "");
}

void SettingTest::whatTheFileSaysIsShownAndSavedAgain()
{
    QFETCH(QByteArray, lines);
    QFETCH(QString, key);
    QFETCH(QString, written);
    const StoreFolders folders;
    QVERIFY(writeSettings(folders, lines));
    Setting dialog;
    const QHash<QString, QString> shown = {
        {"AutoShoot", QString::number(int(dialog.getAutoShooting()))},
        {"AutoShootTime", QString::number(dialog.getAutoShootingTime())},
        {"ContinuShootCount", QString::number(dialog.getContinuousShooting())},
        {"PhotoPreview", QString::number(int(dialog.getPhotoPreview()))},
        {"Resolution", dialog.getResolution()},
        {"SaveDirectory", useOther(dialog)->isChecked() ? dialog.getSaveDirectory() : ""},
    };
    QCOMPARE(shown.value(key), written);
    QCOMPARE(seconds(dialog)->isEnabled(), dialog.getAutoShooting());
    QCOMPARE(folder(dialog)->isEnabled(), useOther(dialog)->isChecked());
    QCOMPARE(browse(dialog)->isEnabled(), useOther(dialog)->isChecked());

    dialog.SaveFile();
    QVERIFY2(linesOf(folders).contains(key + "=" + written),
             qPrintable(linesOf(folders).join(' ')));
    QCOMPARE(linesOf(folders).size(), 7);
}

void SettingTest::whatIsSetInTheControlsIsSaved()
{
    const StoreFolders folders;
    Setting dialog;
    for (const char *box : {"chbAutoShooting", "chbPhotoPreview"})
        find<QCheckBox>(dialog, box)->click();
    for (const char *box : {"cmbAutoShooting", "cmbContinuousShooting"}) {
        auto *choice = find<QComboBox>(dialog, box);
        choice->setCurrentIndex(choice->count() - 1);
    }
    dialog.SaveFile();
    QCOMPARE(linesOf(folders),
             QStringList({"AutoShoot=0", "AutoShootTime=30", "ContinuShootCount=9",
                          "PhotoPreview=0", "Resolution=640x480", "SaveDirectory=", "[General]"}));
}

void SettingTest::aFolderTypedIntoTheFileIsReadAsItStands_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QString>("folder");
    const auto row = [](const char *name, const char *typed, const QString &folder) {
        QTest::newRow(name) << QByteArray(typed) << folder;
    };
    const QString umlauts = QString::fromUtf8("/media/Größe");
    row("UTF-8",
        "/media/Gr\xc3\xb6\xc3\x9f"
        "e",
        umlauts);
    row("Japanese", "/media/\xe6\x95\x99\xe5\xae\xa4", QString::fromUtf8("/media/教室"));
    row("Latin-1, as older editors wrote it",
        "/media/Gr\xf6\xdf"
        "e",
        umlauts);
    row("as the program writes it", "/media/Gr\\xf6\\xdf\\x65", umlauts);
    row("a comma", "/media/a,b", "/media/a,b");
    row("a comma and blanks", "/media/Maths,  3b , old", "/media/Maths,  3b , old");
    row("a comma in quotes", "\"/media/Maths, 3b\"", "/media/Maths, 3b");
    row("a comma and UTF-8",
        "/media/Gr\xc3\xb6\xc3\x9f"
        "e, 3b",
        umlauts + ", 3b");
    row("a comma and Latin-1",
        "/media/Gr\xf6\xdf"
        "e, 3b",
        umlauts + ", 3b");
    row("a comma before a comment", "/media/a, b ; the stick", "/media/a, b");
    row("blanks around it", "   /media/a, b  \r", "/media/a, b");
    row("a comma at the end", "/media/a,", "/media/a,");
    row("the last of several", "/media/a, b\nSaveDirectory=/media/c, d", "/media/c, d");
    row("another group's key", "/media/a, b\n[Other]\nSaveDirectory=/media/c, d", "/media/a, b");
}

void SettingTest::aFolderTypedIntoTheFileIsReadAsItStands()
{
    QFETCH(QByteArray, typed);
    QFETCH(QString, folder);
    const StoreFolders folders;
    QVERIFY(writeSettings(folders, "AutoShootTime=20\nSaveDirectory=" + typed + "\n"));
    const Setting dialog;
    QCOMPARE(dialog.getSaveDirectory(), folder);
    QVERIFY(useOther(dialog)->isChecked());
    QCOMPARE(dialog.getAutoShootingTime(), 20);
}

void SettingTest::everyFolderComesBackFromTheFile_data()
{
    QTest::addColumn<QString>("path");
    for (const char *path :
         {"/media/stick", "/media/Maths, 3b", "/media/Größe", "/media/教室, 3b", "/media/a;b",
          "/media/a=b", "/media/a\"b", "/media/a\\b", "/media/a b ", "/media/%20",
          "/media/@ByteArray(x)", "@home", "/media/\xf0\x9f\x93\xb7"})
        QTest::newRow(path) << QString::fromUtf8(path);
}

void SettingTest::everyFolderComesBackFromTheFile()
{
    QFETCH(QString, path);
    const StoreFolders folders;
    Setting dialog;
    QVERIFY(chooseOther(dialog, path));
    dialog.SaveFile();
    const Setting next;
    QCOMPARE(next.getSaveDirectory(), path);
    // As the versions before this one read it, who know of no encoding.
    QCOMPARE(QSettings(settingsFile(folders), QSettings::IniFormat).value("SaveDirectory"),
             QVariant(path));
}

void SettingTest::whatIsWrittenIsPlainAscii()
{
    const StoreFolders folders;
    QVERIFY(writeSettings(folders,
                          "SaveDirectory=/media/Gr\xc3\xb6\xc3\x9f"
                          "e, 3b\n"));
    Setting dialog;
    dialog.SaveFile();
    const QByteArray written = StoreFolders::read(settingsFile(folders));
    QVERIFY(std::all_of(written.begin(), written.end(),
                        [](char letter) { return uchar(letter) < 0x80; }));
    QVERIFY2(written.contains("SaveDirectory=\"/media/Gr\\xf6\\xdf\\x65, 3b\"\n"),
             written.constData());
}

void SettingTest::theFileIsTheSameInEveryCountry_data()
{
    QTest::addColumn<QString>("country");
    for (const char *country : {"de_DE", "tr_TR", "ar_EG", "fa_IR"})
        QTest::newRow(country) << QString(country);
}

void SettingTest::theFileIsTheSameInEveryCountry()
{
    QFETCH(QString, country);
    const ForeignLocale abroad(country);
    QVERIFY2(abroad.isInUse(), "needs the package \"locales\"");
    const StoreFolders folders;
    QVERIFY(writeSettings(folders, "AutoShootTime=20\nContinuShootCount=9\n"));
    Setting dialog;
    QCOMPARE(dialog.getAutoShootingTime(), 20);
    QCOMPARE(dialog.getContinuousShooting(), 9);
    dialog.SaveFile();
    QCOMPARE(linesOf(folders),
             QStringList({"AutoShoot=1", "AutoShootTime=20", "ContinuShootCount=9",
                          "PhotoPreview=1", "Resolution=640x480", "SaveDirectory=", "[General]"}));
}

void SettingTest::aSelfTimerOf2IsRejectedAndDisablesTheSeconds()
{
    const StoreFolders folders;
    Setting dialog;
    QVERIFY(writeSettings(folders, "AutoShoot=2\n"));
    dialog.readFile();
    QVERIFY(!seconds(dialog)->isEnabled());
    QVERIFY(dialog.getAutoShooting());
    // Shown in full, the seconds follow the box beside them.
    dialog.setParam();
    QVERIFY(dialog.getAutoShooting());
    QVERIFY(seconds(dialog)->isEnabled());
}

void SettingTest::whatIsRejectedLeavesThePreferenceAsItWas()
{
    const StoreFolders folders;
    QVERIFY(writeSettings(folders,
                          "AutoShoot=0\nAutoShootTime=20\nContinuShootCount=9\nPhotoPreview=0\n"));
    Setting dialog;
    QVERIFY(writeSettings(
        folders, "AutoShoot=7\nAutoShootTime=99\nContinuShootCount=77\nPhotoPreview=-1\n"));
    dialog.readFile();
    dialog.setParam();
    QVERIFY(!dialog.getAutoShooting());
    QCOMPARE(dialog.getAutoShootingTime(), 20);
    QCOMPARE(dialog.getContinuousShooting(), 9);
    QVERIFY(!dialog.getPhotoPreview());
}

void SettingTest::aFileThatCannotBeReadGivesTheDefaults()
{
    const StoreFolders folders;
    QVERIFY(QDir().mkpath(settingsFile(folders)));
    const Setting dialog;
    QVERIFY(dialog.getAutoShooting());
    QCOMPARE(dialog.getAutoShootingTime(), 5);
    QCOMPARE(dialog.getContinuousShooting(), 4);
}

void SettingTest::aFileThatCannotBeWrittenIsNotNoticed()
{
    const StoreFolders folders;
    QVERIFY(QDir().mkpath(settingsFile(folders)));
    Setting dialog;
    shots(dialog)->setCurrentText("9");
    const MessageReader user;
    dialog.SaveFile();
    QCOMPARE(user.texts(), QStringList());
    QCOMPARE(dialog.getContinuousShooting(), 9);
}

void SettingTest::theSaveFolderIsWrittenOnlyWhenItIsChosen()
{
    const StoreFolders folders;
    Setting dialog;
    QVERIFY(chooseOther(dialog, folders.target()));
    dialog.SaveFile();
    QVERIFY(linesOf(folders).contains("SaveDirectory=" + folders.target()));
    QCOMPARE(dialog.getSaveDirectory(), folders.target());

    QTest::mouseClick(useDefault(dialog), Qt::LeftButton);
    dialog.SaveFile();
    QVERIFY(linesOf(folders).contains("SaveDirectory="));
    QCOMPARE(dialog.getSaveDirectory(), folders.home());
}

void SettingTest::everyShowingReadsTheFileAgain()
{
    const StoreFolders folders;
    Setting dialog;
    QVERIFY(writeSettings(folders, "AutoShootTime=15\nSaveDirectory=/media/stick\n"));
    QCOMPARE(dialog.getAutoShootingTime(), 5);
    dialog.show();
    QCOMPARE(dialog.getAutoShootingTime(), 15);
    QVERIFY(useOther(dialog)->isChecked());
    QCOMPARE(dialog.getSaveDirectory(), QString("/media/stick"));
}

void SettingTest::gettersAnswerFromTheControls()
{
    const StoreFolders folders;
    Setting dialog;
    selfTimer(dialog)->setChecked(false);
    seconds(dialog)->setCurrentText("30");
    shots(dialog)->setCurrentText("6");
    preview(dialog)->setChecked(false);
    folder(dialog)->setText("/media/stick");
    QVERIFY(!dialog.getAutoShooting());
    QCOMPARE(dialog.getAutoShootingTime(), 30);
    QCOMPARE(dialog.getContinuousShooting(), 6);
    QVERIFY(!dialog.getPhotoPreview());
    QCOMPARE(dialog.getSaveDirectory(), QString("/media/stick"));
    QVERIFY(!QFileInfo::exists(settingsFile(folders)));
}

void SettingTest::emptyBoxesAnswerWithWhatIsNoNumber()
{
    const StoreFolders folders;
    Setting dialog;
    seconds(dialog)->setCurrentIndex(-1);
    shots(dialog)->setCurrentIndex(-1);
    QCOMPARE(dialog.getAutoShootingTime(), 0);
    QCOMPARE(dialog.getContinuousShooting(), -1);
}

void SettingTest::theBoxesOfferTheirLists()
{
    const StoreFolders folders;
    const Setting dialog;
    const auto entries = [](const QComboBox *box) {
        QStringList texts;
        for (int i = 0; i < box->count(); ++i)
            texts.append(box->itemText(i));
        return texts.join(' ');
    };
    QCOMPARE(entries(seconds(dialog)), QString("1 2 3 4 5 10 15 20 30"));
    QCOMPARE(entries(shots(dialog)), QString("2 3 4 6 9"));
    QCOMPARE(entries(resolution(dialog)), QString("640x480"));
}

void SettingTest::theFormShowsTheCaptionsOfUsers()
{
    const StoreFolders folders;
    const Setting dialog;
    QCOMPARE(dialog.windowTitle(), QString("Settings"));
    QCOMPARE(selfTimer(dialog)->text(), QString("Self Timer"));
    QCOMPARE(find<QLabel>(dialog, "lblShootingInterval")->text(), QString("second"));
    QCOMPARE(find<QLabel>(dialog, "lblContinuousShooting")->text(), QString("Continuous Capture"));
    QCOMPARE(find<QLabel>(dialog, "lblShootingCount")->text(), QString("Shots"));
    QCOMPARE(preview(dialog)->text(), QString("Confirm captured image"));
    QCOMPARE(find<QLabel>(dialog, "lblResolution")->text(), QString("Resolution"));
    QCOMPARE(find<QLabel>(dialog, "lblShootingCount_2")->text(), QString());
    QCOMPARE(find<QPushButton>(dialog, "btnOk")->text(), QString("OK"));
    QCOMPARE(find<QPushButton>(dialog, "btnCancel")->text(), QString("Cancel"));
    QCOMPARE(useDefault(dialog)->text(), QString("Use default location"));
    QCOMPARE(useOther(dialog)->text(), QString("Use other location"));
    QCOMPARE(browse(dialog)->text(), QString("..."));
    QCOMPARE(find<QLabel>(dialog, "label")->text(), QString("Save Directry:"));
}

void SettingTest::theFormHasItsOwnTextsBefore()
{
    QDialog dialog;
    Ui_Setting form;
    form.setupUi(&dialog);
    QCOMPARE(dialog.windowTitle(), QString("Settings"));
    QCOMPARE(form.chbAutoShooting->text(), QString("AutoShooting:"));
    QCOMPARE(form.lblShootingInterval->text(), QString("sec"));
    QCOMPARE(form.lblContinuousShooting->text(), QString("Continuous shooting:"));
    QCOMPARE(form.lblShootingCount->text(), QString("sheet"));
    QCOMPARE(form.chbPhotoPreview->text(), QString("Preview your photo taken:"));
    QCOMPARE(form.lblResolution->text(), QString("Resolution:"));
    QCOMPARE(form.rbtnDefault->text(), QString("Using the standard location"));
    QCOMPARE(form.rbtnCustom->text(), QString("Specify a destination"));
    QCOMPARE(form.label->text(), QString("Save Directry:"));
}

void SettingTest::textsBelongToTheDialog()
{
    const StoreFolders folders;
    ContextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const Setting dialog;
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(dialog.windowTitle(), QString("Setting: Settings"));
    for (const auto *button : dialog.findChildren<QAbstractButton *>())
        QVERIFY2(button->text().startsWith("Setting: "), qPrintable(button->text()));
}

void SettingTest::fontsAreThoseOfTheForm()
{
    const StoreFolders folders;
    const Setting dialog;
    QCOMPARE(dialog.font().pointSize(), 11);
    const QList<QWidget *> arial = {selfTimer(dialog),
                                    seconds(dialog),
                                    shots(dialog),
                                    preview(dialog),
                                    resolution(dialog),
                                    find<QLabel>(dialog, "lblContinuousShooting"),
                                    find<QLabel>(dialog, "label")};
    for (const QWidget *widget : arial) {
        QCOMPARE(widget->font().family(), QString("Arial"));
        QCOMPARE(widget->font().pointSize(), 10);
    }
}

void SettingTest::theSizeIsThatOfTheFormAndFixed()
{
    const StoreFolders folders;
    Setting dialog;
    dialog.show();
    QCOMPARE(dialog.size(), QSize(413, 376));
    QCOMPARE(dialog.minimumSize(), dialog.size());
    QCOMPARE(dialog.maximumSize(), dialog.size());
    const QRect rows = dialog.childrenRect();
    QCOMPARE(rows.left(), dialog.width() - rows.right() - 1);
    QCOMPARE(rows.top(), dialog.height() - rows.bottom() - 1);
}

void SettingTest::rowsStandBelowEachOtherInOrder()
{
    const StoreFolders folders;
    const Setting dialog;
    const QList<QWidget *> firstOfRow = {selfTimer(dialog),
                                         find<QLabel>(dialog, "lblContinuousShooting"),
                                         preview(dialog),
                                         find<QLabel>(dialog, "lblResolution"),
                                         useDefault(dialog),
                                         find<QLabel>(dialog, "label"),
                                         find<QPushButton>(dialog, "btnOk")};
    int bottom = 0;
    for (int i = 0; i < firstOfRow.size(); ++i) {
        const QWidget *row = firstOfRow.at(i)->parentWidget();
        QCOMPARE(row->objectName(),
                 i == 0 ? QString("horizontalLayoutWidget")
                        : QString("horizontalLayoutWidget_%1").arg(i + 1));
        QVERIFY(row->y() > bottom);
        bottom = row->geometry().bottom();
    }
}

void SettingTest::nothingIsClipped_data()
{
    QTest::addColumn<bool>("longer");
    QTest::newRow("English") << false;
    QTest::newRow("a longer language") << true;
}

void SettingTest::nothingIsClipped()
{
    QFETCH(bool, longer);
    const StoreFolders folders;
    LongerLanguage language;
    if (longer)
        QVERIFY(QCoreApplication::installTranslator(&language));
    Setting dialog;
    dialog.show();
    QCoreApplication::removeTranslator(&language);
    QList<QWidget *> withText;
    for (auto *button : dialog.findChildren<QAbstractButton *>())
        withText.append(button);
    for (auto *label : dialog.findChildren<QLabel *>())
        withText.append(label);
    for (auto *box : dialog.findChildren<QComboBox *>())
        withText.append(box);
    for (const QWidget *widget : qAsConst(withText)) {
        const QWidget *row = widget->parentWidget();
        QVERIFY2(widget->width() >= widget->minimumSizeHint().width()
                     && widget->height() >= widget->minimumSizeHint().height(),
                 qPrintable(widget->objectName()));
        QVERIFY2(row->rect().contains(widget->geometry()), qPrintable(widget->objectName()));
        QVERIFY2(dialog.rect().contains(row->geometry()), qPrintable(row->objectName()));
    }
    // The three boxes stand in one column.
    QCOMPARE(seconds(dialog)->geometry().left(), shots(dialog)->geometry().left());
    QCOMPARE(seconds(dialog)->geometry().left(), resolution(dialog)->geometry().left());
}

void SettingTest::theWindowStaysOnTopWithoutAHelpButton()
{
    const StoreFolders folders;
    const Setting dialog;
    QVERIFY(dialog.windowFlags() & Qt::WindowStaysOnTopHint);
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QVERIFY(dialog.autoFillBackground());
    QVERIFY(dialog.isHidden());
}

void SettingTest::aBlackWindowBehindItLeavesTheDialogsColours()
{
    const StoreFolders folders;
    QWidget window;
    QPalette black = window.palette();
    black.setBrush(QPalette::Window, Qt::black);
    black.setBrush(QPalette::WindowText, Qt::white);
    window.setPalette(black);
    Setting dialog(&window);
    dialog.show();
    QCOMPARE(dialog.palette().color(QPalette::Window),
             QApplication::palette().color(QPalette::Window));
    QCOMPARE(find<QLabel>(dialog, "label")->palette().color(QPalette::WindowText),
             QApplication::palette().color(QPalette::WindowText));
}

void SettingTest::isShownCentredOverItsParent()
{
    const StoreFolders folders;
    QWidget window;
    window.setGeometry(40, 30, 600, 480);
    window.show();
    Setting dialog(&window);
    dialog.show();
    const QPoint distance = dialog.geometry().center() - window.geometry().center();
    // A window manager's frame, guessed or real, may shift the contents by its own width.
    QVERIFY2(qAbs(distance.x()) <= 15 && qAbs(distance.y()) <= 35,
             qPrintable(QString("%1, %2 from the middle").arg(distance.x()).arg(distance.y())));
}

void SettingTest::uncheckingTheSelfTimerDisablesItsSecondsAtOnce()
{
    const StoreFolders folders;
    Setting dialog;
    dialog.show();
    const auto clickTheBox = [&] {
        // Right at the indicator; the rest of the row is text.
        QTest::mouseClick(selfTimer(dialog), Qt::LeftButton, Qt::NoModifier,
                          {8, selfTimer(dialog)->height() / 2});
    };
    clickTheBox();
    QVERIFY(!dialog.getAutoShooting());
    QVERIFY(!seconds(dialog)->isEnabled());
    clickTheBox();
    QVERIFY(seconds(dialog)->isEnabled());
}

void SettingTest::cancellingForgetsWhatWasChanged_data()
{
    QTest::addColumn<bool>("byEscape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void SettingTest::cancellingForgetsWhatWasChanged()
{
    QFETCH(bool, byEscape);
    const StoreFolders folders;
    Setting dialog;
    dialog.show();
    selfTimer(dialog)->click();
    shots(dialog)->setCurrentText("9");
    QVERIFY(chooseOther(dialog, folders.target()));
    if (byEscape)
        QTest::keyClick(&dialog, Qt::Key_Escape);
    else
        QTest::mouseClick(find<QPushButton>(dialog, "btnCancel"), Qt::LeftButton);
    QVERIFY(dialog.isHidden());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QVERIFY(!QFileInfo::exists(settingsFile(folders)));

    dialog.show();
    QVERIFY(dialog.getAutoShooting());
    QVERIFY(seconds(dialog)->isEnabled());
    QCOMPARE(dialog.getContinuousShooting(), 4);
    QVERIFY(useDefault(dialog)->isChecked());
    QCOMPARE(dialog.getSaveDirectory(), folders.home());
}

void SettingTest::aTypedFolderSurvivesADetourToTheDefault()
{
    const StoreFolders folders;
    Setting dialog;
    dialog.show();
    QTest::mouseClick(useOther(dialog), Qt::LeftButton);
    QVERIFY(folder(dialog)->isEnabled());
    QVERIFY(browse(dialog)->isEnabled());
    folder(dialog)->clear();
    QTest::keyClicks(folder(dialog), "/media/stick");
    QTest::mouseClick(useDefault(dialog), Qt::LeftButton);
    QCOMPARE(dialog.getSaveDirectory(), folders.home());
    QVERIFY(!folder(dialog)->isEnabled());
    QVERIFY(!browse(dialog)->isEnabled());
    QTest::mouseClick(useOther(dialog), Qt::LeftButton);
    QCOMPARE(dialog.getSaveDirectory(), QString("/media/stick"));
}

void SettingTest::theBrowseButtonFollowsTheRadioButtonsUntilSetByHand()
{
    const StoreFolders folders;
    Setting dialog;
    dialog.show();
    dialog.setBtnSaveEnable(true);
    QVERIFY(browse(dialog)->isEnabled());
    QTest::mouseClick(useOther(dialog), Qt::LeftButton);
    QTest::mouseClick(useDefault(dialog), Qt::LeftButton);
    QVERIFY(browse(dialog)->isEnabled());
    dialog.setBtnSaveEnable(false);
    QTest::mouseClick(useOther(dialog), Qt::LeftButton);
    QVERIFY(!browse(dialog)->isEnabled());
    QVERIFY(folder(dialog)->isEnabled());
}

void SettingTest::theBrowseButtonAsksForAFolder_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("chosen");
    QTest::newRow("chosen") << "saved" << true;
    QTest::newRow("cancelled") << "saved" << false;
    QTest::newRow("begins at home when empty") << "" << false;
}

void SettingTest::theBrowseButtonAsksForAFolder()
{
    QFETCH(QString, shown);
    QFETCH(bool, chosen);
    const StoreFolders folders;
    QVERIFY(QDir(folders.target()).mkpath("lesson"));
    const QString before = shown.isEmpty() ? QString() : folders.target();
    Setting dialog;
    dialog.show();
    QVERIFY(chooseOther(dialog, before));

    QString caption;
    QString start;
    bool foldersOnly = false;
    bool linksKept = false;
    const BoxGlance user([&](QWidget &box) {
        auto *chooser = qobject_cast<QFileDialog *>(&box);
        if (!chooser)
            return;
        caption = chooser->windowTitle();
        start = chooser->directory().absolutePath();
        foldersOnly = chooser->testOption(QFileDialog::ShowDirsOnly);
        linksKept = chooser->testOption(QFileDialog::DontResolveSymlinks);
        if (chosen) {
            chooser->findChild<QLineEdit *>()->setText(folders.target() + "/lesson");
            QTest::keyClick(chooser->findChild<QLineEdit *>(), Qt::Key_Enter);
        } else {
            chooser->reject();
        }
    });
    QTest::mouseClick(browse(dialog), Qt::LeftButton);
    QCOMPARE(caption, QString("SaveDirectory"));
    QCOMPARE(start, before.isEmpty() ? folders.home() : before);
    QVERIFY(foldersOnly);
    QVERIFY(linksKept);
    QCOMPARE(dialog.getSaveDirectory(), chosen ? folders.target() + "/lesson" : before);
}

void SettingTest::okAcceptsTheDefaultLocation()
{
    const StoreFolders folders;
    Setting dialog;
    dialog.show();
    QVERIFY(QDir(folders.home()).removeRecursively());
    const MessageReader user;
    QTest::mouseClick(find<QPushButton>(dialog, "btnOk"), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QVERIFY(dialog.isHidden());
    QCOMPARE(user.texts(), QStringList());
    // Accepting alone writes nothing.
    QVERIFY(!QFileInfo::exists(settingsFile(folders)));
}

void SettingTest::okChecksTheSaveFolder_data()
{
    QTest::addColumn<QString>("path"); // below the test's folder, unless it is absolute
    QTest::addColumn<QString>("complaint");
    const QString invalid = "Invalid PATH is specified.";
    QTest::newRow("a folder") << "saved" << QString();
    QTest::newRow("nothing") << ""
                             << "Please specify the save location.";
    QTest::newRow("a missing folder") << "missing" << invalid;
    QTest::newRow("a file") << "file" << invalid;
    QTest::newRow("the root") << "/" << invalid;
    QTest::newRow("a link to a folder") << "link" << invalid;
}

void SettingTest::okChecksTheSaveFolder()
{
    QFETCH(QString, path);
    QFETCH(QString, complaint);
    const StoreFolders folders;
    QVERIFY(StoreFolders::write(folders.root() + "/file"));
    QVERIFY(QFile::link(folders.target(), folders.root() + "/link"));
    const QString typed = path.isEmpty() ? path : QDir(folders.root()).filePath(path);
    Setting dialog;
    dialog.show();
    QVERIFY(chooseOther(dialog, typed));
    const MessageReader user;
    QTest::mouseClick(find<QPushButton>(dialog, "btnOk"), Qt::LeftButton);
    if (complaint.isEmpty()) {
        QCOMPARE(user.texts(), QStringList());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(dialog.isHidden());
    } else {
        QCOMPARE(user.texts(), QStringList(complaint));
        QCOMPARE(user.messages().constFirst().icon, QMessageBox::Warning);
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.getSaveDirectory(), typed);
        QVERIFY(useOther(dialog)->isChecked());
    }
}

void SettingTest::okRefusesAReadOnlyFolder()
{
    const StoreFolders folders;
    // Where any user can look, whoever owns the build folder.
    const QTemporaryDir open("/tmp/tst_setting-XXXXXX");
    const QString lesson = open.filePath("lesson");
    QVERIFY(QDir().mkpath(lesson));
    QCOMPARE(chmod(QFile::encodeName(open.path()).constData(), 0755), 0);
    Setting dialog;
    dialog.show();
    QVERIFY(chooseOther(dialog, lesson));
    const MessageReader user;
    const auto pressOk = [&](mode_t mode) {
        if (chmod(QFile::encodeName(lesson).constData(), mode) != 0)
            return false;
        const OrdinaryUser pupil;
        QTest::mouseClick(find<QPushButton>(dialog, "btnOk"), Qt::LeftButton);
        return pupil.isOrdinary();
    };
    QVERIFY(pressOk(0555));
    QCOMPARE(user.texts(), QStringList("Invalid PATH is specified."));
    QVERIFY(dialog.isVisible());
    QVERIFY(pressOk(0777));
    QCOMPARE(user.texts().size(), 1);
    QVERIFY(dialog.isHidden());
}

void SettingTest::enterIsOk()
{
    const StoreFolders folders;
    Setting dialog;
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Enter);
    QVERIFY(dialog.isHidden());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void SettingTest::theKeyboardWalksThroughTheControlsInOrder()
{
    const StoreFolders folders;
    const Setting dialog;
    const QStringList order = {"cmbAutoShooting",  "cmbContinuousShooting", "chbPhotoPreview",
                               "cmbResolution",    "rbtnDefault",           "rbtnCustom",
                               "txbSaveDirectory", "tolSaveDirectory",      "btnOk",
                               "btnCancel"};
    QStringList walked;
    for (const QWidget *widget = selfTimer(dialog)->nextInFocusChain(); widget != selfTimer(dialog);
         widget = widget->nextInFocusChain())
        if (order.contains(widget->objectName()))
            walked.append(widget->objectName());
    QCOMPARE(walked, order);
}

void SettingTest::boxesWithoutALabelAreNamedForScreenReaders()
{
    const StoreFolders folders;
    const Setting dialog;
    QCOMPARE(seconds(dialog)->accessibleName(), QString("Self Timer"));
    QCOMPARE(browse(dialog)->accessibleName(), QString("SaveDirectory"));
    QCOMPARE(find<QLabel>(dialog, "lblContinuousShooting")->buddy(), shots(dialog));
    QCOMPARE(find<QLabel>(dialog, "lblResolution")->buddy(), resolution(dialog));
    QCOMPARE(find<QLabel>(dialog, "label")->buddy(), folder(dialog));
}

void SettingTest::aListOfResolutionsIsOfferedOnce_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QStringList>("list");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("selected");
    QTest::newRow("an unknown one takes the middle of the given list")
        << "unknown" << QStringList{"640x480", "640x480", "1280x720"} << 2 << "1280x720";
    QTest::newRow("a known one is found")
        << "640x480" << QStringList{"640x480", "1280x720", "1920x1080"} << 3 << "640x480";
    QTest::newRow("a known one is found at the end")
        << "640x480" << QStringList{"1920x1080", "1280x720", "640x480"} << 3 << "640x480";
    QTest::newRow("another letter case is another one")
        << "640X480" << QStringList{"640x480", "1280x720"} << 2 << "1280x720";
    QTest::newRow("repetitions can push the middle past the end")
        << "unknown" << QStringList{"640x480", "640x480", "640x480"} << 1 << "";
    QTest::newRow("an empty list changes nothing") << "unknown" << QStringList{} << 1 << "640x480";
}

void SettingTest::aListOfResolutionsIsOfferedOnce()
{
    QFETCH(QString, stored);
    QFETCH(QStringList, list);
    QFETCH(int, count);
    QFETCH(QString, selected);
    const StoreFolders folders;
    QVERIFY(writeSettings(folders, "Resolution=" + stored.toLatin1() + "\n"));
    Setting dialog;
    dialog.setResolutionList(list);
    QCOMPARE(resolution(dialog)->count(), count);
    QCOMPARE(dialog.getResolution(), selected);
}

void SettingTest::theResolutionCanBeLocked()
{
    const StoreFolders folders;
    Setting dialog;
    dialog.setCmbResoEnable(false);
    QVERIFY(!resolution(dialog)->isEnabled());
    dialog.setCmbResoEnable(true);
    QVERIFY(resolution(dialog)->isEnabled());
}

QTEST_MAIN(SettingTest)
#include "tst_setting.moc"
