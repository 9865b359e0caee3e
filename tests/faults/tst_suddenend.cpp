#include "FaultTrial.h"
#include "Lesson.h"
#include "Patience.h"
#include "ScreenFaults.h"

#include <functional>
#include <memory>

/**
 * The program is ended in the middle of something, by somebody or something that does not ask.
 * What it has captured is there at the next start, which is a usual one.
 */
class TestSuddenEnd : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void theProgramIsKilled();
    void theSessionEnds();
    void theTerminalIsClosed();
    void theScreensServerEnds();

private:
    void send(int signal) const;
    bool endsAsItShould(int signal) const;
    void end(FaultTrial &trial, const std::function<void()> &fault, int signal = 0);

    std::unique_ptr<Lesson> m_lesson;
};

static constexpr int usualTries = 1;
static constexpr int wholeTries = 20 * Lesson::moments;

void TestSuddenEnd::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
}

void TestSuddenEnd::init()
{
    if (m_lesson && m_lesson->program().isRunning())
        return; // it was started to see whether it can be
    m_lesson = std::make_unique<Lesson>();
    QCOMPARE(m_lesson->begin(), QString());
}

void TestSuddenEnd::cleanupTestCase()
{
    m_lesson.reset();
}

// Nothing to a program that has saved all and ended in the last moment.
void TestSuddenEnd::send(int signal) const
{
    if (m_lesson->program().isRunning())
        ::kill(pid_t(m_lesson->program().pid()), signal);
}

// In its last moment, with all captures saved, it listens to no signal any more.
bool TestSuddenEnd::endsAsItShould(int signal) const
{
    if (!m_lesson->program().hasCrashed())
        return true;
    return m_lesson->program().exitStatus() == signal
        && (signal == SIGKILL || m_lesson->moment() == Lesson::SavingAtExit);
}

// Up to the next start. The fault is, or may be, that signal.
void TestSuddenEnd::end(FaultTrial &trial, const std::function<void()> &fault, int signal)
{
    const auto moment = Lesson::Moment(trial.upTo(Lesson::moments - 1));
    const QByteArray what = QByteArray("at try ") + QByteArray::number(trial.tries()) + ", "
        + Lesson::nameOf(moment) + ": ";
    QString complaint = m_lesson->goTo(moment, trial);
    QVERIFY2(complaint.isEmpty(), qPrintable(what + complaint));
    m_lesson->faultComes();
    QElapsedTimer since;
    since.start();
    fault();
    QVERIFY2(m_lesson->program().hasEndedWithin(patience), qPrintable(what + "it does not end"));
    trial.addStandstill(since.elapsed());
    QVERIFY2(endsAsItShould(signal),
             qPrintable(what + "it crashes of signal "
                        + QByteArray::number(m_lesson->program().exitStatus())));
    complaint = m_lesson->check(trial, signal == SIGKILL);
    QVERIFY2(complaint.isEmpty(), qPrintable(what + complaint));
    complaint = m_lesson->begin();
    QVERIFY2(complaint.isEmpty(), qPrintable(what + complaint));
}

void TestSuddenEnd::theProgramIsKilled()
{
    FaultTrial trial("the program is killed (kill -9)", usualTries, wholeTries);
    while (trial.next())
        end(
            trial, [this] { m_lesson->program().kill(); }, SIGKILL);
}

void TestSuddenEnd::theSessionEnds()
{
    FaultTrial trial("the session ends (SIGTERM, SIGINT)", usualTries, wholeTries);
    while (trial.next()) {
        const int signal = trial.upTo(1) == 0 ? SIGTERM : SIGINT;
        end(
            trial, [&] { send(signal); }, signal);
    }
}

void TestSuddenEnd::theTerminalIsClosed()
{
    FaultTrial trial("the terminal is closed (SIGHUP)", usualTries, wholeTries);
    while (trial.next())
        end(
            trial, [this] { send(SIGHUP); }, SIGHUP);
}

void TestSuddenEnd::theScreensServerEnds()
{
    FaultTrial trial("the screen's server ends", usualTries, wholeTries);
    ScreenFaults screen;
    while (trial.next())
        end(trial, [&] { screen.cutOff(m_lesson->user().mainWindow().id); });
}

QTEST_MAIN(TestSuddenEnd)
#include "tst_suddenend.moc"
