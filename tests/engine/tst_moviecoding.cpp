#include "GstHandles.h"
#include "GstStart.h"
#include "MovieCoding.h"
#include "MovieMaker.h"
#include "MovieRecorder.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gst/gst.h>

#include <atomic>

using std::chrono::seconds;
using std::chrono::steady_clock;

// A graphics driver's coder on a machine where it is there but of no use.
namespace {

enum class Defect { Fails, CodesNothing, Hangs };
Defect defect = Defect::Fails;
std::atomic<int> tried{0}; // frames that the useless coder was given

struct UselessCoder {
    GstElement parent;
};
struct UselessCoderClass {
    GstElementClass parent;
};

// NOLINTNEXTLINE(modernize-use-nullptr): the macro's own
G_DEFINE_TYPE(UselessCoder, useless_coder, GST_TYPE_ELEMENT)

GstFlowReturn takeFrame(GstPad *, GstObject *, GstBuffer *frame)
{
    ++tried;
    gst_buffer_unref(frame);
    return defect == Defect::Fails ? GST_FLOW_ERROR : GST_FLOW_OK;
}

gboolean takeEvent(GstPad *pad, GstObject *parent, GstEvent *event)
{
    if (GST_EVENT_TYPE(event) != GST_EVENT_CAPS
        && !(GST_EVENT_TYPE(event) == GST_EVENT_EOS && defect == Defect::Hangs))
        return gst_pad_event_default(pad, parent, event);
    gst_event_unref(event);
    return TRUE;
}

GstCaps *coded()
{
    return gst_caps_from_string("video/x-h264, stream-format=byte-stream, alignment=au");
}

void useless_coder_class_init(UselessCoderClass *type)
{
    auto *object = G_OBJECT_CLASS(type);
    object->set_property = [](GObject *, guint, const GValue *, GParamSpec *) {};
    guint id = 0;
    for (const char *name : {"b-frames", "target-usage", "key-int-max", "bitrate"})
        g_object_class_install_property(
            object, ++id, g_param_spec_uint(name, name, name, 0, G_MAXUINT, 0, G_PARAM_WRITABLE));
    auto *element = GST_ELEMENT_CLASS(type);
    gst_element_class_set_static_metadata(element, "Useless coder", "Codec/Encoder/Video",
                                          "Takes frames and gives nothing", "Orvanta");
    const GstMiniHandle<GstCaps> any(gst_caps_new_any());
    const GstMiniHandle<GstCaps> h264(coded());
    gst_element_class_add_pad_template(
        element, gst_pad_template_new("sink", GST_PAD_SINK, GST_PAD_ALWAYS, any.get()));
    gst_element_class_add_pad_template(
        element, gst_pad_template_new("src", GST_PAD_SRC, GST_PAD_ALWAYS, h264.get()));
}

void useless_coder_init(UselessCoder *coder)
{
    auto *element = GST_ELEMENT(coder);
    auto *type = GST_ELEMENT_GET_CLASS(element);
    GstPad *in =
        gst_pad_new_from_template(gst_element_class_get_pad_template(type, "sink"), "sink");
    gst_pad_set_chain_function(in, takeFrame);
    gst_pad_set_event_function(in, takeEvent);
    gst_element_add_pad(element, in);
    gst_element_add_pad(
        element, gst_pad_new_from_template(gst_element_class_get_pad_template(type, "src"), "src"));
}

/// Takes elements away from this process, for as long as it runs.
void withoutElements(const QStringList &names)
{
    for (const QString &name : names) {
        const GstObjectHandle<GstPluginFeature> feature(
            gst_registry_lookup_feature(gst_registry_get(), qPrintable(name)));
        if (feature)
            gst_registry_remove_feature(gst_registry_get(), feature.get());
    }
}

} // namespace

Q_DECLARE_METATYPE(Defect)

// Which coders are taken, on a machine that loses one after the other; the order of the tests is
// the order in which they go.
class TestMovieCoding : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theBitRateFitsSizeAndRate();
    void aDriversCoderThatDoesNotWorkIsPassedOver_data();
    void aDriversCoderThatDoesNotWorkIsPassedOver();
    void aMovieAskedForBeforeACoderIsKnownHasNotBegun();
    void anotherCoderTakesThePlaceOfOneThatIsMissing_data();
    void anotherCoderTakesThePlaceOfOneThatIsMissing();
    void whoCannotWaitGetsNoCoding();
    void withoutACoderForTheSoundTheCodingIsIncomplete();
    void withoutACoderForThePictureTheCodingIsIncomplete();

private:
    static MovieCoding find();
};

MovieCoding TestMovieCoding::find()
{
    return MovieCodingSearch({640, 480}, 30).waitUntil(steady_clock::now() + seconds(20));
}

void TestMovieCoding::initTestCase()
{
    QVERIFY(gstreamerIsReady());
    // What this machine's own driver may offer is not what is tested.
    withoutElements({"vah264enc", "vah264lpenc", "v4l2h264enc"});
    QVERIFY(find().video.startsWith("x264enc "));
}

void TestMovieCoding::theBitRateFitsSizeAndRate()
{
    const int usual = movieBitRate({1280, 720}, 30);
    QCOMPARE(movieBitRate({1280, 720}, 60), 2 * usual);
    QCOMPARE(movieBitRate({2560, 720}, 30), 2 * usual);
    QVERIFY(double(usual) * 600 / 8 < 300e6); // bytes of the longest movie
}

void TestMovieCoding::aDriversCoderThatDoesNotWorkIsPassedOver_data()
{
    QTest::addColumn<Defect>("what");
    QTest::newRow("it fails") << Defect::Fails;
    QTest::newRow("it codes nothing") << Defect::CodesNothing;
    QTest::newRow("it hangs") << Defect::Hangs;
}

void TestMovieCoding::aDriversCoderThatDoesNotWorkIsPassedOver()
{
    QFETCH(Defect, what);
    defect = what;
    tried = 0;
    QVERIFY(gst_element_register(nullptr, "vah264enc", GST_RANK_PRIMARY, useless_coder_get_type()));
    const MovieCoding coding = find();
    withoutElements({"vah264enc"});
    QVERIFY(tried > 0);
    QVERIFY2(coding.video.startsWith("x264enc "), coding.video.constData());
    QVERIFY(coding.isComplete());
}

// Known later it must not make the movie count as one that was begun.
void TestMovieCoding::aMovieAskedForBeforeACoderIsKnownHasNotBegun()
{
    defect = Defect::Hangs;
    QVERIFY(gst_element_register(nullptr, "vah264enc", GST_RANK_PRIMARY, useless_coder_get_type()));
    const QTemporaryDir folder;
    const QString path = folder.filePath("movie.mov");
    GstVideoInfo format;
    gst_video_info_set_format(&format, GST_VIDEO_FORMAT_I420, 640, 480);
    MovieMaker maker;
    maker.prepare({640, 480}, 30);
    maker.record(path, format);
    QVERIFY(!maker.hasPicture());
    const MovieCoding coding = find(); // takes as long as the maker's own search, begun before
    withoutElements({"vah264enc"});
    QVERIFY(coding.isComplete());
    QVERIFY(!maker.hasPicture());
    QVERIFY(!QFile::exists(path));
}

void TestMovieCoding::anotherCoderTakesThePlaceOfOneThatIsMissing_data()
{
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QByteArray>("taken");
    QTest::newRow("no x264") << "x264enc" << QByteArray("openh264enc ");
    QTest::newRow("no H.264 at all") << "openh264enc" << QByteArray("jpegenc ");
}

void TestMovieCoding::anotherCoderTakesThePlaceOfOneThatIsMissing()
{
    QFETCH(QString, missing);
    QFETCH(QByteArray, taken);
    withoutElements({missing});
    const MovieCoding coding = find();
    QVERIFY2(coding.video.startsWith(taken), coding.video.constData());
    QVERIFY(coding.isComplete());
}

void TestMovieCoding::whoCannotWaitGetsNoCoding()
{
    const MovieCodingSearch search({1920, 1080}, 30);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!search.waitUntil(steady_clock::now()).isComplete());
    QVERIFY(timer.elapsed() < 500);
    QVERIFY(search.waitUntil(steady_clock::now() + seconds(20)).isComplete());
}

void TestMovieCoding::withoutACoderForTheSoundTheCodingIsIncomplete()
{
    withoutElements({"avenc_aac", "fdkaacenc", "voaacenc"});
    const MovieCoding coding = find();
    QVERIFY(!coding.video.isEmpty());
    QVERIFY(!coding.isComplete());
}

void TestMovieCoding::withoutACoderForThePictureTheCodingIsIncomplete()
{
    withoutElements({"jpegenc"});
    const MovieCoding coding = find();
    QVERIFY(coding.video.isEmpty());
    QVERIFY(!coding.isComplete());
}

QTEST_GUILESS_MAIN(TestMovieCoding)
#include "tst_moviecoding.moc"
