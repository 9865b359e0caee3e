#ifndef CVISTRELDLG_H
#define CVISTRELDLG_H

#include "CWindowManagement.h"
#include "DialogGeometry.h"
#include "DisplayMode.h"
#include "PastedPhotos.h"
#include "SpareMemory.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QVector>
#include <QWidget>

#include <array>
#include <functional>
#include <initializer_list>

class CStretchBitmapButton;
struct DesktopFacts;
class LiveVideoWidget;
class MovieWidget;
class PictureListView;
class PictureWidget;
class QScreen;
class QSound;
class ScreenWake;
class Setting;
class SleepWatch;
class TimerWidget;

/**
 * The program's one window: frameless, as large as the screen's free area, the live picture above a
 * row of large buttons. It is the hub: each button's slot is one flow, written in the .cpp file
 * that is named behind the slot; what the flow needs stands in the section of that file. A flow
 * calls the views and the store and ends by switching the screen with TransitionMode().
 *
 * Lives on the GUI thread. Children belong to the window; the live view alone is deleted by hand,
 * when the window closes. The window keeps itself in front of other windows until the first modal
 * box (CWindowManagement).
 */
class CVistrelDlg : public QWidget, public CWindowManagement {
    Q_OBJECT

public:
    // --- CVistrelDlg.cpp: construction -----------------------------------------------------
    /// Builds everything and opens the camera. Without a chosen camera (isDeviceSelected() is
    /// false) the construction stops half way and the window is only fit for destruction.
    explicit CVistrelDlg(QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    ~CVistrelDlg() override;

    /// False when several cameras are attached and the chooser was closed without a choice.
    bool isDeviceSelected() const { return m_deviceSelected; }
    /// The screen shown; may hold a value without a name, see DisplayMode.
    DisplayMode displayMode() const { return m_displayMode; }
    /// No usable camera, or too little space to save: the live screen keeps the capture dead.
    bool hasError() const { return m_error; }
    /// Area of the live picture and of movies; px of the layout.
    QRect videoRect() const { return m_videoRect; }

    /// Keeps the window in front again, looking every @p msec milliseconds.
    void start_window(int msec);
    /// Called by every flow before a modal box, which would be pushed behind the window.
    void stop_window();

    // --- DisplayModes.cpp: the screens -----------------------------------------------------
    /// Switches to @p mode's screen and remembers it, whatever its value.
    void TransitionMode(DisplayMode mode);
    // The steps of TransitionMode(): each lays out one screen and its row of buttons. Whoever calls
    // one by itself leaves displayMode() as it was.
    void SetLiveMode();
    void SetMovieMode();
    void SetPhotoMode();
    void SetLivePhotoMode();
    void SetListMode();
    void SetPhotSeqMode();
    void setLivemodeButtonEnabled();
    void setMovieModeButton();
    void setPhotoModeButtonEnabled();
    void setLivePhotoModeButtonEnabled();
    void setListButton();
    void setShowModeButton();
    /// With the error flag set: only what browses stays enabled. Does nothing otherwise.
    void setErrModeButtonEnable();
    /// Puts @p button into the row at left edge @p x and returns the next cell's left edge (px).
    double setButtonX(CStretchBitmapButton *button, double x);
    /// Hides the row and "Settings"; "Close" stays, so that there is always a way out.
    void hideAllButton();
    /// Sets the enabled state of all but "Close" and "Back" (despite its name, to @p enabled).
    void disableAllButton(bool enabled);
    void allWidgethide();
    /// Blocks the signals of the sixteen buttons from "Live" to "Back". No flow needs it.
    void SignalBlockAll(bool block);

    // --- BrowsingFlow.cpp ------------------------------------------------------------------
    /// Lays out a numbered tile for each photo of @p names (bare names in the temporary area).
    void SetPictureListMode(const QStringList &names);
    /// Destroys all tiles.
    void hiddenPictList();

    // --- DeviceFlow.cpp --------------------------------------------------------------------
    /// Lets the user choose among several cameras. False: the chooser was closed without a choice.
    bool selectVideoDevice();
    QStringList patientDeviceList();
    /// Reports a camera or microphone that is missing at start. Called once, after showing.
    void chkdevice();

    // --- SettingsFlow.cpp ------------------------------------------------------------------
    /// Copies the settings dialog's controls into the window.
    void GetSetting();

    // --- HandOver.cpp ----------------------------------------------------------------------
    void setTVSButton();

    // --- ShutterSound.cpp ------------------------------------------------------------------
    /// @p path is the folder of the program, without a trailing slash; "photo.wav" in it becomes
    /// the shutter sound. It is read a moment later, or by the first photo.
    void SetPluginPath(const QString &path);

    // --- ClosingFlow.cpp -------------------------------------------------------------------
    /// The user logs out: asks what "Exit" asks, and closes the window unless he wants to stay,
    /// which is false. Without captures nothing is asked. @p mayAsk tells whether the session lets
    /// anybody be asked; where it does not, what was captured is kept for the next start.
    bool leaveWithSession(const std::function<bool()> &mayAsk);
    /// The screen is gone for good, and the process ends with this call: completes what is being
    /// captured, without drawing anything and without asking the X server.
    void completeUnseen();

Q_SIGNALS:
    void comp(bool ret); ///< declared for the window's users; nothing emits it

public Q_SLOTS:
    // One slot a button or view signal, in the order the window's users know; behind each stands
    // the file that holds it.
    void OnClose(); ///< ClosingFlow.cpp
    void OnLive(); ///< PhotoFlow.cpp
    void OnPhoto(); ///< PhotoFlow.cpp
    void OnAply(); ///< PhotoFlow.cpp
    void OnRecord(); ///< MovieFlow.cpp
    void OnMovieStop(); ///< MovieFlow.cpp
    void OnMoviePlay(); ///< MovieFlow.cpp
    void OnMoviePause(); ///< MovieFlow.cpp
    void OnRetake(); ///< PhotoFlow.cpp
    void OnPhotSeq(); ///< SeriesFlow.cpp
    void OnShot(); ///< SeriesFlow.cpp
    void OnList(); ///< BrowsingFlow.cpp
    void OnPictureList(); ///< BrowsingFlow.cpp
    void OnShow(); ///< BrowsingFlow.cpp
    void PictureSelected(); ///< BrowsingFlow.cpp
    void OnSettingDlg(); ///< SettingsFlow.cpp
    void OnZoom(PictureWidget *pict); ///< BrowsingFlow.cpp
    void OnBack(PictureWidget *pict); ///< BrowsingFlow.cpp
    void PutTVSMovie(); ///< HandOver.cpp
    void PutTVSPhoto(); ///< HandOver.cpp
    void OnTVS(); ///< HandOver.cpp
    void isPutCompeate(); ///< HandOver.cpp
    void setMovieTime(); ///< MovieFlow.cpp
    void OnMovieFinished(); ///< MovieFlow.cpp
    void OnMovieChange(); ///< BrowsingFlow.cpp
    void OnPhotoChange(); ///< BrowsingFlow.cpp
    void changeNodevicemode(); ///< DeviceFlow.cpp

protected:
    // --- ClosingFlow.cpp -------------------------------------------------------------------
    void closeEvent(QCloseEvent *event) override;
    // --- MovieFlow.cpp ---------------------------------------------------------------------
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // --- ClosingFlow.cpp -------------------------------------------------------------------
    /// The window may be closed while a box stands over it or a shot falls due: what returns from
    /// a box, and every slot that needs the camera, asks first.
    bool isClosed() const { return m_liveView == nullptr; }
    void releaseLiveView();
    /// Asks what to do with what was captured, and does it. False: the user stays.
    bool settleCaptures();
    void endRecording();
    void save();

    QPointer<QDialog> m_exitQuestion; ///< while it stands

    // --- CVistrelDlg.cpp: construction -----------------------------------------------------
    enum Button {
        LiveButton,
        PhotoButton,
        PhotoMultiButton,
        MovieButton,
        MovieStopButton,
        ListButton,
        SettingsButton,
        CloseButton,
        ApplyButton,
        RetryButton,
        MoviePlayButton,
        MoviePauseButton,
        ShowButton,
        SwitchPhotoButton,
        SwitchMovieButton,
        BackButton,
        PutPhotoButton,
        PutMovieButton,
        ButtonCount
    };
    struct ButtonRow; // the table in CVistrelDlg.cpp

    static const std::array<ButtonRow, ButtonCount> &buttonTable();
    CStretchBitmapButton *button(Button which) const { return m_buttons[which]; }
    void InitialVal();
    void setThisPropaty();
    void readScreen();
    void SetButtonInstance();
    void createButton(Button which);
    void measureButtons(); ///< as large as they are by themselves
    void placeSmallButtons();
    void SetButtonCaptionText();
    void SetChildInstance();
    void setWindowLook();
    void askForTheScreen(const DesktopFacts &desktop);
    void showFirstScreen();
    void SetBaseRect();
    void tellUsualSizes();
    void SetLocalConnect();
    void connectButton(Button which);

    std::array<CStretchBitmapButton *, ButtonCount> m_buttons{};
    LiveVideoWidget *m_liveView = nullptr; ///< null once the window has closed
    MovieWidget *m_movieView = nullptr;
    PictureWidget *m_pictureView = nullptr;
    TimerWidget *m_timerWidget = nullptr;
    PictureListView *m_pictureList = nullptr;
    Setting *m_settings = nullptr;
    QRect m_screen; ///< px, the free area of the window's screen
    DialogGeometry m_geometry;
    QRect m_videoRect;
    QRect m_halfScreenRect;

    // --- ScreenChange.cpp ------------------------------------------------------------------
    void watchScreens();
    void stayOn(QScreen *screen);
    void followScreen();
    void moveChildren(const DialogGeometry &before, const QRect &videoBefore);

    QPointer<QScreen> m_ownScreen; ///< the one that the window fills
    QTimer m_screenSettles; ///< runs while it changes

    // --- DisplayModes.cpp ------------------------------------------------------------------
    struct RowCell {
        Button button;
        bool shown;
        bool enabled;
        bool sharesCell = false; ///< stands where the button before it stands
    };
    void layRow(double left, std::initializer_list<RowCell> cells);
    /// Switches to the photo alone, as SetPhotoMode() does when the preview is off.
    void setAcceptedPhotoMode();
    void layOutPhoto();
    /// After a change of the screen: the keyboard stays with @p holder, who had it before, or goes
    /// to the first button that can be pressed.
    void keepFocus(QWidget *holder);
    /// In the same place; the keyboard goes over with it.
    void swapButtons(Button gone, Button come);
    /// Between these two, none of the buttons that could be pressed can be.
    void holdButtons();
    void releaseButtons();

    /// What the user sees move, by its name for him; empty for nothing.
    QString whatMoves() const;

    DisplayMode m_displayMode = LiveMode;
    bool m_error = false;
    QVector<CStretchBitmapButton *> m_heldButtons; ///< to be given back
    QPointer<QWidget> m_heldFocus; ///< where the keyboard was then; null for nowhere
    SpareMemory m_spareMemory;
    ScreenWake *m_screenWake = nullptr;

    // --- CaptureConditions.cpp -------------------------------------------------------------
    /// Opens the camera unless it is open, and notes what is missing. False: the window was closed
    /// meanwhile, at a message.
    bool openCamera();
    /// Notes whether camera and microphone are there, by what the live view has found out.
    void copyDevicePresence();
    /// Called first by every flow that captures: ends the raising and asks for room on the disk.
    /// The last photo is complete then.
    /// False when there is none, which has been told and leaves only what browses, or when the
    /// window is closed.
    bool hasSpaceToCapture();

    bool m_videoPresent = false;
    bool m_audioPresent = false;

    // --- PhotoFlow.cpp ---------------------------------------------------------------------
    /// Takes a photo and shows it while it is still being written.
    void showNewPhoto();
    /// Waits for the file of the photo shown. Called first by every flow that leaves the photo or
    /// needs its file. Does nothing when it is there.
    void completePhoto();
    void photoWritten(bool isWritten);
    /// The photo shown could not be written: what was shown before it comes back.
    void withdrawPhoto();
    Q_INVOKABLE void tellPhotoIsLost();

    QString m_currentPhotoName; ///< bare name of the last photo, null when there is none
    QString m_photoBefore; ///< bare name of what the picture view showed before it
    bool m_photoPreview = true;

    // --- ShutterSound.cpp ------------------------------------------------------------------
    void loadShutterSound();
    void playShutterSound();

    QString m_shutterSoundPath; ///< empty when there is none
    QSound *m_shutterSound = nullptr; ///< null when there is none

    // --- SeriesFlow.cpp --------------------------------------------------------------------
    /// Bare name of a new photo, whose file and picture are there; null on failure.
    QString takePhotoOfSeries();
    void startSeries();
    void endSeries();
    void endCountdown();

    bool m_selfTimer = true; ///< countdowns take the photos, not presses
    int m_selfTimerSeconds = 0; ///< s, length of a countdown
    int m_shotTarget = 0; ///< photos of a whole series
    int m_shotCounter = 0; ///< photos taken so far
    QStringList m_seriesList; ///< bare names of the series' photos, in order

    // --- MovieFlow.cpp ---------------------------------------------------------------------
    void showMovieLength(qint64 total);
    void showPlayButton(); ///< in place of "Pause"
    /// The recorder cannot go on: keeps the movie up to there and tells why.
    void endBrokenRecording();
    void stopPlayback();

    bool m_recording = false;
    QElapsedTimer m_sinceRecordingBegan;
    QString m_moviePath; ///< full path of the movie last recorded or shown

    // --- DeviceFlow.cpp --------------------------------------------------------------------
    void warnOfInvalidVideo();
    /// Tells that the camera is lost, and leaves what can be done without one.
    void goOnWithoutCamera();
    /// The camera is expected to be back in a moment: looks for it until then.
    void awaitReturn();
    void lookForReturn();

    SleepWatch *m_sleepWatch = nullptr;
    QTimer m_returnLooks; ///< runs while the camera is awaited
    QElapsedTimer m_sinceLoss;

    bool m_deviceSelected = false;

    // --- BrowsingFlow.cpp ------------------------------------------------------------------
    enum ListKind { PhotoList = 0, MovieList = 1 };

    ListKind m_listKind = PhotoList; ///< what "List" opens
    QVector<PictureWidget *> m_tiles;

    // --- HandOver.cpp ----------------------------------------------------------------------
    /// Bare names of the photos that are on the screen, in the order of the whiteboard's file.
    QStringList namesToPaste() const;
    void pasteToClipboard();

    PastedPhotos m_pastedPhotos;

    // --- SettingsFlow.cpp ------------------------------------------------------------------
    QString m_saveDirectory;
};

#endif
