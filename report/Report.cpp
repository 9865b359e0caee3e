#include "Report.h"

static const char title[] = "Orvanta report\n";
static constexpr int indent = 2; // blanks a depth

Report::Report(Redaction redaction)
    : m_redaction(std::move(redaction))
    , m_text(QLatin1String(title))
{
}

void Report::beginSection(const QString &heading)
{
    m_text += QStringLiteral("\n== %1 ==\n").arg(heading);
}

void Report::fact(const QString &name, const QString &value, int depth)
{
    publicFact(name, m_redaction.cleaned(value), depth);
}

void Report::number(const QString &name, int value, int depth)
{
    publicFact(name, QString::number(value), depth);
}

void Report::answer(const QString &name, bool value, int depth)
{
    publicFact(name, value ? QStringLiteral("yes") : QStringLiteral("no"), depth);
}

// What devices call themselves may have line ends in it, or be empty.
void Report::publicFact(const QString &name, const QString &value, int depth)
{
    const QString line = value.simplified();
    m_text += QString(depth * indent, QLatin1Char(' ')) + name + QLatin1String(": ")
        + (line.isEmpty() ? QStringLiteral("-") : line) + QLatin1Char('\n');
}

void Report::unknown(const QString &name, const QString &what, int depth)
{
    publicFact(name, QStringLiteral("not found out"), depth);
    m_unknown.append(m_redaction.cleaned(what));
}

QString Report::text() const
{
    QString all = m_text + QLatin1String("\n== Not found out ==\n");
    if (isComplete())
        all += QLatin1String("nothing\n");
    for (const QString &what : m_unknown)
        all += what + QLatin1Char('\n');
    return all;
}
