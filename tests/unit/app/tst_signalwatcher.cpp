#include "SignalWatcher.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTest>

#include <csignal>
#include <unistd.h>

class tst_SignalWatcher : public QObject {
    Q_OBJECT

private slots:
    void aRequestToEndArrivesFromTheEventLoop_data();
    void aRequestToEndArrivesFromTheEventLoop();
    void afterTheFirstSignalTheUsualEffectIsBack();
    void withoutAWatcherTheUsualEffectIsBack();
};

namespace {

bool endsTheProgram(int signal)
{
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_DFL;
}

} // namespace

void tst_SignalWatcher::aRequestToEndArrivesFromTheEventLoop_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
}

void tst_SignalWatcher::aRequestToEndArrivesFromTheEventLoop()
{
    QFETCH(int, signal);
    SignalWatcher watcher;
    QSignalSpy requested(&watcher, &SignalWatcher::terminationRequested);
    QVERIFY(!endsTheProgram(signal));
    QCOMPARE(kill(getpid(), signal), 0);
    QCOMPARE(requested.size(), 0);
    QTRY_COMPARE(requested.size(), 1);
}

void tst_SignalWatcher::afterTheFirstSignalTheUsualEffectIsBack()
{
    SignalWatcher watcher;
    QSignalSpy requested(&watcher, &SignalWatcher::terminationRequested);
    QCOMPARE(kill(getpid(), SIGTERM), 0);
    QTRY_COMPARE(requested.size(), 1);
    QVERIFY(endsTheProgram(SIGTERM));
    QVERIFY(!endsTheProgram(SIGINT));
}

void tst_SignalWatcher::withoutAWatcherTheUsualEffectIsBack()
{
    {
        SignalWatcher watcher;
        QVERIFY(!endsTheProgram(SIGTERM));
    }
    QVERIFY(endsTheProgram(SIGTERM));
    QVERIFY(endsTheProgram(SIGINT));
}

QTEST_GUILESS_MAIN(tst_SignalWatcher)
#include "tst_signalwatcher.moc"
