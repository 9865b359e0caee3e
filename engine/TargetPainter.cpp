#include "TargetPainter.h"

#include <QEvent>
#include <QPainter>
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
        paint();
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

void TargetPainter::paint()
{
    QImage picture = m_source ? m_source() : QImage();
    QPainter painter(m_target);
    const QRect room = m_target->rect();
    if (picture.isNull()) {
        painter.fillRect(room, Qt::black);
        return;
    }
    picture.setDevicePixelRatio(m_target->devicePixelRatioF());
    const QSize size = picture.size() / picture.devicePixelRatioF();
    QRect place(QPoint(), size.scaled(room.size(), Qt::KeepAspectRatio));
    // A picture of nearly the right size is drawn as it is: a row or column of rounding is not
    // worth another scaling.
    if (qAbs(place.width() - size.width()) <= 1 && qAbs(place.height() - size.height()) <= 1)
        place.setSize(size);
    place.moveCenter(room.center());
    const QRegion around = QRegion(room).subtracted(place);
    for (const QRect &border : around)
        painter.fillRect(border, Qt::black);
    painter.drawImage(place, picture);
}
