#include "CameraFrame.h"
#include "CameraPipeline.h"
#include "CapsModes.h"
#include "GstStart.h"
#include "PictureConverter.h"
#include "StillWriter.h"

#include <QImage>
#include <QTemporaryDir>
#include <QTest>

static const int frameLimit = 10000; // ms, for one frame on a busy machine
static const QSize frameSize(320, 240);

// What GLib and GStreamer complain about as a fault of the program.
static int complaints = 0;

static void onLog(const gchar *domain, GLogLevelFlags level, const gchar *text, gpointer)
{
    if (level & (G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_ERROR))
        ++complaints;
    qWarning("%s: %s", domain ? domain : "?", text);
}

// Fifty pictures a second, with or without being woven into 25 frames, as a grabber sends them.
static GstObjectHandle<GstElement> camera(const QByteArray &pattern, const QByteArray &weaving)
{
    const QByteArray description = "videotestsrc is-live=true pattern=" + pattern
        + " ! video/x-raw,framerate=50/1,width=320,height=240,format=YUY2" + weaving
        + " ! identity";
    return ownFloating(gst_parse_bin_from_description(description.constData(), TRUE, nullptr));
}

static const QByteArray woven(" ! interlace field-pattern=1:1 top-field-first=true");
static const QByteArray wovenBottomFirst(" ! interlace field-pattern=1:1 top-field-first=false");

static std::unique_ptr<CameraPipeline> open(GstObjectHandle<GstElement> source, int rate,
                                            const QByteArray &interlacing)
{
    const GstObjectHandle<GstPad> pad(gst_element_get_static_pad(source.get(), "src"));
    const GstMiniHandle<GstCaps> offered(gst_pad_query_caps(pad.get(), nullptr));
    for (const CameraMode &mode : modesOf(offered.get())) {
        GstMiniHandle<GstCaps> format = fixedCaps(offered.get(), mode);
        const QByteArray chosen(
            gst_structure_get_string(gst_caps_get_structure(format.get(), 0), "interlace-mode"));
        if (mode.rateNumerator == rate
            && (chosen.isEmpty() ? "progressive" : chosen) == interlacing)
            return CameraPipeline::build(std::move(source), std::move(format), mode);
    }
    return nullptr;
}

// Points that differ from the lines above and below alike: the teeth of what moved from one field
// to the next.
static int teethOf(const QImage &picture)
{
    const QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
    int teeth = 0;
    for (int y = 1; y < grey.height() - 1; ++y) {
        const uchar *line = grey.constScanLine(y);
        for (int x = 0; x < grey.width(); ++x) {
            const int above = line[x] - grey.constScanLine(y - 1)[x];
            const int below = line[x] - grey.constScanLine(y + 1)[x];
            teeth += above * below > 900;
        }
    }
    return teeth;
}

static std::shared_ptr<CameraFrame> nextFrame(CameraPipeline &camera)
{
    return CameraFrame::fromSample(camera.nextSample(frameLimit));
}

// The picture of a later frame: the first ones have no field before them to be compared with.
static QImage pictureOf(CameraPipeline &camera, int skipped = 4)
{
    std::shared_ptr<CameraFrame> frame = nextFrame(camera);
    for (int i = 0; frame && i < skipped; ++i)
        frame = nextFrame(camera);
    return frame ? PictureConverter(QImage::Format_RGB888).convert(*frame, frame->size())
                 : QImage();
}

// Half a second of pictures, together.
static int teethOfSeveral(CameraPipeline &camera)
{
    int teeth = 0;
    for (int i = 0; i < 12; ++i)
        teeth += teethOf(pictureOf(camera, i == 0 ? 4 : 0));
    return teeth;
}

// The teeth of the same scene when nobody parts the fields.
static int teethWithoutParting(const QByteArray &pattern, const QByteArray &weaving)
{
    // Said to be whole frames, they pass untouched.
    auto plain =
        open(camera(pattern,
                    weaving
                        + " ! capssetter replace=true caps=video/x-raw,format=YUY2,"
                          "width=320,height=240,framerate=25/1,interlace-mode=progressive"),
             25, "progressive");
    return plain && plain->play() ? teethOfSeveral(*plain) : -1;
}

class TestInterlacedCamera : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { complaints = 0; }
    void cleanup() { QCOMPARE(complaints, 0); }
    void whatMovesHasNoTeeth_data();
    void whatMovesHasNoTeeth();
    void itsFramesAreWholeAndKeepTheirRate();
    void whatRestsKeepsItsLines();
    void aFormatThatCannotBePartedIsShownAllTheSame();
    void framesOfOtherCamerasPassUntouched();
    void aPhotoCanBeTakenOfIt();
};

void TestInterlacedCamera::initTestCase()
{
    g_log_set_default_handler(onLog, nullptr);
    QVERIFY(startGstreamer());
}

void TestInterlacedCamera::whatMovesHasNoTeeth_data()
{
    QTest::addColumn<QByteArray>("weaving");
    QTest::newRow("top field first") << woven;
    QTest::newRow("bottom field first") << wovenBottomFirst;
}

void TestInterlacedCamera::whatMovesHasNoTeeth()
{
    QFETCH(QByteArray, weaving);
    const auto grabber = open(camera("ball", weaving), 25, "interleaved");
    QVERIFY(grabber && grabber->play());
    const int teeth = teethOfSeveral(*grabber);
    const int before = teethWithoutParting("ball", weaving);
    QVERIFY2(before > 500, qPrintable(QStringLiteral("%1 without").arg(before)));
    QVERIFY2(teeth * 5 < before, qPrintable(QStringLiteral("%1 of %2").arg(teeth).arg(before)));
}

void TestInterlacedCamera::itsFramesAreWholeAndKeepTheirRate()
{
    const auto grabber = open(camera("ball", woven), 25, "interleaved");
    QVERIFY(grabber && grabber->play());
    GstClockTime last = GST_CLOCK_TIME_NONE;
    int steps = 0;
    for (int i = 0; i < 20; ++i) {
        const GstMiniHandle<GstSample> sample = grabber->nextSample(frameLimit);
        QVERIFY(sample);
        GstVideoInfo info;
        QVERIFY(gst_video_info_from_caps(&info, gst_sample_get_caps(sample.get())));
        QVERIFY(!GST_VIDEO_INFO_IS_INTERLACED(&info));
        QCOMPARE(QSize(info.width, info.height), frameSize);
        QCOMPARE(info.fps_n / info.fps_d, 25);
        const GstClockTime time = GST_BUFFER_PTS(gst_sample_get_buffer(sample.get()));
        QVERIFY(!GST_CLOCK_TIME_IS_VALID(last) || time > last);
        // Whole periods; several when frames were passed over for lack of time.
        if (GST_CLOCK_TIME_IS_VALID(last) && time - last > 35 * GST_MSECOND)
            ++steps;
        last = time;
    }
    QCOMPARE(steps, 19);
}

void TestInterlacedCamera::whatRestsKeepsItsLines()
{
    const auto whole = open(camera("checkers-2", {}), 50, "progressive");
    QVERIFY(whole && whole->play());
    const QImage wanted = pictureOf(*whole);
    QVERIFY(!wanted.isNull());
    const auto grabber = open(camera("checkers-2", woven), 25, "interleaved");
    QVERIFY(grabber && grabber->play());
    const QImage picture = pictureOf(*grabber);
    QCOMPARE(picture.size(), wanted.size());
    // The outermost lines have no neighbours to be compared with.
    for (int y = 2; y < picture.height() - 2; ++y)
        for (int x = 0; x < picture.width(); ++x)
            QVERIFY2(qAbs(qGreen(picture.pixel(x, y)) - qGreen(wanted.pixel(x, y))) < 4,
                     qPrintable(QStringLiteral("column %1, line %2").arg(x).arg(y)));
}

void TestInterlacedCamera::aFormatThatCannotBePartedIsShownAllTheSame()
{
    const auto grabber = open(camera("white", woven + " ! videoconvert ! video/x-raw,format=YVU9"),
                              25, "interleaved");
    QVERIFY(grabber && grabber->play());
    const QImage picture = pictureOf(*grabber);
    QCOMPARE(picture.size(), frameSize);
    QVERIFY(qGray(picture.pixel(100, 101)) > 250);
}

void TestInterlacedCamera::framesOfOtherCamerasPassUntouched()
{
    const auto camera50 = open(camera("snow", {}), 50, "progressive");
    QVERIFY(camera50 && camera50->play());
    const int teeth = teethOf(pictureOf(*camera50));
    // A line made of its neighbours has none; of chance, two points in three.
    QVERIFY2(teeth > frameSize.width() * frameSize.height() / 2,
             qPrintable(QString::number(teeth)));
}

void TestInterlacedCamera::aPhotoCanBeTakenOfIt()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("photo.png"));
    const auto grabber = open(camera("red", woven), 25, "interleaved");
    QVERIFY(grabber && grabber->play());
    QVERIFY(writeStill(pictureOf(*grabber, 0), path));
    const QImage photo(path);
    QCOMPARE(photo.size(), frameSize);
    const QColor colour = photo.pixelColor(160, 120);
    QVERIFY2(colour.red() > 240 && colour.green() < 15 && colour.blue() < 15,
             qPrintable(colour.name()));
}

QTEST_GUILESS_MAIN(TestInterlacedCamera)
#include "tst_interlacedcamera.moc"
