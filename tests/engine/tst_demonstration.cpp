#include "DemoDesk.h"
#include "GstHandles.h"
#include "LabCommands.h"
#include "LiveVideoData.h"
#include "MovieFile.h"
#include "Opening.h"
#include "Patience.h"
#include "PipelineTools.h"

#include <gst/app/gstappsink.h>

#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

// The demonstration camera on a machine that has neither camera nor microphone.
class TestDemonstration : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void withoutItThereIsNothing();
    void itBringsAMicrophone();
    void itsMoviesTickAsTheHandJumps();

private:
    static QVector<double> jumpsIn(const QString &movie);

    QTemporaryDir m_folder;
};

void TestDemonstration::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    qunsetenv("ORVANTA_DEMO_CAMERA");
}

void TestDemonstration::withoutItThereIsNothing()
{
    LiveVideoData engine;
    QTRY_VERIFY(engine.GetVideoDeviceList().isEmpty() && engine.IsListComplete());
    QVERIFY(!engine.IsValidAudioDevice());
}

void TestDemonstration::itBringsAMicrophone()
{
    qputenv("ORVANTA_DEMO_CAMERA", "1");
    LiveVideoData engine;
    QCOMPARE(engine.GetVideoDeviceList(), QStringList{"Demonstration Camera"});
    QVERIFY2(engine.IsValidAudioDevice(), "also before it is opened");
    QVERIFY(opens(engine));
    QVERIFY(engine.IsValidAudioDevice());
}

// When the clock's hand is seen to have jumped, s.
QVector<double> TestDemonstration::jumpsIn(const QString &movie)
{
    static constexpr int radius = 100; // px, of the face that is looked at
    const GstObjectHandle<GstElement> pipeline = parsePipeline(
        "jumps",
        QString("filesrc location=%1 ! decodebin ! videoconvert ! video/x-raw,format=GRAY8 ! "
                "videocrop left=%2 top=%3 right=%4 bottom=%5 ! videoscale ! "
                "video/x-raw,width=%6,height=%6 ! appsink name=frames sync=false")
            .arg(movie)
            .arg(DemoPlaces::clockX - radius)
            .arg(DemoPlaces::clockY - radius)
            .arg(DemoPlaces::width - DemoPlaces::clockX - radius)
            .arg(DemoPlaces::height - DemoPlaces::clockY - radius)
            .arg(2 * radius)
            .toUtf8());
    if (!pipeline)
        return {};
    const GstObjectHandle<GstElement> sink(gst_bin_get_by_name(GST_BIN(pipeline.get()), "frames"));
    gst_element_set_state(pipeline.get(), GST_STATE_PLAYING);
    QVector<double> jumps;
    QByteArray last;
    while (true) {
        const GstMiniHandle<GstSample> sample(
            gst_app_sink_try_pull_sample(GST_APP_SINK(sink.get()), 10 * GST_SECOND));
        if (!sample)
            break;
        GstBuffer *buffer = gst_sample_get_buffer(sample.get());
        QByteArray face(int(gst_buffer_get_size(buffer)), '\0');
        gst_buffer_extract(buffer, 0, face.data(), gsize(face.size()));
        int changed = 0;
        for (int i = 0; i < qMin(face.size(), last.size()); ++i)
            changed += qAbs(int(uchar(face[i])) - int(uchar(last[i]))) > 40;
        if (changed > 60) // a good part of the old place of the hand, and of the new one
            jumps.append(double(GST_BUFFER_PTS(buffer)) / GST_SECOND);
        last = face;
    }
    gst_element_set_state(pipeline.get(), GST_STATE_NULL);
    return jumps;
}

void TestDemonstration::itsMoviesTickAsTheHandJumps()
{
    qputenv("ORVANTA_DEMO_CAMERA", "1");
    LiveVideoData engine;
    QCOMPARE(engine.GetVideoDeviceList(), QStringList{"Demonstration Camera"});
    QVERIFY(opens(engine));
    const QString path = m_folder.filePath("movie.mov");
    QVERIFY(records(engine, path));
    QTest::qWait(5000); // nothing to wait for: the movie's length
    engine.RecordStop();
    const MovieFile movie(path);
    const QVector<double> &ticks = movie.tones();
    const QVector<double> jumps = jumpsIn(path);
    QVERIFY2(jumps.size() >= 3 && ticks.size() >= 3,
             qPrintable(QString("%1 jumps, %2 ticks").arg(jumps.size()).arg(ticks.size())));
    for (int i = 1; i < ticks.size(); ++i)
        QVERIFY(qAbs(ticks[i] - ticks[i - 1] - std::round(ticks[i] - ticks[i - 1])) < 0.03);
    QVector<double> delays;
    for (const double jump : jumps)
        for (const double tick : ticks)
            if (qAbs(tick - jump) < 0.5)
                delays.append(tick - jump);
    QVERIFY(delays.size() >= 3);
    std::sort(delays.begin(), delays.end());
    qInfo("sound after picture: %.1f to %.1f ms", delays.first() * 1000, delays.last() * 1000);
    // On a machine without time the movie has fewer frames, each shown for longer.
    const double frame = movie.duration() / movie.frames().size();
    const double usual = delays[delays.size() / 2];
    QVERIFY2(qAbs(usual) < qMax(0.05, 1.5 * frame), qPrintable(QString::number(usual)));
}

QTEST_MAIN(TestDemonstration)
#include "tst_demonstration.moc"
