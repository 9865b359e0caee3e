#ifndef PICTURECONVERTER_H
#define PICTURECONVERTER_H

#include "CameraFrame.h"
#include "ScreenConverter.h"

#include <QImage>

#include <memory>

/**
 * Turns camera frames into images, colours and size in one step: with GStreamer's converter, or for
 * the screen, where thirty a second have to be made, with the quicker ScreenConverter where that
 * knows the format. Keeps what it worked out for the last format and size; one thread at a time.
 */
class PictureConverter {
public:
    /// @p format is RGB32 for the screen or RGB888 for files.
    explicit PictureConverter(QImage::Format format);

    /// Fills @p image, of the format above or, opaque, of ARGB32_Premultiplied, with the frame,
    /// scaled without regard to its aspect. False when that cannot be done.
    bool fill(const CameraFrame &frame, QImage *image);

    /// The frame in @p size, scaled without regard to its aspect; a null image when that cannot be
    /// done. @p reuse may hold an image whose memory is used again when nobody else has it.
    QImage convert(const CameraFrame &frame, const QSize &size, QImage reuse = {});

private:
    struct ConverterFree {
        void operator()(GstVideoConverter *converter) const { gst_video_converter_free(converter); }
    };

    bool convertWithGStreamer(const GstVideoFrame &frame, QImage *image);
    bool prepare(const GstVideoInfo &from, const QImage &to);

    QImage::Format m_format;
    ScreenConverter m_screen;
    GstVideoInfo m_from;
    GstVideoInfo m_to;
    std::unique_ptr<GstVideoConverter, ConverterFree> m_converter;
};

#endif
