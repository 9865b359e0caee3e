#include "LabCommands.h"
#include "Patience.h"
#include "Session.h"

#include <memory>

// The computer was asleep: time went on, and neither the program nor its servers ran.
class TestWakingUp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theLivePictureGoesOn();
    void aRecordingGoesOn();

private:
    void beSuspended();

    std::unique_ptr<Session> m_user;
};

static constexpr int nap = 3000; // ms; a camera that is silent for two seconds counts as lost

void TestWakingUp::init()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(640, 480));
    QVERIFY(m_user->startLive());
}

void TestWakingUp::cleanup()
{
    m_user.reset();
}

void TestWakingUp::beSuspended()
{
    m_user->program().stop();
    QVERIFY(labctl({"freeze", "cam1"}));
    {
        const StoppedServer media("pipewire");
        const StoppedServer sound("pipewire-pulse");
        const StoppedServer manager("wireplumber");
        QVERIFY(media.isStopped() && sound.isStopped() && manager.isStopped());
        QTest::qWait(nap); // nothing to wait for: how long all sleep
    }
    m_user->program().goOn();
    QVERIFY(labctl({"thaw", "cam1"}));
}

void TestWakingUp::theLivePictureGoesOn()
{
    beSuspended();
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QVERIFY(!QTest::qWaitFor([this] { return m_user->dialog().id != 0; }, 2000));
    QVERIFY(m_user->takePhotoForPreview());
}

void TestWakingUp::aRecordingGoesOn()
{
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Movie"));
    QVERIFY(m_user->waitForPressable(WindowMap::RecordingScreen, {"MovieStop"}));
    beSuspended();
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QCOMPARE(m_user->dialog().id, 0U);
    QVERIFY(m_user->pressWhenReady(WindowMap::RecordingScreen, "MovieStop"));
    QVERIFY(
        m_user->waitForPressable(WindowMap::MovieScreen, {"Live", "MoviePlay", "List", "Close"}));
    QCOMPARE(m_user->program().captured().filter(".mov").size(), 1);
}

QTEST_MAIN(TestWakingUp)
#include "tst_wakingup.moc"
