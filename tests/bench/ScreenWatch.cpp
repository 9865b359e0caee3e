#include "ScreenWatch.h"

#include "LabPattern.h"

#include <QEvent>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <cstring>

ScreenWatch::ScreenWatch(QWidget *target)
    : m_target(target)
{
    m_clock.start();
    target->installEventFilter(this);
}

void ScreenWatch::restart()
{
    m_first = m_last = -1;
    m_times.clear();
}

int ScreenWatch::dropped() const
{
    return m_times.isEmpty() ? 0 : m_last - m_first + 1 - m_times.size();
}

double ScreenWatch::intervalOf(double share) const
{
    QVector<qint64> intervals;
    for (int i = 1; i < m_times.size(); ++i)
        intervals.append(m_times[i] - m_times[i - 1]);
    if (intervals.isEmpty())
        return 0;
    std::sort(intervals.begin(), intervals.end());
    return double(intervals[int(share * (intervals.size() - 1))]) / 1e6;
}

bool ScreenWatch::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        m_painted = m_clock.nsecsElapsed();
        // The picture goes to the screen after this event.
        QMetaObject::invokeMethod(
            this, [this] { look(); }, Qt::QueuedConnection);
    }
    return false;
}

// One row of the screen tells the number.
void ScreenWatch::look()
{
    const QRect place = m_target->geometry();
    const QImage row = QGuiApplication::primaryScreen()
                           ->grabWindow(0, place.x(), place.center().y(), place.width(), 1)
                           .toImage()
                           .convertToFormat(QImage::Format_RGB32);
    QImage picture(row.width(), 3, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        std::memcpy(picture.scanLine(y), row.constScanLine(0), size_t(picture.bytesPerLine()));
    const int frame = LabPattern::counterOf(picture);
    if (frame < 0 || frame == m_last)
        return;
    if (m_first < 0)
        m_first = frame;
    m_last = frame;
    m_times.append(m_painted);
}
