#ifndef TIMERWIDGET_H
#define TIMERWIDGET_H

#include <QLabel>

class QTimer;

/** The job that a TimerWidget does on each tick. */
enum TimerMode {
    TimerCountdown = 0, ///< counts the seconds down to the next photo
    TimerPlayTime = 1, ///< asks the window to write how far a movie has played
    TimerRecordTime = 2, ///< counts the seconds of a recording and watches its limit
    TimerIdle = 3, ///< does nothing
};

/**
 * A line of green text over the picture: the self-timer, the recording time or the playing time.
 *
 * The three share one tick of a second; the mode says whose it is. run() starts the ticking, and
 * it goes on through every change of mode until Stop(), Pause() or reset(). The ticks keep to the
 * schedule that run() started: one that comes late does not push back those after it.
 *
 * A widget's parent places it vertically; SetMode() moves it to the right edge of the screen.
 * GUI thread only; all signals are emitted from within a tick or from within run().
 */
class TimerWidget : public QLabel {
    Q_OBJECT

public:
    explicit TimerWidget(QWidget *parent = nullptr, Qt::WindowFlags f = {});

    /// Sets the length of the countdown, in seconds. 0 asks for a photo on every tick.
    void setcount(int n);
    /// Starts the count of the current mode afresh and does its first step at once.
    void run();
    /// Halts the ticking; counters and text stay as they are.
    void Pause();
    /// Halts the ticking and forgets the recording time; mode and text stay.
    void Stop();
    /// As Stop(), with the text cleared and TimerIdle as the mode.
    void reset();

    /// Hides the label, whatever @p m is. A mode that differs from the current one also sets the
    /// recording time to 0, the label's width to that of the mode's longest text, its place to the
    /// right edge of the screen, and clears the text.
    void SetMode(TimerMode m);

    /// One step of the countdown: shows the seconds left or, at 0, asks for a photo.
    void OnShot();
    /// One step of a recording: shows its time and announces when the limit is reached.
    void RecordTime();

    /// The time between two ticks in ms, 1000 unless told; for tests and demonstrations.
    void setTickInterval(int milliseconds);

Q_SIGNALS:
    void timeover(); ///< never emitted
    void shot(); ///< the countdown has ended: take a photo; the next one begins by itself
    void set(); ///< time to write the playing time
    void movieTimeOver(); ///< the recording is at its limit; repeated on every tick until it stops

private Q_SLOTS:
    void showtime();

private:
    static QString sizingText(TimerMode mode);
    void moveToRightEdge();

    int m_elapsed = 0; ///< s recorded
    int m_count = 0; ///< s, length of a countdown
    int m_remaining = 0; ///< s left in the current countdown
    TimerMode m_mode = TimerIdle;
    int m_timeLimit; ///< s, longest recording
    QTimer *m_tickTimer;
};

#endif
