#include "StillWriter.h"

#include "EngineLog.h"
#include "GstHandles.h"
#include "NewFile.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>

#include <cstdio>
#include <cstdlib>
#include <spng.h>
#include <sys/file.h>
#include <unistd.h>
#include <zlib.h>

struct SpngFree {
    void operator()(spng_ctx *context) const { spng_ctx_free(context); }
};

struct MallocFree {
    void operator()(void *memory) const { std::free(memory); }
};

// A shutter cannot wait for the best compression. In a camera's picture the noise of the sensor
// leaves hardly any repetition to search for, so only runs are looked for: that takes a tenth of
// the time or less, for a file of the same size.
static bool encodePng(const QImage &picture, QIODevice &file)
{
    const std::unique_ptr<spng_ctx, SpngFree> context(spng_ctx_new(SPNG_CTX_ENCODER));
    if (!context)
        return false;
    spng_set_option(context.get(), SPNG_ENCODE_TO_BUFFER, 1);
    spng_set_option(context.get(), SPNG_IMG_COMPRESSION_LEVEL, 1);
    spng_set_option(context.get(), SPNG_FILTER_CHOICE, SPNG_FILTER_CHOICE_UP);
    spng_set_option(context.get(), SPNG_IMG_COMPRESSION_STRATEGY, Z_RLE);
    spng_ihdr header = {};
    header.width = uint32_t(picture.width());
    header.height = uint32_t(picture.height());
    header.bit_depth = 8;
    header.color_type = SPNG_COLOR_TYPE_TRUECOLOR;
    if (spng_set_ihdr(context.get(), &header) != 0
        || spng_encode_image(context.get(), nullptr, 0, SPNG_FMT_PNG,
                             SPNG_ENCODE_PROGRESSIVE | SPNG_ENCODE_FINALIZE)
            != 0)
        return false;
    // Row by row, because an image's rows may be padded.
    const size_t rowBytes = size_t(picture.width()) * 3;
    int result = 0;
    for (int row = 0; row < picture.height() && result == 0; ++row)
        result = spng_encode_row(context.get(), picture.constScanLine(row), rowBytes);
    if (result != SPNG_EOI)
        return false;
    size_t size = 0;
    int error = 0;
    const std::unique_ptr<void, MallocFree> bytes(
        spng_get_png_buffer(context.get(), &size, &error));
    return bytes
        && file.write(static_cast<const char *>(bytes.get()), qint64(size)) == qint64(size);
}

static bool encode(const QImage &picture, const QByteArray &format, QIODevice &file)
{
    if (format == "png")
        return encodePng(picture, file);
    QImageWriter writer(&file, format);
    return writer.write(picture);
}

bool writeStill(const QImage &picture, const QString &path)
{
    const QFileInfo info(path);
    const QByteArray format = info.suffix().toLower().toLatin1();
    if (picture.isNull() || picture.format() != QImage::Format_RGB888 || info.isDir()
        || !QImageWriter::supportedImageFormats().contains(format))
        return false;
    const QString hidden = info.path() + QLatin1String("/.") + info.fileName();
    const QByteArray hiddenName = QFile::encodeName(hidden);
    unlink(hiddenName.constData()); // what a program that was killed left there
    const int descriptor = createNewFile(hidden);
    QFile file;
    if (descriptor < 0
        || !file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)) {
        qCInfo(engineLog) << "cannot write" << path;
        return false;
    }
    // The mark of a file that is being written: one without it is swept away at the next start.
    (void)flock(descriptor, LOCK_EX | LOCK_NB);
    bool written = encode(picture, format, file) && file.flush();
    file.close();
    // Not QFile::rename(), which refuses to replace a file.
    written = written && file.error() == QFile::NoError
        && std::rename(hiddenName.constData(), QFile::encodeName(path).constData()) == 0;
    if (!written) {
        qCInfo(engineLog) << "cannot write" << path;
        unlink(hiddenName.constData());
    }
    return written;
}
