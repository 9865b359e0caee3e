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
    void aPictureThatIsCutAnywhereCostsNoOther();
    void whatComesDuringARestIsDropped();

private:
    void build(CameraMode::Encoding encoding);
    bool frameComes();
    static QByteArray jpeg(const QColor &color);
    static QByteArray unpacked();
    void send(const QByteArray &bytes);

    std::unique_ptr<CameraPipeline> m_camera;
    GstObjectHandle<GstElement> m_source;
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

QByteArray TestCameraPipeline::unpacked()
{
    return QByteArray(pictureSize.width() * pictureSize.height() * 2, '\x80');
}

void TestCameraPipeline::send(const QByteArray &bytes)
{
    GstBuffer *buffer = gst_buffer_new_memdup(bytes.constData(), gsize(bytes.size()));
    gst_app_src_push_buffer(GST_APP_SRC(m_source.get()), buffer);
}

bool TestCameraPipeline::frameComes()
{
    return QTest::qWaitFor([&] { return m_camera->nextSample(100) != nullptr; });
}

void TestCameraPipeline::build(CameraMode::Encoding encoding)
{
    const bool packed = encoding == CameraMode::Encoding::Jpeg;
    const CameraMode mode{
        encoding, packed ? "" : "UYVY", pictureSize.width(), pictureSize.height(), 30, 1};
    const QString caps = QString("%1,width=%2,height=%3,framerate=30/1")
                             .arg(packed ? "image/jpeg" : "video/x-raw,format=UYVY")
                             .arg(mode.width)
                             .arg(mode.height);
    GstMiniHandle<GstCaps> format(gst_caps_from_string(qPrintable(caps)));
    GstElement *source = gst_element_factory_make("appsrc", nullptr);
    g_object_set(source, "caps", format.get(), "format", GST_FORMAT_TIME, "is-live", TRUE,
                 "do-timestamp", TRUE, nullptr);
    m_source.reset(static_cast<GstElement *>(gst_object_ref(source)));
    m_camera = CameraPipeline::build(ownFloating(source), std::move(format), mode);
    QVERIFY(m_camera);
    QVERIFY(m_camera->play());
    send(packed ? jpeg(Qt::white) : unpacked());
    QVERIFY(frameComes());
}

// Cables that are bent and hubs that are shared damage a picture now and then, sometimes for a
// while; the camera is well all the same.
void TestCameraPipeline::damagedPicturesAreLeftOut()
{
    build(CameraMode::Encoding::Jpeg);
    QByteArray damaged = jpeg(Qt::black);
    const int header = damaged.indexOf("\xff\xc0");
    QVERIFY(header > 0);
    damaged[header + 4] = 9; // bits of a sample, of which there are always 8
    for (int i = 0; i < 60; ++i)
        send(damaged);
    send(jpeg(Qt::white));
    QVERIFY(frameComes());
    QCOMPARE(m_camera->failure(), QString());
}

void TestCameraPipeline::aPictureThatIsCutAnywhereCostsNoOther()
{
    build(CameraMode::Encoding::Jpeg);
    const QByteArray cut = jpeg(Qt::darkGray);
    for (int size = 1; size < cut.size(); ++size) {
        const bool isWhite = size % 2 == 0;
        const auto isThere = [&] {
            const auto frame = CameraFrame::fromSample(m_camera->nextSample(100));
            return frame && qAbs(frame->view().at<uchar>(0, 0) - (isWhite ? 255 : 0)) < 50;
        };
        send(cut.left(size));
        send(jpeg(isWhite ? Qt::white : Qt::black));
        QVERIFY2(QTest::qWaitFor(isThere), qPrintable(QString::number(size)));
    }
    QCOMPARE(m_camera->failure(), QString());
}

// The next one tells that some are missing: what is made of two frames must not mix it with one
// of before.
void TestCameraPipeline::whatComesDuringARestIsDropped()
{
    build(CameraMode::Encoding::Raw);
    QVERIFY(!m_camera->sendsStill());
    m_camera->rest();
    send(unpacked());
    QVERIFY(QTest::qWaitFor([&] { return m_camera->sendsStill(); }));
    QVERIFY(!m_camera->sendsStill());
    m_camera->wake();
    QVERIFY(!m_camera->nextSample(0));
    send(unpacked());
    GstMiniHandle<GstSample> sample;
    QVERIFY(QTest::qWaitFor([&] { return (sample = m_camera->nextSample(100)) != nullptr; }));
    QVERIFY(GST_BUFFER_FLAG_IS_SET(gst_sample_get_buffer(sample.get()), GST_BUFFER_FLAG_DISCONT));
    send(unpacked());
    QVERIFY(QTest::qWaitFor([&] { return (sample = m_camera->nextSample(100)) != nullptr; }));
    QVERIFY(!GST_BUFFER_FLAG_IS_SET(gst_sample_get_buffer(sample.get()), GST_BUFFER_FLAG_DISCONT));
}

QTEST_GUILESS_MAIN(TestCameraPipeline)
#include "tst_camerapipeline.moc"
