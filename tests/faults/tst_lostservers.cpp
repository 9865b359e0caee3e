#include "FaultTrial.h"
#include "LabCommands.h"
#include "Lesson.h"
#include "LoginSession.h"
#include "Patience.h"
#include "ScreenFaults.h"

#include <QFile>

#include <atomic>
#include <functional>
#include <future>
#include <memory>

/**
 * What the program leans on goes away in the middle of something and comes back, or has no time for
 * it. The program answers all the while, whatever it had to give up; what it has captured is there
 * when it is ended, and the next start is a usual one.
 */
class TestLostServers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void theComputerHasNoTime();
    void theMediaServerCrashes();
    void theSoundServerCrashes();
    void theMediaSessionManagerCrashes();
    void theSessionManagerCrashes();
    void theMessageBusEnds();
    void theWindowManagerIsReplaced();

private:
    bool startBus();
    bool replaceWindowManager();
    void trouble(const char *fault, const std::function<bool()> &happen,
                 const std::function<bool()> &repair = {});
    void go(FaultTrial &trial, const std::function<bool()> &happen,
            const std::function<bool()> &repair);
    QString watch(FaultTrial &trial, const std::function<bool()> &happen);

    std::unique_ptr<LoginSession> m_login;
    std::unique_ptr<QProcess> m_bus;
    std::unique_ptr<QProcess> m_windowManager; ///< since the first of the lab's was killed
    std::unique_ptr<ScreenFaults> m_screen;
    std::unique_ptr<Lesson> m_lesson;
};

static constexpr int usualTries = 1;
static constexpr int wholeTries = 20 * Lesson::moments;
static constexpr int longestStandstill = 5000; // ms, of a window whose camera or server hangs
static constexpr int mostAnswerTime = 30000; // ms, after which it is said to hang

void TestLostServers::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    m_login = std::make_unique<LoginSession>();
    QVERIFY(!m_login->address().isEmpty());
    m_screen = std::make_unique<ScreenFaults>();
}

void TestLostServers::init()
{
    if (m_lesson && m_lesson->program().isRunning())
        return; // it was started to see whether it can be
    m_lesson = std::make_unique<Lesson>();
    m_lesson->program().setEnvironment("SESSION_MANAGER", m_login->address());
    QVERIFY(startBus());
    QCOMPARE(m_lesson->begin(), QString());
}

void TestLostServers::cleanupTestCase()
{
    m_lesson.reset();
    for (QProcess *process : {m_bus.get(), m_windowManager.get()}) {
        if (!process)
            continue;
        process->terminate();
        process->waitForFinished();
    }
}

// One that nobody but the program has to do with.
bool TestLostServers::startBus()
{
    m_bus = std::make_unique<QProcess>();
    const QString socket = qEnvironmentVariable("ORVANTA_LAB") + "/run/program-bus";
    QFile::remove(socket);
    m_lesson->program().setEnvironment("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + socket);
    m_bus->start("dbus-daemon",
                 {"--session", "--nofork", "--nopidfile", "--address=unix:path=" + socket});
    return QTest::qWaitFor([&] { return QFile::exists(socket); }, patience);
}

bool TestLostServers::replaceWindowManager()
{
    if (m_windowManager)
        m_windowManager->kill();
    else
        ::kill(pid_t(labServer("openbox")), SIGKILL);
    m_windowManager = std::make_unique<QProcess>();
    m_windowManager->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_windowManager->start("openbox", QStringList());
    // Which may have saved all and ended.
    const auto isManaged = [this] {
        return m_lesson->user().mainWindow().id != 0 || !m_lesson->program().isRunning();
    };
    return m_windowManager->waitForStarted(patience) && QTest::qWaitFor(isManaged, patience);
}

// How the window answers while it happens and for a moment after.
QString TestLostServers::watch(FaultTrial &trial, const std::function<bool()> &happen)
{
    const quint32 window = m_lesson->user().mainWindow().id;
    if (window == 0)
        return {}; // it has saved all and ended
    std::atomic<bool> isOver{false};
    std::future<int> answers = std::async(std::launch::async, [&] {
        int longest = 0;
        while (!isOver)
            longest = qMax(longest, m_screen->answerTime(window, mostAnswerTime));
        return longest;
    });
    const bool hasHappened = happen();
    QTest::qWait(FaultTrial::isWholeSuite() ? 1500 : 400); // nothing to wait for: what comes of it
    isOver = true;
    const int longest = answers.get();
    trial.addStandstill(longest);
    if (!hasHappened)
        return "it could not be done";
    return longest < longestStandstill ? QString()
                                       : QStringLiteral("no answer for %1 ms").arg(longest);
}

// Up to the next start, before which @p repair is done.
void TestLostServers::go(FaultTrial &trial, const std::function<bool()> &happen,
                         const std::function<bool()> &repair)
{
    const auto moment = Lesson::Moment(trial.upTo(Lesson::moments - 1));
    const QByteArray what = QByteArray("at try ") + QByteArray::number(trial.tries()) + ", "
        + Lesson::nameOf(moment) + ": ";
    QString complaint = m_lesson->goTo(moment, trial);
    QVERIFY2(complaint.isEmpty(), qPrintable(what + complaint));
    m_lesson->faultComes();
    complaint = watch(trial, happen);
    QVERIFY2(complaint.isEmpty(), qPrintable(what + complaint));
    const bool isOver = moment == Lesson::SavingAtExit;
    Program &program = m_lesson->program();
    QVERIFY2(program.isRunning() || isOver, qPrintable(what + "it ends: " + program.output()));
    if (!isOver) // or it would be killed by that when all is done
        program.terminate();
    QVERIFY2(program.hasEndedWithin(patience), qPrintable(what + "it does not end"));
    QVERIFY2(!program.hasCrashed(), qPrintable(what + "it crashes"));
    complaint = m_lesson->check(trial, false);
    QVERIFY2(complaint.isEmpty(), qPrintable(what + complaint));
    QVERIFY(!repair || repair());
    complaint = m_lesson->begin();
    QVERIFY2(complaint.isEmpty(), qPrintable(what + complaint));
}

void TestLostServers::trouble(const char *fault, const std::function<bool()> &happen,
                              const std::function<bool()> &repair)
{
    FaultTrial trial(fault, usualTries, wholeTries);
    while (trial.next())
        go(trial, happen, repair);
}

void TestLostServers::theComputerHasNoTime()
{
    trouble(
        "the computer has no time for it (SIGSTOP, SIGCONT)",
        [this] {
            m_lesson->program().stop();
            QTest::qWait(700); // nothing to wait for: the time it stands still
            m_lesson->program().goOn();
            return true;
        });
}

// With its session manager, sound server and cameras, as a crash leaves it.
static bool restartMediaServer()
{
    return labctl({"stop-media-server"}) && labctl({"start-media-server"})
        && labctl({"plug", "cam1", "640x480"});
}

void TestLostServers::theMediaServerCrashes()
{
    trouble("the media server crashes and comes back", restartMediaServer);
}

void TestLostServers::theSoundServerCrashes()
{
    trouble(
        "the sound server crashes and comes back", [] { return labctl({"restart-sound-server"}); });
}

// After it was restarted while a microphone or a loudspeaker was in use, this media server leads no
// camera to any program; the user logs in once more.
void TestLostServers::theMediaSessionManagerCrashes()
{
    trouble(
        "the media server's session manager crashes and comes back",
        [] { return labctl({"restart-session-manager"}); }, restartMediaServer);
}

void TestLostServers::theSessionManagerCrashes()
{
    trouble(
        "the desktop's session manager crashes",
        [this] {
            if (!QTest::qWaitFor([this] { return m_login->hasProgram(); }, patience))
                return false;
            m_login->crash();
            return true;
        });
}

void TestLostServers::theMessageBusEnds()
{
    trouble(
        "the session's message bus crashes and comes back",
        [this] {
            m_bus->kill();
            return m_bus->waitForFinished(patience) && startBus();
        });
}

void TestLostServers::theWindowManagerIsReplaced()
{
    trouble(
        "the window manager crashes and is replaced", [this] { return replaceWindowManager(); });
}

QTEST_MAIN(TestLostServers)
#include "tst_lostservers.moc"
