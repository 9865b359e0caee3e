#ifndef PNGPIXELS_H
#define PNGPIXELS_H

#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QSize>

/**
 * A PNG file as if it held its picture alone. The texts, colour profiles and whatever else may lie
 * beside it are left out: nobody sees them, and a decoder unpacks them all, of which a file of a
 * megabyte can hold some gigabytes.
 *
 * To be read from the beginning to the end, on one thread. It ends early where the file is damaged.
 */
class PngPixels : public QIODevice {
    Q_OBJECT

public:
    /// How large the picture says it is; empty when the bytes are not the first 24 or more of a PNG
    /// file.
    static QSize sizeIn(const QByteArray &beginning);

    /// @p file is open at its beginning, and outlives the object.
    explicit PngPixels(QFile *file);

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    bool findChunk();

    QFile *const m_file;
    QByteArray m_head; ///< of the chunk, as far as it was not given yet
    qint64 m_left; ///< bytes of the file that are part of the picture
};

#endif
