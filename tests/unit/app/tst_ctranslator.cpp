#include "CTranslator.h"

#include <QDir>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

namespace {

// What the whiteboard application keeps for this user; a null string is a user without it.
void setWhiteboardLanguage(const QVariant &locale)
{
    QSettings settings(QSettings::UserScope, "MerovexSolutions", "Tavelin Software");
    settings.clear();
    if (locale.isValid())
        settings.setValue("locale", locale);
    settings.sync();
}

bool touch(const QString &path)
{
    return QFile(path).open(QIODevice::WriteOnly);
}

} // namespace

class tst_CTranslator : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void theLanguageIsTheWhiteboardsAsFarAsThereIsAFile_data();
    void theLanguageIsTheWhiteboardsAsFarAsThereIsAFile();
    void onlyFilesWithThePrefixCount();
    void aFolderIsNoTranslation();
    void theWhiteboardsSettingsAreNotWritten();

    void textsAndDirectionFollowTheChosenLanguage_data();
    void textsAndDirectionFollowTheChosenLanguage();

private:
    QScopedPointer<QTemporaryDir> m_dir;
};

void tst_CTranslator::init()
{
    m_dir.reset(new QTemporaryDir);
    QVERIFY(m_dir->isValid());
    setWhiteboardLanguage(QVariant());
}

void tst_CTranslator::theLanguageIsTheWhiteboardsAsFarAsThereIsAFile_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("locale");
    const QStringList none;
    QTest::newRow("no whiteboard application") << QVariant() << QStringList("de") << "en";
    QTest::newRow("German") << QVariant("de") << QStringList("de") << "de";
    QTest::newRow("German without a file") << QVariant("de") << none << "en";
    QTest::newRow("Brazilian, with its file")
        << QVariant("pt_BR") << QStringList({"pt", "pt_BR"}) << "pt_BR";
    QTest::newRow("Brazilian, with Portuguese only")
        << QVariant("pt_BR") << QStringList("pt") << "pt";
    QTest::newRow("Taiwan, with Chinese only") << QVariant("zh_TW") << QStringList("zh") << "zh";
    QTest::newRow("Bokmål of Norway, no file at all") << QVariant("nb_NO") << none << "no";
    QTest::newRow("Bokmål, with the Norwegian file") << QVariant("nb") << QStringList("no") << "no";
    QTest::newRow("Bokmål, with a file of its own")
        << QVariant("nb_NO") << QStringList({"nb", "no"}) << "nb";
    QTest::newRow("Arabic without a file") << QVariant("ar") << QStringList("de") << "en";
    QTest::newRow("Hebrew") << QVariant("he") << QStringList("he") << "he";
    QTest::newRow("an empty value") << QVariant("") << QStringList("de") << "en";
    QTest::newRow("a value that is no text")
        << QVariant(QStringList({"de", "fr"})) << QStringList("de") << "en";
    QTest::newRow("one letter") << QVariant("x") << QStringList("de") << "en";
}

void tst_CTranslator::theLanguageIsTheWhiteboardsAsFarAsThereIsAFile()
{
    QFETCH(QVariant, stored);
    QFETCH(QStringList, files);
    setWhiteboardLanguage(stored);
    for (const QString &file : qAsConst(files))
        QVERIFY(touch(m_dir->filePath("prefix_" + file + ".qm")));
    QTEST(CTranslator::getLocale(m_dir->path(), "prefix_"), "locale");
}

void tst_CTranslator::onlyFilesWithThePrefixCount()
{
    setWhiteboardLanguage("de");
    QVERIFY(touch(m_dir->filePath("another_de.qm")));
    QVERIFY(touch(m_dir->filePath("prefix_de.ts")));
    QCOMPARE(CTranslator::getLocale(m_dir->path(), "prefix_"), QString("en"));
    QCOMPARE(CTranslator::getLocale(m_dir->path(), "another_"), QString("de"));
}

void tst_CTranslator::aFolderIsNoTranslation()
{
    setWhiteboardLanguage("de");
    QVERIFY(QDir(m_dir->path()).mkdir("prefix_de.qm"));
    QCOMPARE(CTranslator::getLocale(m_dir->path(), "prefix_"), QString("en"));
}

void tst_CTranslator::theWhiteboardsSettingsAreNotWritten()
{
    setWhiteboardLanguage("pt_BR");
    QFile file(QSettings(QSettings::UserScope, "MerovexSolutions", "Tavelin Software").fileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    QVERIFY(before.contains("pt_BR"));
    QCOMPARE(CTranslator::getLocale(m_dir->path(), "prefix_"), QString("en"));
    QVERIFY(file.seek(0));
    QCOMPARE(file.readAll(), before);
}

void tst_CTranslator::textsAndDirectionFollowTheChosenLanguage_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("said");
    // Of the program and of the toolkit, which has no Norwegian.
    const QByteArray english("Photo\nNew Folder\nfrom the left\n");
    const auto translated = [](const char *toolkit) {
        return QByteArray("translated\n") + toolkit + "\nfrom the left\n";
    };
    const auto reversed = [](const char *toolkit) {
        return QByteArray("translated\n") + toolkit + "\nfrom the right\n";
    };
    QTest::newRow("no whiteboard application") << QVariant() << "de" << english;
    QTest::newRow("German") << QVariant("de") << "de" << translated("Neues Verzeichnis");
    QTest::newRow("German without a file") << QVariant("de") << "fr" << english;
    QTest::newRow("English, with its file") << QVariant("en") << "en" << translated("New Folder");
    QTest::newRow("Brazilian, with its file")
        << QVariant("pt_BR") << "pt_BR" << translated("Nova pasta");
    QTest::newRow("Brazilian, with Portuguese only")
        << QVariant("pt_BR") << "pt" << translated("Nova pasta");
    QTest::newRow("Bokmål, with the Norwegian file")
        << QVariant("nb_NO") << "no" << translated("New Folder");
    QTest::newRow("Bokmål without a file") << QVariant("nb_NO") << "de" << english;
    QTest::newRow("Chinese") << QVariant("zh") << "zh" << translated("新建文件夹");
    QTest::newRow("Chinese of Taiwan") << QVariant("zh_TW") << "zh_TW" << translated("新資料夾");
    QTest::newRow("Arabic") << QVariant("ar") << "ar" << reversed("مجلّد جديد");
    QTest::newRow("Arabic without a file") << QVariant("ar") << "de" << english;
    QTest::newRow("Hebrew") << QVariant("he") << "he" << reversed("תיקייה חדשה");
    QTest::newRow("Hebrew of Israel") << QVariant("he_IL") << "he" << reversed("תיקייה חדשה");
}

void tst_CTranslator::textsAndDirectionFollowTheChosenLanguage()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, file);
    setWhiteboardLanguage(stored);
    // The files lie beside the program, so the program is put beside the files.
    const QString program = m_dir->filePath("speaker");
    QVERIFY(QFile::copy(SPEAKER, program));
    QVERIFY(QFile::copy(SPEAKER_TRANSLATION, m_dir->filePath("qvexplugin_" + file + ".qm")));
    QProcess speaker;
    speaker.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    speaker.start(program, QStringList());
    QVERIFY(speaker.waitForFinished());
    QTEST(speaker.readAllStandardOutput(), "said");
}

QTEST_GUILESS_MAIN(tst_CTranslator)
#include "tst_ctranslator.moc"
