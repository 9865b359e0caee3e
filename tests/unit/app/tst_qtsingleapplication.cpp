#include "Patience.h"
#include "QtSingleApplication.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <vector>

#include <csignal>
#include <unistd.h>

namespace {

constexpr int delivered = 0; // exit status of a copy that found another one
constexpr int ranAlone = 1; // and of one that ran until its input ended

// One process of the program under test, with the temporary folder that it shares with its like.
class Copy {
public:
    Copy(const QString &temporary, int timeoutMs, const QString &session = QString())
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR", temporary);
        environment.insert("XDG_RUNTIME_DIR", session);
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        QObject::connect(&m_process, &QProcess::readyReadStandardOutput,
                         [this] { m_output += m_process.readAllStandardOutput(); });
        m_process.start(COPY_OF_ONE, {QString::number(timeoutMs)});
    }
    ~Copy()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    QByteArray output() const { return m_output; }
    bool runs() const { return m_output.startsWith("runs\n"); }
    bool hasEnded() const { return m_process.state() == QProcess::NotRunning; }
    bool foundAnother() const
    {
        return hasEnded() && m_process.exitStatus() == QProcess::NormalExit
            && m_process.exitCode() == delivered;
    }
    int exitCode() const { return m_process.exitCode(); }
    void endInput() { m_process.closeWriteChannel(); }
    void send(int signal) { kill(pid_t(m_process.processId()), signal); }

private:
    QProcess m_process;
    QByteArray m_output;
};

} // namespace

class tst_QtSingleApplication : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aSecondCopyEndsWithZeroAndTheFirstStaysAsItWas();
    void theNextCopyRunsAfterTheFirstHasEnded();
    void aCrashedFirstDoesNotHoldUpTheNextOne();
    void ofCopiesStartedAtOnceExactlyOneRuns();
    void aStuckFirstIsGivenUpAfterTheTime();
    void aFirstInAModalDialogStillAnswers();
    void copiesOfSeveralSessionsMeet();
    void copiesMeetThoughTheirPlaceIsTaken();
    void copiesWithOtherTemporaryFoldersRunBesideEachOther();

private:
    QString folder() const
    {
        return m_temporary->path() + "/orvanta-" + QString::number(geteuid());
    }

    QScopedPointer<QTemporaryDir> m_temporary;
};

void tst_QtSingleApplication::init()
{
    m_temporary.reset(new QTemporaryDir);
    QVERIFY(m_temporary->isValid());
}

void tst_QtSingleApplication::aSecondCopyEndsWithZeroAndTheFirstStaysAsItWas()
{
    Copy first(m_temporary->path(), 5000);
    QTRY_VERIFY(first.runs());
    for (int i = 1; i <= 3; ++i) {
        QElapsedTimer time;
        time.start();
        Copy second(m_temporary->path(), 5000);
        QTRY_VERIFY_WITH_TIMEOUT(second.hasEnded(), 10000);
        QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
        QVERIFY(second.foundAnother());
        QCOMPARE(second.output(), QByteArray());
        QTRY_COMPARE(first.output(), "runs\n" + QByteArray("got Wake up!\n").repeated(i));
        QVERIFY(!first.hasEnded());
    }
}

void tst_QtSingleApplication::theNextCopyRunsAfterTheFirstHasEnded()
{
    Copy first(m_temporary->path(), 5000);
    QTRY_VERIFY(first.runs());
    first.endInput();
    QTRY_VERIFY(first.hasEnded());
    QCOMPARE(first.exitCode(), ranAlone);
    Copy next(m_temporary->path(), 5000);
    QTRY_VERIFY(next.runs());
}

void tst_QtSingleApplication::aCrashedFirstDoesNotHoldUpTheNextOne()
{
    for (int i = 0; i < 3; ++i) {
        // A copy that waited for the dead one would not run within the time that is given here.
        Copy copy(m_temporary->path(), 60000);
        QTRY_VERIFY(copy.runs());
        copy.send(SIGKILL);
        QTRY_VERIFY(copy.hasEnded());
        QVERIFY(QFile::exists(folder() + "/OrvantaTest.socket"));
    }
}

void tst_QtSingleApplication::ofCopiesStartedAtOnceExactlyOneRuns()
{
    for (int round = 0; round < 4; ++round) {
        std::vector<std::unique_ptr<Copy>> copies(3);
        for (auto &copy : copies)
            copy = std::make_unique<Copy>(m_temporary->path(), 20000);
        const auto count = [&](bool (Copy::*is)() const) {
            return std::count_if(copies.begin(), copies.end(),
                                 [is](const auto &copy) { return ((*copy).*is)(); });
        };
        QTRY_COMPARE_WITH_TIMEOUT(count(&Copy::foundAnother), 2, 20000);
        QTRY_COMPARE(count(&Copy::runs), 1);
    }
}

void tst_QtSingleApplication::aStuckFirstIsGivenUpAfterTheTime()
{
    Copy first(m_temporary->path(), 5000);
    QTRY_VERIFY(first.runs());
    first.send(SIGSTOP);
    QElapsedTimer time;
    time.start();
    Copy second(m_temporary->path(), 700);
    QTRY_COMPARE_WITH_TIMEOUT(second.output(), QByteArray("runs beside another\n"), 10000);
    QVERIFY2(time.elapsed() >= 690, qPrintable(QString::number(time.elapsed())));

    // Once it has come to itself it is the one that answers.
    first.send(SIGCONT);
    Copy third(m_temporary->path(), 5000);
    QTRY_VERIFY(third.foundAnother());
}

void tst_QtSingleApplication::aFirstInAModalDialogStillAnswers()
{
    auto *application = static_cast<QtSingleApplication *>(qApp);
    QVERIFY(!application->isRunning());
    QVERIFY(!application->sendMessage("Wake up!", 60000));
    QSignalSpy received(application, &QtSingleApplication::messageReceived);

    QProcess second;
    second.start(COPY_OF_ONE, {"5000"});
    QDialog question;
    connect(&second, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &question,
            &QDialog::accept);
    QTimer limit;
    connect(&limit, &QTimer::timeout, &question, &QDialog::reject);
    limit.start(20000);
    QCOMPARE(question.exec(), int(QDialog::Accepted));
    QCOMPARE(second.exitStatus(), QProcess::NormalExit);
    QCOMPARE(second.exitCode(), delivered);
    QTRY_COMPARE(received.size(), 1);
    QCOMPARE(received.first().first().toString(), QString("Wake up!"));
}

void tst_QtSingleApplication::copiesOfSeveralSessionsMeet()
{
    // On the desktop, from another desktop, and by "su", where there is no session.
    const QTemporaryDir desktop;
    const QTemporaryDir another;
    Copy first(m_temporary->path(), 20000, desktop.path());
    QTRY_VERIFY(first.runs());
    for (const QString &session : {another.path(), QString()}) {
        Copy second(m_temporary->path(), 20000, session);
        QTRY_VERIFY_WITH_TIMEOUT(second.foundAnother(), 20000);
    }
    QVERIFY(!first.hasEnded());
}

// By somebody else, who could do so in a folder that is everybody's.
void tst_QtSingleApplication::copiesMeetThoughTheirPlaceIsTaken()
{
    QVERIFY(QFile(folder()).open(QIODevice::WriteOnly));
    const QTemporaryDir session;
    Copy first(m_temporary->path(), 20000, session.path());
    QTRY_VERIFY(first.runs());
    Copy second(m_temporary->path(), 20000, session.path());
    QTRY_VERIFY_WITH_TIMEOUT(second.hasEnded() || second.runs(), 20000);
    QVERIFY(second.foundAnother());
    QVERIFY(!first.hasEnded());
}

void tst_QtSingleApplication::copiesWithOtherTemporaryFoldersRunBesideEachOther()
{
    const QTemporaryDir another;
    const QTemporaryDir session;
    Copy first(m_temporary->path(), 20000, session.path());
    Copy second(another.path(), 20000, session.path());
    QTRY_VERIFY(first.runs());
    QTRY_VERIFY(second.runs());
}

// The test is itself a first copy, in a temporary folder of its own that its processes get from it.
int main(int argc, char **argv)
{
    const QTemporaryDir temporary;
    qputenv("TMPDIR", QFile::encodeName(temporary.path()));
    QtSingleApplication application("OrvantaTest", argc, argv);
    tst_QtSingleApplication test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_qtsingleapplication.moc"
