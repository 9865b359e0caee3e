#include "TimerWidget.h"

#include "GreenCaption.h"
#include "Spoken.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

namespace {

constexpr int tick = 1000; // ms
constexpr int longestRecording = 600; // s

QString twoDigits(int number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

} // namespace

TimerWidget::TimerWidget(QWidget *parent, Qt::WindowFlags f)
    : QLabel(parent, f)
    , m_timeLimit(longestRecording)
    , m_tickTimer(new QTimer(this))
{
    setAutoFillBackground(true);
    setPalette(GreenCaption::palette(palette()));
    setFont(GreenCaption::font());
    // The name is left to the text itself, so that a screen reader reads the time.
    setAccessibleDescription(tr("Self-timer, recording time or playing time"));

    // Only a precise timer keeps to the schedule it began with; a coarse one may be 5 % off.
    m_tickTimer->setTimerType(Qt::PreciseTimer);
    m_tickTimer->setInterval(tick);
    connect(m_tickTimer, &QTimer::timeout, this, &TimerWidget::showtime);
}

void TimerWidget::setcount(int n)
{
    m_count = n;
    m_remaining = n;
}

void TimerWidget::run()
{
    m_elapsed = 0;
    m_remaining = m_count;
    if (!m_tickTimer->isActive())
        m_tickTimer->start();
    showtime();
}

void TimerWidget::Pause()
{
    m_tickTimer->stop();
}

void TimerWidget::Stop()
{
    m_elapsed = 0;
    m_tickTimer->stop();
}

void TimerWidget::reset()
{
    Stop();
    setText(QString());
    m_mode = TimerIdle;
}

void TimerWidget::SetMode(TimerMode m)
{
    hide();
    if (m == m_mode)
        return;
    m_elapsed = 0;
    setText(sizingText(m));
    adjustSize();
    moveToRightEdge();
    setText(QString());
    m_mode = m;
}

void TimerWidget::showtime()
{
    switch (m_mode) {
    case TimerCountdown:
        OnShot();
        break;
    case TimerPlayTime:
        Q_EMIT set();
        break;
    case TimerRecordTime:
        RecordTime();
        break;
    case TimerIdle:
        break;
    }
}

void TimerWidget::OnShot()
{
    if (m_remaining != 0) {
        if (!isVisible())
            show();
        setText(QLatin1Char(' ') + QString::number(m_remaining) + tr(" second to capture"));
        Spoken::news(this, text());
        --m_remaining;
        return;
    }
    m_remaining = m_count;
    setText(QString());
    Q_EMIT shot();
}

void TimerWidget::RecordTime()
{
    // A recording that has been stopped keeps its last time on show.
    if (m_tickTimer->isActive())
        setText(twoDigits(m_elapsed / 60) + QLatin1Char(':') + twoDigits(m_elapsed % 60));
    if (m_elapsed >= m_timeLimit)
        Q_EMIT movieTimeOver();
    ++m_elapsed;
}

void TimerWidget::setTickInterval(int milliseconds)
{
    m_tickTimer->setInterval(milliseconds);
}

// The longest text of the mode, which the label is made wide enough for.
QString TimerWidget::sizingText(TimerMode mode)
{
    switch (mode) {
    case TimerCountdown:
        // The two blanks at the end make room for a second digit.
        return tr("0 second to capture  ");
    case TimerPlayTime:
        return QStringLiteral("00:00/00:00");
    case TimerRecordTime:
        return QStringLiteral("00:00");
    case TimerIdle:
        break;
    }
    return QString();
}

void TimerWidget::moveToRightEdge()
{
    move(QGuiApplication::primaryScreen()->availableGeometry().width() - width(), y());
}
