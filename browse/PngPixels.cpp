#include "PngPixels.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

static const QByteArray signature = QByteArrayLiteral("\x89PNG\r\n\x1a\n");
static constexpr int headBytes = 8; // of a chunk: its length, its name
static constexpr int checkBytes = 4; // behind it
static constexpr int sizeAt = 16; // where the picture's width stands, and behind it the height

static bool isPartOfThePicture(const QByteArray &chunk)
{
    static const QByteArrayList parts = {"IHDR", "PLTE", "tRNS", "IDAT", "IEND"};
    return parts.contains(chunk);
}

QSize PngPixels::sizeIn(const QByteArray &beginning)
{
    if (beginning.size() < sizeAt + 8 || !beginning.startsWith(signature)
        || beginning.mid(signature.size() + 4, 4) != "IHDR")
        return {};
    const auto width = qFromBigEndian<qint32>(beginning.constData() + sizeAt);
    const auto height = qFromBigEndian<qint32>(beginning.constData() + sizeAt + 4);
    return {width, height};
}

PngPixels::PngPixels(QFile *file)
    : m_file(file)
    , m_left(signature.size())
{
    open(QIODevice::ReadOnly);
}

// Goes on to the next chunk that is part of the picture.
bool PngPixels::findChunk()
{
    for (;;) {
        const QByteArray head = m_file->read(headBytes);
        if (head.size() < headBytes)
            return false;
        const qint64 content = qint64(qFromBigEndian<quint32>(head.constData())) + checkBytes;
        if (isPartOfThePicture(head.mid(4))) {
            m_head = head;
            m_left = content;
            return true;
        }
        if (m_file->pos() + content > m_file->size() || !m_file->seek(m_file->pos() + content))
            return false;
    }
}

qint64 PngPixels::readData(char *data, qint64 maxSize)
{
    qint64 given = 0;
    while (given < maxSize) {
        if (m_head.isEmpty() && m_left == 0 && !findChunk())
            break;
        const qint64 room = maxSize - given;
        qint64 count = 0;
        if (!m_head.isEmpty()) {
            count = std::min<qint64>(room, m_head.size());
            std::memcpy(data + given, m_head.constData(), size_t(count));
            m_head.remove(0, int(count));
        } else {
            count = m_file->read(data + given, std::min(room, m_left));
            if (count <= 0)
                break;
            m_left -= count;
        }
        given += count;
    }
    return given > 0 || maxSize == 0 ? given : -1;
}

qint64 PngPixels::writeData(const char * /*data*/, qint64 /*size*/)
{
    return -1;
}
