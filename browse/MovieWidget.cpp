#include "MovieWidget.h"

#include <QLabel>
#include <QUrl>
#include <phonon/mediasource.h>

MovieWidget::MovieWidget(QWidget *parent)
    : Phonon::VideoPlayer(parent)
    , m_label(new QLabel(tr("Movie"), this))
{
    QPalette colors = palette();
    colors.setColor(QPalette::Window, Qt::black);
    colors.setColor(QPalette::WindowText, Qt::green);
    setPalette(colors);
    setAccessibleName(tr("Movie"));
    setAccessibleDescription(tr("Plays a recorded movie"));

    m_label->setPalette(colors);
    // The weight, 5 of 99, is meant: the caption is to be as thin as the font has it.
    m_label->setFont(QFont(QStringLiteral("Arial"), 24, 5, false));
    m_label->adjustSize();
}

bool MovieWidget::Create(const QString &filename)
{
    load(Phonon::MediaSource(QUrl::fromLocalFile(filename)));
    // The player makes its video surface on first use, and puts it above the caption.
    m_label->raise();
    m_created = true;
    return true;
}

void MovieWidget::Release() { }

void MovieWidget::Play()
{
    if (!isPlaying())
        play();
}

void MovieWidget::Stop()
{
    stop();
}

void MovieWidget::Reset()
{
    stop();
    play();
}

bool MovieWidget::isComplete()
{
    return totalTime() <= currentTime();
}
