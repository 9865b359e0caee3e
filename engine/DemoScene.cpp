#include "DemoScene.h"

#include "DemoDesk.h"

#include <QDateTime>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

static constexpr int pencilLength = 470; // px
static constexpr int pencilHalf = 13; // px, of its thickness
static constexpr double pencilAngle = 41; // degrees, from its point down to the right
static constexpr int pencilRoom = 20; // px around it
static constexpr double fadeStep = 0.22; // of what is drawn, with each picture
static const QSize pictureSize(DemoPlaces::width, DemoPlaces::height);
static const QPoint pencilPoint(pencilRoom, pencilRoom); // in its picture
static const QPointF shadowOffset(6, 12); // px, while the pencil draws

static QImage emptySprite()
{
    const double angle = pencilAngle * M_PI / 180;
    QImage sprite(int(pencilLength * std::cos(angle)) + 2 * pencilRoom,
                  int(pencilLength * std::sin(angle)) + 2 * pencilRoom,
                  QImage::Format_ARGB32_Premultiplied);
    sprite.fill(Qt::transparent);
    return sprite;
}

static QPainterPath pencilOutline(double margin = 0)
{
    QPainterPath path(QPointF(-margin, 0));
    path.lineTo(56, -pencilHalf - margin);
    path.lineTo(pencilLength - 8, -pencilHalf - margin);
    path.quadTo(pencilLength + 4 + margin, 0, pencilLength - 8, pencilHalf + margin);
    path.lineTo(56, pencilHalf + margin);
    path.closeSubpath();
    return path;
}

static void beginSprite(QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(pencilPoint);
    painter.rotate(pencilAngle);
}

static void fillBand(QPainter &painter, double from, double to, const QColor &colour)
{
    QLinearGradient round(0, -pencilHalf, 0, pencilHalf);
    round.setColorAt(0, colour.lighter(112));
    round.setColorAt(0.3, colour.lighter(135));
    round.setColorAt(0.36, colour);
    round.setColorAt(0.68, colour);
    round.setColorAt(0.72, colour.darker(125));
    round.setColorAt(1, colour.darker(150));
    painter.fillRect(QRectF(from, -pencilHalf, to - from, 2 * pencilHalf), round);
}

static QImage pencilSprite()
{
    QImage sprite = emptySprite();
    QPainter painter(&sprite);
    beginSprite(painter);
    painter.setClipPath(pencilOutline());
    fillBand(painter, 0, 70, QColor(226, 184, 132));
    fillBand(painter, 0, 17, QColor(58, 58, 64));
    fillBand(painter, 66, 392, QColor(22, 112, 128));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(22, 112, 128));
    for (int edge = -1; edge <= 1; ++edge) // where the sharpener has cut
        painter.drawEllipse(QPointF(68, edge * pencilHalf * 0.66), 10, pencilHalf / 3.0);
    fillBand(painter, 392, 432, QColor(176, 180, 186));
    for (const int ring : {398, 406, 418, 426})
        painter.fillRect(QRectF(ring, -pencilHalf, 2, 2 * pencilHalf), QColor(110, 114, 122));
    fillBand(painter, 432, pencilLength, QColor(226, 120, 122));
    return sprite;
}

static QImage shadowSprite()
{
    QImage sprite = emptySprite();
    QPainter painter(&sprite);
    beginSprite(painter);
    for (int soft = 0; soft < 6; ++soft)
        painter.fillPath(pencilOutline(soft - 2), QColor(20, 8, 0, 18));
    return sprite;
}

DemoScene::Picture::Picture()
    : canvas(DemoPlaces::width, DemoPlaces::height)
{
    canvas.stale = QRect({0, 0}, pictureSize);
}

DemoScene::DemoScene()
    : m_pencil(pencilSprite())
    , m_shadow(shadowSprite())
    , m_empty(demoDesk())
    , m_desk(m_empty)
    , m_resting(DemoPlaces::width, DemoPlaces::height)
{
    m_resting.put(m_desk, {0, 0});
}

// What rests has changed there.
void DemoScene::change(QRect place)
{
    const QRect even = DemoCanvas::even(place, pictureSize);
    m_resting.put(m_desk.copy(even), even.topLeft());
    for (const auto &picture : m_pictures)
        picture->canvas.stale += even;
}

static QPointF towards(double turns, double length)
{
    return QPointF(std::sin(turns * 2 * M_PI), -std::cos(turns * 2 * M_PI)) * length;
}

static void drawHand(QPainter &painter, double turns, double length, double width,
                     const QColor &colour)
{
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(towards(turns, -0.14 * DemoPlaces::clockRadius),
                     towards(turns, length * DemoPlaces::clockRadius));
}

void DemoScene::setHands(qint64 second)
{
    if (second == m_second)
        return;
    m_second = second;
    const QPoint middle(DemoPlaces::clockX, DemoPlaces::clockY);
    const int radius = DemoPlaces::clockRadius;
    const QRect face(middle - QPoint(radius, radius), QSize(2 * radius, 2 * radius));
    QPainter painter(&m_desk);
    painter.drawImage(face, m_empty, face);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(middle);
    const int today =
        QDateTime::fromMSecsSinceEpoch(second * 1000).time().msecsSinceStartOfDay() / 1000;
    drawHand(painter, today / 43200.0, 0.5, 9, QColor(30, 32, 38));
    drawHand(painter, today % 3600 / 3600.0, 0.78, 6, QColor(30, 32, 38));
    drawHand(painter, today % 60 / 60.0, 0.86, 3, QColor(206, 32, 32));
    painter.setBrush(QColor(206, 32, 32));
    painter.drawEllipse(QPointF(0, 0), 5, 5);
    painter.end();
    change(face);
}

static QRect notebookPlace()
{
    return DemoPlaces::notebook().mapRect(QRectF(0, 50, 600, 690)).toAlignedRect();
}

void DemoScene::drawOn(double second)
{
    QPainter painter(&m_desk);
    if (second < m_drawnUntil || second >= DemoDrawing::fading) {
        painter.setOpacity(second < m_drawnUntil ? 1 : fadeStep);
        painter.drawImage(notebookPlace(), m_empty, notebookPlace());
        painter.end();
        change(notebookPlace());
        m_drawnUntil = second < m_drawnUntil ? 0 : second;
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(DemoPlaces::notebook());
    m_drawing.draw(painter, m_drawnUntil, second);
    painter.end();
    // The line lies between the two points, or the strokes in between are many.
    const bool isShort = second - m_drawnUntil < 0.2;
    const QRectF line(m_drawing.pencilAt(m_drawnUntil).tip, m_drawing.pencilAt(second).tip);
    const QRect drawn = DemoPlaces::notebook()
                            .mapRect(line.normalized().adjusted(-30, -30, 30, 30))
                            .toAlignedRect();
    change(isShort ? drawn : notebookPlace());
    m_drawnUntil = second;
}

void DemoScene::follow(qint64 moment)
{
    setHands(moment / 1000);
    constexpr auto cycle = qint64(DemoDrawing::cycle * 1000);
    const double second = double(moment % cycle) / 1000;
    if (second < m_drawnUntil)
        drawOn(0); // a new page
    drawOn(second);
}

void DemoScene::paintPencil(DemoCanvas &canvas, const DemoDrawing::Pencil &pencil)
{
    const QPoint point = DemoPlaces::notebook().map(pencil.tip).toPoint();
    const QPoint corner = point - pencilPoint - QPoint(int(pencil.lift / 3), int(pencil.lift));
    const QPoint shadow = point - pencilPoint + (shadowOffset * (1 + pencil.lift / 8)).toPoint();
    const QRect place = DemoCanvas::even(
        QRect(corner, m_pencil.size()) | QRect(shadow, m_shadow.size()), pictureSize);
    QImage part = m_desk.copy(place);
    QPainter painter(&part);
    painter.drawImage(shadow - place.topLeft(), m_shadow);
    painter.drawImage(corner - place.topLeft(), m_pencil);
    painter.end();
    canvas.put(part, place.topLeft());
    canvas.stale = place;
}

std::shared_ptr<DemoScene::Picture> DemoScene::freePicture()
{
    for (const auto &picture : m_pictures)
        if (picture->isFree.exchange(false))
            return picture;
    m_pictures.push_back(std::make_shared<Picture>());
    m_pictures.back()->isFree = false;
    return m_pictures.back();
}

std::shared_ptr<DemoScene::Picture> DemoScene::at(qint64 moment)
{
    follow(moment);
    std::shared_ptr<Picture> picture = freePicture();
    for (const QRect &place : std::as_const(picture->canvas.stale))
        picture->canvas.take(m_resting, DemoCanvas::even(place, pictureSize));
    paintPencil(picture->canvas, m_drawing.pencilAt(m_drawnUntil));
    return picture;
}
