#include "EncoderSearch.h"
#include "GstHandles.h"
#include "GstStart.h"
#include "MovieMaker.h"
#include "MovieRecorder.h"
#include "Patience.h"
#include "SpareTime.h"

#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>

#include <gst/gst.h>

#include <atomic>

using std::chrono::seconds;
using std::chrono::steady_clock;

// A graphics driver's encoder on a machine where it is there but of no use.
namespace {

enum class Defect { Fails, EncodesNothing, Hangs };
Defect defect = Defect::Fails;
std::atomic<int> tried{0}; // frames that the useless encoder was given

struct UselessEncoder {
    GstElement parent;
};
struct UselessEncoderClass {
    GstElementClass parent;
};

// NOLINTNEXTLINE(modernize-use-nullptr): the macro's own
G_DEFINE_TYPE(UselessEncoder, useless_encoder, GST_TYPE_ELEMENT)

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

void installEncoderProperties(GObjectClass *object)
{
    object->set_property = [](GObject *, guint, const GValue *, GParamSpec *) {};
    guint id = 0;
    for (const char *name : {"b-frames", "target-usage", "key-int-max", "bitrate"})
        g_object_class_install_property(
            object, ++id, g_param_spec_uint(name, name, name, 0, G_MAXUINT, 0, G_PARAM_WRITABLE));
}

void useless_encoder_class_init(UselessEncoderClass *type)
{
    installEncoderProperties(G_OBJECT_CLASS(type));
    auto *element = GST_ELEMENT_CLASS(type);
    gst_element_class_set_static_metadata(element, "Useless encoder", "Codec/Encoder/Video",
                                          "Takes frames and gives nothing", "Orvanta");
    const GstMiniHandle<GstCaps> any(gst_caps_new_any());
    const GstMiniHandle<GstCaps> h264(coded());
    gst_element_class_add_pad_template(
        element, gst_pad_template_new("sink", GST_PAD_SINK, GST_PAD_ALWAYS, any.get()));
    gst_element_class_add_pad_template(
        element, gst_pad_template_new("src", GST_PAD_SRC, GST_PAD_ALWAYS, h264.get()));
}

void useless_encoder_init(UselessEncoder *encoder)
{
    auto *element = GST_ELEMENT(encoder);
    auto *type = GST_ELEMENT_GET_CLASS(element);
    GstPad *in =
        gst_pad_new_from_template(gst_element_class_get_pad_template(type, "sink"), "sink");
    gst_pad_set_chain_function(in, takeFrame);
    gst_pad_set_event_function(in, takeEvent);
    gst_element_add_pad(element, in);
    gst_element_add_pad(
        element, gst_pad_new_from_template(gst_element_class_get_pad_template(type, "src"), "src"));
}

/// A driver's encoder that works, but takes its time.
struct SlowEncoder {
    GstBin parent;
};
struct SlowEncoderClass {
    GstBinClass parent;
};

// NOLINTNEXTLINE(modernize-use-nullptr): the macro's own
G_DEFINE_TYPE(SlowEncoder, slow_encoder, GST_TYPE_BIN)

void slow_encoder_class_init(SlowEncoderClass *type)
{
    installEncoderProperties(G_OBJECT_CLASS(type));
    gst_element_class_set_static_metadata(GST_ELEMENT_CLASS(type), "Slow encoder",
                                          "Codec/Encoder/Video", "Takes its time", "Orvanta");
}

void slow_encoder_init(SlowEncoder *encoder)
{
    const GstObjectHandle<GstElement> inside = ownFloating(gst_parse_bin_from_description(
        "identity sleep-time=700000 ! x264enc tune=zerolatency speed-preset=ultrafast", TRUE,
        nullptr));
    gst_bin_add(GST_BIN(encoder), inside.get());
    for (const char *name : {"sink", "src"}) {
        const GstObjectHandle<GstPad> pad(gst_element_get_static_pad(inside.get(), name));
        gst_element_add_pad(GST_ELEMENT(encoder), gst_ghost_pad_new(name, pad.get()));
    }
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

// Which encoders are taken, on a machine that loses one after the other; the order of the tests is
// the order in which they go.
class TestEncoderSearch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void aSlowEncoderGetsASmallerPicture_data();
    void aSlowEncoderGetsASmallerPicture();
    void theBitRateFitsSizeAndRate();
    void aDriversEncoderThatDoesNotWorkIsPassedOver_data();
    void aDriversEncoderThatDoesNotWorkIsPassedOver();
    void whatIsKnownOfEachEncoderIsTold();
    void aDriverThatHangsKeepsNoMovieFromBeginning();
    void aDriverThatIsMerelySlowIsTakenInTheEnd();
    void whatFailedIsRememberedForTheNextStart();
    void aMemoryThatIsDamagedIsNotBelieved_data();
    void aMemoryThatIsDamagedIsNotBelieved();
    void anEncoderThatFailedInAMovieIsNotTakenAgain();
    void anotherEncoderTakesThePlaceOfOneThatIsMissing_data();
    void anotherEncoderTakesThePlaceOfOneThatIsMissing();
    void whoCannotWaitGetsWhatIsSureToWork();
    void withoutAnEncoderForTheSoundTheEncodingIsIncomplete();
    void withoutAnEncoderForThePictureTheEncodingIsIncomplete();

private:
    static MovieEncoding find(const QSize &size = {640, 480});
    static QString cachePath();
    static void plugDriverIn(GType encoder);

    QTemporaryDir m_cache;
};

MovieEncoding TestEncoderSearch::find(const QSize &size)
{
    const EncoderSearch search(size, 30);
    search.hasEnded(steady_clock::now() + seconds(20));
    return search.waitUntil(steady_clock::now() + seconds(20));
}

QString TestEncoderSearch::cachePath()
{
    return QString::fromLocal8Bit(qgetenv("XDG_CACHE_HOME")) + "/orvanta/movie-encoders.json";
}

void TestEncoderSearch::plugDriverIn(GType encoder)
{
    tried = 0;
    QVERIFY(gst_element_register(nullptr, "vah264enc", GST_RANK_PRIMARY, encoder));
}

void TestEncoderSearch::initTestCase()
{
    qputenv("XDG_CACHE_HOME", QFile::encodeName(m_cache.path()));
    QVERIFY(startGstreamer());
    // What this machine's own driver may offer is not what is tested.
    withoutElements({"vah264enc", "vah264lpenc", "v4l2h264enc"});
    QVERIFY(find().video.startsWith("x264enc "));
}

void TestEncoderSearch::init()
{
    QFile::remove(cachePath());
}

void TestEncoderSearch::aSlowEncoderGetsASmallerPicture_data()
{
    QTest::addColumn<double>("frameTime"); // s
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("divisor");
    QTest::newRow("not known") << 0.0 << QSize(1920, 1080) << 1;
    QTest::newRow("quick") << 0.01 << QSize(1920, 1080) << 1;
    QTest::newRow("ten a second") << 0.1 << QSize(1920, 1080) << 1;
    QTest::newRow("three a second") << 0.33 << QSize(1920, 1080) << 2;
    QTest::newRow("one a second") << 1.0 << QSize(1920, 1080) << 3;
    QTest::newRow("never below what can be read") << 30.0 << QSize(1920, 1080) << 6;
    QTest::newRow("a small picture stays") << 1.0 << QSize(320, 240) << 1;
}

void TestEncoderSearch::aSlowEncoderGetsASmallerPicture()
{
    QFETCH(double, frameTime);
    QFETCH(QSize, size);
    QTEST(movieDivisor(frameTime, size), "divisor");
}

void TestEncoderSearch::theBitRateFitsSizeAndRate()
{
    const int usual = movieBitRate({1280, 720}, 30);
    QCOMPARE(movieBitRate({1280, 720}, 60), 2 * usual);
    QCOMPARE(movieBitRate({2560, 720}, 30), 2 * usual);
    QVERIFY(double(usual) * 600 / 8 < 300e6); // bytes of the longest movie
}

void TestEncoderSearch::aDriversEncoderThatDoesNotWorkIsPassedOver_data()
{
    QTest::addColumn<Defect>("what");
    QTest::newRow("it fails") << Defect::Fails;
    QTest::newRow("it encodes nothing") << Defect::EncodesNothing;
    QTest::newRow("it hangs") << Defect::Hangs;
}

void TestEncoderSearch::aDriversEncoderThatDoesNotWorkIsPassedOver()
{
    QFETCH(Defect, what);
    defect = what;
    plugDriverIn(useless_encoder_get_type());
    const EncoderSearch search({640, 480}, 30);
    const MovieEncoding encoding = search.waitUntil(steady_clock::now() + seconds(8));
    QTRY_VERIFY_WITH_TIMEOUT(tried > 0, 20000); // or it would prove nothing
    // What it remembers when it ends is not for the next row.
    QVERIFY(defect == Defect::Hangs || search.hasEnded(steady_clock::now() + seconds(20)));
    withoutElements({"vah264enc"});
    QVERIFY2(encoding.video.startsWith("x264enc "), encoding.video.constData());
    QVERIFY(encoding.isComplete());
}

void TestEncoderSearch::whatIsKnownOfEachEncoderIsTold()
{
    using Verdict = EncoderFinding::Verdict;
    defect = Defect::Fails;
    plugDriverIn(useless_encoder_get_type());
    const EncoderSearch search({640, 480}, 30);
    QVERIFY(search.hasEnded(steady_clock::now() + seconds(20)));
    withoutElements({"vah264enc"});
    QMap<QByteArray, EncoderFinding> found;
    for (const EncoderFinding &finding : search.findings().video + search.findings().sound)
        found[finding.element] = finding;
    QVERIFY(found["vah264enc"].verdict == Verdict::Fails);
    QVERIFY(found["v4l2h264enc"].verdict == Verdict::Missing);
    QVERIFY(found["x264enc"].verdict == Verdict::Works);
    QVERIFY(found["x264enc"].frameTime > 0);
    QVERIFY2(found["jpegenc"].verdict == Verdict::Untried, "one that is better works");
    QVERIFY(found["avenc_aac"].verdict == Verdict::Works);
    QCOMPARE(search.findings().video.size(), videoEncoders({640, 480}, 30).size());
    QCOMPARE(search.findings().sound.first().element, soundEncoders().first().element);
}

void TestEncoderSearch::aDriverThatHangsKeepsNoMovieFromBeginning()
{
    defect = Defect::Hangs;
    plugDriverIn(useless_encoder_get_type());
    GstVideoInfo format;
    gst_video_info_set_format(&format, GST_VIDEO_FORMAT_I420, 640, 480);
    const QTemporaryDir folder;
    MicrophoneFinder microphones([] {});
    MovieMaker maker(microphones, [] {});
    maker.prepare({640, 480}, 30);
    const SpareTime time;
    QElapsedTimer timer;
    timer.start();
    maker.record(folder.filePath("movie.mov"), format);
    withoutElements({"vah264enc"});
    // There is no microphone here; but the encoder is not what was missing.
    QVERIFY(maker.outcome() == MovieOutcome::NoMicrophone);
    QVERIFY2(double(timer.elapsed()) < 3000 + 1000 * time.lateness(),
             qPrintable(QString::number(timer.elapsed())));
}

void TestEncoderSearch::aDriverThatIsMerelySlowIsTakenInTheEnd()
{
    plugDriverIn(slow_encoder_get_type());
    const EncoderSearch search({640, 480}, 30);
    QVERIFY(search.waitUntil(steady_clock::now() + seconds(1)).video.startsWith("x264enc "));
    const MovieEncoding encoding = search.waitUntil(steady_clock::now() + seconds(25));
    withoutElements({"vah264enc"});
    QVERIFY2(encoding.video.contains("vah264enc "), encoding.video.constData());
    QCOMPARE(encoding.divisor, 2);
    QVERIFY2(!QFile::exists(cachePath()), "a driver's encoder must show each time that it works");
}

void TestEncoderSearch::whatFailedIsRememberedForTheNextStart()
{
    defect = Defect::Fails;
    plugDriverIn(useless_encoder_get_type());
    QVERIFY(find().isComplete());
    QVERIFY(tried > 0);
    QVERIFY(QFile::exists(cachePath()));
    tried = 0;
    const MovieEncoding known = EncoderSearch({640, 480}, 30).waitUntil(steady_clock::now());
    QVERIFY(known.video.startsWith("x264enc "));
    QVERIFY(known.isComplete());
    QCOMPARE(int(tried), 0);
    find({320, 240}); // another mode is another matter
    withoutElements({"vah264enc"});
    QVERIFY(tried > 0);
}

void TestEncoderSearch::aMemoryThatIsDamagedIsNotBelieved_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::newRow("cut off") << QByteArray("failed") << QByteArray();
    QTest::newRow("an encoder that is not there") << QByteArray("x264enc") << QByteArray("x364enc");
    QTest::newRow("no time") << QByteArray("\"frame time\"") << QByteArray("\"frame\"");
    QTest::newRow("a time that no encoder takes")
        << QByteArray("\"frame time\": ") << QByteArray("\"frame time\": 99999");
    QTest::newRow("too long to be ours") << QByteArray("{") << QByteArray(100000, ' ') + '{';
    QTest::newRow("a driver's encoder") << QByteArray("x264enc") << QByteArray("vah264enc");
}

void TestEncoderSearch::aMemoryThatIsDamagedIsNotBelieved()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    defect = Defect::Fails;
    plugDriverIn(useless_encoder_get_type());
    QVERIFY(find().isComplete());
    QVERIFY(QFile::exists(cachePath()));
    QFile file(cachePath());
    QVERIFY(file.open(QIODevice::ReadWrite));
    QByteArray text = file.readAll();
    QVERIFY(text.contains(from));
    text = to.isEmpty() ? text.left(text.indexOf(from)) : text.replace(from, to);
    // The driver's encoder is the only one that would not be tried again.
    if (!to.isEmpty())
        text.replace("\"failed\": [\n            \"vah264enc\"", "\"failed\": [\n            \"\"");
    QVERIFY(file.resize(0) && file.seek(0) && file.write(text) > 0);
    file.close();
    tried = 0;
    const MovieEncoding encoding = find();
    withoutElements({"vah264enc"});
    QVERIFY(tried > 0);
    QVERIFY2(encoding.video.startsWith("x264enc "), encoding.video.constData());
}

void TestEncoderSearch::anEncoderThatFailedInAMovieIsNotTakenAgain()
{
    EncoderSearch search({640, 480}, 30);
    const MovieEncoding encoding = search.waitUntil(steady_clock::now() + seconds(20));
    QVERIFY(encoding.video.startsWith("x264enc "));
    QVERIFY(search.hasEnded(steady_clock::now() + seconds(20)));
    QVERIFY(QFile::exists(cachePath()));
    search.reject(encoding.video);
    QVERIFY(!QFile::exists(cachePath()));
    const MovieEncoding next = search.waitUntil(steady_clock::now());
    QVERIFY2(next.video.startsWith("openh264enc "), next.video.constData());
}

void TestEncoderSearch::anotherEncoderTakesThePlaceOfOneThatIsMissing_data()
{
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QByteArray>("taken");
    QTest::newRow("no x264") << "x264enc" << QByteArray("openh264enc ");
    QTest::newRow("no H.264 at all") << "openh264enc" << QByteArray("jpegenc ");
}

void TestEncoderSearch::anotherEncoderTakesThePlaceOfOneThatIsMissing()
{
    QFETCH(QString, missing);
    QFETCH(QByteArray, taken);
    withoutElements({missing});
    const MovieEncoding encoding = find();
    QVERIFY2(encoding.video.startsWith(taken), encoding.video.constData());
    QVERIFY(encoding.isComplete());
}

void TestEncoderSearch::whoCannotWaitGetsWhatIsSureToWork()
{
    const EncoderSearch search({1920, 1080}, 30);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(search.waitUntil(steady_clock::now()).isComplete());
    QVERIFY(timer.elapsed() < 500);
}

void TestEncoderSearch::withoutAnEncoderForTheSoundTheEncodingIsIncomplete()
{
    withoutElements({"avenc_aac", "fdkaacenc", "voaacenc"});
    const MovieEncoding encoding = find();
    QVERIFY(!encoding.video.isEmpty());
    QVERIFY(!encoding.isComplete());
}

void TestEncoderSearch::withoutAnEncoderForThePictureTheEncodingIsIncomplete()
{
    withoutElements({"jpegenc"});
    const MovieEncoding encoding = find();
    QVERIFY(encoding.video.isEmpty());
    QVERIFY(!encoding.isComplete());

    const QTemporaryDir folder;
    GstVideoInfo format;
    gst_video_info_set_format(&format, GST_VIDEO_FORMAT_I420, 640, 480);
    MicrophoneFinder microphones([] {});
    MovieMaker maker(microphones, [] {});
    maker.prepare({640, 480}, 30);
    maker.record(folder.filePath("movie.mov"), format);
    QVERIFY(maker.outcome() == MovieOutcome::NoEncoder);
    QVERIFY(!maker.isRecording());
    QVERIFY(!QFile::exists(folder.filePath("movie.mov")));
}

QTEST_GUILESS_MAIN(TestEncoderSearch)
#include "tst_encodersearch.moc"
