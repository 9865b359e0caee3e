#ifndef FAULTTRIAL_H
#define FAULTTRIAL_H

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QString>

/// One kind of fault, tried again and again, each time at another moment or on other data:
///
///     FaultTrial trial("kill -9 while a photo is written", 2, 20);
///     while (trial.next()) { ... }
///
/// Among the usual tests it is tried a few times; by `./test faults` as often as is asked for
/// there, and then a line about it goes into the table that is printed at the end. Chance is the
/// same for the same seed, name and number of the try, so that what failed can be tried again. On
/// one thread, in a test function.
class FaultTrial {
public:
    /// The name is the line's, in the words of who meets the fault; no other trial has it. How
    /// often it is tried among the usual tests, and by the whole suite when no minutes are given.
    FaultTrial(const QString &name, int usualTries, int wholeTries);
    ~FaultTrial(); ///< tells the outcome
    FaultTrial(const FaultTrial &) = delete;
    FaultTrial &operator=(const FaultTrial &) = delete;

    /// Begins the next try. False when it was tried enough, or when the test function has failed.
    bool next();
    int tries() const { return m_tries; } ///< begun, this one too
    QRandomGenerator &chance() { return m_chance; } ///< of this try
    int upTo(int highest) { return m_chance.bounded(highest + 1); } ///< from 0

    void addLost(int captures) { m_lost += captures; }
    /// For how long (ms) the program did not answer, or its picture did not move.
    void addStandstill(qint64 milliseconds);
    /// A folder for what helps to understand a failure; null among the usual tests.
    QString evidence() const { return m_evidence; }

    /// By whole suite is meant `./test faults`.
    static bool isWholeSuite();

private:
    QString outcome() const;

    const QString m_name;
    const int m_wanted; ///< tries; 0 when the time decides
    const qint64 m_time; ///< ms; 0 when the number decides
    quint32 m_seed = 0;
    QString m_evidence;
    QElapsedTimer m_since;
    QRandomGenerator m_chance;
    int m_tries = 0;
    int m_lost = 0;
    qint64 m_standstill = 0;
};

#endif
