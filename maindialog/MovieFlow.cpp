// Movies: recording and playback. "Movie" records from the live screen until "Stop" or the time
// limit; the new movie is then there to play. "Play" and "Pause" drive whatever movie is loaded.
// A lost camera ends a recording or pauses a playback; a full disk or a broken encoder ends a
// recording as "Stop" does and is told afterwards. Leaving the playback screen stops the movie.

#include "CVistrelDlg.h"

#include "CStretchBitmapButton.h"
#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "ScreenWake.h"
#include "Spoken.h"
#include "TimerWidget.h"
#include "WebcamUtil.h"

#include <QEvent>
#include <QGuiApplication>
#include <QStyleHints>

namespace {

// Minutes and seconds of a length in milliseconds, each at least two digits.
QString clockText(qint64 milliseconds)
{
    return QStringLiteral("%1:%2")
        .arg(milliseconds / 60000, 2, 10, QLatin1Char('0'))
        .arg((milliseconds % 60000) / 1000, 2, 10, QLatin1Char('0'));
}

bool isPress(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick
        || type == QEvent::TouchBegin || type == QEvent::KeyPress;
}

} // namespace

void CVistrelDlg::OnRecord()
{
    if (!hasSpaceToCapture())
        return;
    if (m_recording)
        return;
    if (!m_liveView->Record())
        return;
    m_moviePath = m_liveView->movieFileName();
    m_recording = true;
    Spoken::news(this, tr("Recording"));
    button(MovieButton)->hide();
    disableAllButton(false);
    button(MovieStopButton)->show();
    button(MovieStopButton)->setEnabled(true);
    m_sinceRecordingBegan.start();
    m_listKind = MovieList;
    m_timerWidget->SetMode(TimerRecordTime);
    m_timerWidget->show();
    m_timerWidget->run();
    button(CloseButton)->setEnabled(false);
}

// "Stop" stands where "Movie" stood, so the second press of a double click would end the movie that
// the first one began. Swallowed as a press, by mouse, finger or key, the button does not even go
// down.
bool CVistrelDlg::eventFilter(QObject *watched, QEvent *event)
{
    const int doubleClickMs = QGuiApplication::styleHints()->mouseDoubleClickInterval();
    if (watched == button(MovieStopButton) && isPress(event->type())
        && m_sinceRecordingBegan.isValid() && m_sinceRecordingBegan.elapsed() < doubleClickMs)
        return true;
    return QWidget::eventFilter(watched, event);
}

void CVistrelDlg::endBrokenRecording()
{
    if (!m_recording || isClosed())
        return;
    OnMovieStop();
    stop_window();
    if (WebcamUtil::chkdiskFreeSpace())
        warnOfInvalidVideo();
    else
        WebcamUtil::ShowDiskWorningMessage(this);
}

void CVistrelDlg::OnMovieStop()
{
    if (!m_recording || isClosed())
        return;
    if (m_liveView->isCreate())
        m_liveView->RecordStop();
    m_liveView->hide();
    m_timerWidget->Stop();
    m_recording = false;
    Spoken::news(this, tr("Recording ended"));
    TransitionMode(MovieMode);
    m_movieView->Create(m_moviePath);
    m_movieView->show();
    m_timerWidget->Stop();
    button(CloseButton)->setEnabled(true);
    m_timerWidget->SetMode(TimerPlayTime);
    m_timerWidget->show();
    m_listKind = MovieList;
    update();
}

void CVistrelDlg::setMovieTime()
{
    const qint64 total = m_movieView->totalTime();
    const qint64 current = m_movieView->currentTime() + 500; // to the nearest second
    const QString totalText = clockText(total);
    const QString currentText = clockText(current);
    m_timerWidget->setText(currentText + QLatin1Char('/') + totalText);
    // The player does not know a movie's length before it plays, nor after its end; to stop at the
    // zeros shown then would stop the clock of every movie at its beginning.
    if (total > 0 && currentText == totalText)
        m_timerWidget->Stop();
}

// The player learns how long a movie is a moment after it began, and the next tick is a second
// away.
void CVistrelDlg::showMovieLength(qint64 total)
{
    if (total > 0 && !button(MoviePauseButton)->isHidden())
        setMovieTime();
}

void CVistrelDlg::showPlayButton()
{
    swapButtons(MoviePauseButton, MoviePlayButton);
    m_screenWake->lookSoon();
}

void CVistrelDlg::OnMoviePlay()
{
    if (m_movieView->isComplete()) {
        m_timerWidget->Stop();
        setMovieTime();
        m_movieView->Stop();
    }
    m_timerWidget->show();
    m_movieView->Play();
    m_timerWidget->run();
    swapButtons(MoviePlayButton, MoviePauseButton);
    m_screenWake->lookSoon();
}

void CVistrelDlg::OnMoviePause()
{
    if (m_movieView->isComplete()) {
        m_timerWidget->Stop();
        setMovieTime();
        m_movieView->Stop();
    } else if (m_movieView->isPlaying()) {
        m_movieView->pause();
        m_timerWidget->Pause();
    }
    showPlayButton();
}

void CVistrelDlg::stopPlayback()
{
    if (!m_movieView->isCreated())
        return;
    m_movieView->Stop();
    m_movieView->Release();
}

void CVistrelDlg::OnMovieFinished()
{
    // The end of a movie that was left in the meantime is told late: button and clock may serve
    // another screen by now.
    if (m_displayMode != MovieMode)
        return;
    showPlayButton();
    m_movieView->Stop();
    m_timerWidget->Stop();
}
