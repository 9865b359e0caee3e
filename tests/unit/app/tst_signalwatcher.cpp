#include "Patience.h"
#include "SignalWatcher.h"

#include <QMessageBox>
#include <QTimer>
#include <QWidget>

#include <csignal>
#include <unistd.h>

class tst_SignalWatcher : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aSignalClosesTheWindowFromTheEventLoop_data();
    void aSignalClosesTheWindowFromTheEventLoop();
    void boxesAreClosedBeforeTheWindow();
    void afterTheFirstSignalTheUsualEffectIsBack();
    void withoutAWatcherTheUsualEffectIsBack();
    void whatWasIgnoredStaysIgnored();
};

namespace {

bool endsTheProgram(int signal)
{
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler == SIG_DFL;
}

} // namespace

void tst_SignalWatcher::aSignalClosesTheWindowFromTheEventLoop_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void tst_SignalWatcher::aSignalClosesTheWindowFromTheEventLoop()
{
    QFETCH(int, signal);
    QWidget window;
    window.show();
    SignalWatcher watcher(&window);
    QVERIFY(!endsTheProgram(signal));
    QVERIFY(!SignalWatcher::hasCome());
    QCOMPARE(kill(getpid(), signal), 0);
    QVERIFY(window.isVisible());
    QVERIFY2(SignalWatcher::hasCome(), "it is known before the event loop runs");
    QTRY_VERIFY(!window.isVisible());
}

void tst_SignalWatcher::boxesAreClosedBeforeTheWindow()
{
    QWidget window;
    window.show();
    SignalWatcher watcher(&window);
    QTimer limit; // a box that stays open would hold up the test for ever
    connect(&limit, &QTimer::timeout, qApp, [] { qFatal("a box was left open"); });
    limit.start(20000);

    QCOMPARE(kill(getpid(), SIGTERM), 0);
    for (const char *text : {"first", "the flow goes on with a second"}) {
        QMessageBox box(QMessageBox::Warning, "Orvanta", text, QMessageBox::Ok, &window);
        box.exec();
        QVERIFY2(window.isVisible(), text);
    }
    QTRY_VERIFY(!window.isVisible());
}

void tst_SignalWatcher::afterTheFirstSignalTheUsualEffectIsBack()
{
    QWidget window;
    window.show();
    SignalWatcher watcher(&window);
    QCOMPARE(kill(getpid(), SIGTERM), 0);
    QTRY_VERIFY(!window.isVisible());
    QVERIFY(endsTheProgram(SIGTERM));
    QVERIFY(!endsTheProgram(SIGINT));
}

void tst_SignalWatcher::withoutAWatcherTheUsualEffectIsBack()
{
    QWidget window;
    {
        SignalWatcher watcher(&window);
        QVERIFY(!endsTheProgram(SIGTERM));
    }
    QVERIFY(endsTheProgram(SIGTERM));
    QVERIFY(endsTheProgram(SIGINT));
}

// Started by "nohup" it is to outlive its terminal.
void tst_SignalWatcher::whatWasIgnoredStaysIgnored()
{
    std::signal(SIGHUP, SIG_IGN);
    {
        QWidget window;
        window.show();
        const SignalWatcher watcher(&window);
        QCOMPARE(kill(getpid(), SIGHUP), 0);
        QVERIFY(!SignalWatcher::hasCome());
        QVERIFY(!QTest::qWaitFor([&] { return !window.isVisible(); }, 200));
    }
    QVERIFY(std::signal(SIGHUP, SIG_DFL) == SIG_IGN);
}

QTEST_MAIN(tst_SignalWatcher)
#include "tst_signalwatcher.moc"
