#include "DemoDesk.h"

#include "DemoWorksheet.h"

#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>

#include <cmath>
#include <vector>

static constexpr double degrees = M_PI / 180;

QTransform DemoPlaces::notebook()
{
    return QTransform().translate(905, 130).rotate(1.5);
}

// A soft shadow of what lies on the desk, away from the lamp.
static void drawShadow(QPainter &painter, const QPainterPath &outline, int depth)
{
    for (int i = 1; i <= depth; ++i)
        painter.fillPath(outline.translated(i * 0.7, i), QColor(20, 8, 0, 90 / depth));
}

static QPainterPath rectangle(const QRectF &place, double radius = 0)
{
    QPainterPath path;
    path.addRoundedRect(place, radius, radius);
    return path;
}

static constexpr size_t grainMargin = 40; // px that the grain may swing to either side

namespace {
/// Lines along a board, as brightness across it, and how far they are aside on their way, in px.
struct Grain {
    std::vector<float> across;
    std::vector<float> aside;

    float at(int x, int y) const
    {
        const float place = float(y) + aside[size_t(x)];
        const auto line = size_t(place);
        const float share = place - float(line);
        return across[line] * (1 - share) + across[line + 1] * share;
    }
};
} // namespace

static Grain grainOf(QRandomGenerator &random, int width)
{
    Grain grain;
    grain.across.resize(size_t(width) + 2 * grainMargin + 2);
    for (int line = 0; line < width / 4; ++line) {
        const double middle = random.bounded(double(grain.across.size()));
        const double half = 0.7 + random.bounded(2.2);
        const double bright = random.bounded(4) > 0 ? -random.bounded(26.0) : random.bounded(16.0);
        for (size_t i = 0; i < grain.across.size(); ++i)
            grain.across[i] += float(bright * std::exp(-std::pow((double(i) - middle) / half, 2)));
    }
    const double swing = 8 + random.bounded(16.0);
    const double waves = 0.5 + random.bounded(1.2);
    const double phase = random.bounded(2 * M_PI);
    for (int x = 0; x < DemoPlaces::width; ++x)
        grain.aside.push_back(
            float(double(grainMargin)
                  + swing * std::sin(phase + 2 * M_PI * waves * x / DemoPlaces::width)));
    return grain;
}

// One board: its own shade of brown, and the grain along it. Pixel by pixel, which takes a
// twentieth of the time that as many smooth lines do.
static void drawBoard(QImage *image, QRandomGenerator &random, int top, int bottom)
{
    const int shade = random.bounded(-9, 10);
    const Grain coarse = grainOf(random, bottom - top);
    const Grain fine = grainOf(random, bottom - top);
    for (int y = top; y < bottom; ++y) {
        auto *row = reinterpret_cast<QRgb *>(image->scanLine(y));
        const double bulge = 9 * std::sin(M_PI * (y - top) / (bottom - top));
        for (int x = 0; x < image->width(); ++x) {
            const double light =
                shade + bulge + 0.6 * double(coarse.at(x, y - top) + fine.at(x, y - top));
            row[x] = qRgb(int(176 + light), int(126 + light), int(82 + light * 0.9));
        }
    }
}

static void drawTable(QImage *image)
{
    QRandomGenerator random(7); // the same desk each time
    static constexpr int boards[] = {0, 262, 540, 835, 1080};
    for (int i = 0; i < 4; ++i)
        drawBoard(image, random, boards[i], boards[i + 1]);
    QPainter painter(image);
    for (const int joint : {boards[1], boards[2], boards[3]}) {
        painter.fillRect(0, joint - 1, image->width(), 2, QColor(60, 30, 10, 150));
        painter.fillRect(0, joint + 1, image->width(), 1, QColor(230, 190, 145, 90));
    }
}

// Squared paper with a margin, bound by a wire at its head.
static void drawNotebook(QPainter &painter)
{
    painter.save();
    painter.setTransform(DemoPlaces::notebook());
    const QRectF page(0, 0, 600, 740);
    drawShadow(painter, rectangle(page, 8), 16);
    painter.fillPath(rectangle(page, 8), QColor(252, 251, 244));
    painter.setPen(QPen(QColor(150, 178, 208, 120), 1));
    for (int x = 25; x < page.width(); x += 25)
        painter.drawLine(QPointF(x, 50), QPointF(x, page.height()));
    for (int y = 50; y < page.height(); y += 25)
        painter.drawLine(QPointF(0, y), QPointF(page.width(), y));
    painter.setPen(QPen(QColor(216, 100, 100, 150), 1.6));
    painter.drawLine(QPointF(525, 50), QPointF(525, page.height()));
    for (int x = 22; x < 590; x += 31) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(96, 66, 42));
        painter.drawEllipse(QPointF(x, 24), 6, 6);
        painter.setPen(QPen(QColor(70, 72, 78), 5, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(x, 23), QPointF(x - 4, -9));
        painter.setPen(QPen(QColor(206, 210, 216), 2, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(x - 0.8, 22), QPointF(x - 4.6, -9));
    }
    painter.restore();
}

static void drawRuler(QPainter &painter)
{
    static constexpr double centimetre = 34; // px
    painter.save();
    painter.translate(850, 976);
    painter.rotate(-1.2);
    const QRectF body(0, 0, centimetre * 30 + 30, 76);
    drawShadow(painter, rectangle(body, 5), 8);
    QLinearGradient wood(body.topLeft(), body.bottomLeft());
    wood.setColorAt(0, QColor(250, 226, 150));
    wood.setColorAt(0.7, QColor(240, 208, 116));
    wood.setColorAt(1, QColor(214, 178, 88));
    painter.fillPath(rectangle(body, 5), wood);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(20);
    painter.setFont(font);
    for (int mark = 0; mark <= 300; ++mark) {
        const double x = 15 + mark * centimetre / 10;
        const bool isWhole = mark % 10 == 0;
        const int length = isWhole ? 26 : mark % 5 == 0 ? 19 : 12;
        painter.setPen(QPen(QColor(50, 36, 16), isWhole ? 1.8 : 1.1));
        painter.drawLine(QPointF(x, 2), QPointF(x, 2 + length));
        if (isWhole)
            painter.drawText(QRectF(x - 20, 29, 40, 24), Qt::AlignCenter,
                             QString::number(mark / 10));
    }
    font.setPixelSize(15);
    painter.setFont(font);
    painter.drawText(QRectF(22, 53, 60, 18), Qt::AlignLeft, QStringLiteral("cm"));
    painter.restore();
}

// Where an hour stands, @p share of the radius from the middle.
static QPointF onDial(double hour, double share)
{
    const double angle = (hour * 30 - 90) * degrees;
    return QPointF(std::cos(angle), std::sin(angle)) * (DemoPlaces::clockRadius * share);
}

static void drawDial(QPainter &painter)
{
    static constexpr double radius = DemoPlaces::clockRadius;
    painter.save();
    painter.translate(DemoPlaces::clockX, DemoPlaces::clockY);
    QPainterPath rim;
    rim.addEllipse(QPointF(0, 0), radius + 16, radius + 16);
    drawShadow(painter, rim, 18);
    QConicalGradient metal(0, 0, 60);
    for (int i = 0; i <= 4; ++i)
        metal.setColorAt(i / 4.0, i % 2 ? QColor(120, 126, 134) : QColor(226, 230, 234));
    painter.fillPath(rim, metal);
    painter.setPen(QPen(QColor(90, 94, 100), 2));
    painter.setBrush(QColor(252, 252, 250));
    painter.drawEllipse(QPointF(0, 0), radius, radius);
    for (int minute = 0; minute < 60; ++minute) {
        const bool isHour = minute % 5 == 0;
        painter.setPen(QPen(QColor(40, 42, 48), isHour ? 4 : 1.6));
        painter.drawLine(onDial(minute / 5.0, isHour ? 0.86 : 0.9), onDial(minute / 5.0, 0.96));
    }
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(25);
    font.setBold(true);
    painter.setFont(font);
    for (int hour = 1; hour <= 12; ++hour)
        painter.drawText(QRectF(onDial(hour, 0.7) - QPointF(20, 16), QSizeF(40, 32)),
                         Qt::AlignCenter, QString::number(hour));
    painter.restore();
}

static void drawNote(QPainter &painter)
{
    painter.save();
    painter.translate(1560, 415);
    painter.rotate(3);
    const QRectF paper(0, 0, 300, 236);
    drawShadow(painter, rectangle(paper), 12);
    QLinearGradient yellow(0, 0, 0, paper.height());
    yellow.setColorAt(0, QColor(250, 222, 96));
    yellow.setColorAt(0.16, QColor(255, 236, 132));
    yellow.setColorAt(1, QColor(255, 242, 160));
    painter.fillRect(paper, yellow);
    painter.setPen(QColor(36, 52, 120));
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(36);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRectF(0, 40, 300, 48), Qt::AlignCenter, QStringLiteral("Demonstration"));
    painter.fillRect(QRectF(22, 90, 256, 3), QColor(36, 52, 120));
    font.setPixelSize(24);
    font.setBold(false);
    painter.setFont(font);
    painter.drawText(QRectF(14, 104, 272, 110), Qt::AlignCenter,
                     QStringLiteral("This desk is drawn\nby the program.\nNo camera is in use."));
    painter.restore();
}

// One crayon, its point to the left.
static void drawCrayon(QPainter &painter, QPointF point, double angle, const QColor &colour)
{
    painter.save();
    painter.translate(point);
    painter.rotate(angle);
    QPainterPath outline(QPointF(0, 0));
    outline.lineTo(38, -12);
    outline.lineTo(300, -12);
    outline.lineTo(300, 12);
    outline.lineTo(38, 12);
    outline.closeSubpath();
    drawShadow(painter, outline, 9);
    painter.fillPath(outline, QColor(228, 190, 140));
    painter.fillRect(QRectF(40, -12, 260, 8), colour.lighter(125));
    painter.fillRect(QRectF(40, -4, 260, 9), colour);
    painter.fillRect(QRectF(40, 5, 260, 7), colour.darker(135));
    QPainterPath lead(QPointF(0, 0));
    lead.lineTo(13, -4);
    lead.lineTo(13, 4);
    lead.closeSubpath();
    painter.fillPath(lead, colour.darker(110));
    painter.restore();
}

static void drawEraser(QPainter &painter)
{
    painter.save();
    painter.translate(1590, 905);
    painter.rotate(-14);
    const QRectF body(0, 0, 130, 58);
    drawShadow(painter, rectangle(body, 8), 10);
    painter.fillPath(rectangle(body, 8), QColor(246, 244, 240));
    painter.fillRect(QRectF(38, 0, 92, 58), QColor(44, 104, 160));
    painter.fillRect(QRectF(38, 20, 92, 18), QColor(236, 240, 246));
    painter.restore();
}

// Bright below the lamp, darker towards the corners.
static void drawLight(QPainter &painter)
{
    QRadialGradient light(860, 430, 1320);
    light.setColorAt(0, QColor(255, 250, 235, 26));
    light.setColorAt(0.5, QColor(255, 250, 235, 0));
    light.setColorAt(0.6, QColor(24, 10, 0, 0));
    light.setColorAt(1, QColor(24, 10, 0, 120));
    painter.fillRect(0, 0, DemoPlaces::width, DemoPlaces::height, light);
}

QImage demoDesk()
{
    QImage image(DemoPlaces::width, DemoPlaces::height, QImage::Format_RGB32);
    drawTable(&image);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.save();
    painter.translate(92, 52);
    painter.rotate(-1);
    drawShadow(painter, rectangle(QRectF({0, 0}, demoWorksheetSize)), 10);
    drawDemoWorksheet(painter);
    painter.restore();
    drawRuler(painter);
    drawCrayon(painter, {1570, 735}, 8, QColor(204, 52, 44));
    drawCrayon(painter, {1585, 790}, 2, QColor(50, 132, 72));
    drawCrayon(painter, {1572, 838}, -3, QColor(240, 150, 40));
    drawEraser(painter);
    drawNotebook(painter);
    drawDial(painter);
    drawNote(painter);
    drawLight(painter);
    return image;
}
