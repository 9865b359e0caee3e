// What every capture needs, whichever flow it belongs to: an open camera and room on the disk.

#include "CVistrelDlg.h"

#include "LiveVideoWidget.h"
#include "WebcamUtil.h"

bool CVistrelDlg::openCamera()
{
    if (m_liveView->isCreate())
        return true;
    m_liveView->Create();
    if (isClosed())
        return false;
    copyDevicePresence();
    if (!m_videoPresent || !m_liveView->isCreate())
        m_error = true;
    return true;
}

void CVistrelDlg::copyDevicePresence()
{
    m_videoPresent = m_liveView->isVideoValid();
    m_audioPresent = m_liveView->isAudioPresent();
}

bool CVistrelDlg::hasSpaceToCapture()
{
    if (isClosed())
        return false;
    completePhoto();
    stop_window();
    if (WebcamUtil::chkdiskFreeSpace())
        return true;
    endCountdown(); // no photo may be taken behind the message that none can be
    WebcamUtil::ShowDiskWorningMessage(this);
    m_error = true;
    setErrModeButtonEnable();
    return false;
}
