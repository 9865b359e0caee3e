#include "CTranslator.h"
#include "CVistrelDlg.h"
#include "LayoutScale.h"
#include "LiveVideoWidget.h"
#include "LostScreen.h"
#include "LostSession.h"
#include "PlainButtons.h"
#include "PromptEnd.h"
#include "QtSingleApplication.h"
#include "SignalWatcher.h"
#include "WebcamUtil.h"

#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QSessionManager>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

// From the end of main to the forced end of the process: longer than the libraries take to tidy up,
// and too short for a user to start the program again meanwhile.
#ifdef __SANITIZE_ADDRESS__
constexpr std::chrono::milliseconds endLimit(20000); // the leak checker looks through all memory
#else
constexpr std::chrono::milliseconds endLimit(700);
#endif
// The same when the clipboard has a photo of ours: the desktop's keeper of the clipboard fetches it
// then, and only it is waited for. The next start need not wait: by then this copy is not the
// first.
constexpr std::chrono::milliseconds endLimitWithClipboard = endLimit + std::chrono::seconds(5);

// From the window's construction to its destruction; the status of the process.
int runWindow()
{
    CVistrelDlg dialog;
    if (!dialog.isDeviceSelected())
        return -1;
    const SignalWatcher watcher(&dialog);
    LiveVideoWidget::setInterruption(SignalWatcher::hasCome);
    // Asked and answered before the session goes on to end.
    QObject::connect(
        qGuiApp, &QGuiApplication::commitDataRequest, &dialog,
        [&dialog](QSessionManager &session) {
            if (dialog.leaveWithSession([&session] { return session.allowsInteraction(); }))
                session.release();
            else
                session.cancel();
        },
        Qt::DirectConnection);

    dialog.SetPluginPath(QCoreApplication::applicationDirPath());
    dialog.setVisible(true);
    dialog.raise();
    dialog.chkdevice();
    const LostScreen lostScreen([&dialog] { dialog.completeUnseen(); });
    return QtSingleApplication::exec();
}

// Only an X server lets a window stand where it wants and come back in front. Every Wayland desktop
// has one for its guests, while the toolkit, left alone, would do without.
void preferX11()
{
    const QByteArray wanted = qgetenv("QT_QPA_PLATFORM");
    if (wanted.isEmpty() || wanted.startsWith("wayland"))
        qputenv("QT_QPA_PLATFORM", "xcb");
}

// Left alone, the C library gives each of some twenty threads a heap of its own, and every one
// keeps what it once needed. Those here ask for little but large buffers: two heaps do.
void shareHeaps()
{
#ifdef __GLIBC__
    mallopt(M_ARENA_MAX, 2);
#endif
}

} // namespace

int main(int argc, char **argv)
{
    shareHeaps();
    const QDateTime start = QDateTime::currentDateTime();
    // The player's own way of drawing into a window leaves borders on some desktops and nothing on
    // others; drawn by the program itself a movie fills its place on all of them. Read once, by the
    // first player that is made.
    qputenv("PHONON_GST_VIDEOMODE", "software");
    // Nothing here is drawn with OpenGL. Left alone, the toolkit loads a graphics card's driver for
    // it, which takes a third of the start and 47 MB where the driver is one of software.
    qputenv("QT_XCB_GL_INTEGRATION", "none");

    preferX11();
    LayoutScale::apply();
    // A dock tells by the class of a window whose it is, and takes name and icon from the program's
    // entry in the menu; left alone the class would be the name of the file that was started. One
    // desktop's own part of the toolkit tells it the entry's name besides.
    QCoreApplication::setApplicationName("orvanta");
    QGuiApplication::setDesktopFileName("orvanta");
    LostSession::outlive();
    QtSingleApplication application("Orvanta", argc, argv);
    // Left alone, the toolkit closes the window when the user logs out, without asking anything.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    if (application.sendMessage("Wake up!", 5000))
        return 0;
    // A camera may take longer to open than another copy waits for an answer.
    LiveVideoWidget::setMeanwhile([&application] { application.answerWaiting(); });
    // Servers and drivers think while the window is built.
    LiveVideoWidget::beginDeviceList();
    // The answer is not needed: a copy that is there but did not respond in time must not keep the
    // camera from being used.
    application.isRunning();
    if (application.isFirst())
        WebcamUtil::deleteUnfinished(start);

    // The folder that the program was started in, not the one that it lies in: so a set of plug-ins
    // can be tried by starting from beside it.
    QCoreApplication::addLibraryPath(QDir(QDir::currentPath()).absolutePath() + "/plugins/");
    translate();
    QApplication::setStyle(new PlainButtons);

    // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): the style is the application's now
    const int status = runWindow();
    // The window is gone: the camera is closed and all that was captured is on the disk.
    const bool hasClipboard = QGuiApplication::clipboard()->ownsClipboard();
    PromptEnd::within(hasClipboard ? endLimitWithClipboard : endLimit, status);
    return status;
}
