// What the live picture costs: the program's share of a processor and the X server's together.
//
//   bench_live engine SECONDS SHOWN            of the engine with its target
//   bench_live bare SECONDS SHOWN CAPS         of GStreamer's own shortest pipeline to the screen
//   bench_live drops SECONDS SHOWN             frames of the camera that never were on the screen
//
// SHOWN is the picture's size on the screen, such as 896x504; CAPS what the camera sends. Runs in a
// lab with the one camera "bench". Prints one number, for a share followed by the X server's part
// and by the frames per second; where these are fewer than the camera's, the share is what it would
// be of all of them, since a machine that is too busy to show them all would seem a quick one.

#include "LiveVideoData.h"
#include "ProcessorShare.h"
#include "ScreenWatch.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QTimer>

#include <gst/gst.h>

#include <cstdio>

namespace {

QSize sizeIn(const QString &text)
{
    const QStringList parts = text.split('x');
    return {parts.value(0).toInt(), parts.value(1).toInt()};
}

bool startEngine(LiveVideoData &engine, QFrame &target, const QSize &shown)
{
    target.setGeometry(QRect(QPoint(20, 20), shown));
    engine.SetTarget(&target);
    target.show();
    engine.Create();
    engine.Start();
    return engine.created;
}

constexpr double cameraRate = 30; // frames per second

bool print(const ProcessorShare &share)
{
    if (share.rate < cameraRate / 10)
        return false;
    const double whole = cameraRate / share.rate;
    std::printf("%.4f %.4f %.1f\n", (share.program + share.server) * whole, share.server * whole,
                share.rate);
    return true;
}

class PaintCounter : public QObject {
public:
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

int measureEngine(int seconds, const QSize &shown)
{
    QFrame target(nullptr, Qt::FramelessWindowHint);
    LiveVideoData engine;
    if (!startEngine(engine, target, shown))
        return 1;
    PaintCounter painted;
    target.installEventFilter(&painted);
    return print(shareOver(seconds, [&painted] { return painted.count; })) ? 0 : 1;
}

int measureBarePipeline(int seconds, const QSize &shown, const QString &caps)
{
    gst_init(nullptr, nullptr);
    const QString decoder =
        caps.startsWith(QLatin1String("image/jpeg")) ? QStringLiteral("! jpegdec ") : QString();
    const QString text =
        QStringLiteral("pipewiresrc target-object=bench do-timestamp=true ! %1 %2! "
                       "videoconvertscale ! video/x-raw,format=BGRx,width=%3,height=%4 ! "
                       "ximagesink name=screen sync=false")
            .arg(caps, decoder)
            .arg(shown.width())
            .arg(shown.height());
    GstElement *pipeline = gst_parse_launch(text.toUtf8().constData(), nullptr);
    gst_element_set_state(pipeline, GST_STATE_PLAYING);
    GstElement *screen = gst_bin_get_by_name(GST_BIN(pipeline), "screen");
    const bool printed = print(shareOver(seconds, [screen] {
        GstStructure *stats = nullptr;
        g_object_get(screen, "stats", &stats, nullptr);
        guint64 rendered = 0;
        gst_structure_get_uint64(stats, "rendered", &rendered);
        gst_structure_free(stats);
        return int(rendered);
    }));
    gst_object_unref(screen);
    gst_element_set_state(pipeline, GST_STATE_NULL);
    gst_object_unref(pipeline);
    return printed ? 0 : 1;
}

int countDrops(int seconds, const QSize &shown)
{
    QFrame target(nullptr, Qt::FramelessWindowHint);
    LiveVideoData engine;
    if (!startEngine(engine, target, shown))
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
    const QSize shown = sizeIn(arguments.value(3));
    int status = 2;
    if (what == QLatin1String("engine"))
        status = measureEngine(seconds, shown);
    else if (what == QLatin1String("bare"))
        status = measureBarePipeline(seconds, shown, arguments.value(4));
    else if (what == QLatin1String("drops"))
        status = countDrops(seconds, shown);
    if (status != 0)
        std::fprintf(stderr, "bench_live: cannot measure \"%s\"\n", qPrintable(what));
    return status;
}
