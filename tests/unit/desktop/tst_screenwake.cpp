#include "FakeDesktop.h"
#include "Patience.h"
#include "ScreenWake.h"

#include <QElapsedTimer>
#include <QLocalServer>
#include <QTemporaryDir>
#include <QTimer>

static const char commonName[] = "org.freedesktop.ScreenSaver";
static const char gnomesName[] = "org.gnome.SessionManager";
static constexpr int quietTime = 300; // ms
static constexpr int longEnough = 1500; // ms, in which what must not happen would have happened

/** What desktops are asked, and when, to keep the screen awake. */
class TestScreenWake : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theDesktopIsAskedWhileSomethingMoves();
    void theScreenMayBlankOnceNothingMoves();
    void theScreenMayBlankOnceTheWindowIsGone();
    void gnomeIsAskedWhereNobodyHasTheCommonName();
    void gnomeIsAskedWhereTheOtherRefuses();
    void changesInARowAreOneQuestion();
    void whatLeavesTheScreenAtOnceIsNotAskedFor();
    void anAnswerThatComesTooLateIsGivenBack();
    void anAnswerThatComesAfterTheWindowsEndIsGivenBack();
    void aBusThatCameBackIsAskedAgain();
    void withoutABusNobodyWaits();
    void aBusThatHangsLaterHoldsNobody();
    void aBusThatHangsHoldsNobody();

private:
    std::unique_ptr<PrivateBus> m_bus;
    QString m_moving;
    std::unique_ptr<ScreenWake> m_wake;
};

void TestScreenWake::init()
{
    m_bus = std::make_unique<PrivateBus>();
    QVERIFY(m_bus->start());
    m_moving = "Live picture";
    m_wake = std::make_unique<ScreenWake>("Orvanta", [this] { return m_moving; });
    m_wake->setQuietTime(quietTime);
}

void TestScreenWake::cleanup()
{
    m_wake.reset();
    m_bus.reset();
}

void TestScreenWake::theDesktopIsAskedWhileSomethingMoves()
{
    FakeDesktop desktop(*m_bus, commonName);
    FakeDesktop gnome(*m_bus, gnomesName);
    QVERIFY(desktop.isKnown() && gnome.isKnown());
    m_wake->lookSoon();
    QTRY_VERIFY(m_wake->isKept());
    QCOMPARE(desktop.calls, QStringList("Inhibit Orvanta, Live picture"));
    QCOMPARE(gnome.calls, QStringList());
}

void TestScreenWake::theScreenMayBlankOnceNothingMoves()
{
    FakeDesktop desktop(*m_bus, commonName);
    m_wake->lookSoon();
    QTRY_VERIFY(m_wake->isKept());
    desktop.calls.clear();
    m_moving.clear();
    m_wake->lookSoon();
    QTRY_COMPARE(desktop.calls, QStringList("UnInhibit 7"));
    QVERIFY(!m_wake->isKept());
    m_moving = "Movie";
    m_wake->lookSoon();
    QTRY_COMPARE(desktop.calls, QStringList({"UnInhibit 7", "Inhibit Orvanta, Movie"}));
}

void TestScreenWake::theScreenMayBlankOnceTheWindowIsGone()
{
    FakeDesktop desktop(*m_bus, commonName);
    m_wake->lookSoon();
    QTRY_VERIFY(m_wake->isKept());
    desktop.calls.clear();
    m_wake.reset();
    QTRY_COMPARE(desktop.calls, QStringList("UnInhibit 7"));
}

void TestScreenWake::gnomeIsAskedWhereNobodyHasTheCommonName()
{
    FakeDesktop gnome(*m_bus, gnomesName);
    m_wake->lookSoon();
    QTRY_VERIFY(m_wake->isKept());
    m_moving.clear();
    m_wake->lookSoon();
    QTRY_COMPARE(gnome.calls, QStringList({"Inhibit Orvanta, 0, Live picture, 8", "Uninhibit 7"}));
}

void TestScreenWake::gnomeIsAskedWhereTheOtherRefuses()
{
    FakeDesktop desktop(*m_bus, commonName);
    desktop.refuse();
    FakeDesktop gnome(*m_bus, gnomesName);
    m_wake->lookSoon();
    QTRY_VERIFY(m_wake->isKept());
    QCOMPARE(desktop.calls.size(), 1);
    QCOMPARE(gnome.calls, QStringList("Inhibit Orvanta, 0, Live picture, 8"));
}

void TestScreenWake::changesInARowAreOneQuestion()
{
    FakeDesktop desktop(*m_bus, commonName);
    for (int change = 0; change < 5; ++change) {
        m_wake->lookSoon();
        QTest::qWait(quietTime / 10); // nothing to wait for: time between changes
    }
    QTRY_VERIFY(m_wake->isKept());
    m_wake->lookSoon();
    QVERIFY(!QTest::qWaitFor([&] { return desktop.calls.size() != 1; }, longEnough));
}

void TestScreenWake::whatLeavesTheScreenAtOnceIsNotAskedFor()
{
    FakeDesktop desktop(*m_bus, commonName);
    m_wake->lookSoon();
    m_moving.clear();
    QVERIFY(!QTest::qWaitFor([&] { return !desktop.calls.isEmpty(); }, longEnough));
}

void TestScreenWake::anAnswerThatComesTooLateIsGivenBack()
{
    FakeDesktop desktop(*m_bus, commonName);
    desktop.hesitate();
    m_wake->lookSoon();
    QTRY_COMPARE(desktop.calls.size(), 1);
    m_moving.clear();
    desktop.answer();
    QTRY_COMPARE(desktop.calls.value(1), QString("UnInhibit 7"));
    QVERIFY(!m_wake->isKept());
}

void TestScreenWake::anAnswerThatComesAfterTheWindowsEndIsGivenBack()
{
    FakeDesktop desktop(*m_bus, commonName);
    desktop.hesitate();
    m_wake->lookSoon();
    QTRY_COMPARE(desktop.calls.size(), 1);
    m_wake.reset();
    desktop.answer();
    QTRY_COMPARE(desktop.calls.value(1), QString("UnInhibit 7"));
}

void TestScreenWake::aBusThatCameBackIsAskedAgain()
{
    auto desktop = std::make_unique<FakeDesktop>(*m_bus, commonName);
    m_wake->lookSoon();
    QTRY_VERIFY(m_wake->isKept());
    m_moving.clear();
    m_wake->lookSoon();
    QTRY_VERIFY(!m_wake->isKept());
    m_bus->end();
    QVERIFY(m_bus->start());
    desktop.reset(); // or its successor would have the old connection
    desktop = std::make_unique<FakeDesktop>(*m_bus, commonName);
    QVERIFY(desktop->isKnown());
    m_moving = "Live picture";
    m_wake->lookSoon();
    QTRY_COMPARE(desktop->calls, QStringList("Inhibit Orvanta, Live picture"));
}

// Nor is one started, as the library would do it.
void TestScreenWake::withoutABusNobodyWaits()
{
    m_bus->end();
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    m_wake->lookSoon();
    QTRY_VERIFY(m_wake->isKept()); // by the X server, if there is one
    m_moving.clear();
    m_wake->lookSoon();
    QTRY_VERIFY(!m_wake->isKept());
}

// Runs the event loop until the condition holds or the time (ms) is over; how long it stood still
// at most (ms).
template <typename Condition> static qint64 longestPauseUntil(Condition holds, int limit)
{
    qint64 longestPause = 0;
    QElapsedTimer sinceTick;
    sinceTick.start();
    QTimer ticks;
    ticks.callOnTimeout([&] { longestPause = qMax(longestPause, sinceTick.restart()); });
    ticks.start(20);
    const bool isReached = QTest::qWaitFor(holds, limit);
    longestPause = qMax(longestPause, sinceTick.elapsed());
    return isReached ? longestPause : qint64(limit);
}

void TestScreenWake::aBusThatHangsLaterHoldsNobody()
{
    FakeDesktop desktop(*m_bus, commonName);
    m_wake->lookSoon();
    QTRY_VERIFY(m_wake->isKept());
    m_bus->hang();
    m_moving.clear();
    m_wake->lookSoon();
    const qint64 pause = longestPauseUntil([this] { return !m_wake->isKept(); }, patience);
    QVERIFY2(pause < 5000, qPrintable(QString::number(pause)));
    m_bus->goOn();
    QTRY_COMPARE(desktop.calls.value(1), QString("UnInhibit 7"));
}

void TestScreenWake::aBusThatHangsHoldsNobody()
{
    m_bus->end();
    const QTemporaryDir folder("/tmp/bus-XXXXXX");
    QLocalServer silent;
    QVERIFY(silent.listen(folder.filePath("silent")));
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + silent.fullServerName().toLocal8Bit());
    m_wake->lookSoon();
    // The library itself gives up after twenty-five seconds.
    const qint64 pause =
        longestPauseUntil([&] { return silent.hasPendingConnections(); }, patience);
    QVERIFY2(pause < 5000, qPrintable(QString::number(pause)));
    m_moving.clear();
    m_wake->lookSoon();
    QVERIFY(!QTest::qWaitFor([this] { return m_wake->isKept(); }, longEnough));
    QElapsedTimer end;
    end.start();
    m_wake.reset();
    QVERIFY2(end.elapsed() < 5000, qPrintable(QString::number(end.elapsed())));
}

QTEST_MAIN(TestScreenWake)
#include "tst_screenwake.moc"
