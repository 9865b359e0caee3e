#include "CameraFrame.h"
#include "GstStart.h"
#include "PictureConverter.h"

#include <QTest>

// A frame of one colour, given as its bytes repeated.
static std::shared_ptr<CameraFrame>
frameOf(const char *format, const QSize &size, const QByteArray &bytes,
        GstVideoInterlaceMode interlacing = GST_VIDEO_INTERLACE_MODE_PROGRESSIVE,
        bool twoFields = false)
{
    GstVideoInfo info;
    gst_video_info_set_interlaced_format(&info, gst_video_format_from_string(format), interlacing,
                                         guint(size.width()), guint(size.height()));
    const GstMiniHandle<GstCaps> caps(gst_video_info_to_caps(&info));
    const GstMiniHandle<GstBuffer> buffer(
        gst_buffer_new_allocate(nullptr, GST_VIDEO_INFO_SIZE(&info), nullptr));
    for (gsize at = 0; at < GST_VIDEO_INFO_SIZE(&info); at += gsize(bytes.size()))
        gst_buffer_fill(buffer.get(), at, bytes.constData(), gsize(bytes.size()));
    if (twoFields)
        GST_BUFFER_FLAG_SET(buffer.get(), GST_VIDEO_BUFFER_FLAG_INTERLACED);
    return CameraFrame::fromSample(
        GstMiniHandle<GstSample>(gst_sample_new(buffer.get(), caps.get(), nullptr, nullptr)));
}

static bool isNear(QRgb left, QRgb right)
{
    return qAbs(qRed(left) - qRed(right)) < 4 && qAbs(qGreen(left) - qGreen(right)) < 4
        && qAbs(qBlue(left) - qBlue(right)) < 4;
}

class TestPictureConverter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(startGstreamer()); }
    void coloursAndSizeComeOut_data();
    void coloursAndSizeComeOut();
    void interlacedFramesComeOutToo_data();
    void interlacedFramesComeOutToo();
    void aConverterServesFramesOfChangingFormatAndSize();
    void memoryIsUsedAgainOnlyWhenNobodyElseHasIt();
    void noSizeGivesNoPicture();
    void aSampleWithoutAPictureIsNoFrame();
    void rowsPackedCloserThanUsualAreReadAsTheyStand();
    void theViewShowsTheFrameItselfAndNoCopy();
};

void TestPictureConverter::coloursAndSizeComeOut_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QImage::Format>("wanted");
    QTest::addColumn<QSize>("size");
    const QByteArray red("\x00\x00\xff\x00", 4);
    const QByteArray redYuv("\x51\x5a\x51\xf0", 4); // BT.601, as is usual up to 576 lines

    QTest::newRow("RGB smaller") << QByteArray("BGRx") << red << QImage::Format_RGB32
                                 << QSize(40, 30);
    QTest::newRow("RGB for a file")
        << QByteArray("BGRx") << red << QImage::Format_RGB888 << QSize(64, 48);
    QTest::newRow("YUV at its own size")
        << QByteArray("YUY2") << redYuv << QImage::Format_RGB32 << QSize(64, 48);
    QTest::newRow("YUV larger and of an odd size")
        << QByteArray("YUY2") << redYuv << QImage::Format_RGB32 << QSize(101, 77);
    QTest::newRow("YUV for a file whose rows are padded")
        << QByteArray("YUY2") << redYuv << QImage::Format_RGB888 << QSize(33, 21);
}

void TestPictureConverter::coloursAndSizeComeOut()
{
    QFETCH(QByteArray, format);
    QFETCH(QByteArray, bytes);
    QFETCH(QImage::Format, wanted);
    QFETCH(QSize, size);
    const std::shared_ptr<CameraFrame> frame = frameOf(format.constData(), {64, 48}, bytes);
    QVERIFY(frame);
    const QImage picture = PictureConverter(wanted).convert(*frame, size);
    QCOMPARE(picture.size(), size);
    QCOMPARE(picture.format(), wanted);
    for (const QPoint &point : {QPoint(0, 0), QPoint(size.width() - 1, size.height() - 1),
                                QPoint(size.width() / 2, size.height() / 2)})
        QVERIFY2(isNear(picture.pixel(point), qRgb(255, 0, 0)),
                 qPrintable(QColor(picture.pixel(point)).name()));
}

void TestPictureConverter::interlacedFramesComeOutToo_data()
{
    QTest::addColumn<int>("interlacing");
    QTest::addColumn<QSize>("size");
    for (const QSize &size : {QSize(64, 48), QSize(40, 30), QSize(101, 77), QSize(64, 1)}) {
        QTest::addRow("two fields in a frame, %dx%d", size.width(), size.height())
            << int(GST_VIDEO_INTERLACE_MODE_INTERLEAVED) << size;
        QTest::addRow("in some frames, %dx%d", size.width(), size.height())
            << int(GST_VIDEO_INTERLACE_MODE_MIXED) << size;
        QTest::addRow("in frames said to be whole, %dx%d", size.width(), size.height())
            << int(GST_VIDEO_INTERLACE_MODE_PROGRESSIVE) << size;
    }
}

void TestPictureConverter::interlacedFramesComeOutToo()
{
    QFETCH(int, interlacing);
    QFETCH(QSize, size);
    const auto red = frameOf("YUY2", {64, 48}, QByteArray("\x51\x5a\x51\xf0", 4),
                             GstVideoInterlaceMode(interlacing), true);
    const auto blue = frameOf("BGRx", {64, 48}, QByteArray("\xff\x00\x00\x00", 4));
    PictureConverter converter(QImage::Format_RGB888);
    const QImage picture = converter.convert(*red, size);
    QCOMPARE(picture.size(), size);
    for (int y = 0; y < size.height(); ++y)
        QVERIFY2(isNear(picture.pixel(size.width() / 2, y), qRgb(255, 0, 0)),
                 qPrintable(QStringLiteral("line %1").arg(y)));
    QVERIFY(isNear(converter.convert(*blue, size).pixel(5, 0), qRgb(0, 0, 255)));
}

void TestPictureConverter::aConverterServesFramesOfChangingFormatAndSize()
{
    PictureConverter converter(QImage::Format_RGB32);
    const auto blue = frameOf("BGRx", {64, 48}, QByteArray("\xff\x00\x00\x00", 4));
    const auto green = frameOf("RGB", {32, 32}, QByteArray("\x00\xff\x00", 3));
    QCOMPARE(converter.convert(*blue, {20, 20}).pixel(5, 5), qRgb(0, 0, 255));
    QCOMPARE(converter.convert(*green, {20, 20}).pixel(5, 5), qRgb(0, 255, 0));
    QCOMPARE(converter.convert(*green, {50, 10}).pixel(45, 5), qRgb(0, 255, 0));
    QCOMPARE(converter.convert(*blue, {20, 20}).pixel(5, 5), qRgb(0, 0, 255));
}

void TestPictureConverter::memoryIsUsedAgainOnlyWhenNobodyElseHasIt()
{
    PictureConverter converter(QImage::Format_RGB32);
    const auto blue = frameOf("BGRx", {64, 48}, QByteArray("\xff\x00\x00\x00", 4));
    QImage first = converter.convert(*blue, {20, 20});
    const uchar *memory = first.constBits();
    QImage second = converter.convert(*blue, {20, 20}, std::move(first));
    QCOMPARE(second.constBits(), memory);
    const QImage shared = second;
    const QImage third = converter.convert(*blue, {20, 20}, std::move(second));
    QVERIFY(third.constBits() != shared.constBits());
}

void TestPictureConverter::noSizeGivesNoPicture()
{
    const auto blue = frameOf("BGRx", {64, 48}, QByteArray("\xff\x00\x00\x00", 4));
    QVERIFY(PictureConverter(QImage::Format_RGB32).convert(*blue, {}).isNull());
}

void TestPictureConverter::aSampleWithoutAPictureIsNoFrame()
{
    QVERIFY(!CameraFrame::fromSample(nullptr));
    const GstMiniHandle<GstBuffer> buffer(gst_buffer_new_allocate(nullptr, 16, nullptr));
    const GstMiniHandle<GstCaps> caps(
        gst_caps_from_string("video/x-raw,format=YUY2,width=64,height=48,framerate=30/1"));
    QVERIFY2(!CameraFrame::fromSample(
                 GstMiniHandle<GstSample>(gst_sample_new(buffer.get(), nullptr, nullptr, nullptr))),
             "without a format");
    QVERIFY2(!CameraFrame::fromSample(GstMiniHandle<GstSample>(
                 gst_sample_new(buffer.get(), caps.get(), nullptr, nullptr))),
             "shorter than its format says");
}

// Some drivers leave out the padding at the end of rows, and say so beside the buffer.
void TestPictureConverter::rowsPackedCloserThanUsualAreReadAsTheyStand()
{
    GstVideoInfo info;
    gst_video_info_set_format(&info, GST_VIDEO_FORMAT_GRAY8, 6, 4);
    const GstMiniHandle<GstCaps> caps(gst_video_info_to_caps(&info));
    const GstMiniHandle<GstBuffer> buffer(gst_buffer_new_allocate(nullptr, 24, nullptr));
    QVERIFY(GST_VIDEO_INFO_SIZE(&info) > 24);
    gst_buffer_memset(buffer.get(), 0, 0xff, 24);
    const auto frame = [&] {
        return CameraFrame::fromSample(
            GstMiniHandle<GstSample>(gst_sample_new(buffer.get(), caps.get(), nullptr, nullptr)));
    };
    QVERIFY2(!frame(), "the buffer alone is too short");
    gsize offset[GST_VIDEO_MAX_PLANES] = {0};
    gint stride[GST_VIDEO_MAX_PLANES] = {6};
    gst_buffer_add_video_meta_full(buffer.get(), GST_VIDEO_FRAME_FLAG_NONE, GST_VIDEO_FORMAT_GRAY8,
                                   6, 4, 1, offset, stride);
    const std::shared_ptr<CameraFrame> whole = frame();
    QVERIFY(whole);
    PictureConverter converter(QImage::Format_RGB32);
    const QImage picture = converter.convert(*whole, QSize(6, 4));
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 6; ++x)
            QCOMPARE(picture.pixel(x, y), qRgb(255, 255, 255));
}

void TestPictureConverter::theViewShowsTheFrameItselfAndNoCopy()
{
    const auto frame = frameOf("YUY2", {64, 48}, QByteArray("\x51\x5a\x51\xf0", 4));
    const cv::Mat view = frame->view();
    QCOMPARE(view.cols, 64);
    QCOMPARE(view.rows, 48);
    QCOMPARE(view.channels(), 2);
    QCOMPARE(static_cast<const void *>(view.data),
             static_cast<const void *>(frame->picture().data[0]));
}

QTEST_GUILESS_MAIN(TestPictureConverter)
#include "tst_pictureconverter.moc"
