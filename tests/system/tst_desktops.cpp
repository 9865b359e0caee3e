#include "Patience.h"
#include "Session.h"

#include "LabCommands.h"
#include "SpareTime.h"

#include <QElapsedTimer>
#include <QWidget>

#include <functional>
#include <memory>

// One lesson on the desktop that the lab was made with: whoever manages the windows there, the one
// of the camera covers the screen, comes back in front, and its boxes can be answered. The steps
// follow each other in one run of the program.
class TestDesktops : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theWindowCoversTheScreen();
    void theToolkitsWaylandPluginIsNotLookedFor();
    void theWindowComesBackInFront();
    void aPhotoIsTakenAndAccepted();
    void aMessageCanBeReadAndConfirmed();
    void theQuestionAtExitIsAnswered();

private:
    bool isOnWayland() const { return qEnvironmentVariableIsSet("ORVANTA_LAB_SCREEN"); }
    bool isCovered() const;
    bool hasEffect(const std::function<bool()> &press, const std::function<bool()> &isSeen) const;

    std::unique_ptr<Session> m_user;
    QString m_output; ///< of the program, up to its end
};

// By whom nothing is at hand: a picture of the screen at each step.
static void keepPicture(Session &user, const char *step)
{
    const QString folder = qEnvironmentVariable("ORVANTA_PICTURES");
    if (!folder.isEmpty())
        user.desktop().screenshot().save(folder + step + ".png");
}

void TestDesktops::initTestCase()
{
    QVERIFY2(!qEnvironmentVariableIsEmpty("ORVANTA_LAB"), "this test must be run by tests/lab/lab");
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    const bool isLive = m_user->startLive();
    keepPicture(*m_user, "live");
    m_output = m_user->program().output();
    QVERIFY2(isLive, qPrintable(m_output));
}

void TestDesktops::theWindowCoversTheScreen()
{
    QCOMPARE(m_user->mainWindow().geometry, m_user->desktop().screen());
    m_user->desktop().moveMouse({0, 0}); // a compositor draws it, perhaps on a button
    QVERIFY(m_user->waitForPressable(
        WindowMap::LiveScreen,
        {"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"}));
}

void TestDesktops::theToolkitsWaylandPluginIsNotLookedFor()
{
    m_output += m_user->program().output();
    QVERIFY2(!m_output.contains("plugin \"wayland\""), qPrintable(m_output));
    QCOMPARE(m_output.contains("it decides where the window stands"), isOnWayland());
}

bool TestDesktops::isCovered() const
{
    return m_user->desktop().pixel(QPoint(450, 350)) == QColor("#308040");
}

void TestDesktops::theWindowComesBackInFront()
{
    QWidget other;
    other.setStyleSheet("background: #308040");
    other.setGeometry(300, 250, 300, 200);
    other.setWindowTitle("Chalk");
    // The program may come back sooner than anyone can look.
    bool seen = false;
    for (int attempt = 0; attempt < 10 && !seen; ++attempt) {
        other.show();
        other.raise();
        other.activateWindow();
        seen = QTest::qWaitFor([this] { return isCovered(); }, 400);
    }
    keepPicture(*m_user, "covered");
    const SpareTime time;
    QElapsedTimer timer;
    timer.start();
    qint64 looked = 0; // ms; to look takes a while by itself
    QTRY_VERIFY_WITH_TIMEOUT((looked = timer.elapsed(), !isCovered()), 60000);
    // Window managers that wait for a processor are several programs in a row.
    QVERIFY2(looked < (time.isPlenty() ? 1000 : 10000), qPrintable(QString::number(looked)));
}

void TestDesktops::aPhotoIsTakenAndAccepted()
{
    QVERIFY(m_user->takePhotoForPreview());
    keepPicture(*m_user, "photo");
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Live"));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QCOMPARE(m_user->program().captured().size(), 1);
}

void TestDesktops::aMessageCanBeReadAndConfirmed()
{
    QVERIFY(labctl({"unplug", "cam1"}));
    const bool isSaid =
        m_user->messageSays("The video device is invalid. Please confirm whether the "
                            "device is correctly connected. ");
    keepPicture(*m_user, "message");
    QVERIFY(isSaid);
    QVERIFY(m_user->confirmMessage());
}

// A compositor may lose a press of the lab's while it draws a box that has just come or gone: on a
// Wayland desktop, and only there, it is repeated.
bool TestDesktops::hasEffect(const std::function<bool()> &press,
                             const std::function<bool()> &isSeen) const
{
    const int tries = isOnWayland() ? 4 : 1;
    for (int i = 0; i < tries; ++i)
        if (press() && QTest::qWaitFor(isSeen, 30000 / tries))
            return true;
    return false;
}

void TestDesktops::theQuestionAtExitIsAnswered()
{
    const bool isAsked =
        hasEffect([this] { return m_user->pressWhenReady(WindowMap::LiveScreen, "Close"); },
                  [this] { return m_user->dialog().isActive; });
    keepPicture(*m_user, "exit");
    QVERIFY(isAsked);
    QVERIFY(hasEffect([this] { return m_user->answerExitQuestion("No"); },
                      [this] { return m_user->program().hasEndedWithin(100); }));
    QCOMPARE(m_user->program().exitStatus(), 0);
    m_user.reset();
}

QTEST_MAIN(TestDesktops)
#include "tst_desktops.moc"
