#include "CapturedPicture.h"
#include "Fuzzed.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <zlib.h>

// A decoder looks no further where a check is wrong, which is what damage nearly always does to it.
static QByteArray withRightChecks(QByteArray bytes)
{
    for (qint64 at = 8; at + 12 <= bytes.size();) {
        const qint64 length = qFromBigEndian<quint32>(bytes.constData() + at);
        if (at + 12 + length > bytes.size())
            break;
        const auto *chunk = reinterpret_cast<const Bytef *>(bytes.constData() + at + 4);
        const uLong check = crc32(0, chunk, uInt(length + 4));
        qToBigEndian(quint32(check), bytes.data() + at + 8 + length);
        at += 12 + length;
    }
    return bytes;
}

void Fuzzed::pictures(const QByteArray &bytes)
{
    static const QTemporaryDir folder;
    QFile file(folder.filePath("photo.png"));
    const QByteArray contents = bytes.startsWith("\x89PNG") ? withRightChecks(bytes) : bytes;
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("nowhere to write to");
    file.close();
    const QImage picture = CapturedPicture::read(file.fileName());
    if (qint64(picture.width()) * picture.height() > 50'000'000)
        qFatal("a picture that is too large was decoded");
}
