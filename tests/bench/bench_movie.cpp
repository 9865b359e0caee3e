// What a movie costs: 1920x1080 at 30 frames per second with sound.
//
//   bench_movie engine SECONDS   processor share of the engine while it records, and what the stop
//                                takes in ms
//   bench_movie bare SECONDS     the share of GStreamer's own shortest chain with the same coders
//
// Runs in a lab with the one camera "bench".

#include "LiveVideoData.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <gst/gst.h>

#include <cstdio>
#include <sys/resource.h>

namespace {

const int settleTime = 1500; // ms

double processorSeconds()
{
    rusage usage = {};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec)
        + double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

double shareOver(int seconds)
{
    double before = 0;
    QElapsedTimer timer;
    QTimer::singleShot(settleTime, qApp, [&] {
        before = processorSeconds();
        timer.start();
    });
    QTimer::singleShot(settleTime + seconds * 1000, qApp, &QApplication::quit);
    QApplication::exec();
    return (processorSeconds() - before) / (double(timer.nsecsElapsed()) / 1e9);
}

int measureEngine(const QString &path, int seconds)
{
    LiveVideoData engine;
    engine.Create();
    engine.Record(path);
    if (engine.nativeWidth != 1920 || !engine.IsValidVideoDevice() || !engine.IsValidAudioDevice())
        return 1;
    const double share = shareOver(seconds);
    QElapsedTimer timer;
    timer.start();
    engine.RecordStop();
    std::printf("%.4f %lld\n", share, static_cast<long long>(timer.elapsed()));
    return 0;
}

int measureBareChain(const QString &path, int seconds)
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
    GstElement *chain = gst_parse_launch(description.constData(), nullptr);
    if (!chain)
        return 1;
    gst_element_set_state(chain, GST_STATE_PLAYING);
    const double share = shareOver(seconds);
    gint64 position = 0;
    gst_element_query_position(chain, GST_FORMAT_TIME, &position);
    gst_element_set_state(chain, GST_STATE_NULL);
    gst_object_unref(chain);
    if (position < gint64(seconds) * gint64(GST_SECOND) * 9 / 10)
        return 1; // a chain that stood still costs little
    std::printf("%.4f\n", share);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const int seconds = qMax(2, arguments.value(2).toInt());
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("movie.mov"));
    const int status = arguments.value(1) == QLatin1String("engine")
        ? measureEngine(path, seconds)
        : measureBareChain(path, seconds);
    if (status != 0)
        std::fprintf(stderr, "bench_movie: cannot measure \"%s\"\n",
                     qPrintable(arguments.value(1)));
    return status;
}
