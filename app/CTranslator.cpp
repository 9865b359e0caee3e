#include "CTranslator.h"

#include "IniText.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QFont>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

namespace {

constexpr char filePrefix[] = "qvexplugin_";

bool hasTranslation(const QString &dir, const QString &prefix, const QString &locale)
{
    return QFileInfo(QDir(dir), prefix + locale + ".qm").isFile();
}

QString textOf(QByteArray written)
{
    static const QByteArray bytes = "@ByteArray(";
    if (written.contains(','))
        return QString(); // several values, none of them a language
    if (written.startsWith(bytes) && written.endsWith(')'))
        written = written.mid(bytes.size()).chopped(1);
    return QString::fromLatin1(written.replace('"', ""));
}

// The language that the whiteboard application is set to; null when there is none. Its settings are
// looked for where the toolkit keeps such things, but read by ourselves: the file is not ours, and
// whatever else is in it must not keep this program from starting.
QString whiteboardsLocale()
{
    for (const QSettings::Scope scope : {QSettings::UserScope, QSettings::SystemScope}) {
        const QFileInfo beside(QSettings(scope, QStringLiteral("orvanta")).fileName());
        for (const char *name :
             {"MerovexSolutions/Tavelin Software.conf", "MerovexSolutions.conf"}) {
            const QByteArray contents =
                IniText::contents(beside.path() + QLatin1Char('/') + QLatin1String(name));
            const QByteArray written = IniText::written(contents, "locale");
            if (!written.isNull())
                return textOf(written);
        }
    }
    return QString();
}

// What the toolkit writes on the buttons of our boxes. It does not speak all of our languages, so
// our own files translate these as well.
[[maybe_unused]] constexpr const char *toolkitCaptions[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"), QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel")};

// The toolkit's own texts, such as those of the box that chooses a folder, in our language.
void translateToolkit(const QString &locale)
{
    static auto *const translator = new QTranslator; // as long-lived as our own
    if (translator->load(QLocale(locale), "qtbase", "_",
                         QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
}

} // namespace

QString CTranslator::getLocale(const QString &dir, const QString &prefix)
{
    QString english = QStringLiteral("en");
    QString chosen = whiteboardsLocale();
    if (chosen.isNull())
        return english;
    if (hasTranslation(dir, prefix, chosen))
        return chosen;
    QString language = chosen.left(2);
    if (hasTranslation(dir, prefix, language))
        return language;
    // Norwegian Bokmål is served by the file for "no". Whether there is one is not looked up:
    // without it the texts stay English all the same.
    return language == "nb" ? QStringLiteral("no") : english;
}

void translate()
{
    const QString dir = QDir(QCoreApplication::applicationDirPath()).absolutePath();
    const QString locale = CTranslator::getLocale(dir, filePrefix);

    // Never deleted: it is in use until the last widget is gone.
    static auto *const translator = new QTranslator;
    // The toolkit's translator goes in first: of two that know a text the one installed last is
    // used, and that is to be our own.
    if (translator->load(dir + "/" + filePrefix + locale))
        translateToolkit(locale);
    // Installed even when there was nothing to load; the texts are then the English ones.
    QCoreApplication::installTranslator(translator);

    if (locale == "ar") {
        // Our texts ask for a very thin Arial. Where that is missing the system offers DejaVu Sans
        // ExtraLight, which has no Arabic letters, and takes those from a monospaced font. These
        // two families have proper ones.
        QFont::insertSubstitutions("Arial", {"Liberation Sans", "DejaVu Sans Condensed"});
    }
    if (locale == "ar" || locale == "he")
        QApplication::setLayoutDirection(Qt::RightToLeft);
}
