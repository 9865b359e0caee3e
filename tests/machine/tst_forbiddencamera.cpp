#include "DeviceSession.h"
#include "Devices.h"
#include "LiveVideoData.h"
#include "Patience.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

static const int reactionLimit = 60000; // ms, of a slow machine
static const uid_t pupil = 1717; // nobody of the system's own

/**
 * The thread that makes this object is an ordinary user, in no group, as long as it lives, and so
 * is every thread that is begun meanwhile, for good. (To change all threads of a process at once
 * hangs when one of them is just ending.)
 */
class AsPupil {
public:
    AsPupil()
        : m_became(become(pupil))
    {
    }
    ~AsPupil() { become(0); }
    Q_DISABLE_COPY(AsPupil)
    bool became() const { return m_became; }

private:
    static bool become(uid_t user) { return syscall(SYS_setresuid, -1, user, -1) == 0; }

    const bool m_became;
};

static bool setRights(mode_t rights)
{
    return chmod(QFile::encodeName(TestCameras::node()).constData(), rights) == 0;
}

/** A video node that the user is not allowed to open, until somebody allows it. */
class TestForbiddenCamera : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aForbiddenCameraIsNoneAndIsFoundOnceItIsAllowed();
    void oneThatWasAllowedBeforeAnybodyLookedIsFound();
    void theUserIsToldAndHasThePictureOnceItIsAllowed();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<TestCameras> m_cameras;
    std::unique_ptr<DeviceSession> m_user; // goes before its camera
};

void TestForbiddenCamera::initTestCase()
{
    qputenv("PULSE_SERVER", "unix:/none"); // the desk's folders are not this user's
}

void TestForbiddenCamera::init()
{
    m_cameras = std::make_unique<TestCameras>(QList<TestCameras::Kind>{TestCameras::Kind::Webcam});
    QVERIFY(m_cameras->isLoaded());
}

void TestForbiddenCamera::cleanup()
{
    if (m_user)
        m_user->keepTraces();
    m_user.reset();
    m_cameras.reset();
}

void TestForbiddenCamera::aForbiddenCameraIsNoneAndIsFoundOnceItIsAllowed()
{
    QVERIFY(setRights(0600));
    std::unique_ptr<LiveVideoData> engine;
    {
        const AsPupil user;
        QVERIFY(user.became());
        engine = std::make_unique<LiveVideoData>();
        QCOMPARE(engine->GetVideoDeviceList(), QStringList());
        engine->Create();
        QVERIFY2(engine->supported, "the plug-ins' index cannot be read by this user");
        QVERIFY(!engine->created);
        QVERIFY2(!engine->videoPresent, "the user is told that there is no camera");
    }
    QVERIFY(setRights(0666));
    const AsPupil user;
    QVERIFY(QTest::qWaitFor([&] { return engine->GetVideoDeviceList() == QStringList{"vivid"}; },
                            reactionLimit));
    QTRY_VERIFY_WITH_TIMEOUT((engine->Create(), engine->created), reactionLimit);
    engine.reset();
}

// As when a camera was plugged in while somebody else was at the desk.
void TestForbiddenCamera::oneThatWasAllowedBeforeAnybodyLookedIsFound()
{
    QVERIFY(TestCameras::pullOut());
    std::unique_ptr<LiveVideoData> engine;
    {
        const AsPupil user;
        engine = std::make_unique<LiveVideoData>();
        QTRY_COMPARE_WITH_TIMEOUT(engine->GetVideoDeviceList(), QStringList(), reactionLimit);
    }
    QVERIFY(TestCameras::plugIn());
    QVERIFY(setRights(0666));
    const AsPupil user;
    QVERIFY(QTest::qWaitFor([&] { return engine->GetVideoDeviceList() == QStringList{"vivid"}; },
                            reactionLimit));
    engine.reset();
}

// The program itself must be the user's from its beginning.
static bool makeStarter(const QString &script, const QString &folder)
{
    QFile file(script);
    const bool isWritten = file.open(QIODevice::WriteOnly)
        && file.write(
               "#!/bin/sh\nexec setpriv --reuid=1717 --regid=1717 --clear-groups " ORVANTA_PROGRAM
               "\n")
            > 0
        && file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    return isWritten && run("chown", {"-R", "1717:1717", folder});
}

void TestForbiddenCamera::theUserIsToldAndHasThePictureOnceItIsAllowed()
{
    QVERIFY(setRights(0600));
    const QString script = m_folder.filePath("pupil");
    m_user = std::make_unique<DeviceSession>(script);
    Program &program = m_user->program();
    QVERIFY(makeStarter(script, QFileInfo(program.home()).path()));
    program.setEnvironment("XDG_RUNTIME_DIR", program.temporaryFolder());
    program.start();
    QVERIFY(m_user->waitForMainWindow());
    QVERIFY(m_user->messageSays("Cannot find Video / Audio Devices."));
    QVERIFY(m_user->confirmMessage());
    QVERIFY(m_user->waitForPressable(WindowMap::LiveScreen, {"List", "Close"}));
    QVERIFY(setRights(0666));
    QVERIFY(m_user->findCameraAgain());
}

QTEST_MAIN(TestForbiddenCamera)
#include "tst_forbiddencamera.moc"
