#include "CTranslator.h"
#include "CVistrelDlg.h"
#include "LayoutScale.h"
#include "PlainButtons.h"
#include "QtSingleApplication.h"
#include "SignalWatcher.h"

#include <QDir>

int main(int argc, char **argv)
{
    // The player's own way of drawing into a window leaves borders on some desktops and nothing on
    // others; drawn by the program itself a movie fills its place on all of them. Read once, by the
    // first player that is made.
    qputenv("PHONON_GST_VIDEOMODE", "software");

    LayoutScale::apply();
    QtSingleApplication application("Orvanta", argc, argv);
    if (application.sendMessage("Wake up!", 5000))
        return 0;
    // The answer is not needed: a copy that is there but did not respond in time must not keep the
    // camera from being used.
    application.isRunning();

    // The folder that the program was started in, not the one that it lies in: so a set of plug-ins
    // can be tried by starting from beside it.
    QCoreApplication::addLibraryPath(QDir(QDir::currentPath()).absolutePath() + "/plugins/");
    translate();
    QApplication::setStyle(new PlainButtons);

    CVistrelDlg dialog;
    if (!dialog.isDeviceSelected())
        return -1;
    const SignalWatcher watcher(&dialog);

    dialog.SetPluginPath(QCoreApplication::applicationDirPath());
    dialog.setVisible(true);
    dialog.raise();
    dialog.chkdevice();
    return QtSingleApplication::exec();
}
