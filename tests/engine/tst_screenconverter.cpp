#include "CameraFrame.h"
#include "GstStart.h"
#include "PictureConverter.h"
#include "ScreenConverter.h"

#include <QColor>
#include <QRandomGenerator>
#include <QTest>

#include <cmath>
#include <functional>

// The value of a component (0 to 2) at a place that is given in shares of the picture's size.
using Painting = std::function<double(int component, double x, double y)>;

struct FrameKind {
    GstVideoFormat format = GST_VIDEO_FORMAT_UYVY;
    QSize size{64, 48};
    const char *colours = GST_VIDEO_COLORIMETRY_BT601;
    GstVideoChromaSite site = GST_VIDEO_CHROMA_SITE_NONE;
    int padding = 0; ///< bytes more in each row than usual
};

static GstVideoInfo infoOf(const FrameKind &kind)
{
    GstVideoInfo info;
    gst_video_info_set_format(&info, kind.format, guint(kind.size.width()),
                              guint(kind.size.height()));
    if (GST_VIDEO_INFO_IS_YUV(&info)) {
        gst_video_colorimetry_from_string(&info.colorimetry, kind.colours);
        info.chroma_site = kind.site;
    }
    return info;
}

// Padding makes a buffer no longer than it has to be: a reader that goes on is caught.
static GstMiniHandle<GstBuffer> bufferFor(GstVideoInfo &info, int padding)
{
    gsize size = 0;
    for (guint plane = 0; plane < GST_VIDEO_INFO_N_PLANES(&info); ++plane) {
        info.stride[plane] += padding;
        info.offset[plane] = size;
        int component = 0;
        while (GST_VIDEO_FORMAT_INFO_PLANE(info.finfo, component) != plane)
            ++component;
        size += gsize(info.stride[plane]) * gsize(GST_VIDEO_INFO_COMP_HEIGHT(&info, component));
    }
    info.size = size;
    GstMiniHandle<GstBuffer> buffer(gst_buffer_new_allocate(nullptr, size, nullptr));
    gst_buffer_memset(buffer.get(), 0, 0xee, size);
    gst_buffer_add_video_meta_full(
        buffer.get(), GST_VIDEO_FRAME_FLAG_NONE, GST_VIDEO_INFO_FORMAT(&info), guint(info.width),
        guint(info.height), GST_VIDEO_INFO_N_PLANES(&info), info.offset, info.stride);
    return buffer;
}

// Each sample has the value of the place where it lies in the picture.
static void paint(GstVideoFrame *frame, const Painting &painting)
{
    for (int component = 0; component < 3; ++component) {
        const GstVideoFormatInfo *format = frame->info.finfo;
        const int every = 1 << GST_VIDEO_FORMAT_INFO_W_SUB(format, component);
        const int everyRow = 1 << GST_VIDEO_FORMAT_INFO_H_SUB(format, component);
        const bool beside = (frame->info.chroma_site & GST_VIDEO_CHROMA_SITE_H_COSITED) != 0;
        const double middle = beside ? 0.5 : every / 2.0;
        auto *data = static_cast<uchar *>(GST_VIDEO_FRAME_COMP_DATA(frame, component));
        for (int y = 0; y < GST_VIDEO_FRAME_COMP_HEIGHT(frame, component); ++y)
            for (int x = 0; x < GST_VIDEO_FRAME_COMP_WIDTH(frame, component); ++x)
                data[y * GST_VIDEO_FRAME_COMP_STRIDE(frame, component)
                     + x * GST_VIDEO_FRAME_COMP_PSTRIDE(frame, component)] =
                    uchar(std::lround(painting(component, (x * every + middle) / frame->info.width,
                                               (y + 0.5) * everyRow / frame->info.height)));
    }
}

static std::shared_ptr<CameraFrame> frameOf(const FrameKind &kind, const Painting &painting)
{
    GstVideoInfo info = infoOf(kind);
    const GstMiniHandle<GstCaps> caps(gst_video_info_to_caps(&info));
    const GstMiniHandle<GstBuffer> buffer = bufferFor(info, kind.padding);
    GstVideoFrame frame;
    if (!gst_video_frame_map(&frame, &info, buffer.get(), GST_MAP_WRITE))
        return nullptr;
    paint(&frame, painting);
    gst_video_frame_unmap(&frame);
    return CameraFrame::fromSample(
        GstMiniHandle<GstSample>(gst_sample_new(buffer.get(), caps.get(), nullptr, nullptr)));
}

// Rises evenly: however a picture is scaled, this comes out the same.
static double slope(int component, double x, double y)
{
    const double rise[3][2] = {{90, 60}, {60, -40}, {-50, 70}};
    return 125 + rise[component][0] * (x - 0.5) + rise[component][1] * (y - 0.5);
}

static QRgb rgbOf(double y, double u, double v, const GstVideoColorimetry &colours)
{
    double red = 0;
    double blue = 0;
    gst_video_color_matrix_get_Kr_Kb(colours.matrix, &red, &blue);
    const bool full = colours.range == GST_VIDEO_COLOR_RANGE_0_255;
    const double light = full ? y : (y - 16) * 255 / 219;
    const double pb = (u - 128) * (full ? 1 : 255.0 / 224);
    const double pr = (v - 128) * (full ? 1 : 255.0 / 224);
    const double green = 1 - red - blue;
    const auto level = [](double value) { return int(std::lround(qBound(0.0, value, 255.0))); };
    return qRgb(
        level(light + 2 * (1 - red) * pr),
        level(light - 2 * blue * (1 - blue) / green * pb - 2 * red * (1 - red) / green * pr),
        level(light + 2 * (1 - blue) * pb));
}

// What the picture of a painting should be in the middle of each pixel, by arithmetic. GStreamer's
// converter is no measure: its fast matrices are up to six levels off, two too dark in the mean.
static QImage exactly(const FrameKind &kind, const Painting &painting, const QSize &size)
{
    const GstVideoInfo info = infoOf(kind);
    QImage picture(size, QImage::Format_RGB32);
    for (int row = 0; row < size.height(); ++row) {
        auto *pixels = reinterpret_cast<QRgb *>(picture.scanLine(row));
        for (int column = 0; column < size.width(); ++column) {
            double part[3];
            for (int i = 0; i < 3; ++i)
                part[i] = painting(i, (column + 0.5) / size.width(), (row + 0.5) / size.height());
            pixels[column] = GST_VIDEO_INFO_IS_RGB(&info)
                ? qRgb(int(std::lround(part[0])), int(std::lround(part[1])),
                       int(std::lround(part[2])))
                : rgbOf(part[0], part[1], part[2], info.colorimetry);
        }
    }
    return picture;
}

static int worstDifference(QRgb a, QRgb b)
{
    return qMax(qMax(qAbs(qRed(a) - qRed(b)), qAbs(qGreen(a) - qGreen(b))),
                qAbs(qBlue(a) - qBlue(b)));
}

static int worstDifference(const QImage &left, const QImage &right)
{
    if (left.size() != right.size())
        return 256;
    const QImage a = left.convertToFormat(QImage::Format_RGB32);
    const QImage b = right.convertToFormat(QImage::Format_RGB32);
    int worst = 0;
    for (int y = 0; y < a.height(); ++y) {
        const auto *rowOfA = reinterpret_cast<const QRgb *>(a.constScanLine(y));
        const auto *rowOfB = reinterpret_cast<const QRgb *>(b.constScanLine(y));
        for (int x = 0; x < a.width(); ++x)
            worst = qMax(worst, worstDifference(rowOfA[x], rowOfB[x]));
    }
    return worst;
}

// GStreamer's converter makes those for files.
static QImage byGStreamer(const CameraFrame &frame, const QSize &size)
{
    return PictureConverter(QImage::Format_RGB888).convert(frame, size);
}

static QImage forScreen(const CameraFrame &frame, const QSize &size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(0x123456);
    ScreenConverter converter;
    return converter.convert(frame.picture(), &picture) ? picture : QImage();
}

// Samples are rounded by the camera, when they are scaled up and down, across, and in their
// colours, and blue is twice U.
static constexpr int rounding = 4; // levels

class TestScreenConverter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(startGstreamer()); }
    void eachFormatShowsWhatWasPainted_data();
    void eachFormatShowsWhatWasPainted();
    void anyColourComesOutRight_data();
    void anyColourComesOutRight();
    void aShrunkSampleIsTheAverageOfItsArea_data();
    void aShrunkSampleIsTheAverageOfItsArea();
    void anEnlargedSampleIsBlendedOfItsNeighbours();
    void theLargestPicturesAreMadeWhole();
    void oneConverterServesManyFramesInTurn();
    void unknownFormatsAndColoursAreLeftToGStreamer_data();
    void unknownFormatsAndColoursAreLeftToGStreamer();
    void rowsThatStandTooCloseAreLeftToGStreamer();
};

void TestScreenConverter::eachFormatShowsWhatWasPainted_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QSize>("from");
    QTest::addColumn<QSize>("to");
    QTest::addColumn<int>("padding");
    for (const char *format : {"UYVY", "YUY2", "YVYU", "NV12", "NV21", "I420", "YV12", "Y42B",
                               "Y444", "RGB", "BGR", "BGRx", "RGBx"}) {
        const auto row = [format](const char *what, QSize from, QSize to, int padding) {
            QTest::addRow("%s %s", format, what) << QByteArray(format) << from << to << padding;
        };
        row("at its own size", {640, 360}, {640, 360}, 0);
        row("to less than half", {640, 360}, {298, 168}, 0);
        row("a little smaller", {640, 360}, {560, 315}, 0);
        row("larger", {320, 180}, {555, 312}, 0);
        row("to three times its size", {320, 180}, {960, 540}, 0);
        row("wider and lower", {320, 180}, {500, 111}, 0);
        row("narrower and higher", {320, 180}, {201, 301}, 0);
        row("of an odd size to a smaller one", {639, 359}, {301, 171}, 0);
        row("of an odd size to a larger one", {321, 181}, {567, 319}, 0);
        row("in padded rows", {640, 360}, {298, 168}, 96);
        row("in padded rows to a larger one", {320, 180}, {555, 312}, 96);
        row("of few pixels, chroma beside", {32, 18}, {60, 34}, 0);
    }
}

void TestScreenConverter::eachFormatShowsWhatWasPainted()
{
    QFETCH(QByteArray, format);
    QFETCH(QSize, from);
    QFETCH(QSize, to);
    QFETCH(int, padding);
    FrameKind kind;
    kind.format = gst_video_format_from_string(format.constData());
    kind.size = from;
    kind.padding = padding;
    kind.site = QByteArray(QTest::currentDataTag()).contains("beside") ? GST_VIDEO_CHROMA_SITE_MPEG2
                                                                       : GST_VIDEO_CHROMA_SITE_JPEG;
    const auto frame = frameOf(kind, slope);
    QVERIFY(frame);
    const QImage picture = forScreen(*frame, to);
    QVERIFY2(!picture.isNull(), "not known");
    // At the edges an enlarged picture repeats its outermost samples.
    const QRect inside = picture.rect().adjusted(6, 6, -6, -6);
    const QImage wanted = exactly(kind, slope, to);
    const int worst = worstDifference(picture.copy(inside), wanted.copy(inside));
    QVERIFY2(worst <= rounding, qPrintable(QString::number(worst)));
    QVERIFY(worstDifference(picture, wanted) <= 3 * rounding);
}

void TestScreenConverter::anyColourComesOutRight_data()
{
    QTest::addColumn<QByteArray>("colours");
    QTest::addColumn<bool>("beside");
    // The last number names the primaries, which do not matter here.
    for (const char *colours : {"2:4:7:1", "1:4:7:1", "2:3:5:1", "1:3:5:1", "2:6:0:7", "1:6:0:7"})
        for (const bool beside : {false, true})
            QTest::addRow("%s, chroma %s", colours, beside ? "beside" : "between")
                << QByteArray(colours) << beside;
}

// Small squares of one colour each, so that chroma of any position is the same inside of them.
void TestScreenConverter::anyColourComesOutRight()
{
    QFETCH(QByteArray, colours);
    QFETCH(bool, beside);
    constexpr int squares = 16;
    constexpr int side = 12; // pixels
    QRandomGenerator random(7);
    int levels[3][squares][squares];
    for (auto &component : levels)
        for (auto &line : component)
            for (int &level : line)
                level = random.bounded(30, 226);
    FrameKind kind;
    kind.size = QSize(squares, squares) * side;
    kind.colours = colours.constData();
    kind.site = beside ? GST_VIDEO_CHROMA_SITE_MPEG2 : GST_VIDEO_CHROMA_SITE_JPEG;
    for (const GstVideoFormat format :
         {GST_VIDEO_FORMAT_UYVY, GST_VIDEO_FORMAT_I420, GST_VIDEO_FORMAT_Y444}) {
        kind.format = format;
        const auto frame = frameOf(kind, [&levels](int component, double x, double y) {
            return levels[component][int(y * squares)][int(x * squares)];
        });
        const QImage picture = forScreen(*frame, kind.size);
        QVERIFY(!picture.isNull());
        const GstVideoInfo info = infoOf(kind);
        for (int y = 0; y < squares; ++y)
            for (int x = 0; x < squares; ++x) {
                const QRgb wanted =
                    rgbOf(levels[0][y][x], levels[1][y][x], levels[2][y][x], info.colorimetry);
                const QRgb made = picture.pixel(x * side + side / 2, y * side + side / 2);
                QVERIFY2(worstDifference(made, wanted) <= 2,
                         qPrintable(QStringLiteral("format %1: %2 instead of %3")
                                        .arg(format)
                                        .arg(QColor(made).name(), QColor(wanted).name())));
            }
    }
}

void TestScreenConverter::aShrunkSampleIsTheAverageOfItsArea_data()
{
    QTest::addColumn<QSize>("to");
    QTest::newRow("a little") << QSize(210, 118);
    QTest::newRow("to less than half") << QSize(112, 63);
    QTest::newRow("to less than a quarter") << QSize(56, 31);
    QTest::newRow("to a few pixels") << QSize(5, 3);
}

// The share of the new sample @p to, of @p count, that the old one @p from, of @p samples, covers.
static double covered(int from, int samples, int to, int count)
{
    const double step = double(samples) / count;
    return qMax(0.0, qMin(from + 1.0, (to + 1) * step) - qMax(double(from), to * step)) / step;
}

void TestScreenConverter::aShrunkSampleIsTheAverageOfItsArea()
{
    QFETCH(QSize, to);
    const QSize from(240, 135);
    FrameKind kind;
    kind.format = GST_VIDEO_FORMAT_NV12;
    kind.size = from;
    const auto isStroke = [](int x, int y) { return x % 5 == 0 || (x + y) % 7 == 0; };
    const auto frame = frameOf(kind, [&](int component, double x, double y) {
        return component > 0 ? 128 : isStroke(int(x * 240), int(y * 135)) ? 16 : 235;
    });
    const QImage picture = forScreen(*frame, to);
    QCOMPARE(picture.size(), to);
    for (int y = 0; y < to.height(); ++y)
        for (int x = 0; x < to.width(); ++x) {
            double light = 0;
            for (int v = 0; v < from.height(); ++v) {
                const double row = covered(v, from.height(), y, to.height());
                for (int u = 0; row > 0 && u < from.width(); ++u)
                    if (!isStroke(u, v))
                        light += 255 * row * covered(u, from.width(), x, to.width());
            }
            QVERIFY2(std::abs(qGreen(picture.pixel(x, y)) - light) <= 3,
                     qPrintable(QStringLiteral("%1, %2: %3 instead of %4")
                                    .arg(x)
                                    .arg(y)
                                    .arg(qGreen(picture.pixel(x, y)))
                                    .arg(light)));
        }
}

void TestScreenConverter::anEnlargedSampleIsBlendedOfItsNeighbours()
{
    FrameKind kind;
    kind.format = GST_VIDEO_FORMAT_I420;
    kind.size = {8, 8};
    const auto frame = frameOf(kind, [](int component, double x, double) {
        return component == 0 && x > 0.5 ? 235 : component == 0 ? 16 : 128;
    });
    const QImage picture = forScreen(*frame, {32, 32});
    QCOMPARE(picture.size(), QSize(32, 32));
    for (int x = 0; x < 32; ++x) {
        // Between the middles of the fourth and the fifth sample.
        const double light = 255 * qBound(0.0, (x + 0.5) / 4 - 3.5, 1.0);
        QVERIFY2(std::abs(qGreen(picture.pixel(x, 16)) - light) <= 2,
                 qPrintable(QString::number(x)));
    }
}

// Two threads make these.
void TestScreenConverter::theLargestPicturesAreMadeWhole()
{
    for (const GstVideoFormat format : {GST_VIDEO_FORMAT_UYVY, GST_VIDEO_FORMAT_NV12}) {
        FrameKind kind;
        kind.format = format;
        kind.size = {1280, 720};
        const auto frame = frameOf(kind, slope);
        ScreenConverter converter;
        const QSize size(2560, 1440);
        const QImage wanted = exactly(kind, slope, size);
        for (int round = 0; round < 5; ++round) {
            QImage picture(size, QImage::Format_RGB32);
            picture.fill(Qt::black);
            QVERIFY(converter.convert(frame->picture(), &picture));
            QVERIFY(worstDifference(picture, wanted) <= rounding);
        }
    }
}

void TestScreenConverter::oneConverterServesManyFramesInTurn()
{
    ScreenConverter converter;
    FrameKind large;
    large.size = {640, 480};
    FrameKind small;
    small.format = GST_VIDEO_FORMAT_NV12;
    small.size = {160, 120};
    FrameKind unknown;
    unknown.format = GST_VIDEO_FORMAT_P010_10LE;
    const auto wide = frameOf(large, slope);
    const auto narrow = frameOf(small, slope);
    const auto other = frameOf(unknown, slope);
    for (const QSize &size : {QSize(300, 225), QSize(800, 600), QSize(33, 25)}) {
        QImage picture(size, QImage::Format_RGB32);
        QVERIFY(converter.convert(wide->picture(), &picture));
        QVERIFY(worstDifference(picture, exactly(large, slope, size)) <= 2 * rounding);
        QVERIFY(!converter.convert(other->picture(), &picture));
        QVERIFY(converter.convert(narrow->picture(), &picture));
        QVERIFY(worstDifference(picture, exactly(small, slope, size)) <= 2 * rounding);
    }
}

void TestScreenConverter::unknownFormatsAndColoursAreLeftToGStreamer_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QByteArray>("colours");
    QTest::newRow("grey") << QByteArray("GRAY8") << QByteArray("2:4:7:1");
    QTest::newRow("ten bits") << QByteArray("P010_10LE") << QByteArray("2:4:7:1");
    QTest::newRow("colours of old television") << QByteArray("UYVY") << QByteArray("2:2:5:1");
}

void TestScreenConverter::unknownFormatsAndColoursAreLeftToGStreamer()
{
    QFETCH(QByteArray, format);
    QFETCH(QByteArray, colours);
    FrameKind kind;
    kind.format = gst_video_format_from_string(format.constData());
    kind.colours = colours.constData();
    const auto frame =
        frameOf(kind, [](int component, double, double) { return component == 0 ? 200 : 128; });
    QVERIFY(frame);
    QVERIFY(forScreen(*frame, {40, 30}).isNull());
    const QImage picture = PictureConverter(QImage::Format_RGB32).convert(*frame, {40, 30});
    QVERIFY(worstDifference(picture, byGStreamer(*frame, {40, 30})) <= 1);
}

// An odd width ends in half a pair; what stands behind it belongs to the next row.
void TestScreenConverter::rowsThatStandTooCloseAreLeftToGStreamer()
{
    FrameKind kind;
    kind.size = {63, 48};
    kind.padding = -2;
    const auto frame = frameOf(kind, slope);
    QVERIFY(frame);
    QVERIFY(forScreen(*frame, {40, 30}).isNull());
}

QTEST_GUILESS_MAIN(TestScreenConverter)
#include "tst_screenconverter.moc"
