// Leaving. "Exit" asks what to do with what was captured, saves or discards it and closes, and so
// does logging out; closing by the window system asks nothing and leaves the captures where they
// are, for the next start. A closed window has no live view; what was under way (a countdown, a
// box) ends without it.

#include "CVistrelDlg.h"

#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "SaveConfirmDlg.h"
#include "TimerWidget.h"
#include "WebcamUtil.h"

#include <QCloseEvent>
#include <QDialog>

void CVistrelDlg::OnClose()
{
    completePhoto();
    stop_window();
    if (settleCaptures())
        close();
}

// A recording runs on while the question stands: who stays has lost nothing of it.
bool CVistrelDlg::settleCaptures()
{
    if (!WebcamUtil::isSaveFile())
        return true;
    SaveConfirmDlg question(this);
    m_exitQuestion = &question;
    const int answer = question.exec();
    if (answer == QDialog::Rejected)
        return false;
    endRecording();
    if (answer == QDialog::Accepted)
        save();
    else
        WebcamUtil::deleteData();
    return true;
}

bool CVistrelDlg::leaveWithSession(const std::function<bool()> &mayAsk)
{
    if (isClosed())
        return true;
    completePhoto();
    if (!WebcamUtil::isSaveFile() || !mayAsk() || isClosed())
        return true;
    completePhoto(); // the user went on while the session thought about it
    stop_window();
    if (m_exitQuestion)
        m_exitQuestion->reject(); // the same one is asked again, and its answer is the session's
    if (!settleCaptures())
        return false;
    close();
    return true;
}

void CVistrelDlg::endRecording()
{
    if (!m_recording || isClosed())
        return;
    m_recording = false;
    m_timerWidget->Stop();
    if (m_liveView->isCreate())
        m_liveView->RecordStop();
    m_liveView->completeMovies();
}

void CVistrelDlg::completeUnseen()
{
    if (m_liveView)
        m_liveView->completeUnseen();
}

// What could not be moved stays in the temporary area; the program closes all the same.
void CVistrelDlg::save()
{
    if (m_liveView)
        m_liveView->completeMovies(); // or half of one would be copied
    const QDateTime moment = QDateTime::currentDateTime();
    WebcamUtil::keepApartFromSaved(m_saveDirectory, moment);
    const bool isSaved = WebcamUtil::saveData(m_saveDirectory, moment);
    m_pastedPhotos.settle(WebcamUtil::m_saveFolder);
    if (!isSaved)
        WebcamUtil::WarningMessage(tr("Save failed."), this);
}

void CVistrelDlg::releaseLiveView()
{
    if (!m_liveView)
        return;
    completePhoto();
    if (m_liveView->isCreate())
        m_liveView->Release();
    m_liveView->disconnect(this);
    // A message of the view itself lives in a function of the view that has yet to return; then the
    // view is left to the window's own end.
    if (!m_liveView->findChild<QDialog *>())
        delete m_liveView;
    m_liveView = nullptr;
}

void CVistrelDlg::closeEvent(QCloseEvent *event)
{
    stop_window();
    m_timerWidget->Stop();
    releaseLiveView();
    stopPlayback();
    m_pastedPhotos.settle({}); // what was not saved goes with the next start's answer
    event->accept();
}
