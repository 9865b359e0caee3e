#include "FaultTrial.h"
#include "MonkeyEvents.h"
#include "Shrinking.h"
#include "SpareTime.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

static constexpr int eventsPerTry = 400;
static constexpr int silenceLimit = 60000; // ms, in which a sequence plays at least one event
static constexpr qint64 answerLimit = 2000; // ms
static constexpr int starvedFactor = 10; // as late may be who has no processor
static constexpr int shrinkingTries = 100;

/**
 * Somebody who presses anything at any time, in the program's window over the scripted engine. What
 * fails is printed as the shortest sequence that fails.
 */
class TestMonkey : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aSequenceIsReadAsItWasWritten();
    void whatDoesNotMatterIsLeftOut();
    void aSequenceOfOnePieceIsLeftAsItIs();
    void anyoneMayPressAnythingAtAnyTime();

private:
    struct Outcome {
        bool held = false;
        int lost = 0;
        qint64 longest = 0; // ms
        QString reason; // short, without numbers that change
        QString told; // by the program, before it failed
    };
    Outcome play(const MonkeyEvents &events) const;
    void tell(const MonkeyEvents &failing, Outcome outcome, const QString &evidence) const;

    QTemporaryDir m_folder;
};

// The player's plug-ins are looked through now, once. The program has that done while it starts;
// here it would count as a window that does not answer.
void TestMonkey::initTestCase()
{
    qputenv("GST_REGISTRY", QFile::encodeName(m_folder.filePath("plugins")));
    QCOMPARE(QProcess::execute("gst-inspect-1.0", {"--exists", "fakesink"}), 0);
}

void TestMonkey::aSequenceIsReadAsItWasWritten()
{
    QRandomGenerator chance(7);
    const MonkeyEvents events = someEvents(chance, 500);
    QCOMPARE(events.size(), 500);
    QCOMPARE(toText(fromText(toText(events))), toText(events));
    QCOMPARE(fromText("press 1 2\nsomething else\npress 3 4\n").size(), 1);
}

void TestMonkey::whatDoesNotMatterIsLeftOut()
{
    QVector<int> events;
    for (int i = 0; i < 300; ++i)
        events.append(i);
    int tries = 0;
    const auto fails = [&](const QVector<int> &rest) {
        ++tries;
        return rest.contains(17) && rest.contains(205) && rest.indexOf(17) < rest.indexOf(205);
    };
    QCOMPARE(shortestFailing(events, 200, fails), (QVector<int>{17, 205}));
    QVERIFY(tries <= 200);
}

void TestMonkey::aSequenceOfOnePieceIsLeftAsItIs()
{
    const QVector<int> events{1, 2, 3};
    QCOMPARE(shortestFailing(
                 events, 50, [](const QVector<int> &) { return false; }),
             events);
    const auto all = [&](const QVector<int> &rest) { return rest == events; };
    QCOMPARE(shortestFailing(events, 50, all), events);
}

TestMonkey::Outcome TestMonkey::play(const MonkeyEvents &events) const
{
    const QString path = m_folder.filePath("events");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(toText(events)) < 0)
        qFatal("The events cannot be written.");
    file.close();
    const SpareTime spare;
    QProcess monkey;
    QByteArray said;
    monkey.setProcessChannelMode(QProcess::MergedChannels);
    monkey.start(MONKEY_PROGRAM, {path});
    while (monkey.state() != QProcess::NotRunning) {
        // Whoever says nothing for so long stands still.
        if (!monkey.waitForReadyRead(silenceLimit) && monkey.state() != QProcess::NotRunning
            && !monkey.waitForFinished(1000)) {
            monkey.kill();
            monkey.waitForFinished();
            return {false, 0, silenceLimit, "it stands still", QString::fromUtf8(said.right(6000))};
        }
        said += monkey.readAll();
    }
    said += monkey.readAll();
    Outcome outcome;
    outcome.held = monkey.exitStatus() == QProcess::NormalExit && monkey.exitCode() == 0;
    for (const QByteArray &line : said.split('\n'))
        if (line.startsWith("longest "))
            outcome.longest = line.mid(8).split(',').first().toLongLong();
        else if (line.startsWith("lost "))
            outcome.lost = line.mid(5).toInt();
    // What it had to wait for, a player's thread, waited for a processor itself where there was
    // none.
    const bool answered = outcome.longest < answerLimit * (spare.isPlenty() ? 1 : starvedFactor);
    if (outcome.held && !answered) {
        outcome.held = false;
        outcome.reason = "the window does not answer";
        outcome.told = QString::fromUtf8(said.right(6000));
    } else if (!outcome.held) {
        outcome.told = QString::fromUtf8(said.right(6000));
        const int complaint = said.indexOf("complaint after");
        outcome.reason = complaint < 0
            ? "it crashed"
            : QString::fromUtf8(said.mid(said.indexOf(": ", complaint) + 2, 25));
    }
    return outcome;
}

// What fails in another way is left alone: it is another fault.
void TestMonkey::tell(const MonkeyEvents &failing, Outcome outcome, const QString &evidence) const
{
    const auto fails = [&](const MonkeyEvents &rest) {
        const Outcome again = play(rest);
        if (again.held || again.reason != outcome.reason)
            return false;
        outcome = again;
        return true;
    };
    // What fails now and then only would be searched for in vain.
    const MonkeyEvents shortest =
        fails(failing) ? shortestFailing(failing, shrinkingTries, fails) : failing;
    qWarning("%s", qPrintable(outcome.told));
    qWarning("The shortest sequence that fails:\n%s", toText(shortest).constData());
    QFile file(evidence + "/events");
    if (!evidence.isEmpty() && file.open(QIODevice::WriteOnly))
        file.write(toText(shortest));
}

void TestMonkey::anyoneMayPressAnythingAtAnyTime()
{
    FaultTrial trial("a child at all buttons, and cables pulled meanwhile", 2, 48);
    while (trial.next()) {
        const MonkeyEvents events = someEvents(trial.chance(), eventsPerTry);
        const Outcome outcome = play(events);
        trial.addStandstill(outcome.longest);
        trial.addLost(outcome.lost);
        if (!outcome.held)
            tell(events, outcome, trial.evidence());
        QVERIFY2(outcome.held, qPrintable(outcome.reason));
    }
}

QTEST_GUILESS_MAIN(TestMonkey)
#include "tst_monkey.moc"
