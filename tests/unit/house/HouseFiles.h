#ifndef HOUSEFILES_H
#define HOUSEFILES_H

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>

/// What the files of the tree say, for tests that hold them against each other. HOUSE is the tree.
namespace HouseFiles {

/// The text of the file of that path in the tree; empty when there is none.
inline QString contentOf(const QString &path)
{
    QFile file(QDir(HOUSE).filePath(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The first part of the pattern that is caught, of each place where it fits, without blanks
/// around.
inline QStringList captured(const QString &text, const QString &pattern)
{
    QStringList found;
    const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
    for (auto match = expression.globalMatch(text); match.hasNext();)
        found.append(match.next().captured(1).trimmed());
    return found;
}

} // namespace HouseFiles

#endif
