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

private:
    static QByteArray jpeg(const QColor &color);
    static void send(GstElement *source, const QByteArray &bytes);
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

QTEST_GUILESS_MAIN(TestCameraPipeline)
#include "tst_camerapipeline.moc"
