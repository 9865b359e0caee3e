#include "GstHandles.h"
#include "GstStart.h"
#include "MovieEncoding.h"
#include "SoundTrack.h"

#include <gst/app/gstappsink.h>
#include <gst/app/gstappsrc.h>

#include <QSize>
#include <QTest>

#include <array>
#include <cmath>

using Levels = std::array<double, SoundTrack::channels>;

Q_DECLARE_METATYPE(Levels)

static const int toneLength = 2 * SoundTrack::rate; // sample frames
static const int pieceLength = 480; // sample frames, 10 ms
static const int judgedFrom = SoundTrack::rate / 2; // sample frames; encoders begin gently
static const int judgedUntil = toneLength - judgedFrom; // sample frames
static const double tolerance = 0.05; // of full scale
static const GstClockTime decodingLimit = 30 * GST_SECOND;

/** What a movie's sound is like when it is played, for each of the encoders that exist here. */
class TestMovieEncoding : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyChannelSoundsAsLoudAsItWas_data();
    void everyChannelSoundsAsLoudAsItWas();
    void noEncoderRefusesItsSettings_data();
    void noEncoderRefusesItsSettings();
};

void TestMovieEncoding::initTestCase()
{
    QVERIFY(startGstreamer());
}

static QByteArray toneOf(const Levels &levels)
{
    QByteArray samples;
    for (int i = 0; i < toneLength; ++i) {
        for (const double level : levels) {
            const double wave = std::sin(2 * M_PI * 1000 * i / SoundTrack::rate);
            const auto sample = qint16(std::lround(32767 * level * wave));
            samples.append(reinterpret_cast<const char *>(&sample), sizeof(sample));
        }
    }
    return samples;
}

static void feed(GstAppSrc *source, const QByteArray &samples)
{
    const int bytes = pieceLength * SoundTrack::bytesPerSampleFrame;
    for (int at = 0; at < samples.size(); at += bytes) {
        const QByteArray piece = samples.mid(at, bytes);
        GstBuffer *buffer = gst_buffer_new_memdup(piece.constData(), gsize(piece.size()));
        GST_BUFFER_PTS(buffer) = gst_util_uint64_scale_int(
            guint64(at / SoundTrack::bytesPerSampleFrame), GST_SECOND, SoundTrack::rate);
        GST_BUFFER_DURATION(buffer) =
            gst_util_uint64_scale_int(pieceLength, GST_SECOND, SoundTrack::rate);
        gst_app_src_push_buffer(source, buffer);
    }
    gst_app_src_end_of_stream(source);
}

// The samples of a movie's sound as a player has them.
static QByteArray encodedAndDecoded(const QByteArray &samples, const QByteArray &encoder)
{
    const QByteArray format =
        "audio/x-raw,format=S16LE,layout=interleaved,rate=" + QByteArray::number(SoundTrack::rate)
        + ",channels=" + QByteArray::number(SoundTrack::channels);
    const GstObjectHandle<GstElement> pipeline = ownFloating(gst_parse_launch(
        ("appsrc name=source format=time max-bytes=0 caps=" + format + " ! audioconvert ! "
         + encoder + " ! decodebin ! audioconvert ! audioresample ! " + format
         + " ! appsink name=sink sync=false")
            .constData(),
        nullptr));
    if (!pipeline)
        return {};
    const GstObjectHandle<GstElement> source(
        gst_bin_get_by_name(GST_BIN(pipeline.get()), "source"));
    const GstObjectHandle<GstElement> sink(gst_bin_get_by_name(GST_BIN(pipeline.get()), "sink"));
    gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
    feed(GST_APP_SRC(source.get()), samples);
    QByteArray decoded;
    while (const GstMiniHandle<GstSample> sample = GstMiniHandle<GstSample>(
               gst_app_sink_try_pull_sample(GST_APP_SINK(sink.get()), decodingLimit))) {
        GstMapInfo map;
        if (!gst_buffer_map(gst_sample_get_buffer(sample.get()), &map, GST_MAP_READ))
            break;
        decoded.append(reinterpret_cast<const char *>(map.data), int(map.size));
        gst_buffer_unmap(gst_sample_get_buffer(sample.get()), &map);
    }
    gst_element_set_state(pipeline.get(), GST_STATE_NULL);
    return decoded;
}

// Of a tone, in the part that is judged: with what weight each channel goes into it.
static double levelOf(const QByteArray &samples, const Levels &weights)
{
    const auto *values = reinterpret_cast<const qint16 *>(samples.constData());
    double sum = 0;
    for (int i = judgedFrom; i < judgedUntil; ++i) {
        double value = 0;
        for (int channel = 0; channel < SoundTrack::channels; ++channel)
            value += weights[size_t(channel)] * values[i * SoundTrack::channels + channel];
        sum += value * value;
    }
    return std::sqrt(2 * sum / (judgedUntil - judgedFrom)) / 32767;
}

void TestMovieEncoding::everyChannelSoundsAsLoudAsItWas_data()
{
    QTest::addColumn<QByteArray>("encoder");
    QTest::addColumn<Levels>("levels"); // of full scale, left and right
    QVERIFY(!soundEncoders().isEmpty());
    int found = 0;
    for (const Encoder &encoder : soundEncoders()) {
        const GstObjectHandle<GstElementFactory> factory(
            gst_element_factory_find(encoder.element.constData()));
        if (!factory)
            continue;
        ++found;
        const auto row = [&](const char *what, Levels levels) {
            QTest::newRow((encoder.element + ", " + what).constData())
                << encoder.description << levels;
        };
        row("both", {0.4, 0.4});
        row("left only", {0.8, 0});
        row("right only", {0, 0.8});
        row("mostly right", {0.2, 0.8});
    }
    QVERIFY(found > 0);
}

// A card's two channels may have one microphone between them, on either side. Played by a single
// loudspeaker, which mixes them, it is as loud as it should be too.
void TestMovieEncoding::everyChannelSoundsAsLoudAsItWas()
{
    QFETCH(QByteArray, encoder);
    QFETCH(Levels, levels);
    const QByteArray played = encodedAndDecoded(toneOf(levels), encoder);
    QVERIFY2(played.size() >= judgedUntil * SoundTrack::bytesPerSampleFrame,
             qPrintable(QString::number(played.size())));
    const double left = levelOf(played, {1, 0});
    const double right = levelOf(played, {0, 1});
    const double mixed = levelOf(played, {0.5, 0.5});
    const QString heard =
        QStringLiteral("left %1, right %2, mixed %3").arg(left).arg(right).arg(mixed);
    QVERIFY2(qAbs(left - levels[0]) < tolerance, qPrintable(heard));
    QVERIFY2(qAbs(right - levels[1]) < tolerance, qPrintable(heard));
    QVERIFY2(qAbs(mixed - (levels[0] + levels[1]) / 2) < tolerance, qPrintable(heard));
}

void TestMovieEncoding::noEncoderRefusesItsSettings_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("rate");
    QTest::newRow("usual") << QSize(1280, 720) << 30.0;
    QTest::newRow("tiny") << QSize(16, 16) << 30.0;
    QTest::newRow("tiny and slow") << QSize(16, 16) << 0.5;
    QTest::newRow("large and quick") << QSize(7680, 4320) << 120.0;
}

static void count(const gchar *, GLogLevelFlags, const gchar *message, gpointer complaints)
{
    static_cast<QStringList *>(complaints)->append(QString::fromUtf8(message));
}

// The toolkit of the encoders tells of a value that is out of range, and leaves it out.
void TestMovieEncoding::noEncoderRefusesItsSettings()
{
    QFETCH(QSize, size);
    QFETCH(double, rate);
    QStringList complaints;
    const guint handler =
        g_log_set_handler("GLib-GObject", G_LOG_LEVEL_WARNING, count, &complaints);
    int made = 0;
    for (const Encoder &encoder : videoEncoders(size, rate)) {
        const GstObjectHandle<GstElementFactory> factory(
            gst_element_factory_find(encoder.element.constData()));
        if (!factory)
            continue;
        const GstObjectHandle<GstElement> pipeline = ownFloating(
            gst_parse_launch((encoder.description + " ! fakesink").constData(), nullptr));
        QVERIFY2(pipeline, encoder.description.constData());
        ++made;
    }
    g_log_remove_handler("GLib-GObject", handler);
    QCOMPARE(complaints, QStringList());
    QVERIFY(made > 0);
}

QTEST_GUILESS_MAIN(TestMovieEncoding)
#include "tst_movieencoding.moc"
