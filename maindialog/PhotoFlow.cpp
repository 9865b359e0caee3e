// Photos. "Photo" takes one and shows it; with the preview on, the live picture runs on beside it
// until "Accept" or "Retry"; "Live" goes back. A photo exists only as a file in the temporary area,
// so accepting writes nothing. A full disk or a lost camera interrupts.

#include "CVistrelDlg.h"

#include "CapturedPicture.h"
#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "PictureListView.h"
#include "PictureWidget.h"
#include "TimerWidget.h"
#include "WebcamUtil.h"

#include <QFile>

void CVistrelDlg::OnLive()
{
    if (m_displayMode == LiveMode || isClosed())
        return;
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
    m_currentPhotoName = takePhoto();
    m_pictureView->Loadbmp(m_currentPhotoName);
    m_pictureView->setLabelText(tr("Still"));
    m_pictureView->show();
    m_pictureView->update();
    m_listKind = PhotoList;
    update();
}

// The picture is shown as it was written, and the strip and the tiles will have it at once.
QString CVistrelDlg::takePhoto()
{
    QString name = m_liveView->SaveBmp();
    if (!name.isEmpty())
        CapturedPicture::remember(name, m_liveView->takeSavedPicture());
    return name;
}

void CVistrelDlg::OnAply()
{
    if (isClosed())
        return;
    if (m_movieView->isCreated())
        m_movieView->Release();
    m_movieView->hide();
    m_liveView->hide();
    setAcceptedPhotoMode(); // the photo's own screen, not the preview again
    update();
}

void CVistrelDlg::OnRetake()
{
    QFile::remove(WebcamUtil::getTemporaryPath() + QLatin1Char('/') + m_currentPhotoName);
    m_currentPhotoName = QString();
    m_listKind = PhotoList;
    OnLive();
}
