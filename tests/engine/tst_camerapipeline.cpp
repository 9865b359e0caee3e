#include "CameraFrame.h"
#include "CameraPipeline.h"
#include "GstStart.h"

#include <QBuffer>
#include <QImage>
#include <QTest>

#include <gst/app/gstappsrc.h>

/// The pipeline behind a camera, fed by hand.
class TestCameraPipeline : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(startGstreamer()); }
    void damagedPicturesAreLeftOut();
    void oneThatRestsSendsNothingUntilItIsWoken();
    void whatWasTakenBeforeItWasWokenIsLeftOut();
    void aCameraWithoutATrueClockIsBelievedAfterAWhile();

private:
    static QByteArray jpeg(const QColor &color);
    static void send(GstElement *source, const QByteArray &bytes);
    static void sendTaken(GstElement *source, GstClockTime when, char shade);
    static int shadeOf(CameraPipeline *camera, int milliseconds);
    static std::unique_ptr<CameraPipeline> greyCamera(GstElement *source);
};

static const QSize pictureSize(64, 48);

QByteArray TestCameraPipeline::jpeg(const QColor &color)
{
    QImage picture(pictureSize, QImage::Format_RGB32);
    picture.fill(color);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    picture.save(&bytes, "JPG");
    return bytes.data();
}

void TestCameraPipeline::send(GstElement *source, const QByteArray &bytes)
{
    GstBuffer *buffer = gst_buffer_new_memdup(bytes.constData(), gsize(bytes.size()));
    gst_app_src_push_buffer(GST_APP_SRC(source), buffer);
}

// Cables that are bent and hubs that are shared damage a picture now and then, sometimes for a
// while; the camera is well all the same.
void TestCameraPipeline::damagedPicturesAreLeftOut()
{
    const CameraMode mode{CameraMode::Encoding::Jpeg, {}, pictureSize.width(),
                          pictureSize.height(),       30, 1};
    GstMiniHandle<GstCaps> format(
        gst_caps_new_simple("image/jpeg", "width", G_TYPE_INT, mode.width, "height", G_TYPE_INT,
                            mode.height, "framerate", GST_TYPE_FRACTION, 30, 1, nullptr));
    GstElement *source = gst_element_factory_make("appsrc", nullptr);
    g_object_set(source, "caps", format.get(), "format", GST_FORMAT_TIME, "is-live", TRUE,
                 "do-timestamp", TRUE, nullptr);
    const GstObjectHandle<GstElement> kept(static_cast<GstElement *>(gst_object_ref(source)));
    const std::unique_ptr<CameraPipeline> camera =
        CameraPipeline::build(ownFloating(source), std::move(format), mode);
    QVERIFY(camera);
    QVERIFY(camera->play());
    send(source, jpeg(Qt::white));
    QVERIFY(QTest::qWaitFor([&] { return camera->nextSample(100) != nullptr; }));

    QByteArray damaged = jpeg(Qt::black);
    const int header = damaged.indexOf("\xff\xc0");
    QVERIFY(header > 0);
    damaged[header + 4] = 9; // bits of a sample, of which there are always 8
    for (int i = 0; i < 60; ++i)
        send(source, damaged);
    send(source, jpeg(Qt::white));
    QVERIFY(QTest::qWaitFor([&] { return camera->nextSample(100) != nullptr; }));
    QCOMPARE(camera->failure(), QString());
}

// A frame that was taken at this time of the system's clock, all in one shade.
void TestCameraPipeline::sendTaken(GstElement *source, GstClockTime when, char shade)
{
    const QByteArray pixels(pictureSize.width() * pictureSize.height(), shade);
    GstBuffer *buffer = gst_buffer_new_memdup(pixels.constData(), gsize(pixels.size()));
    GST_BUFFER_PTS(buffer) = when - gst_element_get_base_time(source);
    gst_app_src_push_buffer(GST_APP_SRC(source), buffer);
}

/// Of the next frame; -1 when none comes.
int TestCameraPipeline::shadeOf(CameraPipeline *camera, int milliseconds)
{
    const std::shared_ptr<CameraFrame> frame =
        CameraFrame::fromSample(camera->nextSample(milliseconds));
    return frame ? frame->view().at<uchar>(0, 0) : -1;
}

std::unique_ptr<CameraPipeline> TestCameraPipeline::greyCamera(GstElement *source)
{
    const CameraMode mode{CameraMode::Encoding::Raw, "GRAY8", pictureSize.width(),
                          pictureSize.height(),      30,      1};
    GstMiniHandle<GstCaps> format(gst_caps_new_simple(
        "video/x-raw", "format", G_TYPE_STRING, "GRAY8", "width", G_TYPE_INT, mode.width, "height",
        G_TYPE_INT, mode.height, "framerate", GST_TYPE_FRACTION, 30, 1, nullptr));
    if (g_object_class_find_property(G_OBJECT_GET_CLASS(source), "caps"))
        g_object_set(source, "caps", format.get(), "format", GST_FORMAT_TIME, nullptr);
    g_object_set(source, "is-live", TRUE, nullptr);
    return CameraPipeline::build(ownFloating(source), std::move(format), mode);
}

static GstClockTime now()
{
    const GstObjectHandle<GstClock> clock(gst_system_clock_obtain());
    return gst_clock_get_time(clock.get());
}

void TestCameraPipeline::oneThatRestsSendsNothingUntilItIsWoken()
{
    const auto camera = greyCamera(gst_element_factory_make("videotestsrc", nullptr));
    QVERIFY(camera && camera->play());
    QVERIFY(QTest::qWaitFor([&] { return camera->nextSample(100) != nullptr; }));
    for (int times = 0; times < 3; ++times) {
        QVERIFY(camera->rest());
        camera->nextSample(0); // may have come just before
        QVERIFY(!camera->nextSample(300));
        QVERIFY(camera->wake());
        QVERIFY(QTest::qWaitFor([&] { return camera->nextSample(100) != nullptr; }));
    }
    QCOMPARE(camera->failure(), QString());
}

// A driver keeps some frames of before the rest, and gives them first.
void TestCameraPipeline::whatWasTakenBeforeItWasWokenIsLeftOut()
{
    GstElement *source = gst_element_factory_make("appsrc", nullptr);
    const GstObjectHandle<GstElement> kept(static_cast<GstElement *>(gst_object_ref(source)));
    const auto camera = greyCamera(source);
    QVERIFY(camera && camera->play());
    sendTaken(source, now(), 1);
    QVERIFY(QTest::qWaitFor([&] { return shadeOf(camera.get(), 100) == 1; }));
    const GstClockTime before = now();
    QVERIFY(camera->rest());
    QVERIFY(camera->wake());
    sendTaken(source, before, 2);
    QCOMPARE(shadeOf(camera.get(), 100), -1);
    sendTaken(source, now(), 3);
    QVERIFY(QTest::qWaitFor([&] { return shadeOf(camera.get(), 100) == 3; }));
    sendTaken(source, before, 4); // behind a new one, old ones do not come
    QVERIFY(QTest::qWaitFor([&] { return shadeOf(camera.get(), 100) == 4; }));
}

void TestCameraPipeline::aCameraWithoutATrueClockIsBelievedAfterAWhile()
{
    GstElement *source = gst_element_factory_make("appsrc", nullptr);
    const GstObjectHandle<GstElement> kept(static_cast<GstElement *>(gst_object_ref(source)));
    const auto camera = greyCamera(source);
    QVERIFY(camera && camera->play());
    QVERIFY(camera->rest());
    QVERIFY(camera->wake());
    const GstClockTime start = gst_element_get_base_time(source);
    QVERIFY(QTest::qWaitFor([&] {
        sendTaken(source, start, 6);
        return shadeOf(camera.get(), 50) == 6;
    }));
}

QTEST_GUILESS_MAIN(TestCameraPipeline)
#include "tst_camerapipeline.moc"
