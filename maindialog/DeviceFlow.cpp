// Cameras that are many, missing or lost. At start the user chooses among several, and is told of
// what is missing; a camera that vanishes while the program runs leaves the live screen with only
// "List" and "Exit", and going to the list and back to "Live" finds it again. One that vanishes
// when the computer wakes up comes back by itself, and so does its picture.

#include "CVistrelDlg.h"

#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "SelectDeviceDlg.h"
#include "SleepWatch.h"
#include "Spoken.h"
#include "TimerWidget.h"
#include "WebcamUtil.h"

static constexpr int looksAtStart = 4; // of three seconds at most each
static constexpr int returnPeriod = 500; // ms between two looks for a camera that is to come back
static constexpr int returnLimit = 10000; // ms, as long as a slow camera takes to start
static constexpr int raisePeriodAfterChoice = 500; // ms, as before the chooser stopped the raising

// A computer that is still busy with its own start answers late, and must not be said to have no
// camera; one that never answers must not keep the window away.
QStringList CVistrelDlg::patientDeviceList()
{
    QStringList names = m_liveView->getVideoDeviceList();
    for (int look = 1; look < looksAtStart && !m_liveView->isDeviceListComplete(); ++look)
        names = m_liveView->getVideoDeviceList();
    return names;
}

bool CVistrelDlg::selectVideoDevice()
{
    const QStringList names = patientDeviceList();
    if (names.isEmpty())
        return true; // reported by chkdevice(), once the window is there
    SelectDeviceDlg chooser(this);
    chooser.setVideoDeviceList(names);
    if (names.size() > 1) {
        stop_window();
        WebcamUtil::moveToCenter(&chooser, this);
        if (chooser.exec() != QDialog::Accepted)
            return false;
        start_window(raisePeriodAfterChoice);
    }
    m_liveView->setVideoDevice(chooser.getVideoDevice());
    return true;
}

void CVistrelDlg::chkdevice()
{
    if (m_videoPresent && m_audioPresent)
        return;
    QString message = tr("Cannot find Video / Audio Devices.");
    if (m_videoPresent)
        message = tr("Cannot find Audio Devices.");
    else if (m_audioPresent)
        message = tr("Cannot find Video Devices.");
    stop_window();
    WebcamUtil::WarningMessage(message, this);
}

void CVistrelDlg::warnOfInvalidVideo()
{
    // The blank at the end belongs to the text: translations are found by it.
    WebcamUtil::WarningMessage(tr("The video device is invalid. Please confirm whether the device "
                                  "is correctly connected. "),
                               this);
}

void CVistrelDlg::changeNodevicemode()
{
    if (isClosed())
        return;
    completePhoto();
    m_error = true;
    m_timerWidget->Stop();
    // A player that was never used is left alone: its first use asks the sound server, which may
    // hang for the same reason as the camera.
    if (m_movieView->isCreated() && m_movieView->isPlaying()) {
        m_movieView->pause();
        m_timerWidget->Pause();
        showPlayButton();
    }
    if (m_liveView->isCreate())
        m_liveView->Release();
    // Whose recording has ended with the camera is told so.
    const bool returns = !m_recording && m_sleepWatch->isJustAwake();
    m_recording = false; // no second message for the same cable
    if (returns)
        awaitReturn();
    else
        goOnWithoutCamera();
}

void CVistrelDlg::goOnWithoutCamera()
{
    stop_window();
    warnOfInvalidVideo();
    if (isClosed())
        return;
    m_videoPresent = false;
    TransitionMode(LiveMode);
}

void CVistrelDlg::awaitReturn()
{
    m_videoPresent = false;
    TransitionMode(LiveMode);
    m_sinceLoss.start();
    m_returnLooks.start(returnPeriod);
}

void CVistrelDlg::lookForReturn()
{
    // "List" and "Live" look for it as well.
    if (isClosed() || m_displayMode != LiveMode || m_videoPresent) {
        m_returnLooks.stop();
        return;
    }
    if (!openCamera())
        return;
    if (m_liveView->isCreate()) {
        m_returnLooks.stop();
        m_error = false;
        m_liveView->setGeometry(m_videoRect);
        m_liveView->Start();
        TransitionMode(LiveMode);
        Spoken::news(this, m_liveView->accessibleName());
    } else if (m_sinceLoss.hasExpired(returnLimit)) {
        m_returnLooks.stop();
        goOnWithoutCamera();
    }
}
