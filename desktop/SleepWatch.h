#ifndef SLEEPWATCH_H
#define SLEEPWATCH_H

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>

/**
 * Knows whether the computer has just been asleep: a camera that is lost then was not pulled out,
 * its cable was without power for a while, and it is about to come back.
 *
 * GUI thread only. Looks at a clock every few seconds and costs nothing else.
 */
class SleepWatch : public QObject {
    Q_OBJECT

public:
    explicit SleepWatch(QObject *parent = nullptr);

    /// True for half a minute from each waking up.
    bool isJustAwake();

    /// Takes the place of the machine's own account of how long (ms) it has been asleep since it
    /// was started.
    void setClock(std::function<qint64()> timeAsleep);

private:
    void look();

    std::function<qint64()> m_timeAsleep;
    qint64 m_lastTimeAsleep = 0; ///< ms
    QElapsedTimer m_sinceWaking; ///< stands still while the computer sleeps; invalid before
    QTimer m_looks;
};

#endif
