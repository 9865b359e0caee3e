#include "TargetPainter.h"

#include <QPaintEngine>
#include <QPaintEvent>
#include <QPainter>
#include <QVector>
#include <QWidget>

TargetPainter::~TargetPainter()
{
    setTarget(nullptr);
}

void TargetPainter::setTarget(QWidget *target)
{
    if (target == m_target)
        return;
    if (m_target) {
        m_target->removeEventFilter(this);
        m_target->setAttribute(Qt::WA_OpaquePaintEvent, m_targetWasOpaque);
        m_target->update();
    }
    m_target = target;
    if (target) {
        m_targetWasOpaque = target->testAttribute(Qt::WA_OpaquePaintEvent);
        target->setAttribute(Qt::WA_OpaquePaintEvent);
        target->installEventFilter(this);
        target->update();
    }
    Q_EMIT roomChanged();
}

QSize TargetPainter::roomFor(const QSize &aspect) const
{
    if (!m_target || !m_target->isVisible() || aspect.isEmpty())
        return {};
    const QSize room = m_target->size() * m_target->devicePixelRatioF();
    return aspect.scaled(room, Qt::KeepAspectRatio);
}

void TargetPainter::repaintSoon()
{
    if (m_target)
        m_target->update();
}

bool TargetPainter::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_target)
        return false;
    switch (event->type()) {
    case QEvent::Paint:
        paint(static_cast<QPaintEvent *>(event)->region());
        return true;
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Resize:
        Q_EMIT roomChanged();
        break;
    default:
        break;
    }
    return false;
}

// The picture of the window that is being painted; null where it is something else than an image in
// memory, or of another format than windows have here: with room for their opacity or without.
static QImage *windowPicture(const QPainter &painter)
{
    QPaintDevice *device = painter.paintEngine()->paintDevice();
    if (device->devType() != QInternal::Image)
        return nullptr;
    auto *picture = static_cast<QImage *>(device);
    const bool isKnown = picture->format() == QImage::Format_RGB32
        || picture->format() == QImage::Format_ARGB32_Premultiplied;
    return isKnown && picture->isDetached() ? picture : nullptr;
}

// Pixels and logical units of a window fall together only at a whole ratio.
static bool isAligned(const QTransform &toPixels)
{
    return toPixels.type() <= QTransform::TxScale && toPixels.m11() == toPixels.m22()
        && toPixels.m11() == qRound(toPixels.m11());
}

static QRegion mapped(const QTransform &toPixels, const QRegion &region)
{
    QRegion pixels;
    for (const QRect &part : region)
        pixels += toPixels.mapRect(part);
    return pixels;
}

namespace {
// What others show on a picture that is to be painted over; puts it back when it goes.
class KeptParts {
public:
    KeptParts(QImage *picture, const QRegion &parts)
        : m_picture(picture)
    {
        for (const QRect &part : parts) {
            m_places.append(part.topLeft());
            m_images.append(picture->copy(part));
        }
    }

    ~KeptParts()
    {
        QPainter painter(m_picture);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        for (int i = 0; i < m_places.size(); ++i)
            painter.drawImage(m_places.at(i), m_images.at(i));
    }

    KeptParts(const KeptParts &) = delete;
    KeptParts &operator=(const KeptParts &) = delete;

private:
    QImage *m_picture;
    QVector<QPoint> m_places;
    QVector<QImage> m_images;
};
} // namespace

bool TargetPainter::paintDirectly(const QPainter &painter, const QRect &place,
                                  const QRegion &wanted) const
{
    const QTransform &toPixels = painter.deviceTransform();
    QImage *window = windowPicture(painter);
    const QRect area = toPixels.mapRect(place);
    const QRect room = toPixels.mapRect(m_target->rect());
    if (!window || !isAligned(toPixels) || !window->rect().intersected(room).contains(area))
        return false;
    uchar *first = window->scanLine(area.y()) + qptrdiff(area.x()) * window->depth() / 8;
    QImage part(first, area.width(), area.height(), window->bytesPerLine(), window->format());
    const QRegion others =
        QRegion(part.rect()).subtracted(mapped(toPixels, wanted).translated(-area.topLeft()));
    const KeptParts kept(&part, others);
    return m_source.paintInto(&part);
}

void TargetPainter::paint(const QRegion &wanted)
{
    QPainter painter(m_target);
    const qreal ratio = m_target->devicePixelRatioF();
    const QSize size = roomFor(m_source.size ? m_source.size() : QSize());
    QRect place(QPoint(), size / ratio);
    place.moveCenter(m_target->rect().center());
    const QRegion around = QRegion(m_target->rect()).subtracted(place);
    for (const QRect &border : around)
        painter.fillRect(border, Qt::black);
    if (size.isEmpty() || paintDirectly(painter, place, wanted))
        return;
    QImage picture = m_source.picture(size);
    if (picture.isNull()) {
        painter.fillRect(place, Qt::black);
        return;
    }
    picture.setDevicePixelRatio(ratio);
    painter.drawImage(place.topLeft(), picture);
}
