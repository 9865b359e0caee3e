#include "Session.h"

#include <QTest>

#include <memory>

// A desktop without any camera.
class TestNoCamera : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theUserIsToldAndOnlyListAndExitAreLeft();
    void deadButtonsDoNothing();
    void exitStillWorks();
    void aCameraPluggedInLaterIsFoundOverTheList();

private:
    std::unique_ptr<Session> m_user;
};

void TestNoCamera::init()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "late", QSize(1, 1));
    m_user->program().start();
    QVERIFY(m_user->waitForMainWindow());
    QVERIFY(m_user->messageSays("Cannot find Video Devices."));
    QVERIFY(m_user->confirmMessage());
}

void TestNoCamera::cleanup()
{
    m_user.reset();
}

void TestNoCamera::theUserIsToldAndOnlyListAndExitAreLeft()
{
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, {"List", "Close"}));
    QCOMPARE(m_user->map().look(m_user->desktop().screenshot(), WindowMap::LiveScreen, "Photo"),
             WindowMap::Disabled);
}

void TestNoCamera::deadButtonsDoNothing()
{
    for (const char *name : {"Live", "Photo", "PhotoMulti", "Movie", "Settings"})
        m_user->press(WindowMap::LiveScreen, name);
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, {"List", "Close"}));
    QCOMPARE(m_user->dialog().id, 0U);
    QCOMPARE(m_user->program().captured(), QStringList());
}

void TestNoCamera::exitStillWorks()
{
    m_user->press(WindowMap::LiveScreen, "Close");
    QVERIFY(m_user->program().hasEndedWithin(4000));
    QCOMPARE(m_user->program().exitStatus(), 0);
}

void TestNoCamera::aCameraPluggedInLaterIsFoundOverTheList()
{
    QCOMPARE(QProcess::execute("labctl", {"plug", "late", "1280x720"}), 0);
    m_user->press(WindowMap::LiveScreen, "List");
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "Live"));
    QVERIFY(m_user->waitForPressable(
        WindowMap::LiveScreen,
        {"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"}));
    QCOMPARE(QProcess::execute("labctl", {"unplug", "late"}), 0);
}

QTEST_MAIN(TestNoCamera)
#include "tst_nocamera.moc"
