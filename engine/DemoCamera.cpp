#include "DemoCamera.h"

#include <QDateTime>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <gst/video/video.h>

#include <cmath>
#include <cstring>

static const int pictureWidth = 1280;
static const int pictureHeight = 720;

static DeviceRecord description()
{
    DeviceRecord record;
    record.origin = DeviceRecord::Origin::Demonstration;
    record.name = QStringLiteral("Demonstration Camera");
    record.deviceClass = QStringLiteral("Video/Source");
    record.hasColour = true;
    return record;
}

static GstMiniHandle<GstCaps> onlyFormat()
{
    return GstMiniHandle<GstCaps>(gst_caps_new_simple(
        "video/x-raw", "format", G_TYPE_STRING, "BGRx", "width", G_TYPE_INT, pictureWidth, "height",
        G_TYPE_INT, pictureHeight, "framerate", GST_TYPE_FRACTION, 30, 1, nullptr));
}

bool DemoCamera::isWanted()
{
    return qgetenv("ORVANTA_DEMO_CAMERA") == "1";
}

DemoCamera::DemoCamera()
    : Camera(description(), {nullptr, QStringLiteral("demonstration")}, onlyFormat())
{
}

static QPainterPath hills(double base, double height, double phase, double waves)
{
    QPainterPath path(QPointF(0, pictureHeight));
    for (int x = 0; x <= pictureWidth; x += 8)
        path.lineTo(x, base - height * std::sin(phase + waves * 2 * M_PI * x / pictureWidth));
    path.lineTo(pictureWidth, pictureHeight);
    path.closeSubpath();
    return path;
}

// What never moves, drawn once.
static const QImage &landscape()
{
    static const QImage drawn = [] {
        QImage image(pictureWidth, pictureHeight, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        QLinearGradient sky(0, 0, 0, pictureHeight);
        sky.setColorAt(0, QColor(48, 92, 150));
        sky.setColorAt(0.7, QColor(244, 196, 140));
        painter.fillRect(image.rect(), sky);
        painter.fillPath(hills(500, 60, 0.4, 1.3), QColor(96, 116, 140));
        painter.fillPath(hills(570, 45, 2.1, 1.9), QColor(66, 98, 92));
        painter.fillPath(hills(650, 30, 4.0, 1.1), QColor(38, 70, 54));
        return image;
    }();
    return drawn;
}

static void drawSun(QPainter &painter, double seconds)
{
    const double turn = std::fmod(seconds, 20) / 20;
    const QPointF centre(turn * (pictureWidth + 200) - 100, 360 - 220 * std::sin(turn * M_PI));
    QRadialGradient glow(centre, 110);
    glow.setColorAt(0, QColor(255, 250, 220));
    glow.setColorAt(0.4, QColor(255, 236, 170, 230));
    glow.setColorAt(1, QColor(255, 220, 150, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(glow);
    painter.drawEllipse(centre, 110, 110);
}

static void drawClock(QPainter &painter, const QTime &time)
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(54);
    painter.setFont(font);
    const QRect plate(36, 30, 270, 84);
    painter.setBrush(QColor(0, 0, 0, 120));
    painter.drawRoundedRect(plate, 12, 12);
    painter.setPen(Qt::white);
    painter.drawText(plate, Qt::AlignCenter, time.toString(QStringLiteral("hh:mm:ss")));
}

// Draws the scene into a frame on its way out, on the source's streaming thread.
static GstPadProbeReturn drawScene(GstPad *, GstPadProbeInfo *info, gpointer)
{
    GstBuffer *buffer = gst_buffer_make_writable(GST_PAD_PROBE_INFO_BUFFER(info));
    GST_PAD_PROBE_INFO_DATA(info) = buffer;
    GstMapInfo map;
    if (!gst_buffer_map(buffer, &map, GST_MAP_WRITE))
        return GST_PAD_PROBE_DROP;
    const QImage &still = landscape();
    if (map.size >= gsize(still.sizeInBytes())) {
        std::memcpy(map.data, still.constBits(), size_t(still.sizeInBytes()));
        QImage frame(map.data, pictureWidth, pictureHeight, QImage::Format_RGB32);
        QPainter painter(&frame);
        painter.setRenderHint(QPainter::Antialiasing);
        const QDateTime now = QDateTime::currentDateTime();
        drawSun(painter, double(now.toMSecsSinceEpoch() % 20000) / 1000);
        painter.setPen(Qt::NoPen);
        drawClock(painter, now.time());
    }
    gst_buffer_unmap(buffer, &map);
    return GST_PAD_PROBE_OK;
}

GstObjectHandle<GstElement> DemoCamera::makeSource() const
{
    GstObjectHandle<GstElement> source =
        ownFloating(gst_element_factory_make("videotestsrc", nullptr));
    if (!source)
        return nullptr;
    gst_util_set_object_arg(G_OBJECT(source.get()), "pattern", "black");
    g_object_set(source.get(), "is-live", TRUE, nullptr);
    const GstObjectHandle<GstPad> pad(gst_element_get_static_pad(source.get(), "src"));
    gst_pad_add_probe(pad.get(), GST_PAD_PROBE_TYPE_BUFFER, drawScene, nullptr, nullptr);
    return source;
}
