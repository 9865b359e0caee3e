#include "MovieWidget.h"

#include "GreenCaption.h"
#include "PictureLoader.h"
#include "Spoken.h"
#include "WebcamUtil.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QPainter>
#include <QUrl>
#include <phonon/mediaobject.h>
#include <phonon/mediasource.h>

// ms between two positions that the player tells: a frame of a movie at 25 fps, so that nobody sees
// the still picture linger.
static constexpr int positionInterval = 40;

/** A movie's still picture on black, as large as fits, like the movie's own pictures. */
class MovieWidget::StillPicture : public QWidget {
public:
    explicit StillPicture(QWidget *parent)
        : QWidget(parent)
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
    }
    ~StillPicture() override { PictureLoader::shared().forget(this); }

    // The name is a bare file name in the temporary area; black until it has been read.
    void loadLater(const QString &name)
    {
        PictureLoader::shared().forget(this);
        m_picture = QImage();
        update();
        const QSize fit = (QSizeF(size()) * devicePixelRatioF()).toSize();
        PictureLoader::shared().later(name, fit, this, [this](const QImage &picture) {
            m_picture = picture;
            update();
        });
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::black);
        if (m_picture.isNull())
            return;
        QRect place(QPoint(), m_picture.size().scaled(size(), Qt::KeepAspectRatio));
        place.moveCenter(rect().center());
        painter.drawImage(place, m_picture);
    }

private:
    QImage m_picture;
};

MovieWidget::MovieWidget(QWidget *parent)
    : Phonon::VideoPlayer(parent)
    , m_stillPicture(new StillPicture(this))
    , m_label(new QLabel(tr("Movie"), this))
{
    Spoken::asWhole(this, QAccessible::Animation);
    setPalette(GreenCaption::palette(palette()));
    setAccessibleName(tr("Movie"));
    setAccessibleDescription(tr("Plays a recorded movie"));

    m_label->setPalette(palette());
    m_label->setFont(GreenCaption::font());
    m_label->adjustSize();
    m_stillPicture->hide();
}

MovieWidget::~MovieWidget() = default;

bool MovieWidget::Create(const QString &filename)
{
    if (m_created) {
        Stop();
        hearPlayerOut();
    }
    load(Phonon::MediaSource(QUrl::fromLocalFile(filename)));
    showStillPicture(QFileInfo(filename).fileName());
    // The player makes its video surface on first use, and puts it above the other children.
    m_stillPicture->raise();
    m_label->raise();
    // Not before the first movie: the player, which may have to wait for the sound server, is made
    // by asking for it.
    connect(mediaObject(), &Phonon::MediaObject::totalTimeChanged, this, &MovieWidget::lengthKnown,
            Qt::UniqueConnection);
    m_created = true;
    return true;
}

// How a movie goes on, that it is at its end or cannot be played, is told to the player from other
// threads, on a busy machine late: heard when it was stopped, or when the next movie is there, it
// would be taken for what became of that.
void MovieWidget::hearPlayerOut()
{
    const QList<QObject *> parts = mediaObject()->findChildren<QObject *>();
    for (int step = 0; step < 2; ++step) // an error is passed on once
        for (QObject *part : parts)
            QCoreApplication::sendPostedEvents(part, QEvent::MetaCall);
}

void MovieWidget::showStillPicture(const QString &movie)
{
    m_stillPicture->setGeometry(rect());
    m_stillPicture->loadLater(WebcamUtil::stillNameOf(movie));
    m_stillPicture->show();
    mediaObject()->setTickInterval(positionInterval);
    connect(mediaObject(), &Phonon::MediaObject::tick, this, &MovieWidget::hideStillPicture,
            Qt::UniqueConnection);
}

// A movie that has moved on has shown a picture of its own.
void MovieWidget::hideStillPicture(qint64 position)
{
    if (position > 0 && isPlaying())
        m_stillPicture->hide();
}

void MovieWidget::resizeEvent(QResizeEvent *event)
{
    Phonon::VideoPlayer::resizeEvent(event);
    m_stillPicture->setGeometry(rect());
}

void MovieWidget::Release() { }

// Asked for while playing, too, which changes nothing: one that was stopped may still be taken for
// playing, when it was told too late that it had begun.
void MovieWidget::Play()
{
    play();
}

void MovieWidget::Stop()
{
    hearPlayerOut();
    stop();
    m_stillPicture->setVisible(m_created);
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
