#include "CTranslator.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QTranslator>

namespace {

constexpr char filePrefix[] = "qvexplugin_";

bool hasTranslation(const QString &dir, const QString &prefix, const QString &locale)
{
    return QFileInfo(QDir(dir), prefix + locale + ".qm").isFile();
}

} // namespace

QString CTranslator::getLocale(const QString &dir, const QString &prefix)
{
    QString english = QStringLiteral("en");
    const QSettings whiteboard(QSettings::UserScope, "MerovexSolutions", "Tavelin Software");
    if (!whiteboard.contains("locale")) {
        return english;
    }
    QString chosen = whiteboard.value("locale").toString();
    if (chosen.isNull()) {
        return english;
    }
    if (hasTranslation(dir, prefix, chosen)) {
        return chosen;
    }
    QString language = chosen.left(2);
    if (hasTranslation(dir, prefix, language)) {
        return language;
    }
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
    translator->load(dir + "/" + filePrefix + locale);
    // Installed even when there was nothing to load; the texts are then the English ones.
    QCoreApplication::installTranslator(translator);

    if (locale == "ar" || locale == "he") {
        QApplication::setLayoutDirection(Qt::RightToLeft);
    }
}
