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

// GUI thread only.
namespace {
struct CallState {
    bool isActive = false;
    bool cursorIsShown = false;
    bool isUnseen = false;
    steady_clock::time_point began;
    steady_clock::time_point end;
    std::function<bool()> interruption;
    std::function<void()> meanwhile;
};
} // namespace

static CallState &callState()
{
    static CallState outermost;
    return outermost;
}

static bool isGuiThread()
{
    return qobject_cast<QApplication *>(QCoreApplication::instance())
        && QThread::currentThread() == QCoreApplication::instance()->thread();
}

PatientCall::PatientCall(std::chrono::nanoseconds limit)
    : m_isOutermost(isGuiThread() && !callState().isActive)
{
    if (!m_isOutermost)
        return;
    callState().isActive = true;
    callState().began = steady_clock::now();
    callState().end = callState().began + limit;
}

PatientCall::~PatientCall()
{
    if (!m_isOutermost)
        return;
    callState().isActive = false;
    if (callState().cursorIsShown)
        QGuiApplication::restoreOverrideCursor();
    callState().cursorIsShown = false;
}

void PatientCall::setInterruption(std::function<bool()> wanted)
{
    callState().interruption = std::move(wanted);
}

bool PatientCall::isInterrupted()
{
    return isGuiThread() && callState().interruption && callState().interruption();
}

void PatientCall::setMeanwhile(std::function<void()> work)
{
    callState().meanwhile = std::move(work);
}

void PatientCall::showNothing()
{
    callState().isUnseen = true;
    callState().cursorIsShown = false;
}

static void showPatience()
{
    if (callState().isUnseen)
        return;
    if (!callState().cursorIsShown)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    callState().cursorIsShown = true;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (window->isVisible())
            window->repaint();
}

bool waitPatiently(steady_clock::time_point deadline,
                   const std::function<bool(steady_clock::time_point until)> &arrived)
{
    if (!isGuiThread())
        return arrived(deadline);
    const PatientCall call(deadline - steady_clock::now()); // for a wait outside any operation
    const auto end = std::min(deadline, callState().end);
    if (arrived(std::min(end, callState().began + unnoticed)))
        return true;
    while (steady_clock::now() < end) {
        showPatience();
        if (callState().meanwhile)
            callState().meanwhile();
        if (arrived(std::min(end, steady_clock::now() + repaintPeriod)))
            return true;
    }
    return false;
}
