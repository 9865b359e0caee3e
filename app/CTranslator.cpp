#include "CTranslator.h"

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
    const QSettings whiteboard(QSettings::UserScope, "MerovexSolutions", "Tavelin Software");
    if (!whiteboard.contains("locale"))
        return english;
    QString chosen = whiteboard.value("locale").toString();
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
