#include "CTranslator.h"
#include "FaultTrial.h"
#include "IniText.h"
#include "Setting.h"
#include "SpareTime.h"
#include "StoreFolders.h"

#include <QDataStream>
#include <QRegularExpression>
#include <QSettings>
#include <QTest>

#include <sys/stat.h>

// Settings files as damaged disks and strange hands leave them, the program's own and that of the
// whiteboard software, which is asked for the language.

#ifdef __SANITIZE_ADDRESS__
static constexpr double longestStandstill = 10000; // ms; everything takes several times as long
#else
static constexpr double longestStandstill = 2000; // ms
#endif

// An object as the toolkit writes it into a settings file, of what stands for it in a data stream.
static QByteArray object(const QByteArray &stream)
{
    QByteArray text = "@Variant(";
    for (const char byte : stream)
        text += "\\x" + QByteArray::number(uchar(byte), 16);
    return text + ')';
}

static QByteArray streamOf(const QVector<quint32> &words)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const quint32 word : words)
        stream << word;
    return bytes;
}

// Lists within lists: each takes some of the stack of whoever restores them.
static QByteArray nestedLists(int depth)
{
    QVector<quint32> words;
    for (int i = 0; i < depth; ++i)
        words << quint32(QMetaType::QVariantList) << 1;
    return object(streamOf(words));
}

// Of a few bytes that say they are two thousand million points.
static QByteArray endlessPolygon()
{
    const quint32 polygon =
        71; // in the oldest of the toolkit's streams, which settings are kept in
    return object(streamOf({polygon, 0x7fffffff}));
}

static QByteArray hundredMegabytes()
{
    QByteArray lines;
    for (int i = 0; lines.size() < 1 << 20; ++i)
        lines += "key" + QByteArray::number(i) + "=something that takes its time to be read\n";
    return lines.repeated(100);
}

static QByteArray randomBytes(FaultTrial &trial, int count)
{
    QByteArray bytes(count, '\0');
    for (char &byte : bytes)
        byte = char(trial.upTo(255));
    return bytes;
}

// A settings file with some places of it changed.
static QByteArray damaged(FaultTrial &trial)
{
    static const QByteArrayList pieces = {"@Variant(",   "@DateTime(",
                                          "\\x40",       "\\100",
                                          "\"",          ",",
                                          ";",           "\\",
                                          "[General]",   "[",
                                          "=",           "%",
                                          "@",           "AutoShoot=",
                                          "-2147483649", "4294967297",
                                          "\\x",         QByteArray(1, 0),
                                          "\r",          "@String(",
                                          ")",           "ContinuShootCount=",
                                          "1e9",         "@Size(",
                                          "@ByteArray(", "\xff\xfe",
                                          " ",           "\n"};
    QByteArray text = "[General]\nAutoShoot=1\nAutoShootTime=10\nContinuShootCount=6\n"
                      "PhotoPreview=0\nResolution=640x480\nSaveDirectory=/media/stick\n";
    for (int i = trial.upTo(8); i >= 0; --i) {
        const int at = trial.upTo(text.size() - 1);
        switch (trial.upTo(3)) {
        case 0:
            text[at] = char(trial.upTo(255));
            break;
        case 1:
            text.insert(at, pieces[trial.upTo(pieces.size() - 1)]);
            break;
        case 2:
            text.remove(at, trial.upTo(20));
            break;
        default:
            text.insert(at, text.mid(trial.upTo(text.size() - 1), 40));
            break;
        }
    }
    return text;
}

class TestHostileSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDamagedFileGivesSettingsThatCanBeUsed_data();
    void aDamagedFileGivesSettingsThatCanBeUsed();
    void settingsAreSavedInPlaceOfAFileThatNobodyCanRead_data();
    void settingsAreSavedInPlaceOfAFileThatNobodyCanRead();
    void aLockThatIsNoneDoesNotHoldTheWindow_data();
    void aLockThatIsNoneDoesNotHoldTheWindow();
    void whateverIsDamagedSettingsAreInTheirRanges();
    void noDamageMakesTheToolkitRestoreAnObject();
    void theWhiteboardsFileMayHoldAnything_data();
    void theWhiteboardsFileMayHoldAnything();
    void theLanguageIsFoundBetweenTheWhiteboardsOwnObjects();

private:
    static QString file(const StoreFolders &folders)
    {
        return folders.home() + "/.halcyra_orvantacc.ini";
    }
    static void addFiles();
    static bool make(const QString &path, const QByteArray &kind, const QByteArray &contents);
};

void TestHostileSettings::addFiles()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QByteArray>("contents");
    const auto row = [](const char *name, const char *kind, const QByteArray &contents = {}) {
        QTest::newRow(name) << QByteArray(kind) << contents;
    };
    row("empty", "file");
    row("a pipe", "pipe");
    row("a folder", "folder");
    row("a link to itself", "loop");
    row("a link to an endless device", "endless");
    row("a hundred megabytes", "large");
    row("one line of a megabyte", "file", "[General]\nx=" + QByteArray(1000000, 'y'));
    row("nothing but zeros", "file", QByteArray(5000, '\0'));
    row("lists within lists", "file", "[General]\nAutoShoot=" + nestedLists(60000) + '\n');
    row("lists within lists in another's key", "file", "[General]\nx=" + nestedLists(30000) + '\n');
    row("a polygon of no end", "file", "[General]\nAutoShoot=" + endlessPolygon() + '\n');
    row("an object behind an escape", "file",
        "[General]\nAutoShoot=" + endlessPolygon().replace("@V", "\\x40\\126") + '\n');
    row("an object in pieces", "file",
        "[General]\nAutoShoot=" + endlessPolygon().replace("@Var", "@V\"\"a\\qr") + '\n');
    row("an object in a list", "file", "[General]\nAutoShoot=1, " + endlessPolygon() + '\n');
}

bool TestHostileSettings::make(const QString &path, const QByteArray &kind,
                               const QByteArray &contents)
{
    const QByteArray name = QFile::encodeName(path);
    if (kind == "pipe")
        return mkfifo(name.constData(), 0600) == 0;
    if (kind == "folder")
        return QDir().mkpath(path);
    if (kind == "loop")
        return QFile::link(path, path);
    if (kind == "endless")
        return QFile::link("/dev/zero", path);
    return StoreFolders::write(path, kind == "large" ? hundredMegabytes() : contents);
}

void TestHostileSettings::aDamagedFileGivesSettingsThatCanBeUsed_data()
{
    addFiles();
}

void TestHostileSettings::aDamagedFileGivesSettingsThatCanBeUsed()
{
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, contents);
    const StoreFolders folders;
    QVERIFY(make(file(folders), kind, contents));
    const SpareTime spare;
    QElapsedTimer time;
    time.start();
    const Setting dialog;
    QVERIFY2(time.elapsed() < longestStandstill + 1000 * spare.lateness(),
             qPrintable(QString::number(time.elapsed())));
    QCOMPARE(dialog.getAutoShootingTime(), 5);
    QCOMPARE(dialog.getContinuousShooting(), 4);
    QCOMPARE(dialog.getSaveDirectory(), folders.home());
}

void TestHostileSettings::settingsAreSavedInPlaceOfAFileThatNobodyCanRead_data()
{
    addFiles();
}

void TestHostileSettings::settingsAreSavedInPlaceOfAFileThatNobodyCanRead()
{
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, contents);
    const StoreFolders folders;
    QVERIFY(make(file(folders), kind, contents));
    Setting dialog;
    dialog.findChild<QComboBox *>("cmbContinuousShooting")->setCurrentText("9");
    const SpareTime spare;
    QElapsedTimer time;
    time.start();
    dialog.SaveFile();
    QVERIFY2(time.elapsed() < longestStandstill + 1000 * spare.lateness(),
             qPrintable(QString::number(time.elapsed())));
    const bool canBeReplaced = kind != "folder";
    QCOMPARE(Setting().getContinuousShooting(), canBeReplaced ? 9 : 4);
}

void TestHostileSettings::aLockThatIsNoneDoesNotHoldTheWindow_data()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char *kind : {"pipe", "folder", "loop", "file"})
        QTest::newRow(kind) << QByteArray(kind);
}

void TestHostileSettings::aLockThatIsNoneDoesNotHoldTheWindow()
{
    QFETCH(QByteArray, kind);
    const StoreFolders folders;
    QVERIFY(make(file(folders) + ".lock", kind, "1\norvanta\nanother machine\n"));
    Setting dialog;
    const SpareTime spare;
    QElapsedTimer time;
    time.start();
    dialog.SaveFile();
    QVERIFY2(time.elapsed() < 3 * longestStandstill + 1000 * spare.lateness(),
             qPrintable(QString::number(time.elapsed())));
}

void TestHostileSettings::whateverIsDamagedSettingsAreInTheirRanges()
{
    FaultTrial trial("the settings file is damaged", 60, 5000);
    while (trial.next()) {
        const StoreFolders folders;
        const QByteArray contents =
            trial.upTo(9) > 0 ? damaged(trial) : randomBytes(trial, trial.upTo(5000));
        QVERIFY(StoreFolders::write(file(folders), contents));
        Setting dialog;
        const QByteArray shown = contents.toPercentEncoding(); // as it can be read
        QVERIFY2(QList<int>({1, 2, 3, 4, 5, 10, 15, 20, 30}).contains(dialog.getAutoShootingTime()),
                 shown.constData());
        QVERIFY2(QList<int>({2, 3, 4, 6, 9}).contains(dialog.getContinuousShooting()),
                 shown.constData());
        QVERIFY2(!dialog.getSaveDirectory().isEmpty(), shown.constData());
        dialog.SaveFile();
        const Setting again;
        QCOMPARE(again.getAutoShootingTime(), dialog.getAutoShootingTime());
        QCOMPARE(again.getContinuousShooting(), dialog.getContinuousShooting());
        QCOMPARE(again.getPhotoPreview(), dialog.getPhotoPreview());
    }
}

void TestHostileSettings::noDamageMakesTheToolkitRestoreAnObject()
{
    const QVector<QVariant::Type> harmless = {
        QVariant::Invalid, QVariant::String, QVariant::StringList, QVariant::ByteArray,
        QVariant::Rect,    QVariant::Size,   QVariant::Point,      QVariant::List};
    FaultTrial trial("the settings file hides an object", 1000, 200000);
    const QTemporaryDir folder;
    int passed = 0;
    while (trial.next()) {
        const QByteArray contents = damaged(trial);
        if (!IniText::isPlain(contents))
            continue;
        ++passed;
        const QString path = folder.filePath(QString::number(trial.tries()));
        QVERIFY(StoreFolders::write(path, contents));
        const QSettings settings(path, QSettings::IniFormat);
        for (const QString &key : settings.allKeys().filter(QRegularExpression(".")))
            QVERIFY2(harmless.contains(settings.value(key).type()),
                     contents.toPercentEncoding().constData());
        QFile::remove(path);
    }
    QVERIFY(passed > trial.tries() / 3);
}

void TestHostileSettings::theWhiteboardsFileMayHoldAnything_data()
{
    addFiles();
    const auto row = [](const char *name, const QByteArray &locale) {
        QTest::newRow(name) << QByteArray("file") << "[General]\nlocale=" + locale + '\n';
    };
    row("an empty language", "");
    row("a language of ten thousand letters", QByteArray(10000, 'x'));
    row("a language in the folder above", "../x");
    row("a language with a zero", QByteArray("x\0y", 3));
    row("a language with an escaped zero", "x\\0y");
    row("an object for a language", endlessPolygon());
    row("a list of languages", "de, fr");
}

void TestHostileSettings::theWhiteboardsFileMayHoldAnything()
{
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, contents);
    const QTemporaryDir config;
    const QTemporaryDir translations;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config.path());
    QVERIFY(StoreFolders::write(translations.filePath("qv_de.qm")));
    QVERIFY(QDir().mkpath(config.filePath("MerovexSolutions")));
    QVERIFY(make(config.filePath("MerovexSolutions/Tavelin Software.conf"), kind,
                 contents.replace("AutoShoot", "locale")));
    const SpareTime spare;
    QElapsedTimer time;
    time.start();
    QCOMPARE(CTranslator::getLocale(translations.path(), "qv_"), QString("en"));
    QVERIFY2(time.elapsed() < longestStandstill + 1000 * spare.lateness(),
             qPrintable(QString::number(time.elapsed())));
}

void TestHostileSettings::theLanguageIsFoundBetweenTheWhiteboardsOwnObjects()
{
    const QTemporaryDir config;
    const QTemporaryDir translations;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, config.path());
    QVERIFY(StoreFolders::write(translations.filePath("qv_de.qm")));
    {
        QSettings whiteboard(QSettings::UserScope, "MerovexSolutions", "Tavelin Software");
        whiteboard.setValue("a colour", QColor(Qt::red));
        whiteboard.setValue("locale", "de");
        whiteboard.setValue("opened", QDateTime::currentDateTime());
        whiteboard.setValue("other/locale", "fr");
    }
    QCOMPARE(CTranslator::getLocale(translations.path(), "qv_"), QString("de"));
}

QTEST_MAIN(TestHostileSettings)
#include "tst_hostilesettings.moc"
