#ifndef FOREIGNLOCALE_H
#define FOREIGNLOCALE_H

#include <QByteArray>
#include <QLocale>
#include <QString>
#include <QTemporaryDir>

/**
 * The letters, digits and numbers of another country, for the C library and the toolkit, for as
 * long as it lives. The locale is made for this one use: it need not be installed.
 */
class ForeignLocale {
public:
    /// @p name as the system calls it, such as "tr_TR".
    explicit ForeignLocale(const QString &name);
    ~ForeignLocale();
    Q_DISABLE_COPY(ForeignLocale)

    /// False if the locale could not be made; then a test with it says nothing.
    bool isInUse() const { return m_isInUse; }

private:
    QTemporaryDir m_folder;
    QByteArray m_oldName;
    QByteArray m_oldPath;
    QLocale m_oldDefault;
    bool m_isInUse;
};

#endif
