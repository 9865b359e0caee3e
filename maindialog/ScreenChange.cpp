// The window fills its screen also when that changes: another resolution, a panel that comes or
// goes, a screen that is pulled out. What it shows goes on, in its new place.

#include "CStretchBitmapButton.h"
#include "CVistrelDlg.h"
#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "PictureListView.h"
#include "PictureWidget.h"
#include "TimerWidget.h"

#include <QGuiApplication>
#include <QScreen>

// ms; a change of resolution comes in several steps, what the panels leave last.
static constexpr int settlingTime = 300;

void CVistrelDlg::watchScreens()
{
    m_screenSettles.setSingleShot(true);
    m_screenSettles.callOnTimeout(this, &CVistrelDlg::followScreen);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, [this](const QScreen *gone) {
        if (gone == m_ownScreen)
            stayOn(QGuiApplication::primaryScreen());
    });
    stayOn(QGuiApplication::primaryScreen());
}

void CVistrelDlg::stayOn(QScreen *screen)
{
    m_ownScreen = screen;
    m_screenSettles.start(settlingTime);
    if (screen)
        connect(screen, &QScreen::availableGeometryChanged, this,
                [this] { m_screenSettles.start(settlingTime); });
}

void CVistrelDlg::followScreen()
{
    if (isClosed() || !m_ownScreen || m_ownScreen->availableGeometry() == m_screen
        || m_ownScreen->availableGeometry().isEmpty())
        return;
    const DialogGeometry geometryBefore = m_geometry;
    const QRect videoBefore = m_videoRect;
    const int widthBefore = m_screen.width();
    m_screen = m_ownScreen->availableGeometry();
    setFixedSize(m_screen.size());
    move(m_screen.topLeft());
    m_timerWidget->move(m_timerWidget->x() + m_screen.width() - widthBefore, m_timerWidget->y());
    moveChildren(geometryBefore, videoBefore);
}

// From each place of the former screen to that of the new one. What is hidden moves, too: it may be
// shown again without being placed anew.
void CVistrelDlg::moveChildren(const DialogGeometry &before, const QRect &videoBefore)
{
    const auto moveAlong = [](QWidget *child, const QRect &place, const QVector<QRect> &from,
                              const QVector<QRect> &to) {
        const int known = from.indexOf(place);
        if (known >= 0)
            child->setGeometry(to.at(known));
    };
    std::array<QRect, ButtonCount> buttonsBefore;
    for (int which = 0; which < ButtonCount; ++which) {
        buttonsBefore[which] = m_buttons[which]->geometry();
        m_buttons[which]->setIconFromObjectNameBitmap();
    }
    const QVector<QWidget *> views = {m_liveView, m_movieView, m_pictureView, m_pictureList};
    QVector<QRect> viewsBefore;
    for (const QWidget *view : views)
        viewsBefore.append(view->geometry());

    measureButtons();
    SetBaseRect();
    for (int which = 0; which < ButtonCount; ++which)
        if (which != CloseButton && which != SettingsButton)
            moveAlong(m_buttons[which], buttonsBefore[which], before.buttonPlaces(),
                      m_geometry.buttonPlaces());
    for (int i = 0; i < views.size(); ++i)
        moveAlong(views.at(i), viewsBefore.at(i), before.viewPlaces(videoBefore),
                  m_geometry.viewPlaces(m_videoRect));
    const QVector<QRect> tilesBefore = DialogGeometry::tileRects(videoBefore, m_tiles.size());
    const QVector<QRect> tilesNow = DialogGeometry::tileRects(m_videoRect, m_tiles.size());
    for (int i = 0; i < m_tiles.size(); ++i) // one of them may be enlarged
        moveAlong(m_tiles.at(i), m_tiles.at(i)->geometry(), {tilesBefore.at(i), videoBefore},
                  {tilesNow.at(i), m_videoRect});
}
