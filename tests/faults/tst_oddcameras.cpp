#include "CameraFrame.h"
#include "CameraPipeline.h"
#include "FaultTrial.h"
#include "FrameTap.h"
#include "GstStart.h"
#include "MovieEncoding.h"
#include "MovieProbe.h"
#include "MovieRecorder.h"
#include "PictureConverter.h"
#include "PipelineTools.h"

#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <gst/app/gstappsrc.h>

/// Cameras that send something else than they promised, while a movie is made of it.
class TestOddCameras : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(startGstreamer()); }
    void aCameraThatChangesItsPictureKeepsItsMovie();
    void aCameraThatSendsHalfFramesKeepsItsMovie_data();
    void aCameraThatSendsHalfFramesKeepsItsMovie();

private:
    void build(const QString &format = "image/jpeg");
    void push(const QByteArray &bytes);
    bool frameComes();
    std::shared_ptr<MovieRecorder> record(const QString &format = "I420");
    void send(const QImage &picture, int frames);
    QImage lastOf(const QString &movie) const;

    std::shared_ptr<FrameTap> m_tap;
    std::unique_ptr<CameraPipeline> m_camera;
    GstObjectHandle<GstElement> m_source;
    QTemporaryDir m_folder;
    QString m_path;
};

static const QSize promised(640, 480);
static const int rate = 30;

static QImage plain(const QSize &size, const QColor &color,
                    QImage::Format format = QImage::Format_RGB32)
{
    QImage picture(size, format);
    picture.fill(color);
    return picture;
}

// "image/jpeg", or that of a bare picture.
void TestOddCameras::build(const QString &kind)
{
    const bool packed = kind == "image/jpeg";
    const CameraMode mode{packed ? CameraMode::Encoding::Jpeg : CameraMode::Encoding::Raw,
                          packed ? QByteArray() : kind.toLatin1(),
                          promised.width(),
                          promised.height(),
                          rate,
                          1};
    const QString caps = QString("%1,width=%2,height=%3,framerate=%4/1")
                             .arg(packed ? kind : "video/x-raw,format=" + kind)
                             .arg(mode.width)
                             .arg(mode.height)
                             .arg(rate);
    GstMiniHandle<GstCaps> format(gst_caps_from_string(qPrintable(caps)));
    GstElement *source = gst_element_factory_make("appsrc", nullptr);
    g_object_set(source, "caps", format.get(), "format", GST_FORMAT_TIME, "is-live", TRUE,
                 "do-timestamp", TRUE, nullptr);
    m_source.reset(static_cast<GstElement *>(gst_object_ref(source)));
    m_camera = CameraPipeline::build(ownFloating(source), std::move(format), mode);
    QVERIFY(m_camera);
    m_tap = std::make_shared<FrameTap>();
    m_camera->setTap(m_tap);
    QVERIFY(m_camera->play());
}

void TestOddCameras::push(const QByteArray &bytes)
{
    GstBuffer *buffer = gst_buffer_new_memdup(bytes.constData(), gsize(bytes.size()));
    gst_app_src_push_buffer(GST_APP_SRC(m_source.get()), buffer);
}

bool TestOddCameras::frameComes()
{
    return QTest::qWaitFor(
        [&] { return CameraFrame::fromSample(m_camera->nextSample(100)) != nullptr; });
}

// At the camera's pace; each has come through before the next is sent.
void TestOddCameras::send(const QImage &picture, int frames)
{
    QByteArray bytes;
    QBuffer device(&bytes);
    device.open(QIODevice::WriteOnly);
    QVERIFY(picture.save(&device, "JPG", 90));
    for (int i = 0; i < frames; ++i) {
        push(bytes);
        std::shared_ptr<CameraFrame> frame;
        QVERIFY(QTest::qWaitFor([&] {
            frame = CameraFrame::fromSample(m_camera->nextSample(100));
            return frame != nullptr;
        }));
        QCOMPARE(frame->size(), picture.size());
        QTest::qWait(1000 / rate); // nothing to wait for: the pace of the camera
    }
}

std::shared_ptr<MovieRecorder> TestOddCameras::record(const QString &kind)
{
    static int number = 0;
    m_path = m_folder.filePath(QString("movie%1.mov").arg(++number));
    GstVideoInfo format;
    gst_video_info_set_format(&format, gst_video_format_from_string(qPrintable(kind)),
                              guint(promised.width()), guint(promised.height()));
    format.fps_n = rate;
    format.fps_d = 1;
    auto movie =
        MovieRecorder::start(m_path, format,
                             {"x264enc tune=zerolatency speed-preset=ultrafast ! h264parse",
                              soundEncoders().first().description});
    m_tap->handTo(movie);
    return movie;
}

// As it is shown.
QImage TestOddCameras::lastOf(const QString &movie) const
{
    const GstObjectHandle<GstElement> player = parsePipeline(
        "player",
        "filesrc location=" + movie.toUtf8()
            + " ! qtdemux ! avdec_h264 ! videoconvert ! video/x-raw,format=BGRx ! appsink name=out"
              " sync=false");
    if (!player)
        return {};
    gst_element_set_state(player.get(), GST_STATE_PLAYING);
    const GstObjectHandle<GstElement> out(gst_bin_get_by_name(GST_BIN(player.get()), "out"));
    PictureConverter converter{QImage::Format_RGB32};
    QImage last;
    while (auto frame = CameraFrame::fromSample(GstMiniHandle<GstSample>(
               gst_app_sink_try_pull_sample(GST_APP_SINK(out.get()), 5 * GST_SECOND))))
        last = converter.convert(*frame, frame->size(), {});
    gst_element_set_state(player.get(), GST_STATE_NULL);
    return last;
}

static bool isLike(const QColor &color, const QColor &wanted)
{
    return qAbs(color.red() - wanted.red()) < 40 && qAbs(color.green() - wanted.green()) < 40
        && qAbs(color.blue() - wanted.blue()) < 40;
}

void TestOddCameras::aCameraThatChangesItsPictureKeepsItsMovie()
{
    const QVector<QSize> sizes{{320, 240}, {1280, 960}, {1280, 720}, {16, 16},
                               {240, 320}, {638, 479},  {640, 480},  {3840, 2160}};
    FaultTrial trial("a camera changes the size or the format of its picture in a movie", 4, 40);
    while (trial.next()) {
        const int odd = (trial.tries() - 1) % (2 * sizes.size());
        const QSize size = sizes[(odd + trial.tries() / 2) % sizes.size()];
        const bool isGrey = odd % 2 == 1;
        qInfo("to %dx%d%s", size.width(), size.height(), isGrey ? ", grey" : "");
        build();
        send(plain(promised, Qt::white), 1);
        const auto movie = record();
        QVERIFY(movie);
        send(plain(promised, Qt::white), 3 + trial.upTo(6));
        if (isGrey)
            send(plain(size, Qt::darkGray, QImage::Format_Grayscale8), 12);
        else
            send(plain(size, Qt::darkGreen), 12);
        if (trial.upTo(1) == 1)
            send(plain(promised, isGrey ? Qt::darkGray : Qt::darkGreen), 3);
        QVERIFY(movie->finish(std::chrono::seconds(20)));
        m_tap->handTo(nullptr);
        m_camera.reset();

        const MovieProbe probe(m_path);
        QCOMPARE(probe.complaints(), QString());
        const QImage last = lastOf(m_path);
        QCOMPARE(last.size(), promised);
        const QColor seen = last.pixelColor(last.rect().center());
        QVERIFY2(isLike(seen, isGrey ? Qt::darkGray : Qt::darkGreen), qPrintable(seen.name()));
    }
}

void TestOddCameras::aCameraThatSendsHalfFramesKeepsItsMovie_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("bytes"); // of a whole frame; 0 where they differ
    const int points = promised.width() * promised.height();
    QTest::newRow("JPEG") << "image/jpeg" << 0;
    QTest::newRow("I420") << "I420" << points * 3 / 2;
    QTest::newRow("YUY2") << "YUY2" << points * 2;
}

void TestOddCameras::aCameraThatSendsHalfFramesKeepsItsMovie()
{
    QFETCH(QString, kind);
    QFETCH(int, bytes);
    FaultTrial trial(QString("a bad cable cuts frames short in a movie, %1").arg(kind), 1, 10);
    while (trial.next()) {
        build(kind);
        QByteArray whole(bytes, '\x80');
        if (bytes == 0) {
            QBuffer device(&whole);
            device.open(QIODevice::WriteOnly);
            QVERIFY(plain(promised, Qt::darkGray).save(&device, "JPG", 90));
        }
        push(whole);
        QVERIFY(frameComes());
        const auto movie = record(kind == "image/jpeg" ? "I420" : kind);
        QVERIFY(movie);
        for (int i = 0; i < 20; ++i) {
            // Both ends are whole, what lies between them is not always.
            const bool isCut = i > 0 && i < 19 && trial.upTo(1) == 1;
            push(isCut ? whole.left(trial.upTo(whole.size() - 1)) : whole);
            QVERIFY(isCut || frameComes());
            QTest::qWait(1000 / rate); // nothing to wait for: the pace of the camera
        }
        QCOMPARE(m_camera->failure(), QString());
        QVERIFY(movie->finish(std::chrono::seconds(20)));
        m_tap->handTo(nullptr);
        m_camera.reset();
        const MovieProbe probe(m_path);
        QCOMPARE(probe.complaints(), QString());
        QVERIFY(probe.videoDuration() > 0.5);
        const QColor seen = lastOf(m_path).pixelColor(promised.width() / 2, promised.height() / 2);
        QVERIFY2(isLike(seen, Qt::darkGray), qPrintable(seen.name()));
    }
}

QTEST_GUILESS_MAIN(TestOddCameras)
#include "tst_oddcameras.moc"
