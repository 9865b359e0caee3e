// The translators' files against the program's own texts, and the compiled files against both.

#include "Languages.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

struct Message {
    QString context;
    QString source;
    QString translation;
    bool finished = false;

    QString key() const { return context + QLatin1Char(':') + source; }
};

// Empty when the file is missing or is not well-formed.
QVector<Message> readMessages(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QVector<Message> messages;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            messages.append({context, xml.readElementText(), QString(), false});
        } else if (xml.name() == QLatin1String("translation")) {
            messages.last().finished = !xml.attributes().hasAttribute(QLatin1String("type"));
            messages.last().translation = xml.readElementText();
        }
    }
    return xml.hasError() ? QVector<Message>() : messages;
}

QVector<Message> messagesOf(const QString &language)
{
    return readMessages(
        QStringLiteral(SOURCE_FOLDER "/translations/qvexplugin_%1.ts").arg(language));
}

QStringList sortedKeys(const QVector<Message> &messages)
{
    QStringList keys;
    for (const Message &message : messages)
        keys.append(message.key());
    keys.sort();
    return keys;
}

QString blanksBefore(const QString &text)
{
    const auto *const end =
        std::find_if_not(text.cbegin(), text.cend(), [](QChar letter) { return letter.isSpace(); });
    return text.left(int(end - text.cbegin()));
}

QString blanksAfter(const QString &text)
{
    QString reversed = text;
    std::reverse(reversed.begin(), reversed.end());
    return blanksBefore(reversed);
}

} // namespace

class TranslationSourcesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyLanguageHasExactlyTheTextsOfTheProgram_data() { addLanguageRows(); }
    void everyLanguageHasExactlyTheTextsOfTheProgram();
    void everyTextIsTranslatedAndFinished_data() { addLanguageRows(); }
    void everyTextIsTranslatedAndFinished();
    void textsThatNameBitmapsStayAsTheyAre_data() { addLanguageRows(); }
    void textsThatNameBitmapsStayAsTheyAre();
    void theNameOfTheProgramStaysAsItIs_data() { addLanguageRows(); }
    void theNameOfTheProgramStaysAsItIs();
    void blanksAndLineBreaksAtTheEndsAreKept_data() { addLanguageRows(); }
    void blanksAndLineBreaksAtTheEndsAreKept();
    void theSwitchCaptionsKeepTheirTwoLines_data() { addLanguageRows(); }
    void theSwitchCaptionsKeepTheirTwoLines();
    void theCompiledFileBesideTheProgramHoldsEveryText_data() { addLanguageRows(); }
    void theCompiledFileBesideTheProgramHoldsEveryText();
    void noSourceIsLeftOutOfTheList();

private:
    QStringList m_textsOfTheProgram;
};

void TranslationSourcesTest::initTestCase()
{
    const QTemporaryDir folder;
    const QString fresh = folder.filePath(QStringLiteral("fresh.ts"));
    QProcess lupdate;
    lupdate.setWorkingDirectory(QStringLiteral(SOURCE_FOLDER));
    lupdate.start(QStringLiteral(LUPDATE),
                  {"app", "browse", "capture", "maindialog", "settings", "store", "-ts", fresh});
    QVERIFY(lupdate.waitForFinished());
    QCOMPARE(lupdate.exitCode(), 0);
    m_textsOfTheProgram = sortedKeys(readMessages(fresh));
    QVERIFY(m_textsOfTheProgram.contains(QStringLiteral("TimerWidget: second to capture")));
}

void TranslationSourcesTest::everyLanguageHasExactlyTheTextsOfTheProgram()
{
    QFETCH(QString, language);
    QCOMPARE(sortedKeys(messagesOf(language)), m_textsOfTheProgram);
}

void TranslationSourcesTest::everyTextIsTranslatedAndFinished()
{
    QFETCH(QString, language);
    const QVector<Message> messages = messagesOf(language);
    QVERIFY(!messages.isEmpty());
    for (const Message &message : messages) {
        QVERIFY2(message.finished, qPrintable(message.key()));
        QVERIFY2(!message.translation.trimmed().isEmpty(), qPrintable(message.key()));
    }
}

void TranslationSourcesTest::textsThatNameBitmapsStayAsTheyAre()
{
    QFETCH(QString, language);
    QStringList names;
    for (const Message &message : messagesOf(language)) {
        if (message.context == QLatin1String("PictureWidget")
            && (message.source == QLatin1String("Zoom")
                || message.source == QLatin1String("Back"))) {
            QCOMPARE(message.translation, message.source);
            names.append(message.source);
        }
    }
    names.sort();
    QCOMPARE(names, QStringList({"Back", "Zoom"}));
}

void TranslationSourcesTest::theNameOfTheProgramStaysAsItIs()
{
    QFETCH(QString, language);
    int found = 0;
    for (const Message &message : messagesOf(language)) {
        if (message.source == QLatin1String("Orvanta")) {
            QCOMPARE(message.translation, message.source);
            ++found;
        }
    }
    QVERIFY(found > 0);
}

// The pieces are put together with numbers and with one another, so their blanks matter. The text
// that only reserves room for the countdown begins and ends as it needs to.
void TranslationSourcesTest::blanksAndLineBreaksAtTheEndsAreKept()
{
    QFETCH(QString, language);
    for (const Message &message : messagesOf(language)) {
        if (message.source == QLatin1String("0 second to capture  ")) {
            QVERIFY(blanksAfter(message.translation).size() >= 2);
            continue;
        }
        QVERIFY2(blanksBefore(message.translation) == blanksBefore(message.source),
                 qPrintable(message.key()));
        QVERIFY2(blanksAfter(message.translation) == blanksAfter(message.source),
                 qPrintable(message.key()));
    }
}

void TranslationSourcesTest::theSwitchCaptionsKeepTheirTwoLines()
{
    QFETCH(QString, language);
    const QString secondLine = QStringLiteral(" /\n    ");
    int found = 0;
    for (const Message &message : messagesOf(language)) {
        if (message.source.contains(secondLine)) {
            QCOMPARE(message.translation.count(QLatin1Char('\n')), 1);
            QVERIFY2(message.translation.contains(secondLine), qPrintable(message.translation));
            ++found;
        }
    }
    QCOMPARE(found, 2);
}

void TranslationSourcesTest::theCompiledFileBesideTheProgramHoldsEveryText()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(
        translator.load(QStringLiteral("qvexplugin_") + language, QStringLiteral(PROGRAM_FOLDER)));
    for (const Message &message : messagesOf(language)) {
        QCOMPARE(
            translator.translate(qUtf8Printable(message.context), qUtf8Printable(message.source)),
            message.translation);
    }
}

void TranslationSourcesTest::noSourceIsLeftOutOfTheList()
{
    QStringList expected;
    for (const QString &language : languages())
        expected.append(QStringLiteral("qvexplugin_%1.ts").arg(language));
    expected.sort();
    const QDir folder(QStringLiteral(SOURCE_FOLDER "/translations"));
    QCOMPARE(folder.entryList({"*.ts"}, QDir::Files, QDir::Name), expected);
}

QTEST_GUILESS_MAIN(TranslationSourcesTest)
#include "tst_translationsources.moc"
