// Looking at what was captured. "List" opens the strip of thumbnails, the two switch buttons change
// between photos and movies, "View" shows the selected photos as tiles or the selected movie for
// playback, a tile's "Zoom" enlarges it and its "Back" returns.

#include "CVistrelDlg.h"

#include "CStretchBitmapButton.h"
#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "PictureListView.h"
#include "PictureLoader.h"
#include "PictureWidget.h"
#include "TimerWidget.h"
#include "WebcamUtil.h"

namespace {

constexpr int mostPhotosInStrip = 50; // the newest; older ones are kept and saved all the same
constexpr int mostMoviesInStrip = 25;

// The newest of a list that is sorted oldest first.
QStringList lastOf(const QStringList &names, int most)
{
    return names.mid(qMax(0, names.size() - most));
}

} // namespace

void CVistrelDlg::OnList()
{
    if (isClosed())
        return;
    completePhoto();
    stop_window();
    stopPlayback();
    endCountdown();
    m_timerWidget->Stop();
    m_pictureList->clearSelectedNames();
    const bool movies = m_listKind == MovieList;
    const QStringList names =
        movies ? WebcamUtil::getMovieFileList() : WebcamUtil::getTempPhotoNameList();
    m_pictureList->setMovieMode(movies);
    hiddenPictList();
    m_liveView->hide();
    m_pictureView->Release();
    m_pictureView->hide();
    m_movieView->hide();
    TransitionMode(ListMode);
    m_pictureList->AddPicture(lastOf(names, movies ? mostMoviesInStrip : mostPhotosInStrip));
    m_pictureList->clearSelectedNames();
    m_pictureList->show();
    m_timerWidget->hide();
    update();
}

void CVistrelDlg::OnPictureList()
{
    OnList();
}

void CVistrelDlg::OnPhotoChange()
{
    m_displayMode = PhotoMode;
    m_listKind = PhotoList;
    OnList();
}

void CVistrelDlg::OnMovieChange()
{
    m_displayMode = MovieMode;
    m_listKind = MovieList;
    OnList();
}

void CVistrelDlg::PictureSelected()
{
    button(ShowButton)->setEnabled(!m_pictureList->selectedNames().isEmpty());
    m_pictureView->setGeometry(m_geometry.selectionRect(m_videoRect, m_pictureList->height()));
    m_pictureView->Loadbmp(m_pictureList->lastSelected());
    m_pictureView->update();
    m_pictureView->show();
    // While the picture is at hand: a tile of it will be enlarged at once.
    if (!m_pictureList->movieMode())
        PictureLoader::shared().prepare(
            m_pictureList->lastSelected(),
            (QSizeF(m_videoRect.size()) * devicePixelRatioF()).toSize());
}

void CVistrelDlg::OnShow()
{
    if (isClosed())
        return;
    m_pictureList->hide();
    m_pictureView->hide();
    if (m_pictureList->movieMode()) {
        const QString movie = WebcamUtil::movieNameOf(m_pictureList->lastSelected());
        m_moviePath = WebcamUtil::getTemporaryPath() + QLatin1Char('/') + movie;
        TransitionMode(MovieMode);
        m_movieView->Create(m_moviePath);
        m_timerWidget->SetMode(TimerPlayTime);
        m_movieView->show();
    } else {
        SetPictureListMode(m_pictureList->selectedNames().mid(0, DialogGeometry::mostTiles));
    }
    update();
}

void CVistrelDlg::SetPictureListMode(const QStringList &names)
{
    m_tiles.clear();
    const QVector<QRect> places = DialogGeometry::tileRects(m_videoRect, names.size());
    for (int i = 0; i < names.size(); ++i) {
        auto *tile = new PictureWidget(this, {});
        tile->setGeometry(places[i]);
        tile->loadLater(names[i]);
        tile->setLabelText(QString::number(i + 1));
        if (names.size() != 1) {
            tile->ListMode();
            connect(tile, &PictureWidget::onZoom, this, &CVistrelDlg::OnZoom);
            connect(tile, &PictureWidget::onBack, this, &CVistrelDlg::OnBack);
        }
        tile->show();
        m_tiles.append(tile);
    }
    setShowModeButton();
}

void CVistrelDlg::hiddenPictList()
{
    for (PictureWidget *tile : qAsConst(m_tiles)) {
        // The click that leads here may come from this very tile, so it must outlive the event;
        // disconnected, a repeated signal of the same click finds nobody.
        tile->disconnect(this);
        tile->hide();
        tile->deleteLater();
    }
    m_tiles.clear();
}

void CVistrelDlg::OnZoom(PictureWidget *pict)
{
    for (PictureWidget *tile : qAsConst(m_tiles))
        tile->setVisible(tile == pict); // hidden for a moment it would lose the keyboard
    pict->setGeometry(m_videoRect);
    pict->reload(); // its own file again, at full quality
    pict->ZoomMode();
    pict->show();
}

void CVistrelDlg::OnBack(PictureWidget *)
{
    hiddenPictList();
    const QStringList names = m_pictureList->selectedNames();
    SetPictureListMode(names);
}
