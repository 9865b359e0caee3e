// What the live picture costs: 1920x1080 at 30 frames per second, shown in 896x504.
//
//   bench_live engine SECONDS   processor share of the engine with its target
//   bench_live bare SECONDS     the same of GStreamer's own shortest pipeline to the screen
//   bench_live drops SECONDS    frames of the camera that never were on the screen
//
// Runs in a lab with the one camera "bench"; prints one number.

#include "LiveVideoData.h"
#include "ProcessorShare.h"
#include "ScreenWatch.h"

#include <QApplication>
#include <QFrame>
#include <QTimer>

#include <gst/gst.h>

#include <cstdio>

namespace {

const QSize shown(896, 504);

bool startEngine(LiveVideoData &engine, QFrame &target)
{
    target.setGeometry(40, 40, shown.width(), shown.height());
    engine.SetTarget(&target);
    target.show();
    engine.Create();
    engine.Start();
    return engine.created && engine.nativeWidth == 1920;
}

int measureEngine(int seconds)
{
    QFrame target(nullptr, Qt::FramelessWindowHint);
    LiveVideoData engine;
    if (!startEngine(engine, target))
        return 1;
    std::printf("%.4f\n", shareOver(seconds));
    return 0;
}

int measureBarePipeline(int seconds)
{
    gst_init(nullptr, nullptr);
    GstElement *pipeline = gst_parse_launch(
        "pipewiresrc target-object=bench do-timestamp=true ! "
        "video/x-raw,format=UYVY,width=1920,height=1080,framerate=30/1 ! videoconvertscale ! "
        "video/x-raw,format=BGRx,width=896,height=504 ! ximagesink name=screen sync=false",
        nullptr);
    gst_element_set_state(pipeline, GST_STATE_PLAYING);
    const double share = shareOver(seconds);
    GstElement *screen = gst_bin_get_by_name(GST_BIN(pipeline), "screen");
    GstStructure *stats = nullptr;
    g_object_get(screen, "stats", &stats, nullptr);
    guint64 rendered = 0;
    gst_structure_get_uint64(stats, "rendered", &rendered);
    gst_structure_free(stats);
    gst_object_unref(screen);
    gst_element_set_state(pipeline, GST_STATE_NULL);
    gst_object_unref(pipeline);
    if (rendered < guint64(seconds) * 25)
        return 1;
    std::printf("%.4f\n", share);
    return 0;
}

int countDrops(int seconds)
{
    QFrame target(nullptr, Qt::FramelessWindowHint);
    LiveVideoData engine;
    if (!startEngine(engine, target))
        return 1;
    ScreenWatch watch(&target);
    QTimer::singleShot(settleTime, &watch, [&watch] { watch.restart(); });
    QTimer::singleShot(settleTime + seconds * 1000, qApp, &QApplication::quit);
    QApplication::exec();
    if (watch.shown() < seconds * 10)
        return 1;
    std::printf("%d\n", watch.dropped());
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const QString what = arguments.value(1);
    const int seconds = qMax(2, arguments.value(2).toInt());
    int status = 2;
    if (what == QLatin1String("engine"))
        status = measureEngine(seconds);
    else if (what == QLatin1String("bare"))
        status = measureBarePipeline(seconds);
    else if (what == QLatin1String("drops"))
        status = countDrops(seconds);
    if (status != 0)
        std::fprintf(stderr, "bench_live: cannot measure \"%s\"\n", qPrintable(what));
    return status;
}
