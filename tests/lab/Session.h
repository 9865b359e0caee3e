#ifndef SESSION_H
#define SESSION_H

#include "Desktop.h"
#include "Program.h"
#include "WindowMap.h"

#include <functional>

class QMessageBox;

// A person at the camera program: starts it, looks at its window, presses its buttons and answers
// its questions, almost always with the mouse. Every wait has a limit; a false or an empty result
// means that what was waited for did not come.
//
// Needs a QApplication on the lab's screen and the program's resources (orvanta_res).
class Session {
public:
    // The camera is the one the program is expected to show.
    // The area is the part of the screen that the program's window is to fill; null for all of it.
    // Its pixels are as large as those of this test's own windows.
    Session(const QString &executable, const QString &cameraName, QSize cameraSize,
            QRect area = {});
    virtual ~Session(); // says what stood there, when the test has failed
    Q_DISABLE_COPY(Session)

    Desktop &desktop() { return m_desktop; }
    Program &program() { return m_program; }
    WindowMap &map() { return m_map; }
    QRgb ground() const { return m_ground; }

    // Starts the program and waits until the camera's picture moves in its window.
    bool startLive();
    bool waitForMainWindow();
    // The screen has changed: until the window fills that area of it, where all else is looked for
    // from then on.
    bool waitForMainWindowAt(QRect area);
    bool waitForChooser();
    Desktop::Window mainWindow() const;
    // Of the program's dialogs the highest; id 0 when none is open.
    Desktop::Window dialog() const;
    bool waitForDialog(const QString &title);
    bool waitUntilNoDialog();

    // What the screen shows there.
    QImage seenAt(QRect place) const { return m_desktop.screenshot().copy(place); }
    // The camera's frame number as seen there, -1 when there is no whole picture of the camera.
    int counterAt(QRect place) const;
    // Whether it is a whole picture of the camera, with the right colours.
    virtual bool isPicture(const QImage &seen) const;
    // True once the picture there changes as a camera's does, with the right colours.
    virtual bool isLiveAt(QRect place) const;
    virtual bool isStillAt(QRect place) const;

    void press(WindowMap::Screen screen, const QString &button);
    // Waits until the button is there and can be pressed, then presses it.
    bool pressWhenReady(WindowMap::Screen screen, const QString &button);
    // From the live picture to a movie that is being recorded. On a busy machine the microphone may
    // take too long, which is told in a box: there, and only there, it is tried again.
    bool beginMovie();
    bool isRecording();
    // From the live picture to the preview of a photo that is on the disk.
    bool takePhotoForPreview();
    bool waitForPressable(WindowMap::Screen screen, const QStringList &buttons);

    // In the settings, by the control's object name; in the question at exit, by its caption.
    bool clickInSettings(const QString &objectName);
    bool answerExitQuestion(const QString &caption);
    // In the chooser at start, by the keyboard: the camera at this position of the box, then "OK".
    void chooseCamera(int position);
    // Whether the open dialog is a message box with this very text and this caption of its button,
    // compared pixel by pixel. A box that reads from the right needs a QApplication that does.
    bool messageSays(const QString &text, const QString &confirm = "OK");
    // With the mouse, after messageSays(): where the button is depends on the text.
    bool confirmMessage();
    // With the keyboard, whatever it says.
    bool dismissMessage();

protected:
    // Looks until it is there, for a limited time (ms).
    static bool waitFor(const std::function<bool()> &isThere, int limit);

private:
    void prepareTwin(QMessageBox *box) const;

    Desktop m_desktop;
    Program m_program;
    QSize m_camera;
    QRect m_area;
    WindowMap m_map;
    QRgb m_ground;
    QString m_messageText;
    QString m_confirmText = "OK";
};

#endif // SESSION_H
