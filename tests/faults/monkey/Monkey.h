#ifndef MONKEY_H
#define MONKEY_H

#include "CaptureWatch.h"
#include "DialogFixture.h"
#include "MonkeyEvents.h"
#include "MonkeyHands.h"
#include "ScreenModel.h"

#include <QElapsedTimer>
#include <QObject>

#include <functional>

/**
 * Plays events on the program's window, over the scripted engine: one in each round of the event
 * loop, also while boxes stand. Between two of them, whenever no box stands, it looks whether the
 * window is as the model of the screens says, and whether all captures are there. A window that was
 * closed is followed by the next start. At the end it must find the way out.
 */
class Monkey : public QObject {
    Q_OBJECT

public:
    explicit Monkey(MonkeyEvents events);

    /// Empty when all was right; otherwise what was wrong, and after which event.
    QString run();
    int played() const { return m_played; }
    int lost() const { return m_watch->lost(); }
    /// How long (ms) the window did not answer, without the time that this thread was ready to.
    qint64 longest() const { return m_longest; }
    int afterWhich() const { return m_afterWhich; } ///< event

    /// Is told what is in front before each event.
    std::function<void(const QString &front)> progress = [](const QString &) {};

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void round();
    void play(const MonkeyEvent &event);
    void passSeconds(int seconds);
    void logOut();
    void closeTopmost();
    void start();
    void fail(const QString &why);

    // The way out.
    void leave();
    bool pressFirstOf(const QStringList &names);

    // What is seen.
    void look();
    QString complaintAboutScreen();
    ScreenModel::Screen screen() const;
    ScreenModel::Circumstances circumstances(ScreenModel::Screen screen) const;
    QString complaintAboutWay(ScreenModel::Screen now);
    QString complaintAboutCaptures();
    QString front() const;
    bool isShown(const char *button) const;
    void noteAnswer();

    DialogFixture m_fixture;
    MonkeyHands m_hands;
    std::unique_ptr<CaptureWatch> m_watch;
    const MonkeyEvents m_events;
    int m_played = 0;
    int m_steps = 0; // out
    bool m_isClosing = false;
    bool m_isStarting = false;
    int m_actsIn = 0; // the loop, counted from the outermost, in which an event is being played
    QString m_complaint;
    ScreenModel::Screen m_screen = ScreenModel::Live; // at the last look
    ScreenModel::Screen m_before = ScreenModel::Live; // the one before that
    QStringList m_clicked; // buttons of the window, since the last look
    bool m_wasDisturbed = false; // since then something else happened
    QElapsedTimer m_sinceRound;
    qint64 m_delayBefore = 0; // ns
    qint64 m_longest = 0;
    int m_afterWhich = 0;
};

#endif
