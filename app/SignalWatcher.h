#ifndef SIGNALWATCHER_H
#define SIGNALWATCHER_H

#include <QObject>
#include <QTimer>
#include <memory>

class QSocketNotifier;
class QWidget;

/**
 * Turns the end of a session into an ordinary one: on SIGTERM, SIGINT or SIGHUP, the end of the
 * terminal, the window is closed as if the user had closed it, so that a recording is finished
 * first. A SIGHUP that was ignored at the start stays so.
 *
 * A box that is open meanwhile is closed before, as by its own close button, and so is the next one
 * that its flow opens: a window that went away beneath a box would leave a program without windows,
 * waiting for an answer.
 *
 * A second signal of the same kind ends the program at once, as without a watcher. One object at a
 * time, on the GUI thread; the window is not owned and must outlive it. Without the pipe (no file
 * descriptor left) the signals keep their usual effect.
 */
class SignalWatcher : public QObject {
    Q_OBJECT

public:
    explicit SignalWatcher(QWidget *window);
    ~SignalWatcher() override;

    /// True from the signal on, also before the window could be closed. Any thread.
    static bool hasCome();

private:
    void drain();
    void closeTopmost();

    QWidget *m_window;
    int m_readEnd = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_closing; ///< runs from the signal until the window is closed
};

#endif
