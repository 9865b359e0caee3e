#ifndef REDACTION_H
#define REDACTION_H

#include <QString>
#include <QStringList>

/**
 * What must not be in a report that is published: the names of the user, the machine and their
 * files, and the serial numbers of devices. They turn up where nobody expects them: "Anna's
 * phone" is the name of a camera.
 */
class Redaction {
public:
    Redaction() = default;

    /// Of the user who runs the program on this machine.
    static Redaction ofThisUser();

    /// @p word is not to be seen, in upper or lower case. Of three letters or more nor as a part of
    /// a longer word; shorter ones only by themselves, as every other word has them.
    void add(const QString &word);

    /// @p text with "[private]" for each of those words, and for every path of a file.
    QString cleaned(QString text) const;

private:
    QStringList m_words; ///< the longest first, so that nothing is left of those with others inside
};

#endif
