#include "ForeignLocale.h"

#include <QFile>
#include <QProcess>

#include <clocale>

ForeignLocale::ForeignLocale(const QString &name)
    : m_oldName(std::setlocale(LC_ALL, nullptr))
    , m_oldPath(qgetenv("LOCPATH"))
{
    const QString full = name + QStringLiteral(".UTF-8");
    // What it thinks of its own sources is of no interest here; whether it works is seen below.
    QProcess::execute(
        QStringLiteral("localedef"),
        {"--quiet", "--no-archive", "-c", "-i", name, "-f", "UTF-8", m_folder.filePath(full)});
    qputenv("LOCPATH", QFile::encodeName(m_folder.path()));
    m_isInUse = std::setlocale(LC_ALL, full.toLatin1().constData()) != nullptr;
    QLocale::setDefault(QLocale(name));
}

ForeignLocale::~ForeignLocale()
{
    if (m_oldPath.isEmpty())
        qunsetenv("LOCPATH");
    else
        qputenv("LOCPATH", m_oldPath);
    std::setlocale(LC_ALL, m_oldName.constData());
    QLocale::setDefault(m_oldDefault);
}
