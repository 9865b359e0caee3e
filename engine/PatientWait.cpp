#include "PatientWait.h"

#include <QApplication>
#include <QThread>
#include <QWidget>

#include <algorithm>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// A person notices a standstill of about 0.3 s.
static const milliseconds unnoticed(250);
// What was uncovered is painted before anybody wonders, and painting costs next to nothing.
static const milliseconds repaintPeriod(200);

// Of the outermost operation; GUI thread only.
static bool callIsActive = false;
static bool cursorIsShown = false;
static steady_clock::time_point callBegan;

static bool isGuiThread()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance())
        && QThread::currentThread() == QCoreApplication::instance()->thread();
}

PatientCall::PatientCall()
    : m_isOutermost(isGuiThread() && !callIsActive)
{
    if (!m_isOutermost)
        return;
    callIsActive = true;
    callBegan = steady_clock::now();
}

PatientCall::~PatientCall()
{
    if (!m_isOutermost)
        return;
    callIsActive = false;
    if (cursorIsShown)
        QGuiApplication::restoreOverrideCursor();
    cursorIsShown = false;
}

static void showPatience()
{
    if (!cursorIsShown)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    cursorIsShown = true;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (window->isVisible())
            window->repaint();
}

bool waitPatiently(steady_clock::time_point deadline,
                   const std::function<bool(steady_clock::time_point until)> &arrived)
{
    const PatientCall call; // for a wait outside any operation
    if (!isGuiThread())
        return arrived(deadline);
    if (arrived(std::min(deadline, callBegan + unnoticed)))
        return true;
    while (steady_clock::now() < deadline) {
        showPatience();
        if (arrived(std::min(deadline, steady_clock::now() + repaintPeriod)))
            return true;
    }
    return false;
}
