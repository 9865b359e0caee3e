#include "BoxGlance.h"
#include "CWMUpdateTimer.h"
#include "DialogFixture.h"
#include "FakeEngine.h"
#include "LiveVideoWidget.h"
#include "Patience.h"
#include "TimerWidget.h"

#include <QApplication>
#include <QDialog>
#include <QTimer>

namespace {

constexpr int fastMs = 10; // a period that tests can wait for
constexpr int severalPeriodsMs = 150;

/** Counts how often the window looks whether it is still in front. */
class Looks : public QObject {
public:
    Looks() { qApp->installEventFilter(this); }

    // Whether the window looks at all within the time.
    bool goOn(int milliseconds) const
    {
        const int before = m_count;
        return QTest::qWaitFor([&] { return m_count > before; }, milliseconds);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Timer && dynamic_cast<CWMUpdateTimer *>(watched))
            ++m_count;
        return false;
    }

private:
    int m_count = 0;
};

/** What the user finds when a box is open: whether the window would push itself in front of it. */
class BoxWatch {
public:
    explicit BoxWatch(const Looks &looks)
        : m_glance([this, &looks](QWidget &box) {
            ++boxes;
            if (looks.goOn(severalPeriodsMs))
                ++boxesCovered;
            box.close();
        })
    {
    }

    int boxes = 0;
    int boxesCovered = 0;

private:
    BoxGlance m_glance;
};

void nothing(DialogFixture &) { }

void fillTheDisk(DialogFixture &)
{
    DialogFixture::fillTheDisk();
}

} // namespace

using Deed = void (*)(DialogFixture &);
Q_DECLARE_METATYPE(Deed)

/** The window keeps itself in front of others until a flow begins or a box is shown. */
class RaisingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aFreshWindowKeepsItselfInFront();
    void aFlowEndsTheRaising_data();
    void aFlowEndsTheRaising();
    void noBoxIsCovered_data();
    void noBoxIsCovered();
    void theChooserIsNotCoveredAndTheRaisingGoesOnAfterwards();
};

void RaisingTest::aFreshWindowKeepsItselfInFront()
{
    DialogFixture fixture;
    fixture.build();
    const Looks looks;
    QVERIFY(looks.goOn(patience));
}

void RaisingTest::aFlowEndsTheRaising_data()
{
    QTest::addColumn<Deed>("before");
    QTest::addColumn<Deed>("flow");
    QTest::newRow("a photo") << Deed(nothing) << Deed([](DialogFixture &f) { f.click("Photo"); });
    QTest::newRow("a series") << Deed(nothing)
                              << Deed([](DialogFixture &f) { f.click("PhotoMulti"); });
    QTest::newRow("a photo of a series")
        << Deed([](DialogFixture &f) { f.click("PhotoMulti"); })
        << Deed([](DialogFixture &f) { Q_EMIT f.child<TimerWidget>().shot(); });
    QTest::newRow("a movie") << Deed(nothing) << Deed([](DialogFixture &f) { f.click("Movie"); });
    QTest::newRow("the list") << Deed(nothing) << Deed([](DialogFixture &f) { f.click("List"); });
    QTest::newRow("leaving") << Deed(nothing) << Deed([](DialogFixture &f) { f.click("Close"); });
}

void RaisingTest::aFlowEndsTheRaising()
{
    QFETCH(Deed, before);
    QFETCH(Deed, flow);
    DialogFixture fixture;
    fixture.build();
    before(fixture);
    fixture.dialog().start_window(fastMs);
    const Looks looks;
    QVERIFY(looks.goOn(patience));
    flow(fixture);
    QVERIFY(!looks.goOn(severalPeriodsMs));
}

void RaisingTest::noBoxIsCovered_data()
{
    QTest::addColumn<Deed>("before");
    QTest::addColumn<Deed>("flow");
    QTest::newRow("settings") << Deed(nothing)
                              << Deed([](DialogFixture &f) { f.click("Settings"); });
    QTest::newRow("question at exit") << Deed([](DialogFixture &f) {
        f.click("Photo");
        f.click("Apply");
    }) << Deed([](DialogFixture &f) { f.click("Close"); });
    QTest::newRow("full disk at a photo")
        << Deed(fillTheDisk) << Deed([](DialogFixture &f) { f.click("Photo"); });
    QTest::newRow("full disk at a series")
        << Deed(fillTheDisk) << Deed([](DialogFixture &f) { f.click("PhotoMulti"); });
    QTest::newRow("full disk at a movie")
        << Deed(fillTheDisk) << Deed([](DialogFixture &f) { f.click("Movie"); });
    QTest::newRow("full disk at the live picture") << Deed([](DialogFixture &f) {
        f.click("List");
        DialogFixture::fillTheDisk();
    }) << Deed([](DialogFixture &f) { f.click("Live"); });
    QTest::newRow("no microphone at a movie")
        << Deed([](DialogFixture &) { FakeEngine::script().audioDeviceValid = false; })
        << Deed([](DialogFixture &f) { f.click("Movie"); });
    QTest::newRow("no microphone at the start") << Deed([](DialogFixture &f) {
        FakeEngine::script().audioDeviceValid = false;
        f.click("List");
        f.child<LiveVideoWidget>().Release();
        f.click("Live"); // opens the devices anew
    }) << Deed([](DialogFixture &f) { f.dialog().chkdevice(); });
    QTest::newRow("lost camera") << Deed(nothing)
                                 << Deed([](DialogFixture &) { FakeEngine::loseCamera(); });
    QTest::newRow("broken recording") << Deed([](DialogFixture &f) { f.click("Movie"); })
                                      << Deed([](DialogFixture &) { FakeEngine::endRecording(); });
}

void RaisingTest::noBoxIsCovered()
{
    QFETCH(Deed, before);
    QFETCH(Deed, flow);
    DialogFixture fixture;
    fixture.build();
    before(fixture);
    fixture.dialog().start_window(fastMs);
    const Looks looks;
    QVERIFY(looks.goOn(patience));
    const BoxWatch user(looks);
    flow(fixture);
    QVERIFY(user.boxes > 0);
    QCOMPARE(user.boxesCovered, 0);
    QVERIFY(!looks.goOn(severalPeriodsMs)); // it stays where the user puts it
}

void RaisingTest::theChooserIsNotCoveredAndTheRaisingGoesOnAfterwards()
{
    constexpr int longerThanThePeriodMs = 1200;
    DialogFixture fixture;
    FakeEngine::script().deviceNames = QStringList{"A", "B"};
    const Looks looks;
    bool isCovered = false;
    QTimer::singleShot(0, [&] {
        QTRY_VERIFY(QApplication::activeModalWidget());
        isCovered = looks.goOn(longerThanThePeriodMs);
        static_cast<QDialog *>(QApplication::activeModalWidget())->accept();
    });
    fixture.build();
    QVERIFY(fixture.dialog().isDeviceSelected());
    QVERIFY(!isCovered);
    QVERIFY(looks.goOn(patience));
}

QTEST_MAIN(RaisingTest)
#include "tst_cvistreldlg_raising.moc"
