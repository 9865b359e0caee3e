// Photos. "Photo" takes one and shows it; with the preview on, the live picture runs on beside it
// until "Accept" or "Retry"; "Live" goes back. A photo exists only as a file in the temporary area,
// so accepting writes nothing. The file is written while the photo is shown already; no button can
// be pressed until it is there, and what comes without a press (a lost camera, the end of the
// session) waits for it. A full disk or a lost camera interrupts.

#include "CVistrelDlg.h"

#include "CapturedPicture.h"
#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "PictureListView.h"
#include "PictureLoader.h"
#include "PictureWidget.h"
#include "Spoken.h"
#include "TimerWidget.h"
#include "WebcamUtil.h"

#include <QFile>

void CVistrelDlg::OnLive()
{
    if (m_displayMode == LiveMode || isClosed())
        return;
    completePhoto();
    allWidgethide();
    hiddenPictList();
    stopPlayback();
    m_error = false;
    if (!openCamera())
        return;
    m_liveView->setGeometry(m_videoRect);
    m_liveView->Start();
    hiddenPictList();
    m_movieView->hide();
    m_pictureView->hide();
    m_pictureList->hide();
    m_timerWidget->Stop();
    TransitionMode(LiveMode);
    m_listKind = PhotoList;
    update();
}

void CVistrelDlg::OnPhoto()
{
    if (!hasSpaceToCapture())
        return;
    allWidgethide();
    playShutterSound();
    TransitionMode(PhotoMode);
    if (m_photoPreview)
        m_liveView->show();
    showNewPhoto();
    m_pictureView->setLabelText(tr("Still"));
    m_pictureView->show();
    m_pictureView->update();
    m_listKind = PhotoList;
    update();
}

void CVistrelDlg::showNewPhoto()
{
    const LiveVideoWidget::Photo photo = m_liveView->takePhoto();
    m_currentPhotoName = photo.name;
    if (photo.picture.isNull()) {
        m_pictureView->Loadbmp(QString()); // what was shown before
        return;
    }
    m_photoBefore = m_pictureView->fileName();
    m_pictureView->showPicture(photo.name, photo.picture);
    holdButtons();
}

void CVistrelDlg::completePhoto()
{
    if (m_liveView)
        m_liveView->finishPhoto();
}

// The strip and the tiles will have the photo at once. No box is opened in here: whoever waited for
// the file goes on first.
void CVistrelDlg::photoWritten(bool isWritten)
{
    releaseButtons();
    if (isWritten) {
        CapturedPicture::remember(m_currentPhotoName, m_liveView->takeSavedPicture());
        PictureLoader::shared().prepare(m_currentPhotoName);
        if (m_displayMode != PhotSeqMode) // which tells the number as well
            Spoken::news(this, tr("Photo taken"));
        return;
    }
    withdrawPhoto();
    QMetaObject::invokeMethod(this, "tellPhotoIsLost", Qt::QueuedConnection);
}

void CVistrelDlg::withdrawPhoto()
{
    if (m_pictureView->fileName() == m_currentPhotoName) {
        const QString label = m_pictureView->labelText();
        m_pictureView->Release();
        m_pictureView->setLabelText(label);
        m_pictureView->Loadbmp(m_photoBefore);
    }
    m_currentPhotoName = QString();
}

void CVistrelDlg::tellPhotoIsLost()
{
    if (isClosed())
        return;
    stop_window();
    if (WebcamUtil::chkdiskFreeSpace())
        WebcamUtil::WarningMessage(tr("Save failed."), this);
    else
        WebcamUtil::ShowDiskWorningMessage(this);
}

void CVistrelDlg::OnAply()
{
    if (isClosed())
        return;
    completePhoto();
    if (m_movieView->isCreated())
        m_movieView->Release();
    m_movieView->hide();
    m_liveView->hide();
    setAcceptedPhotoMode(); // the photo's own screen, not the preview again
    update();
}

void CVistrelDlg::OnRetake()
{
    completePhoto();
    QFile::remove(WebcamUtil::getTemporaryPath() + QLatin1Char('/') + m_currentPhotoName);
    m_currentPhotoName = QString();
    m_listKind = PhotoList;
    OnLive();
}
