#include "DemoWorksheet.h"

#include <QPainter>
#include <QPainterPath>

static constexpr double margin = 58; // px, of the page
static constexpr double textWidth = demoWorksheetSize.width() - 2 * margin; // px
static constexpr double figureTop = 342; // px
static constexpr double figureHeight = 400; // px
static constexpr double groundLevel = 252; // px below the figure's top

static QFont printed(const char *family, int pixels, bool bold = false, bool italic = false)
{
    QFont font(QString::fromLatin1(family));
    font.setPixelSize(pixels);
    font.setBold(bold);
    font.setItalic(italic);
    return font;
}

static void drawHead(QPainter &painter)
{
    painter.setPen(QColor(96, 98, 104));
    painter.setFont(printed("Liberation Sans", 18));
    const QRectF line(margin, 40, textWidth, 24);
    painter.drawText(line, Qt::AlignLeft, QStringLiteral("GEOGRAPHY  ·  The restless Earth"));
    painter.drawText(line, Qt::AlignRight, QStringLiteral("Worksheet 7"));
    painter.fillRect(QRectF(margin, 68, textWidth, 2), QColor(186, 62, 40));
    painter.setPen(QColor(24, 24, 28));
    painter.setFont(printed("Liberation Serif", 50, true));
    painter.drawText(QRectF(margin, 82, textWidth, 64), Qt::AlignLeft,
                     QStringLiteral("How a volcano works"));
}

static void drawText(QPainter &painter)
{
    painter.setPen(QColor(28, 28, 32));
    painter.setFont(printed("Liberation Serif", 25));
    painter.drawText(QRectF(margin, 156, textWidth, 190), Qt::AlignJustify | Qt::TextWordWrap,
                     QStringLiteral("Far below the mountain, rock is so hot that it melts. This "
                                    "molten rock is called magma. It is lighter than the solid "
                                    "rock around it, so it rises and collects in a chamber. When "
                                    "the pressure grows too high, it breaks through to the "
                                    "surface: the volcano erupts, and magma becomes lava."));
}

// Half of the mountain's outline, from its foot to the crater; @p scale draws an inner layer.
static QPainterPath mountain(double scale)
{
    const auto at = [scale](double x, double y) {
        return QPointF(312 + (x - 312) * scale, groundLevel + (y - groundLevel));
    };
    QPainterPath path(at(30, groundLevel));
    path.cubicTo(at(150, 228), at(225, 140), at(272, 76));
    path.quadTo(at(312, 104), at(352, 76));
    path.cubicTo(at(399, 140), at(474, 228), at(594, groundLevel));
    path.closeSubpath();
    return path;
}

static void drawGround(QPainter &painter)
{
    static const QColor layers[] = {{196, 160, 116}, {174, 134, 94}, {150, 112, 80}, {124, 92, 70}};
    static constexpr double step = 38; // px
    for (int i = 0; i < 4; ++i) {
        const double y = groundLevel + i * step;
        QPainterPath layer(QPointF(0, y));
        layer.cubicTo(200, y + (i ? 14 : 0), 420, y - (i ? 12 : 0), textWidth, y);
        layer.lineTo(textWidth, figureHeight);
        layer.lineTo(0, figureHeight);
        painter.fillPath(layer, layers[i]);
    }
}

static void drawMagma(QPainter &painter)
{
    QLinearGradient glow(0, 70, 0, figureHeight);
    glow.setColorAt(0, QColor(255, 196, 60));
    glow.setColorAt(0.5, QColor(240, 96, 32));
    glow.setColorAt(1, QColor(196, 34, 24));
    QPainterPath molten;
    molten.setFillRule(Qt::WindingFill);
    molten.addEllipse(QPointF(312, 342), 136, 42);
    QPainterPath vent(QPointF(296, 92));
    vent.cubicTo(300, 180, 296, 250, 268, 326);
    vent.lineTo(356, 326);
    vent.cubicTo(328, 250, 324, 180, 328, 92);
    vent.closeSubpath();
    QPainterPath side(QPointF(322, 232));
    side.cubicTo(360, 206, 396, 192, 428, 172);
    side.lineTo(440, 184);
    side.cubicTo(404, 206, 366, 224, 326, 262);
    side.closeSubpath();
    painter.fillPath(molten.united(vent).united(side), glow);
    QPainterPath flow(QPointF(330, 84));
    flow.cubicTo(366, 92, 384, 150, 420, 176);
    flow.cubicTo(446, 196, 470, 212, 486, 222);
    flow.cubicTo(452, 214, 424, 200, 402, 184);
    flow.cubicTo(366, 154, 356, 108, 326, 98);
    painter.fillPath(flow, QColor(244, 104, 34));
}

static void drawEruption(QPainter &painter)
{
    static constexpr double puffs[][3] = {{312, 62, 24}, {290, 44, 24}, {334, 42, 26},
                                          {266, 28, 26}, {312, 22, 30}, {360, 26, 26},
                                          {398, 20, 20}, {236, 18, 18}};
    painter.setPen(Qt::NoPen);
    for (const auto &puff : puffs) {
        QRadialGradient ash(puff[0] - 6, puff[1] - 8, puff[2] * 1.3);
        ash.setColorAt(0, QColor(178, 178, 182));
        ash.setColorAt(1, QColor(108, 108, 114));
        painter.setBrush(ash);
        painter.drawEllipse(QPointF(puff[0], puff[1]), puff[2], puff[2]);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(250, 130, 30), 4, Qt::SolidLine, Qt::RoundCap));
    for (int i = -2; i <= 2; ++i) {
        QPainterPath spark(QPointF(312 + i * 4, 92));
        spark.quadTo(312 + i * 14, 52, 312 + i * 26, 70 + 5 * i * i);
        painter.drawPath(spark);
    }
}

static void drawLabel(QPainter &painter, const char *text, QPointF at, QPointF target)
{
    const QFontMetricsF metrics(painter.font());
    const QString words = QString::fromLatin1(text);
    const QRectF box(at, QSizeF(metrics.horizontalAdvance(words) + 12, 26));
    const bool isLeft = box.center().x() < target.x();
    painter.setPen(QPen(QColor(30, 30, 34), 1.4));
    painter.drawLine(QPointF(isLeft ? box.right() : box.left(), box.center().y()), target);
    painter.setBrush(QColor(30, 30, 34));
    painter.drawEllipse(target, 3, 3);
    painter.setBrush(QColor(255, 255, 255, 225));
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(box, 4, 4);
    painter.setPen(QColor(20, 20, 24));
    painter.drawText(box, Qt::AlignCenter, words);
}

static void drawFigure(QPainter &painter)
{
    painter.save();
    painter.translate(margin, figureTop);
    const QRectF frame(0, 0, textWidth, figureHeight);
    painter.setClipRect(frame);
    QLinearGradient sky(0, 0, 0, groundLevel);
    sky.setColorAt(0, QColor(150, 196, 232));
    sky.setColorAt(1, QColor(232, 242, 248));
    painter.fillRect(frame, sky);
    drawGround(painter);
    static const QColor layers[] = {
        {112, 100, 92}, {186, 150, 118}, {124, 108, 98}, {198, 160, 124}, {132, 114, 102}};
    for (int i = 0; i < 5; ++i)
        painter.fillPath(mountain(1 - i * 0.17), layers[i]);
    drawEruption(painter);
    drawMagma(painter);
    painter.setFont(printed("Liberation Sans", 19));
    drawLabel(painter, "ash cloud", {70, 22}, {248, 22});
    drawLabel(painter, "crater", {120, 78}, {292, 90});
    drawLabel(painter, "layers of ash and lava", {8, 138}, {214, 196});
    drawLabel(painter, "lava flow", {490, 100}, {408, 168});
    drawLabel(painter, "side vent", {516, 168}, {428, 180});
    drawLabel(painter, "main vent", {456, 268}, {318, 270});
    drawLabel(painter, "magma chamber", {12, 330}, {236, 344});
    painter.setClipping(false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(60, 60, 66), 1.5));
    painter.drawRect(frame);
    painter.restore();
    painter.setPen(QColor(70, 70, 76));
    painter.setFont(printed("Liberation Serif", 21, false, true));
    painter.drawText(QRectF(margin, figureTop + figureHeight + 8, textWidth, 28), Qt::AlignLeft,
                     QStringLiteral("Figure 1.  Section through a stratovolcano"));
}

static void drawQuestions(QPainter &painter)
{
    static const char *const questions[] = {
        "Copy the section into your notebook.",
        "Name three things that leave the crater.",
        "What is the difference between magma and lava?",
    };
    double y = figureTop + figureHeight + 48;
    for (int i = 0; i < 3; ++i) {
        painter.setPen(QColor(186, 62, 40));
        painter.setFont(printed("Liberation Sans", 23, true));
        painter.drawText(QPointF(margin, y + 24), QString::number(i + 1));
        painter.setPen(QColor(28, 28, 32));
        painter.setFont(printed("Liberation Serif", 25));
        painter.drawText(QPointF(margin + 30, y + 24), QString::fromLatin1(questions[i]));
        if (i > 0) {
            painter.setPen(QPen(QColor(130, 132, 138), 1.5, Qt::DotLine));
            painter.drawLine(QPointF(margin + 30, y + 66), QPointF(margin + textWidth, y + 66));
        }
        y += i > 0 ? 84 : 42;
    }
}

void drawDemoWorksheet(QPainter &painter)
{
    painter.save();
    painter.fillRect(QRectF({0, 0}, demoWorksheetSize), QColor(253, 252, 249));
    drawHead(painter);
    drawText(painter);
    drawFigure(painter);
    drawQuestions(painter);
    painter.restore();
}
