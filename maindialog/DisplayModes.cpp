// The window's screens: which views and buttons each shows, where they stand and what can be
// pressed. A flow ends here, through TransitionMode(). Nothing in this file captures or plays.

#include "CVistrelDlg.h"

#include "CStretchBitmapButton.h"
#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "PictureListView.h"
#include "PictureWidget.h"
#include "ScreenWake.h"
#include "TimerWidget.h"
#include "WebcamUtil.h"

void CVistrelDlg::TransitionMode(DisplayMode mode)
{
    if (isClosed())
        return;
    QWidget *const holder = focusWidget();
    switch (mode) {
    case MovieMode:
        SetMovieMode();
        break;
    case PhotoMode:
        SetPhotoMode();
        break;
    case ListMode:
        SetListMode();
        break;
    case PhotSeqMode:
        SetPhotSeqMode();
        break;
    case LiveMode:
    default:
        SetLiveMode();
        break;
    }
    // Stored last: setListButton() looks at the screen that is being left.
    m_displayMode = mode;
    m_spareMemory.giveBackSoon();
    m_screenWake->lookSoon();
    keepFocus(holder);
}

// Left alone, the keyboard goes from one vanishing button to the next and ends anywhere. "Exit" is
// the last to get it, so that who presses on does not leave.
void CVistrelDlg::keepFocus(QWidget *holder)
{
    const auto isUsable = [](const QWidget *each) {
        return each && each->isVisible() && each->isEnabled();
    };
    QWidget *next = isUsable(holder) ? holder : nullptr;
    for (CStretchBitmapButton *each : m_buttons)
        if (isUsable(each) && (!next || (next == button(CloseButton) && next != holder)))
            next = each;
    if (next)
        next->setFocus(Qt::OtherFocusReason);
}

void CVistrelDlg::swapButtons(Button gone, Button come)
{
    button(come)->show();
    if (button(gone)->hasFocus())
        button(come)->setFocus(Qt::OtherFocusReason);
    button(gone)->hide();
}

// The screen may blank over a photo, and over a movie that waits. The player itself says late that
// it plays: what counts is what was pressed.
QString CVistrelDlg::whatMoves() const
{
    if (m_liveView && m_liveView->isVisible())
        return m_liveView->accessibleName();
    if (button(MoviePauseButton)->isVisible())
        return m_movieView->accessibleName();
    return {};
}

double CVistrelDlg::setButtonX(CStretchBitmapButton *button, double x)
{
    const QRect cell = m_geometry.cellAt(x);
    button->setGeometry(cell);
    return x + cell.width();
}

void CVistrelDlg::layRow(double left, std::initializer_list<RowCell> cells)
{
    double cellLeft = left;
    double next = left;
    for (const RowCell &cell : cells) {
        if (!cell.sharesCell)
            cellLeft = next;
        next = setButtonX(button(cell.button), cellLeft);
        button(cell.button)->setVisible(cell.shown);
        button(cell.button)->setEnabled(cell.enabled);
    }
}

void CVistrelDlg::hideAllButton()
{
    for (int which = 0; which < ButtonCount; ++which)
        if (which != CloseButton)
            m_buttons[which]->hide();
}

void CVistrelDlg::disableAllButton(bool enabled)
{
    for (int which = 0; which < ButtonCount; ++which)
        if (which != CloseButton && which != BackButton)
            m_buttons[which]->setEnabled(enabled);
}

void CVistrelDlg::holdButtons()
{
    m_heldFocus = focusWidget();
    for (CStretchBitmapButton *each : m_buttons)
        if (each->isEnabled())
            m_heldButtons.append(each);
    for (CStretchBitmapButton *each : qAsConst(m_heldButtons))
        each->setEnabled(false);
}

void CVistrelDlg::releaseButtons()
{
    for (CStretchBitmapButton *each : qAsConst(m_heldButtons))
        each->setEnabled(true);
    m_heldButtons.clear();
    if (m_heldFocus && !focusWidget())
        m_heldFocus->setFocus();
    m_heldFocus.clear();
}

void CVistrelDlg::SignalBlockAll(bool block)
{
    for (int which = LiveButton; which <= BackButton; ++which)
        m_buttons[which]->blockSignals(block);
}

void CVistrelDlg::allWidgethide()
{
    if (m_liveView)
        m_liveView->hide();
    m_movieView->hide();
    m_pictureView->hide();
}

void CVistrelDlg::SetLiveMode()
{
    if (!WebcamUtil::chkdiskFreeSpace() && !m_error) {
        stop_window();
        WebcamUtil::ShowDiskWorningMessage(this);
        if (isClosed())
            return;
        m_error = true;
    }
    hiddenPictList();
    m_pictureView->hide();
    m_movieView->hide();
    m_timerWidget->Stop();
    m_timerWidget->hide();
    m_liveView->setVisible(m_videoPresent);
    m_pictureList->hide();
    m_recording = false;
    setLivemodeButtonEnabled();
    setErrModeButtonEnable();
}

void CVistrelDlg::setLivemodeButtonEnabled()
{
    hideAllButton();
    disableAllButton(false);
    const bool video = m_videoPresent;
    layRow(m_geometry.rowStart(5),
           {{LiveButton, true, video},
            {PhotoButton, true, video},
            {PhotoMultiButton, true, video},
            {MovieButton, true, video},
            {MovieStopButton, false, false, true},
            {ListButton, true, true}});
    button(CloseButton)->show();
    button(CloseButton)->setEnabled(true);
    button(SettingsButton)->show();
    button(SettingsButton)->setEnabled(video);
}

void CVistrelDlg::setErrModeButtonEnable()
{
    if (!m_error)
        return;
    disableAllButton(false);
    for (Button which : {ListButton, SwitchMovieButton, SwitchPhotoButton, ShowButton})
        button(which)->setEnabled(true);
}

void CVistrelDlg::SetMovieMode()
{
    m_liveView->hide();
    m_movieView->setGeometry(m_videoRect);
    setMovieModeButton();
}

void CVistrelDlg::setMovieModeButton()
{
    hideAllButton();
    disableAllButton(false);
    layRow(m_geometry.movieRowStart(),
           {{LiveButton, true, true},
            {MoviePauseButton, false, true},
            {MoviePlayButton, true, true, true},
            {ListButton, true, true}});
}

void CVistrelDlg::SetPhotoMode()
{
    if (m_photoPreview)
        SetLivePhotoMode();
    else
        layOutPhoto();
}

void CVistrelDlg::setAcceptedPhotoMode()
{
    QWidget *const holder = focusWidget();
    layOutPhoto();
    m_displayMode = PhotoMode;
    m_screenWake->lookSoon();
    keepFocus(holder);
}

void CVistrelDlg::layOutPhoto()
{
    m_pictureView->setGeometry(m_videoRect);
    button(LiveButton)->setGeometry(m_geometry.buttonCell());
    button(LiveButton)->show();
    setPhotoModeButtonEnabled();
    button(CloseButton)->setEnabled(true);
}

void CVistrelDlg::setPhotoModeButtonEnabled()
{
    hideAllButton();
    disableAllButton(false);
    layRow(m_geometry.rowStart(3),
           {{LiveButton, true, true}, {PutPhotoButton, true, true}, {ListButton, true, true}});
    button(CloseButton)->show();
    button(CloseButton)->setEnabled(false); // the caller enables it where leaving is allowed
}

void CVistrelDlg::SetLivePhotoMode()
{
    m_liveView->setGeometry(m_halfScreenRect);
    m_pictureView->setGeometry(DialogGeometry::besideHalfScreen(m_halfScreenRect));
    button(ApplyButton)->setGeometry(m_geometry.acceptCell());
    button(RetryButton)->setGeometry(m_geometry.retryCell());
    m_recording = false;
    setLivePhotoModeButtonEnabled();
    button(SettingsButton)->show();
    button(SettingsButton)->setEnabled(false);
    button(CloseButton)->setEnabled(false);
}

void CVistrelDlg::setLivePhotoModeButtonEnabled()
{
    disableAllButton(false);
    for (Button which : {ApplyButton, RetryButton}) {
        button(which)->show();
        button(which)->setEnabled(true);
    }
    button(LiveButton)->show();
    button(SettingsButton)->hide();
}

void CVistrelDlg::SetListMode()
{
    m_pictureList->Release();
    m_pictureList->setGeometry(m_geometry.stripRect());
    m_pictureList->setPictSize(QSize(0, 0));
    m_pictureView->Release();
    m_pictureView->setGeometry(m_halfScreenRect);
    setListButton();
}

void CVistrelDlg::setListButton()
{
    hideAllButton();
    const bool fromMovie = m_displayMode == MovieMode;
    layRow(m_geometry.rowStart(3),
           {{LiveButton, true, true},
            {ShowButton, true, false}, // until something is selected
            {SwitchPhotoButton, fromMovie, true},
            {SwitchMovieButton, !fromMovie, true, true}});
    button(CloseButton)->show();
    button(CloseButton)->setEnabled(true);
}

void CVistrelDlg::setShowModeButton()
{
    QWidget *const holder = focusWidget();
    hideAllButton();
    disableAllButton(false);
    layRow(m_geometry.rowStart(3),
           {{LiveButton, true, true}, {PutPhotoButton, true, true}, {ListButton, true, true}});
    button(CloseButton)->show();
    button(CloseButton)->setEnabled(true);
    keepFocus(holder);
}

void CVistrelDlg::SetPhotSeqMode()
{
    m_pictureList->Release();
    m_pictureList->setGeometry(m_geometry.stripRect());
    m_pictureList->setPictSize(QSize(0, 0));
    const QRect live = m_geometry.seriesLiveRect(m_liveView->size(), m_pictureList->height());
    m_liveView->setGeometry(live);
    m_pictureView->setGeometry(m_geometry.seriesPhotoRect(live));
    m_liveView->Reset(); // the picture moves to its new place at once
    m_pictureView->setLabelText(QString());
    m_recording = false;
    setLivemodeButtonEnabled();
}
