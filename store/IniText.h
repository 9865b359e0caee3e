#ifndef INITEXT_H
#define INITEXT_H

#include <QByteArray>
#include <QString>

/**
 * Settings files before the toolkit reads them: whatever else may stand in the place of such a file
 * must neither keep the program from starting nor crash it. The toolkit waits for ever for what a
 * pipe has to say, reads hundreds of megabytes, and makes objects of any kind of the texts that
 * stand for them, for which a damaged text can need more memory or stack than there is.
 */
namespace IniText {

/// What the file at @p path holds. Null when there is no such file, when it cannot be read, when it
/// is no regular file, or is larger than any settings are (1 MB).
QByteArray contents(const QString &path);

/// Whether there is something at @p path which contents() does not give.
bool isUnreadable(const QString &path);

/// Whether nothing in @p contents makes the toolkit restore an object, however it is escaped.
/// Texts, numbers, lists of them, byte arrays, points and rectangles are no such objects.
bool isPlain(const QByteArray &contents);

/// What stands behind @p key in the general section, to the letter, up to a comment; of several the
/// last. Null when there is no such key.
QByteArray written(const QByteArray &contents, const QByteArray &key);

} // namespace IniText

#endif
