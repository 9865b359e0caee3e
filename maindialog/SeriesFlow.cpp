// A series of photos. "Continuous Capture" starts it: with the self-timer each countdown takes one,
// without it each further press does. The last one shows them all side by side; "Live" leaves
// early. The photos stay in the temporary area either way.

#include "CVistrelDlg.h"

#include "CStretchBitmapButton.h"
#include "CapturedPicture.h"
#include "LiveVideoWidget.h"
#include "PictureListView.h"
#include "PictureWidget.h"
#include "ScreenWake.h"
#include "Spoken.h"
#include "TimerWidget.h"

void CVistrelDlg::OnPhotSeq()
{
    if (!hasSpaceToCapture())
        return;
    if (m_displayMode != PhotSeqMode) {
        startSeries();
        return;
    }
    if (m_shotCounter < m_shotTarget && m_selfTimer) {
        m_timerWidget->Stop();
        m_timerWidget->run();
    }
    OnShot();
}

void CVistrelDlg::startSeries()
{
    allWidgethide();
    m_shotCounter = 0;
    m_seriesList.clear();
    m_pictureView->Release();
    m_pictureView->Loadbmp(QString());
    m_timerWidget->reset();
    m_timerWidget->setcount(m_selfTimerSeconds);
    TransitionMode(PhotSeqMode);
    m_liveView->show();
    m_pictureList->Release();
    m_pictureList->setSelectionMode(QAbstractItemView::NoSelection);
    m_pictureList->show();
    m_pictureView->show();
    disableAllButton(false);
    button(SettingsButton)->hide();
    button(PhotoMultiButton)->setEnabled(true);
    button(LiveButton)->setEnabled(true);
    button(CloseButton)->setEnabled(false);
    if (m_selfTimer) {
        m_timerWidget->show();
        m_timerWidget->run(); // still idle: the first number comes with the first tick
    } else {
        OnShot();
    }
    m_timerWidget->SetMode(TimerCountdown);
    m_listKind = PhotoList;
    update();
}

// The picture is shown as it was written, and the strip and the tiles will have it at once.
QString CVistrelDlg::takePhotoOfSeries()
{
    QString name = m_liveView->SaveBmp();
    if (!name.isEmpty())
        CapturedPicture::remember(name, m_liveView->takeSavedPicture());
    return name;
}

void CVistrelDlg::OnShot()
{
    if (isClosed())
        return;
    stop_window();
    playShutterSound();
    m_currentPhotoName = takePhotoOfSeries();
    m_pictureView->Loadbmp(m_currentPhotoName);
    m_pictureView->setLabelText(QString::number(m_shotCounter + 1) + tr("/")
                                + QString::number(m_shotTarget));
    m_seriesList.append(m_currentPhotoName);
    m_pictureList->AddPictureWithSelect(m_currentPhotoName);
    ++m_shotCounter;
    if (!m_currentPhotoName.isEmpty())
        Spoken::news(this, tr("Photo taken") + QLatin1Char(' ') + m_pictureView->labelText());
    if (m_shotCounter >= m_shotTarget)
        endSeries();
}

// A series that is left ends, whatever led away from it.
void CVistrelDlg::endCountdown()
{
    if (m_displayMode != PhotSeqMode)
        return; // the clock serves another screen
    m_timerWidget->hide();
    m_timerWidget->reset();
}

void CVistrelDlg::endSeries()
{
    m_pictureList->hide();
    m_liveView->hide();
    m_pictureView->hide();
    const QStringList series = m_seriesList;
    SetPictureListMode(series);
    m_screenWake->lookSoon();
    m_shotCounter = 0;
    endCountdown();
    update();
}
