#include "FaultTrial.h"
#include "LabCommands.h"
#include "Patience.h"
#include "Session.h"
#include "SpareTime.h"
#include "WindowPing.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QScreen>

#include <memory>

/**
 * Somebody who presses anything at any time, in the real program, with mouse and keyboard, while
 * the cables of camera and microphone are pulled and put back and the screen is set to another
 * resolution.
 */
class TestMonkeyOutside : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void anyoneMayPressAnythingAtAnyTime();

private:
    void doAnything(FaultTrial &trial);
    void pressAnywhere(FaultTrial &trial);
    void pressAKey(FaultTrial &trial);
    void changeACable(FaultTrial &trial);
    bool setScreen(const QRect &area);
    void changeTheScreen();
    void look(FaultTrial &trial);
    int kept() const;
    void putAllBack();

    std::unique_ptr<Session> m_user;
    WindowPing m_ping;
    QStringList m_done; // for who reads of a failure
    bool m_mayLose = false; // what was done may have thrown something away
    int m_kept = 0;
    qint64 m_longest = 0; // ms without an answer, in this try
    bool m_hasCamera = true;
    bool m_hasMicrophone = true;
    QRect m_screen; // px, of the window
};

static const QSize cameraSize(1280, 720);
// The right one of two.
static const QRect large(1024, 0, 1024, 768);
static const QRect small(1024, 0, 800, 600);
static const int eventsUsually = 80;
static const int eventsOfTheWhole = 300;
static const int pingLimit = 30000; // ms; longer is no answer
static const int answerLimit = 2000; // ms
static const int starvedFactor = 10;

void TestMonkeyOutside::init()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    QVERIFY(setScreen(large));
    // The window manager tells what is free of it a moment later.
    QTRY_COMPARE(QGuiApplication::primaryScreen()->availableGeometry(), large);
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", cameraSize, large);
}

void TestMonkeyOutside::cleanup()
{
    if (QTest::currentTestFailed())
        qWarning("%s\n%s", qPrintable(m_done.join('\n')), qPrintable(m_user->program().output()));
    m_user.reset();
    putAllBack();
}

void TestMonkeyOutside::putAllBack()
{
    if (!m_hasCamera)
        m_hasCamera = labctl({"plug", "cam1", "1280x720"});
    if (!m_hasMicrophone)
        m_hasMicrophone = labctl({"microphone", "on"});
}

bool TestMonkeyOutside::setScreen(const QRect &area)
{
    m_screen = area;
    const QString mode = QString("%1x%2").arg(area.width()).arg(area.height());
    return QProcess::execute("xrandr", {"--output", "DUMMY1", "--mode", mode}) == 0;
}

void TestMonkeyOutside::changeTheScreen()
{
    QVERIFY(setScreen(m_screen == large ? small : large));
    m_done.append(m_screen == large ? "screen large" : "screen small");
    // One that is about to end follows no more.
    QVERIFY(m_user->waitForMainWindowAt(m_screen) || !m_user->program().isRunning());
}

// Captures, wherever they are.
int TestMonkeyOutside::kept() const
{
    int count = 0;
    for (const QString &folder :
         {m_user->program().temporaryArea(), m_user->program().home() + "/TavelinCamera"}) {
        QDirIterator files(folder, {"photo*.png", "movie*.mov"}, QDir::Files,
                           QDirIterator::Subdirectories);
        for (; files.hasNext(); files.next())
            ++count;
    }
    return count;
}

// Half of the presses are at what looks like a button; the rest hits anything.
void TestMonkeyOutside::pressAnywhere(FaultTrial &trial)
{
    const WindowMap &map = m_user->map();
    const auto kind = WindowMap::Screen(trial.upTo(WindowMap::PlayingScreen));
    static const QStringList names{"Live",      "Photo",       "PhotoMulti",  "Movie",
                                   "MovieStop", "List",        "Settings",    "Close",
                                   "Apply",     "Retry",       "MoviePlay",   "MoviePause",
                                   "Show",      "SwitchPhoto", "SwitchMovie", "PutPhoto"};
    const QRect button = map.button(kind, names.at(trial.upTo(names.size() - 1)));
    QPoint at = button.center();
    const Desktop::Window box = m_user->dialog();
    if (box.id && trial.upTo(3) > 0)
        at = box.geometry.topLeft()
            + QPoint(trial.upTo(box.geometry.width()), trial.upTo(box.geometry.height()));
    else if (trial.upTo(7) == 0)
        at = map.thumbnail(trial.upTo(3)).center();
    else if (button.isNull() || trial.upTo(7) == 0)
        at = m_screen.topLeft()
            + QPoint(trial.upTo(m_screen.width() - 1), trial.upTo(m_screen.height() - 1));
    m_mayLose |= box.id || map.button(WindowMap::PreviewScreen, "Retry").contains(at);
    m_done.append(QString("press %1,%2").arg(at.x()).arg(at.y()));
    m_user->desktop().click(at);
}

void TestMonkeyOutside::pressAKey(FaultTrial &trial)
{
    static const QList<const char *> keys{"Tab",   "space", "Return", "Left",
                                          "Right", "Up",    "Down",   "Escape",
                                          "Home",  "a",     "Delete", "Page_Down"};
    const char *key = keys.at(trial.upTo(keys.size() - 1));
    m_mayLose = true; // the keyboard may be anywhere
    m_done.append(key);
    m_user->desktop().pressKey(key);
}

void TestMonkeyOutside::changeACable(FaultTrial &trial)
{
    if (!m_hasCamera || trial.upTo(2) > 0) {
        m_done.append(m_hasCamera ? "camera pulled" : "camera back");
        QVERIFY(labctl(m_hasCamera ? QStringList{"unplug", "cam1"}
                                   : QStringList{"plug", "cam1", "1280x720"}));
        m_hasCamera = !m_hasCamera;
    } else {
        m_done.append(m_hasMicrophone ? "microphone pulled" : "microphone back");
        QVERIFY(labctl({"microphone", m_hasMicrophone ? "off" : "on"}));
        m_hasMicrophone = !m_hasMicrophone;
    }
}

void TestMonkeyOutside::doAnything(FaultTrial &trial)
{
    const int what = trial.upTo(99);
    if (what < 72)
        pressAnywhere(trial);
    else if (what < 92)
        pressAKey(trial);
    else if (what < 95)
        changeTheScreen();
    else if (what < 97)
        QTest::qWait(trial.upTo(1500)); // nothing to wait for: so long nothing is done
    else
        changeACable(trial);
}

void TestMonkeyOutside::look(FaultTrial &trial)
{
    const qint64 program = m_user->program().pid();
    const Desktop::Window window = m_user->desktop().topWindowOf(program);
    const qint64 answer = window.id ? m_ping.ask(window.id, pingLimit) : 0;
    m_longest = qMax(m_longest, answer);
    // One that goes while it is asked has no answer.
    QVERIFY2(answer >= 0 || !m_user->program().isRunning()
                 || m_user->desktop().topWindowOf(program).id != window.id,
             "the window answers nobody");
    const int now = kept();
    if (now < m_kept && !m_mayLose) {
        trial.addLost(m_kept - now);
        QFAIL(qPrintable(QString("%1 captures of %2 are left").arg(now).arg(m_kept)));
    }
    m_kept = now;
    m_mayLose = !m_user->program().isRunning() || m_user->dialog().id;
}

void TestMonkeyOutside::anyoneMayPressAnythingAtAnyTime()
{
    FaultTrial trial("a child at the real program, cables and screen changed meanwhile", 1, 6);
    while (trial.next()) {
        m_done.clear();
        m_longest = 0;
        const SpareTime spare;
        QVERIFY(m_user->startLive());
        m_kept = kept();
        const int events = FaultTrial::isWholeSuite() ? eventsOfTheWhole : eventsUsually;
        for (int i = 0; i < events && !QTest::currentTestFailed(); ++i) {
            doAnything(trial);
            look(trial);
            if (m_user->program().isRunning())
                continue;
            QVERIFY2(!m_user->program().hasCrashed() && m_user->program().exitStatus() == 0,
                     "it ended, and not by \"Exit\"");
            putAllBack();
            m_done.append("started again");
            QVERIFY(m_user->startLive());
            m_kept = kept();
        }
        // However it is left, the session's end ends it, and the next start is as usual.
        // One whose window is gone is ending, and listens to no signal any more.
        if (m_user->desktop().topWindowOf(m_user->program().pid()).id != 0)
            m_user->program().terminate();
        QVERIFY(m_user->program().hasEndedWithin(patience));
        QVERIFY2(!m_user->program().hasCrashed(),
                 qPrintable(QString("of signal %1").arg(m_user->program().exitStatus())));
        QVERIFY(kept() >= m_kept || m_mayLose);
        putAllBack();
        trial.addStandstill(m_longest);
        // Where there was no processor for it, or for a server that it waited for, it may be late.
        const int limit = answerLimit * (spare.isPlenty() ? 1 : starvedFactor);
        QVERIFY2(m_longest < limit, qPrintable(QString("no answer for %1 ms").arg(m_longest)));
        qInfo("try %d: %d starts, %d captures, no answer for %lld ms at most", trial.tries(),
              1 + m_done.count("started again"), m_kept, static_cast<long long>(m_longest));
    }
}

QTEST_MAIN(TestMonkeyOutside)
#include "tst_monkeyoutside.moc"
