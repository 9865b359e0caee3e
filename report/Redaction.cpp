#include "Redaction.h"

#include <QDir>
#include <QRegularExpression>
#include <QSysInfo>

#include <algorithm>
#include <pwd.h>
#include <unistd.h>

static const QString placeholder = QStringLiteral("[private]");
static constexpr int shortestPart = 3; // letters of a word that is looked for in others

void Redaction::add(const QString &word)
{
    const QString plain = word.simplified();
    if (plain.isEmpty() || m_words.contains(plain, Qt::CaseInsensitive))
        return;
    m_words.append(plain);
    std::stable_sort(m_words.begin(), m_words.end(), [](const QString &left, const QString &right) {
        return left.size() > right.size();
    });
}

// The whole and each of its parts: first names, surnames, a machine and its domain.
static void addParts(Redaction &redaction, const QString &whole, QChar between)
{
    redaction.add(whole);
    for (const QString &part : whole.split(between, Qt::SkipEmptyParts))
        redaction.add(part);
}

Redaction Redaction::ofThisUser()
{
    Redaction redaction;
    for (const char *variable : {"USER", "LOGNAME", "SUDO_USER"})
        redaction.add(QString::fromLocal8Bit(qgetenv(variable)));
    redaction.add(QDir::homePath());
    redaction.add(QDir(QDir::homePath()).dirName());
    if (const passwd *user = getpwuid(geteuid())) {
        redaction.add(QString::fromLocal8Bit(user->pw_name));
        // Behind the first comma there are rooms and telephone numbers.
        for (const QString &field : QString::fromLocal8Bit(user->pw_gecos).split(QLatin1Char(',')))
            addParts(redaction, field, QLatin1Char(' '));
    }
    addParts(redaction, QSysInfo::machineHostName(), QLatin1Char('.'));
    redaction.add(QString::fromLatin1(QSysInfo::machineUniqueId()));
    return redaction;
}

QString Redaction::cleaned(QString text) const
{
    // A path, but neither a fraction ("30/1") nor a kind of medium ("video/x-raw").
    static const QRegularExpression path(QStringLiteral("(?<![\\w/.)])~?/[^\\s:;,'\"]+"));
    for (const QString &word : m_words) {
        QString pattern = QRegularExpression::escape(word);
        if (word.size() < shortestPart)
            pattern = QStringLiteral("(?<!\\w)%1(?!\\w)").arg(pattern);
        const QRegularExpression unwanted(pattern,
                                          QRegularExpression::CaseInsensitiveOption
                                              | QRegularExpression::UseUnicodePropertiesOption);
        text.replace(unwanted, placeholder);
    }
    return text.replace(path, placeholder);
}
