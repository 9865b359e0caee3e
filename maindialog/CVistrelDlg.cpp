// Construction: the window's look, its buttons and views, the choice of the camera, the computed
// layout and the connections. Everything here runs once, from the constructor.

#include "CVistrelDlg.h"

#include "CStretchBitmapButton.h"
#include "DesktopFacts.h"
#include "DesktopLog.h"
#include "LiveVideoWidget.h"
#include "MovieWidget.h"
#include "PictureListView.h"
#include "PictureLoader.h"
#include "PictureWidget.h"
#include "ScreenWake.h"
#include "Setting.h"
#include "SleepWatch.h"
#include "Spoken.h"
#include "TimerWidget.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPalette>
#include <QScreen>

static constexpr int raisePeriod = 500; // ms between two looks at who is in front

// A button: the stem of its three bitmaps, which is its object name as well, its caption, what it
// tells a screen reader, and the slot that a click runs.
struct CVistrelDlg::ButtonRow {
    const char *baseName;
    const char *caption;
    const char *description;
    void (CVistrelDlg::*slot)(); // null: not connected
};

const std::array<CVistrelDlg::ButtonRow, CVistrelDlg::ButtonCount> &CVistrelDlg::buttonTable()
{
    using Dlg = CVistrelDlg;
    // In the order of Button. The blanks inside the two switch captions belong to the text.
    static const std::array<ButtonRow, ButtonCount> table{{
        {"Live", QT_TR_NOOP("Live"), QT_TR_NOOP("Back to the live picture"), &Dlg::OnLive},
        {"Photo", QT_TR_NOOP("Photo"), QT_TR_NOOP("Take a photo"), &Dlg::OnPhoto},
        {"PhotoMulti", QT_TR_NOOP("Continuous\nCapture"), QT_TR_NOOP("Take a series of photos"),
         &Dlg::OnPhotSeq},
        {"Movie", QT_TR_NOOP("Movie"), QT_TR_NOOP("Record a movie with sound"), &Dlg::OnRecord},
        {"MovieStop", QT_TR_NOOP("Stop"), QT_TR_NOOP("End the recording"), &Dlg::OnMovieStop},
        {"List", QT_TR_NOOP("List"), QT_TR_NOOP("Show what was captured"), &Dlg::OnList},
        {"Settings", QT_TR_NOOP("Settings"), QT_TR_NOOP("Change the settings"), &Dlg::OnSettingDlg},
        {"Close", QT_TR_NOOP("Exit"), QT_TR_NOOP("End the program"), &Dlg::OnClose},
        {"Apply", QT_TR_NOOP("Accept"), QT_TR_NOOP("Keep this photo"), &Dlg::OnAply},
        {"Retry", QT_TR_NOOP("Retry"), QT_TR_NOOP("Throw this photo away"), &Dlg::OnRetake},
        {"MoviePlay", QT_TR_NOOP("Play"), QT_TR_NOOP("Play the movie"), &Dlg::OnMoviePlay},
        {"MoviePause", QT_TR_NOOP("Pause"), QT_TR_NOOP("Pause the movie"), &Dlg::OnMoviePause},
        {"Show", QT_TR_NOOP("View"), QT_TR_NOOP("Show what is selected"), &Dlg::OnShow},
        {"SwitchPhoto", QT_TR_NOOP("Movie /\n    Photo"), QT_TR_NOOP("List the photos"),
         &Dlg::OnPhotoChange},
        {"SwitchMovie", QT_TR_NOOP("Photo /\n    Movie"), QT_TR_NOOP("List the movies"),
         &Dlg::OnMovieChange},
        {"Back", QT_TR_NOOP("Back"), QT_TR_NOOP("Back to all pictures"), nullptr},
        {"PutPhoto", QT_TR_NOOP("Paste"), QT_TR_NOOP("Paste to the whiteboard"), &Dlg::OnTVS},
        {"PutMovie", QT_TR_NOOP("Paste"), QT_TR_NOOP("Paste to the whiteboard"), &Dlg::OnTVS},
    }};
    return table;
}

CVistrelDlg::CVistrelDlg(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
    , CWindowManagement(this, raisePeriod, true, QString())
{
    Spoken::as(this, QAccessible::Window);
    setThisPropaty();
    readScreen();
    SetButtonInstance();
    SetButtonCaptionText();
    SetChildInstance();
    m_deviceSelected = selectVideoDevice();
    if (!m_deviceSelected)
        return;
    GetSetting();
    setWindowLook();
    showFirstScreen();
    SetLocalConnect();
    InitialVal();
    watchScreens();
}

CVistrelDlg::~CVistrelDlg() = default;

void CVistrelDlg::start_window(int msec)
{
    CWindowManagement::start_window(msec);
}

void CVistrelDlg::stop_window()
{
    CWindowManagement::stop_window();
}

void CVistrelDlg::setThisPropaty()
{
    setAttribute(Qt::WA_PaintOnScreen, false);
    QPalette colours = palette();
    colours.setBrush(QPalette::Window, Qt::black);
    colours.setBrush(QPalette::WindowText, Qt::white);
    setPalette(colours);
}

void CVistrelDlg::readScreen()
{
    m_screen = QGuiApplication::primaryScreen()->availableGeometry();
}

void CVistrelDlg::createButton(Button which)
{
    m_buttons[which] = new CStretchBitmapButton(buttonTable()[which].baseName, this);
    m_buttons[which]->setObjectName(buttonTable()[which].baseName);
}

void CVistrelDlg::SetButtonInstance()
{
    for (int which = LiveButton; which <= BackButton; ++which)
        createButton(Button(which));
    setTVSButton();
    measureButtons();
    hideAllButton();
}

void CVistrelDlg::measureButtons()
{
    m_geometry = DialogGeometry(m_screen.size(), button(LiveButton)->size());
    placeSmallButtons();
}

void CVistrelDlg::placeSmallButtons()
{
    CStretchBitmapButton *close = button(CloseButton);
    CStretchBitmapButton *settings = button(SettingsButton);
    const QSize size = m_geometry.smallButtonSize(close->size());
    if (size != close->size()) {
        close->setGeometry(QRect(QPoint(), size));
        settings->setGeometry(QRect(QPoint(), size));
    }
    close->move(m_geometry.closePosition(close->size()));
    settings->move(m_geometry.settingsPosition(close->size(), settings->size()));
    m_geometry = DialogGeometry(m_screen.size(), button(LiveButton)->size(), close->width());
}

void CVistrelDlg::SetButtonCaptionText()
{
    for (int which = 0; which < ButtonCount; ++which) {
        const ButtonRow &row = buttonTable()[which];
        m_buttons[which]->setCaptionText(tr(row.caption));
        m_buttons[which]->setAccessibleDescription(tr(row.description));
    }
}

void CVistrelDlg::SetChildInstance()
{
    m_liveView = new LiveVideoWidget(this, {});
    m_liveView->hide();
    m_movieView = new MovieWidget(this);
    m_movieView->hide();
    m_pictureView = new PictureWidget(this, {});
    m_pictureView->hide();
    m_timerWidget = new TimerWidget(this, {});
    m_timerWidget->SetMode(TimerRecordTime);
    m_pictureList = new PictureListView(this);
    m_pictureList->hide();
    m_settings = new Setting(this);
    m_sleepWatch = new SleepWatch(this);
    m_returnLooks.callOnTimeout(this, &CVistrelDlg::lookForReturn);
    m_screenWake = new ScreenWake(
        tr("Orvanta"), [this] { return whatMoves(); }, this);
}

void CVistrelDlg::setWindowLook()
{
    setFixedSize(m_screen.size());
    move(m_screen.topLeft());
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setWindowTitle(tr("Orvanta"));
    setWindowIcon(QIcon(QStringLiteral(":/res/Vistrel.ico")));
    askForTheScreen(ownDesktop());
}

// A Wayland compositor puts the windows of its guests where it likes. Only one that wants all of
// the screen gets its place.
void CVistrelDlg::askForTheScreen(const DesktopFacts &desktop)
{
    if (!desktop.isOnWayland)
        return;
    qCWarning(desktopLog,
              "this is a Wayland desktop (%s): it decides where the window stands and "
              "whether it comes back in front of others",
              qPrintable(desktop.windowManager));
    if (m_screen == QGuiApplication::primaryScreen()->geometry())
        setWindowState(Qt::WindowFullScreen);
}

void CVistrelDlg::showFirstScreen()
{
    // Earlier than the other connections: the first screen may wait at a disk warning, and a loss
    // that nobody is told of would leave a dead camera that counts as open.
    connect(m_liveView, &LiveVideoWidget::disconnectDevice, this, &CVistrelDlg::changeNodevicemode);
    connect(m_liveView, &LiveVideoWidget::photoWritten, this, &CVistrelDlg::photoWritten);
    connect(m_liveView, &LiveVideoWidget::recordingEnded, this, &CVistrelDlg::endBrokenRecording);
    button(MovieStopButton)->installEventFilter(this);
    if (!openCamera())
        return;
    SetBaseRect();
    m_liveView->setGeometry(m_videoRect);
    m_liveView->Start();
    TransitionMode(LiveMode);
    m_movieView->setGeometry(m_videoRect);
    m_movieView->hide();
}

void CVistrelDlg::SetBaseRect()
{
    m_videoRect = m_geometry.videoRect(m_liveView->getNativeSize());
    m_halfScreenRect = m_geometry.halfScreenRect(m_videoRect);
    m_movieView->setGeometry(m_videoRect);
    tellUsualSizes();
}

// Of the strip, and of as many tiles as there can be: with fewer ones each is too large to be kept
// of every photo.
void CVistrelDlg::tellUsualSizes()
{
    QVector<QSize> sizes = {PictureListView::pictureSizeIn(m_geometry.stripRect().height())};
    for (const QRect &tile : DialogGeometry::tileRects(m_videoRect, DialogGeometry::mostTiles))
        if (!sizes.contains(tile.size()))
            sizes.append(tile.size());
    for (QSize &size : sizes)
        size = (QSizeF(size) * devicePixelRatioF()).toSize();
    PictureLoader::shared().setUsualSizes(sizes);
}

void CVistrelDlg::connectButton(Button which)
{
    connect(button(which), &QPushButton::clicked, this, buttonTable()[which].slot);
}

void CVistrelDlg::SetLocalConnect()
{
    // The order in which slots run when one event sends several signals; keep it.
    for (Button which :
         {LiveButton, CloseButton, MovieButton, MoviePlayButton, MovieStopButton, MoviePauseButton})
        connectButton(which);
    connect(m_movieView, &MovieWidget::finished, this, &CVistrelDlg::OnMovieFinished);
    connect(m_movieView, &MovieWidget::lengthKnown, this, &CVistrelDlg::showMovieLength);
    connect(m_timerWidget, &TimerWidget::movieTimeOver, this, &CVistrelDlg::OnMovieStop);
    for (Button which : {PhotoButton, RetryButton, ApplyButton, PutPhotoButton, PutMovieButton,
                         ListButton, ShowButton, PhotoMultiButton})
        connectButton(which);
    connect(m_pictureList, &PictureListView::itemSelectionChanged, this,
            &CVistrelDlg::PictureSelected);
    connect(m_pictureList, &PictureListView::selectedPhoto, this, &CVistrelDlg::PictureSelected);
    for (Button which : {SwitchPhotoButton, SwitchMovieButton})
        connectButton(which);
    connect(m_timerWidget, &TimerWidget::shot, this, &CVistrelDlg::OnShot);
    connect(m_timerWidget, &TimerWidget::set, this, &CVistrelDlg::setMovieTime);
    connectButton(SettingsButton);
}

void CVistrelDlg::InitialVal()
{
    m_shotCounter = 0;
    m_seriesList.clear();
    m_displayMode = LiveMode;
    m_listKind = PhotoList;
    // Pictures are never mirrored, whatever way the language reads.
    m_liveView->setLayoutDirection(Qt::LeftToRight);
    m_movieView->setLayoutDirection(Qt::LeftToRight);
}
