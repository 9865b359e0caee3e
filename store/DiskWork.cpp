#include "DiskWork.h"

#include <QApplication>
#include <QWidget>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

// What was uncovered is painted before anybody wonders.
static constexpr milliseconds repaintPeriod(200);

namespace {

struct Job {
    DiskWork::Progress progress;
    std::mutex mutex; ///< guards isDone
    std::condition_variable ended;
    bool isDone = false;
};

class WaitCursor {
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    Q_DISABLE_COPY(WaitCursor)
};

} // namespace

static void paintWindows()
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance()))
        return;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (window->isVisible())
            window->repaint();
}

bool DiskWork::run(const std::function<void(Progress &)> &work, milliseconds limit)
{
    const WaitCursor waitCursor;
    const auto job = std::make_shared<Job>();
    std::thread([job, work] {
        work(job->progress);
        const std::lock_guard<std::mutex> lock(job->mutex);
        job->isDone = true;
        job->ended.notify_all();
    }).detach();
    int before = -1;
    auto since = steady_clock::now();
    std::unique_lock<std::mutex> lock(job->mutex);
    while (!job->ended.wait_for(lock, repaintPeriod, [&] { return job->isDone; })) {
        if (const int now = job->progress.m_steps; now != before) {
            before = now;
            since = steady_clock::now();
        } else if (steady_clock::now() - since > limit) {
            job->progress.m_isGivenUp = true;
            return false;
        }
        lock.unlock();
        paintWindows();
        lock.lock();
    }
    return true;
}
