#include "PngEncoder.h"

#include <QByteArray>
#include <QIODevice>
#include <QImage>
#include <QThread>
#include <QtEndian>

#include <algorithm>
#include <future>
#include <utility>
#include <vector>
#include <zlib.h>

static constexpr int smallestBand = 64; // rows; for fewer a thread is not worth starting
static constexpr int bytesPerPixel = 3;
static constexpr int rawDeflate = -15; // zlib's largest window, without a header of its own
static constexpr int memoryLevel = 8; // zlib's default
// zlib's levels.
static constexpr int quickest = 1;
static constexpr int thorough = 3;

// How a row says what its bytes are: themselves, or what they differ by from those above.
enum RowFilter : uchar { Plain = 0, AboveSubtracted = 2 };

/// Some rows, compressed by themselves: pieces of one stream that follow each other.
struct PngBand {
    QByteArray stream; ///< empty when there is no memory
    uLong checksum = 1; ///< Adler's, of the filtered rows
    z_off_t bytes = 0; ///< of the filtered rows
};

static void filterRow(const QImage &picture, int row, RowFilter filter, uchar *to)
{
    const int bytes = picture.width() * bytesPerPixel;
    const uchar *bytesHere = picture.constScanLine(row);
    *to++ = filter;
    if (filter == Plain || row == 0) { // above the first row everything counts as 0
        std::copy(bytesHere, bytesHere + bytes, to);
        return;
    }
    const uchar *above = picture.constScanLine(row - 1);
    for (int i = 0; i < bytes; ++i)
        to[i] = uchar(bytesHere[i] - above[i]);
}

static QByteArray filtered(const QImage &picture, int first, int end, RowFilter filter)
{
    const int stride = 1 + picture.width() * bytesPerPixel;
    QByteArray rows(stride * (end - first), Qt::Uninitialized);
    auto *to = reinterpret_cast<uchar *>(rows.data());
    for (int row = first; row < end; ++row, to += stride)
        filterRow(picture, row, filter, to);
    return rows;
}

// No sensor gives the same value twice in a row; what a program draws mostly is the same.
static bool isEven(const QByteArray &differences)
{
    return std::count(differences.cbegin(), differences.cend(), '\0') > differences.size() / 2;
}

static QByteArray deflated(const QByteArray &rows, int level, int strategy, bool isLast)
{
    z_stream stream = {};
    if (deflateInit2(&stream, level, Z_DEFLATED, rawDeflate, memoryLevel, strategy) != Z_OK)
        return {};
    // A flush adds an empty block to what the bound speaks of.
    QByteArray out(int(deflateBound(&stream, uLong(rows.size()))) + 16, Qt::Uninitialized);
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(rows.constData()));
    stream.avail_in = uInt(rows.size());
    stream.next_out = reinterpret_cast<Bytef *>(out.data());
    stream.avail_out = uInt(out.size());
    const int result = deflate(&stream, isLast ? Z_FINISH : Z_SYNC_FLUSH);
    const bool isComplete =
        isLast ? result == Z_STREAM_END : result == Z_OK && stream.avail_in == 0;
    out.resize(isComplete ? int(stream.total_out) : 0);
    deflateEnd(&stream);
    return out;
}

static PngBand compressed(const QImage &picture, int first, int end)
{
    QByteArray rows = filtered(picture, first, end, AboveSubtracted);
    const bool isDrawn = isEven(rows);
    if (isDrawn)
        rows = filtered(picture, first, end, Plain);
    PngBand band;
    band.stream = deflated(rows, isDrawn ? thorough : quickest,
                           isDrawn ? Z_DEFAULT_STRATEGY : Z_RLE, end == picture.height());
    band.checksum =
        adler32(1, reinterpret_cast<const Bytef *>(rows.constData()), uInt(rows.size()));
    band.bytes = rows.size();
    return band;
}

// Where no thread can be started the waiting one does the work.
static std::vector<PngBand> compressedBands(const QImage &picture)
{
    const int most = std::max(1, picture.height() / smallestBand);
    const int count = std::clamp(QThread::idealThreadCount(), 1, most);
    const auto rowOf = [&](int band) { return int(qint64(picture.height()) * band / count); };
    std::vector<std::future<PngBand>> others;
    for (int band = 1; band < count; ++band)
        others.push_back(std::async([&picture, first = rowOf(band), end = rowOf(band + 1)] {
            return compressed(picture, first, end);
        }));
    std::vector<PngBand> bands = {compressed(picture, 0, rowOf(1))};
    for (std::future<PngBand> &other : others)
        bands.push_back(other.get());
    return bands;
}

static QByteArray bigEndian(quint32 number)
{
    QByteArray bytes(4, Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

static bool writeChunk(QIODevice &file, const QByteArray &type, const QByteArray &content)
{
    uLong check = crc32(0, reinterpret_cast<const Bytef *>(type.constData()), uInt(type.size()));
    check =
        crc32(check, reinterpret_cast<const Bytef *>(content.constData()), uInt(content.size()));
    for (const QByteArray &part :
         {bigEndian(quint32(content.size())), type, content, bigEndian(quint32(check))})
        if (file.write(part) != part.size())
            return false;
    return true;
}

static QByteArray headerOf(const QImage &picture)
{
    // Eight bits for each of three colours; the only compression and filtering there is; all rows
    // in their order.
    static const char form[] = {8, 2, 0, 0, 0};
    return bigEndian(quint32(picture.width())) + bigEndian(quint32(picture.height()))
        + QByteArray(form, sizeof form);
}

bool encodePng(const QImage &picture, QIODevice &file)
{
    static const QByteArray signature("\x89PNG\r\n\x1a\n", 8);
    static const QByteArray streamHeader("\x78\x01", 2); // the largest window, compressed quickly
    const std::vector<PngBand> bands = compressedBands(picture);
    bool isGood = file.write(signature) == signature.size()
        && writeChunk(file, "IHDR", headerOf(picture)) && writeChunk(file, "IDAT", streamHeader);
    uLong checksum = 1;
    for (const PngBand &band : bands) {
        isGood = isGood && !band.stream.isEmpty() && writeChunk(file, "IDAT", band.stream);
        checksum = adler32_combine(checksum, band.checksum, band.bytes);
    }
    return isGood && writeChunk(file, "IDAT", bigEndian(quint32(checksum)))
        && writeChunk(file, "IEND", {});
}
