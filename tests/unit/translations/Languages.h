#ifndef LANGUAGES_H
#define LANGUAGES_H

#include <QStringList>
#include <QTest>

/** The languages that a classroom may count on. */
inline QStringList languages()
{
    return {"ar", "cs", "da", "de", "el", "en", "es", "fi", "fr", "he",
            "hu", "id", "it", "ja", "ko", "nl", "no", "pl", "pt", "pt_BR",
            "ro", "ru", "sk", "sv", "th", "tr", "uk", "vi", "zh", "zh_TW"};
}

/** One row of test data for each language. */
inline void addLanguageRows()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : languages())
        QTest::newRow(qPrintable(language)) << language;
}

#endif
