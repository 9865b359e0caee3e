#include "FaultTrial.h"
#include "LabCommands.h"
#include "Patience.h"
#include "Session.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

/**
 * Several who want the same: impatient hands that start the program again and again, and another
 * user of the computer who pries into what is captured, or has laid something in the program's
 * places before it came.
 */
class TestManyUsers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void fiftyStartsAtOnceLeaveOneRunning();
    void aStoppedCopyHoldsTheNextUpForFiveSecondsAtMost();
    void anotherUserSeesAndChangesNothing();
    void whatAnotherUserHasPreparedIsNotUsed();

private:
    QString area() const { return place("TavelinCamera_"); }
    QString place(const QString &name) const
    {
        return m_everybodys->path() + '/' + name + QString::number(geteuid());
    }
    static bool canBeAnother();
    static int asAnother(const QString &command);
    static QVector<QByteArray> traps(const QString &place, const QString &victim);
    void expectTrapUnused(Session &user, const QByteArray &trap, const QString &victim);

    std::unique_ptr<QTemporaryDir> m_everybodys; ///< as /tmp is
};

static const QString another = QStringLiteral("65534"); // whose user's number nobody has
static constexpr int given = 5000; // ms, to a first copy for its answer

// Only root can be somebody else; what another user may not do does not depend on who one is.
bool TestManyUsers::canBeAnother()
{
    return geteuid() == 0;
}

int TestManyUsers::asAnother(const QString &command)
{
    return QProcess::execute("setpriv",
                             {"--reuid", another, "--regid", another, "--clear-groups",
                              "--inh-caps=-all", "sh", "-c", command});
}

void TestManyUsers::init()
{
    m_everybodys = std::make_unique<QTemporaryDir>("/tmp/orvanta-everybodys-XXXXXX");
    QVERIFY(m_everybodys->isValid());
    QCOMPARE(chmod(QFile::encodeName(m_everybodys->path()).constData(), 01777), 0);
}

void TestManyUsers::fiftyStartsAtOnceLeaveOneRunning()
{
    FaultTrial trial("fifty starts at once", 1, 3);
    // As many as this machine begins within the time that another copy waits.
    const size_t starts = FaultTrial::isWholeSuite() ? 50 : 12;
    while (trial.next()) {
        std::vector<std::unique_ptr<Program>> copies(starts);
        for (auto &copy : copies) {
            copy = std::make_unique<Program>(ORVANTA_PROGRAM);
            copy->setEnvironment("TMPDIR", m_everybodys->path());
            copy->start();
        }
        const auto running = [&] {
            return std::count_if(copies.begin(), copies.end(),
                                 [](const auto &copy) { return copy->isRunning(); });
        };
        QTRY_COMPARE_WITH_TIMEOUT(running(), 1, 4 * patience);
        for (const auto &copy : copies)
            QVERIFY(copy->isRunning() || (!copy->hasCrashed() && copy->exitStatus() == 0));
        const auto first = std::find_if(copies.begin(), copies.end(),
                                        [](const auto &copy) { return copy->isRunning(); });
        const Desktop desktop;
        QTRY_VERIFY(!desktop.windowsOf((*first)->pid()).isEmpty());
        (*first)->terminate();
        QVERIFY((*first)->hasEndedWithin(patience));
    }
}

static qint64 timeToWindow(Program &program)
{
    const Desktop desktop;
    QElapsedTimer since;
    since.start();
    program.start();
    const bool came =
        QTest::qWaitFor([&] { return !desktop.windowsOf(program.pid()).isEmpty(); }, 2 * patience);
    return came ? since.elapsed() : qint64(2) * patience;
}

void TestManyUsers::aStoppedCopyHoldsTheNextUpForFiveSecondsAtMost()
{
    FaultTrial trial("a copy that stands still when the next is started", 1, 20);
    while (trial.next()) {
        Program first(ORVANTA_PROGRAM);
        first.setEnvironment("TMPDIR", m_everybodys->path());
        const qint64 usual = timeToWindow(first);
        QTest::qWait(trial.upTo(300)); // nothing to wait for: a moment
        first.stop();
        Program second(ORVANTA_PROGRAM);
        second.setEnvironment("TMPDIR", m_everybodys->path());
        const qint64 waited = timeToWindow(second);
        first.goOn();
        trial.addStandstill(waited);
        // The camera is in use, which takes its own time.
        QVERIFY2(waited < given + 4 * usual + 3000,
                 qPrintable(QStringLiteral("%1, usually %2").arg(waited).arg(usual)));
        QVERIFY(waited >= given);
    }
}

void TestManyUsers::anotherUserSeesAndChangesNothing()
{
    if (!canBeAnother())
        QSKIP("only root can be another user");
    FaultTrial trial("another user pries into the program's places", 1, 5);
    Session user(ORVANTA_PROGRAM, "cam1", QSize(640, 480));
    user.program().setEnvironment("TMPDIR", m_everybodys->path());
    QVERIFY(user.startLive());
    while (trial.next()) {
        QFile photo(area() + "/photo20240229101500001.png");
        QVERIFY(photo.open(QIODevice::WriteOnly) && photo.write("a child") > 0);
        photo.close();
        // That there is one to be forbidden anything:
        QCOMPARE(asAnother("test -d " + area()), 0);
        const QString lock = place("orvanta-") + "/Orvanta.lock";
        const QString socket = place("orvanta-") + "/Orvanta.socket";
        QVERIFY(QFile::exists(lock) && QFile::exists(socket));
        for (const QString &forbidden :
             {"ls " + area(), "cat " + photo.fileName(), "touch " + area() + "/photo2.png",
              "mkdir -p " + area() + "/tmp", "rm -r " + area(), "mv " + area() + " " + area() + "x",
              "flock -n " + lock + " true", "test -S " + socket, "rm -r " + place("orvanta-")})
            QVERIFY2(asAnother(forbidden + " 2>/dev/null") != 0, qPrintable(forbidden));
        QVERIFY(photo.exists());
        QVERIFY(user.isLiveAt(user.map().videoRect()));
    }
}

QVector<QByteArray> TestManyUsers::traps(const QString &place, const QString &victim)
{
    QVector<QByteArray> commands;
    for (const QString &command :
         {QStringLiteral("ln -s %2 %1"), QStringLiteral("mkdir -m 777 %1"),
          QStringLiteral("mkfifo -m 666 %1"), QStringLiteral("touch %1; chmod 666 %1"),
          QStringLiteral("ln -s /nowhere/at/all %1"), QStringLiteral("ln -s %1 %1")})
        commands.append(QString(command).replace("%1", place).replace("%2", victim).toUtf8());
    return commands;
}

// It comes up, and leaves what is not its own alone.
void TestManyUsers::expectTrapUnused(Session &user, const QByteArray &trap, const QString &victim)
{
    QCOMPARE(asAnother(QString::fromUtf8(trap)), 0);
    user.program().start();
    // Without an area there is no space for captures, which is told.
    const auto comesUp = [&] {
        if (user.dialog().isActive)
            user.desktop().pressKey("Return");
        return user.mainWindow().id != 0 && user.dialog().id == 0;
    };
    QVERIFY2(QTest::qWaitFor(comesUp, patience), trap.constData());
    user.program().terminate();
    QVERIFY2(user.program().hasEndedWithin(patience), trap.constData());
    QVERIFY2(!user.program().hasCrashed(), trap.constData());
    const QDir everything(m_everybodys->path());
    for (const QString &folder : everything.entryList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        const QFileInfo info(everything.filePath(folder));
        if (info.ownerId() == another.toUInt() && info.isDir())
            QVERIFY2(QDir(info.filePath()).isEmpty(), trap.constData());
    }
    QVERIFY2(QDir(victim).isEmpty(), trap.constData());
}

void TestManyUsers::whatAnotherUserHasPreparedIsNotUsed()
{
    if (!canBeAnother())
        QSKIP("only root can be another user");
    const QTemporaryDir victim("/tmp/orvanta-victim-XXXXXX");
    FaultTrial trial("another user was in the program's places before", 1, 12);
    Session user(ORVANTA_PROGRAM, "cam1", QSize(640, 480));
    user.program().setEnvironment("TMPDIR", m_everybodys->path());
    QVector<QByteArray> all = traps(area(), victim.path());
    all += traps(place("orvanta-"), victim.path());
    const int offset = trial.upTo(all.size() - 1);
    while (trial.next()) {
        expectTrapUnused(user, all[(offset + trial.tries()) % all.size()], victim.path());
        const QDir everything(m_everybodys->path());
        for (const QString &name :
             everything.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot))
            QCOMPARE(QProcess::execute("rm", {"-rf", everything.filePath(name)}), 0);
    }
}

QTEST_MAIN(TestManyUsers)
#include "tst_manyusers.moc"
