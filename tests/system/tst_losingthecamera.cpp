#include "Patience.h"
#include "Session.h"

#include <memory>

// With its trailing blank.
static const char lostText[] = "The video device is invalid. Please confirm whether the device is "
                               "correctly connected. ";

// The camera's cable is pulled while the program runs.
class TestLosingTheCamera : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theUserIsToldOnceAndOnlyListAndExitAreLeft();
    void aFrozenCameraCountsAsLost();
    void theCameraPluggedInAgainIsFoundOverTheList();
    void photosTakenBeforeAreKept();

private:
    static bool labctl(const QStringList &arguments)
    {
        return QProcess::execute("labctl", arguments) == 0;
    }

    std::unique_ptr<Session> m_user;
};

void TestLosingTheCamera::init()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(m_user->startLive());
}

void TestLosingTheCamera::cleanup()
{
    QVERIFY2(m_user->program().isRunning(), qPrintable(m_user->program().output()));
    m_user.reset();
    labctl({"unplug", "cam1"});
    QVERIFY(labctl({"plug", "cam1", "1280x720"}));
}

void TestLosingTheCamera::theUserIsToldOnceAndOnlyListAndExitAreLeft()
{
    QVERIFY(labctl({"unplug", "cam1"}));
    QVERIFY(m_user->messageSays(lostText));
    QVERIFY(m_user->confirmMessage());
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, {"List", "Close"}));
    // No second message, and no last picture left standing.
    QVERIFY(!QTest::qWaitFor([this] { return m_user->dialog().id != 0; }, 1500));
    QCOMPARE(m_user->counterAt(m_user->map().videoRect()), -1);
}

void TestLosingTheCamera::aFrozenCameraCountsAsLost()
{
    QVERIFY(labctl({"freeze", "cam1"}));
    QVERIFY(m_user->messageSays(lostText));
    QVERIFY(m_user->confirmMessage());
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, {"List", "Close"}));
}

void TestLosingTheCamera::theCameraPluggedInAgainIsFoundOverTheList()
{
    QVERIFY(labctl({"unplug", "cam1"}));
    QVERIFY(m_user->messageSays(lostText));
    QVERIFY(m_user->confirmMessage());
    QVERIFY(labctl({"plug", "cam1", "1280x720"}));
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "List"));
    QVERIFY(m_user->pressWhenReady(WindowMap::ListScreen, "Live"));
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QVERIFY(m_user->takePhotoForPreview());
}

void TestLosingTheCamera::photosTakenBeforeAreKept()
{
    QVERIFY(m_user->takePhotoForPreview());
    const QStringList files = m_user->program().captured();
    QVERIFY(labctl({"unplug", "cam1"}));
    QVERIFY(m_user->messageSays(lostText));
    QVERIFY(m_user->confirmMessage());
    QCOMPARE(m_user->program().captured(), files);
}

QTEST_MAIN(TestLosingTheCamera)
#include "tst_losingthecamera.moc"
