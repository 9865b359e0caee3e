// How close the live picture comes to what an ideal eye would see from further away: the averages
// of areas, by arithmetic, of a zone plate and of a page of text of ten points.
//
//   bench_quality [FOLDER]     leaves the pictures in FOLDER, to be looked at
//
// Prints for each picture and size a line "NAME<TAB>dB<TAB>dB of the bare pipeline": the error, of
// which less is better, in dB below a full white.

#include "CameraFrame.h"
#include "DeskPicture.h"
#include "GstStart.h"
#include "PictureConverter.h"

#include <QGuiApplication>

#include <cmath>
#include <cstdio>
#include <vector>

namespace {

QImage zonePlate(const QSize &size)
{
    QImage picture(size, QImage::Format_Grayscale8);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const double dx = x - size.width() / 2.0;
            const double dy = y - size.height() / 2.0;
            // One line per pixel at the left and right edge.
            const double phase = (dx * dx + dy * dy) * M_PI / size.width();
            picture.scanLine(y)[x] = uchar(std::lround(127.5 + 127.5 * std::cos(phase)));
        }
    return picture;
}

std::shared_ptr<CameraFrame> frameOf(const QImage &grey)
{
    GstVideoInfo info;
    gst_video_info_set_format(&info, GST_VIDEO_FORMAT_UYVY, guint(grey.width()),
                              guint(grey.height()));
    const GstMiniHandle<GstCaps> caps(gst_video_info_to_caps(&info));
    const GstMiniHandle<GstBuffer> buffer(gst_buffer_new_allocate(nullptr, info.size, nullptr));
    std::vector<uchar> row(size_t(info.stride[0]), 128);
    for (int y = 0; y < grey.height(); ++y) {
        for (int x = 0; x < grey.width(); ++x)
            row[2 * size_t(x) + 1] =
                uchar(std::lround(16 + grey.constScanLine(y)[x] * 219 / 255.0));
        gst_buffer_fill(buffer.get(), gsize(y) * row.size(), row.data(), row.size());
    }
    return CameraFrame::fromSample(
        GstMiniHandle<GstSample>(gst_sample_new(buffer.get(), caps.get(), nullptr, nullptr)));
}

// Averages of areas; where a picture grows, an area lies in one or two samples.
std::vector<double> averages(const std::vector<double> &from, int samples, int count, int lines)
{
    std::vector<double> to(size_t(count) * size_t(lines));
    const double step = double(samples) / count;
    for (int i = 0; i < count; ++i)
        for (int s = int(i * step); s < samples && s < (i + 1) * step; ++s) {
            const double part = (std::min(s + 1.0, (i + 1) * step) - std::max(double(s), i * step));
            for (int line = 0; line < lines; ++line)
                to[size_t(line) * size_t(count) + size_t(i)] +=
                    from[size_t(line) * size_t(samples) + size_t(s)] * part / step;
        }
    return to;
}

std::vector<double> turned(const std::vector<double> &from, int width, int height)
{
    std::vector<double> to(from.size());
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            to[size_t(x) * size_t(height) + size_t(y)] =
                from[size_t(y) * size_t(width) + size_t(x)];
    return to;
}

double errorOf(const QImage &picture, const QImage &grey)
{
    std::vector<double> ideal;
    for (int y = 0; y < grey.height(); ++y)
        ideal.insert(ideal.end(), grey.constScanLine(y), grey.constScanLine(y) + grey.width());
    ideal = averages(ideal, grey.width(), picture.width(), grey.height());
    ideal = turned(ideal, picture.width(), grey.height());
    ideal = averages(ideal, grey.height(), picture.height(), picture.width());
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const double off = qGreen(picture.pixel(x, y))
                - ideal[size_t(x) * size_t(picture.height()) + size_t(y)];
            sum += off * off;
        }
    return 10 * std::log10(sum / (255.0 * 255.0 * picture.width() * picture.height()));
}

void compare(const char *what, const QImage &grey, const QString &folder)
{
    const auto frame = frameOf(grey);
    for (const QSize &size : {QSize(1024, 576), QSize(1632, 918)}) {
        const QImage ours = PictureConverter(QImage::Format_RGB32).convert(*frame, size);
        // GStreamer's converter with two taps, as in its own elements.
        const QImage bare = PictureConverter(QImage::Format_RGB888).convert(*frame, size);
        std::printf("%s, 1920x1080 in %dx%d\t%.2f\t%.2f\n", what, size.width(), size.height(),
                    errorOf(ours, grey), errorOf(bare, grey));
        if (folder.isEmpty())
            continue;
        const QString name = QStringLiteral("%1/%2-%3-").arg(folder, what).arg(size.width());
        ours.save(name + "ours.png");
        bare.save(name + "bare.png");
    }
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (!startGstreamer())
        return 1;
    const QString folder = QGuiApplication::arguments().value(1);
    compare("zone plate", zonePlate({1920, 1080}), folder);
    compare("page", pageOfText({1920, 1080}).convertToFormat(QImage::Format_Grayscale8), folder);
    return 0;
}
