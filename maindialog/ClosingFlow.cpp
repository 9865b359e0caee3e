// Leaving. "Exit" asks what to do with what was captured, saves or discards it and closes; closing
// by the window system asks nothing and leaves the captures where they are, for the next start.

#include "CVistrelDlg.h"

#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "SaveConfirmDlg.h"
#include "WebcamUtil.h"

#include <QCloseEvent>

void CVistrelDlg::OnClose()
{
    stop_window();
    if (WebcamUtil::isSaveFile()) {
        SaveConfirmDlg question(this);
        const int answer = question.exec();
        if (answer == QDialog::Rejected)
            return;
        if (answer != QDialog::Accepted)
            WebcamUtil::deleteData();
        else if (!WebcamUtil::saveData(m_saveDirectory))
            // What could not be moved stays in the temporary area; the program closes all the same.
            WebcamUtil::WarningMessage(tr("Save failed."), this);
    }
    close();
}

void CVistrelDlg::closeEvent(QCloseEvent *event)
{
    if (m_liveView) {
        if (m_liveView->isCreate())
            m_liveView->Release();
        delete m_liveView;
        m_liveView = nullptr;
    }
    if (m_movieView && m_movieView->isCreated())
        m_movieView->Release();
    event->accept();
}
