#include "CWindowManagement.h"
#include "FakeXlib.h"
#include "Patience.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QWidget>

namespace {

QStringList raised(unsigned long window)
{
    const QString id = QString::number(window);
    return {"XChangeWindowAttributes " + id + " override",
            "XMapRaised " + id,
            "XRaiseWindow " + id,
            "XMapRaised " + id,
            "XChangeWindowAttributes " + id + " managed",
            "XFlush"};
}

QStringList clientRaised(unsigned long window)
{
    return QStringList("XQueryTree " + QString::number(window)) + raised(window);
}

// A step costs nothing here and can be counted.
class CountingManagement : public CWindowManagement {
public:
    using CWindowManagement::CWindowManagement;
    void update_window() override { ++steps; }
    int steps = 0;
};

// As the main window is built: the raising gets a widget of which only QWidget exists yet.
class HalfBuilt : public QWidget, public CWindowManagement {
public:
    HalfBuilt()
        : CWindowManagement(this, 5, true, QString())
    {
    }
};

// The window of another program that has come in front of a widget on the screen.
class OtherWindow : public QWidget {
public:
    explicit OtherWindow(QWidget &behind)
    {
        behind.show();
        show();
        activateWindow();
        m_isInFront = QTest::qWaitForWindowExposed(&behind) && QTest::qWaitForWindowActive(this);
    }
    bool isInFront() const { return m_isInFront; }

private:
    bool m_isInFront = false;
};

constexpr int never = 60000; // ms, a period in which no step falls into a test

} // namespace

class tst_CWindowManagement : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { FakeXlib::reset(); }

    void withoutAWidgetNothingEverHappens();
    void stepsComeFromConstructionUntilItIsStopped();
    void startingAgainTakesTheNewPeriod();
    void aWidgetMayHandItselfOverWhileItIsBuilt();

    void theActiveWidgetIsLeftAlone();
    void anInactiveWidgetIsRaised();
    void aWindowThatWasNeverOnScreenIsLeftToTheWindowManager();
    void aWindowThatWasOnScreenIsBroughtBack();
    void parentsAreRaisedFirstAndOutermostFirst();
    void parentsAreLeftAloneUnlessAskedFor();

    void theFrameOfAWindowIsRaisedBeforeTheWindow();
    void aWindowThatIsGoneIsNotRaised();
    void theListOfChildrenIsFreed();
    void withoutX11NothingIsRaised();

    void theProcessCountIsReadFromTheLine_data();
    void theProcessCountIsReadFromTheLine();
    void aRunningProgramIsFoundByItsNameAndSuspendsTheRaising();
};

void tst_CWindowManagement::withoutAWidgetNothingEverHappens()
{
    CountingManagement management(nullptr, 1, true, QString());
    management.start_window(1);
    QTest::qWait(30); // nothing to wait for: a step that must not come
    QCOMPARE(management.steps, 0);
    management.stop_window();
    management.CWindowManagement::update_window();
    management.raiseParentWidgetTop(nullptr);
    QCOMPARE(FakeXlib::calls, QStringList());
}

void tst_CWindowManagement::stepsComeFromConstructionUntilItIsStopped()
{
    QWidget widget;
    CountingManagement management(&widget, 5, true, QString());
    QTRY_VERIFY(management.steps >= 2);
    management.stop_window();
    const int before = management.steps;
    QTest::qWait(50); // nothing to wait for: a step that must not come
    QCOMPARE(management.steps, before);
    management.start_window(5);
    QTRY_VERIFY(management.steps > before);
}

void tst_CWindowManagement::startingAgainTakesTheNewPeriod()
{
    QWidget widget;
    CountingManagement management(&widget, 5, true, QString());
    management.start_window(never);
    QTest::qWait(50); // nothing to wait for: a step that must not come
    QCOMPARE(management.steps, 0);
}

void tst_CWindowManagement::aWidgetMayHandItselfOverWhileItIsBuilt()
{
    HalfBuilt widget;
    const OtherWindow other(widget);
    QVERIFY(other.isInFront());
    QTRY_VERIFY(FakeXlib::calls.contains("XRaiseWindow " + QString::number(widget.winId())));
}

void tst_CWindowManagement::theActiveWidgetIsLeftAlone()
{
    QWidget widget;
    widget.show();
    widget.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&widget));
    CWindowManagement management(&widget, never, true, QString());
    management.update_window();
    QCOMPARE(FakeXlib::calls, QStringList());
}

void tst_CWindowManagement::anInactiveWidgetIsRaised()
{
    QWidget widget;
    CWindowManagement management(&widget, never, true, QString());
    const OtherWindow other(widget);
    QVERIFY(other.isInFront());
    management.update_window();
    QCOMPARE(FakeXlib::calls, clientRaised(widget.winId()));
}

void tst_CWindowManagement::aWindowThatWasNeverOnScreenIsLeftToTheWindowManager()
{
    QWidget widget;
    widget.winId(); // there is a window, but it has not been mapped yet
    CWindowManagement management(&widget, never, true, QString());
    management.update_window();
    QCOMPARE(FakeXlib::calls, QStringList());
}

void tst_CWindowManagement::aWindowThatWasOnScreenIsBroughtBack()
{
    QWidget widget;
    CWindowManagement management(&widget, never, true, QString());
    const OtherWindow other(widget);
    QVERIFY(other.isInFront());
    management.update_window();
    FakeXlib::calls.clear();
    widget.hide();
    management.update_window();
    QCOMPARE(FakeXlib::calls, clientRaised(widget.winId()));
}

void tst_CWindowManagement::parentsAreRaisedFirstAndOutermostFirst()
{
    QWidget outer;
    QWidget inner(&outer);
    QWidget widget(&inner);
    CWindowManagement management(&widget, never, true, QString());
    const OtherWindow other(outer);
    QVERIFY(other.isInFront());
    management.update_window();
    QCOMPARE(FakeXlib::calls,
             clientRaised(outer.winId()) + clientRaised(inner.winId())
                 + clientRaised(widget.winId()));
}

void tst_CWindowManagement::parentsAreLeftAloneUnlessAskedFor()
{
    QWidget outer;
    QWidget widget(&outer);
    CWindowManagement management(&widget, never, false, QString());
    const OtherWindow other(outer);
    QVERIFY(other.isInFront());
    management.update_window();
    QCOMPARE(FakeXlib::calls, clientRaised(widget.winId()));
}

void tst_CWindowManagement::theFrameOfAWindowIsRaisedBeforeTheWindow()
{
    FakeXlib::frame = 70;
    CWindowManagement(nullptr, never, false, QString()).raiseQtWindowTop(7);
    QCOMPARE(FakeXlib::calls, QStringList("XQueryTree 7") + raised(70) + raised(7));
}

void tst_CWindowManagement::aWindowThatIsGoneIsNotRaised()
{
    FakeXlib::queryFails = true;
    FakeXlib::frame = 70;
    CWindowManagement(nullptr, never, false, QString()).raiseQtWindowTop(7);
    QCOMPARE(FakeXlib::calls, QStringList("XQueryTree 7"));
}

void tst_CWindowManagement::theListOfChildrenIsFreed()
{
    FakeXlib::returnsChildren = true;
    CWindowManagement(nullptr, never, false, QString()).raiseQtWindowTop(7);
    QCOMPARE(FakeXlib::calls, QStringList({"XQueryTree 7", "XFree"}) + raised(7));
}

void tst_CWindowManagement::withoutX11NothingIsRaised()
{
    QWidget parent;
    QWidget widget(&parent);
    CWindowManagement management(&widget, never, true, QString());
    const OtherWindow other(parent);
    QVERIFY(other.isInFront());
    FakeXlib::connected = false;
    management.update_window();
    management.raiseQtWindowTop(7);
    management.raiseWindowTop(7);
    QCOMPARE(FakeXlib::calls, QStringList());
}

void tst_CWindowManagement::theProcessCountIsReadFromTheLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<bool>("running");
    QTest::newRow("none") << QByteArray("0\n") << false;
    QTest::newRow("one") << QByteArray("1\n") << true;
    QTest::newRow("many, padded") << QByteArray("      12\n") << true;
    QTest::newRow("nothing was read") << QByteArray() << false;
    QTest::newRow("an error text") << QByteArray("sh: 1: ps: not found\n") << false;
    QTest::newRow("negative") << QByteArray("-1\n") << false;
}

void tst_CWindowManagement::theProcessCountIsReadFromTheLine()
{
    QFETCH(QByteArray, line);
    QTEST(CWindowManagement::statesProcesses(line.constData()), "running");
}

void tst_CWindowManagement::aRunningProgramIsFoundByItsNameAndSuspendsTheRaising()
{
    const QString name =
        QStringLiteral("orvantaboardstandin%1").arg(QCoreApplication::applicationPid());
    QTemporaryDir dir;
    const QString program = dir.filePath(name);
    QVERIFY(QFile::copy("/bin/sleep", program));

    QWidget widget;
    CWindowManagement management(&widget, never, true, name);
    const OtherWindow other(widget);
    QVERIFY(other.isInFront());
    std::string plain = name.toStdString();
    QVERIFY(!management.isRunning(plain));
    management.update_window();
    QCOMPARE(FakeXlib::calls, clientRaised(widget.winId()));
    FakeXlib::calls.clear();

    QProcess board;
    board.start(program, {"60"});
    QVERIFY(board.waitForStarted());
    QTRY_VERIFY(management.isRunning(plain));
    management.update_window();
    QCOMPARE(FakeXlib::calls, QStringList());

    board.kill();
    QVERIFY(board.waitForFinished());
    management.update_window();
    QCOMPARE(FakeXlib::calls, clientRaised(widget.winId()));
}

QTEST_MAIN(tst_CWindowManagement)
#include "tst_cwindowmanagement.moc"
