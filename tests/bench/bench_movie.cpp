// What a movie costs: 1920x1080 at 30 frames per second with sound.
//
//   bench_movie engine SECONDS   processor share of the engine while it records, and what the stop
//                                takes in ms
//   bench_movie bare SECONDS     the share of GStreamer's own shortest pipeline with the same
//   encoders bench_movie shown SECONDS    what becomes of the pictures while a movie is recorded
//   and the live
//                                picture is shown in 896x504: camera frames that are missing in the
//                                file and on the screen; what 99 % of the live picture's intervals
//                                stay within, in frame periods, before and during the movie; and in
//                                ms what the start takes, the stop, and the stop together with the
//                                player, until it plays the movie
//
// Runs in a lab with the one camera "bench".

#include "LiveVideoData.h"
#include "MovieFile.h"
#include "MovieWidget.h"
#include "ProcessorShare.h"
#include "ScreenWatch.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFrame>
#include <QTemporaryDir>
#include <QTimer>

#include <gst/gst.h>

#include <cstdio>

namespace {

const QSize shown(896, 504);
const int longestBaseline = 20; // s
const double framePeriod = 1000.0 / 30; // ms
const int patience = 10000; // ms

int measureEngine(const QString &path, int seconds)
{
    LiveVideoData engine;
    engine.Create();
    engine.Record(path);
    if (engine.nativeWidth != 1920 || !engine.IsValidVideoDevice() || !engine.IsValidAudioDevice())
        return 1;
    const double share = shareOver(seconds).program;
    QElapsedTimer timer;
    timer.start();
    engine.RecordStop();
    std::printf("%.4f %lld\n", share, static_cast<long long>(timer.elapsed()));
    return 0;
}

void runFor(int milliseconds)
{
    QTimer::singleShot(milliseconds, qApp, &QApplication::quit);
    QApplication::exec();
}

// False when it does not play in time.
bool playsSoon(MovieWidget &player, const QString &path)
{
    player.show();
    player.Create(path);
    player.Play();
    QElapsedTimer timer;
    timer.start();
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if ((player.isPlaying() && player.totalTime() > 0) || timer.hasExpired(patience))
            QApplication::quit();
    });
    look.start(1);
    QApplication::exec();
    return !timer.hasExpired(patience);
}

int measureShown(const QString &path, int seconds)
{
    QFrame target(nullptr, Qt::FramelessWindowHint);
    target.setGeometry(40, 40, shown.width(), shown.height());
    target.show();
    MovieWidget player(nullptr);
    player.setGeometry(target.geometry());
    LiveVideoData engine;
    engine.SetTarget(&target);
    engine.Create();
    engine.Start();
    ScreenWatch watch(&target);
    runFor(settleTime);
    watch.restart();
    runFor(qMin(seconds, longestBaseline) * 1000);
    const double before = watch.intervalOf(0.99) / framePeriod;

    QElapsedTimer timer;
    timer.start();
    engine.Record(path);
    const qint64 begun = timer.elapsed();
    if (engine.nativeWidth != 1920 || !engine.IsValidVideoDevice() || !engine.IsValidAudioDevice())
        return 1;
    watch.restart();
    runFor(seconds * 1000);
    if (watch.shown() < seconds * 10)
        return 1;
    const double during = watch.intervalOf(0.99) / framePeriod;
    const int dropped = watch.dropped();

    timer.start();
    engine.RecordStop();
    const qint64 stopped = timer.elapsed();
    target.hide();
    if (!playsSoon(player, path))
        return 1;
    const qint64 playable = timer.elapsed();
    player.Stop();
    std::printf("%d %d %.2f %.2f %lld %lld %lld\n", MovieFile(path).missingFrames(), dropped,
                before, during, static_cast<long long>(begun), static_cast<long long>(stopped),
                static_cast<long long>(playable));
    return 0;
}

int measureBarePipeline(const QString &path, int seconds)
{
    gst_init(nullptr, nullptr);
    const QByteArray description =
        "pipewiresrc target-object=bench do-timestamp=true ! "
        "video/x-raw,format=UYVY,width=1920,height=1080,framerate=30/1 ! videoconvert ! "
        "video/x-raw,format=I420 ! queue ! x264enc tune=zerolatency speed-preset=ultrafast "
        "bframes=0 key-int-max=30 bitrate=6842 ! h264parse ! queue ! qtmux name=muxer ! "
        "filesink location="
        + path.toLocal8Bit()
        + " pulsesrc provide-clock=false ! audioconvert ! audio/x-raw,rate=48000,channels=2 ! "
          "avenc_aac bitrate=128000 ! queue ! muxer.";
    GstElement *pipeline = gst_parse_launch(description.constData(), nullptr);
    if (!pipeline)
        return 1;
    gst_element_set_state(pipeline, GST_STATE_PLAYING);
    const double share = shareOver(seconds).program;
    gint64 position = 0;
    gst_element_query_position(pipeline, GST_FORMAT_TIME, &position);
    gst_element_set_state(pipeline, GST_STATE_NULL);
    gst_object_unref(pipeline);
    if (position < gint64(seconds) * gint64(GST_SECOND) * 9 / 10)
        return 1; // a pipeline that stood still costs little
    std::printf("%.4f\n", share);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("PHONON_GST_VIDEOMODE", "software"); // as the program does
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const int seconds = qMax(2, arguments.value(2).toInt());
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("movie.mov"));
    const QString what = arguments.value(1);
    int status = 2;
    if (what == QLatin1String("engine"))
        status = measureEngine(path, seconds);
    else if (what == QLatin1String("bare"))
        status = measureBarePipeline(path, seconds);
    else if (what == QLatin1String("shown"))
        status = measureShown(path, seconds);
    if (status != 0)
        std::fprintf(stderr, "bench_movie: cannot measure \"%s\"\n", qPrintable(what));
    return status;
}
