#include "IniText.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

static constexpr qint64 mostBytes = 1 << 20; // of a file; the program's own has some 200

static bool isOctal(char letter)
{
    return letter >= '0' && letter <= '7';
}

// The number that begins at @p at in that base, cut off to a letter's 16 bits; @p at moves on.
static int numberIn(const QByteArray &text, int &at, int base)
{
    int number = 0;
    for (; at < text.size(); ++at) {
        bool isDigit = false;
        const int digit = QByteArray(1, text[at]).toInt(&isDigit, base);
        if (!isDigit)
            break;
        number = (number * base + digit) & 0xffff;
    }
    return number;
}

// The letter that the escape behind a backslash stands for, 0 for none; @p at moves behind it.
static char escapedLetter(const QByteArray &text, int &at)
{
    if (at >= text.size())
        return 0;
    int number = 0;
    if (isOctal(text[at])) {
        number = numberIn(text, at, 8);
    } else if (text[at] == 'x') {
        ++at;
        number = numberIn(text, at, 16);
    } else {
        ++at; // a line break, a quote, or nothing at all
    }
    return number < 0x80 ? char(number) : char(0);
}

// Without quotes, and with the letters that escapes stand for.
static QByteArray unescaped(const QByteArray &text)
{
    QByteArray plain;
    plain.reserve(text.size());
    for (int at = 0; at < text.size();) {
        const char letter = text[at++];
        if (letter == '\\') {
            const char escaped = escapedLetter(text, at);
            if (escaped)
                plain += escaped;
        } else if (letter != '"') {
            plain += letter;
        }
    }
    return plain;
}

QByteArray IniText::contents(const QString &path)
{
    // Opened without waiting, as a pipe would have it, and looked at only then.
    const int descriptor =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    QFile file;
    struct stat status = {};
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)
        || fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode) || file.size() > mostBytes)
        return {};
    const QByteArray read = file.read(mostBytes);
    return read.isNull() ? QByteArray("") : read;
}

bool IniText::isUnreadable(const QString &path)
{
    struct stat status = {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 && contents(path).isNull();
}

bool IniText::isPlain(const QByteArray &contents)
{
    const QByteArray plain = unescaped(contents);
    return !plain.contains("@Variant(") && !plain.contains("@DateTime(");
}

QByteArray IniText::written(const QByteArray &contents, const QByteArray &key)
{
    QByteArray found;
    bool isGeneral = true;
    for (const QByteArray &whole : contents.split('\n')) {
        const QByteArray line = whole.trimmed();
        if (line.startsWith('['))
            isGeneral = line.toLower() == "[general]";
        const int equals = line.indexOf('=');
        if (isGeneral && equals > 0 && line.left(equals).trimmed() == key)
            found = QByteArray("") + line.mid(equals + 1).split(';').first().trimmed();
    }
    return found;
}
