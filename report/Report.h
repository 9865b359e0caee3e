#ifndef REPORT_H
#define REPORT_H

#include "Redaction.h"

#include <QStringList>

/**
 * The text of a report, written from top to bottom: sections, each with facts of the form "name:
 * value". Names are this program's own words and stay as they are from version to version, so that
 * one report can be held against another; values come from elsewhere and are cleaned of what is
 * private.
 */
class Report {
public:
    explicit Report(Redaction redaction);

    /// What is private, for whoever learns of more before it is written.
    Redaction &redaction() { return m_redaction; }

    void beginSection(const QString &heading);
    /// @p depth is how many facts above it belongs to.
    void fact(const QString &name, const QString &value, int depth = 0);
    void number(const QString &name, int value, int depth = 0);
    /// "yes" or "no".
    void answer(const QString &name, bool value, int depth = 0);
    /// A value that is the same on many machines, a version or the name of a plug-in, and stays as
    /// it is: a machine that is called "debian" makes no secret of its distribution.
    void publicFact(const QString &name, const QString &value, int depth = 0);
    /// @p what could not be found out; said here and once more at the end.
    void unknown(const QString &name, const QString &what, int depth = 0);

    /// Nothing was left open.
    bool isComplete() const { return m_unknown.isEmpty(); }
    /// The whole of it, ending with what could not be found out.
    QString text() const;

private:
    Redaction m_redaction;
    QString m_text;
    QStringList m_unknown;
};

#endif
