#include "LabCommands.h"
#include "Session.h"

#include <QTest>

// What the program says at its start about a camera and a microphone, of which one or both are
// missing.
class TestMissingMicrophone : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatIsMissingIsToldOnce_data();
    void whatIsMissingIsToldOnce();

private:
    bool m_camera = true; // as the lab begins
    bool m_microphone = false;
};

void TestMissingMicrophone::whatIsMissingIsToldOnce_data()
{
    QTest::addColumn<bool>("camera");
    QTest::addColumn<bool>("microphone");
    QTest::addColumn<QString>("text");
    QTest::newRow("camera without microphone") << true << false << "Cannot find Audio Devices.";
    QTest::newRow("neither") << false << false << "Cannot find Video / Audio Devices.";
    QTest::newRow("microphone without camera") << false << true << "Cannot find Video Devices.";
    QTest::newRow("both") << true << true << QString();
}

void TestMissingMicrophone::whatIsMissingIsToldOnce()
{
    QFETCH(bool, camera);
    QFETCH(bool, microphone);
    QFETCH(QString, text);
    if (camera != m_camera) {
        QVERIFY(labctl(camera ? QStringList{"plug", "cam1", "1280x720"}
                              : QStringList{"unplug", "cam1"}));
    }
    if (microphone != m_microphone)
        QVERIFY(labctl({"microphone", microphone ? "on" : "off"}));
    m_camera = camera;
    m_microphone = microphone;

    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    user.program().start();
    QVERIFY(user.waitForMainWindow());
    if (!text.isEmpty()) {
        QVERIFY(user.messageSays(text));
        QVERIFY(user.confirmMessage());
    }
    QVERIFY(!QTest::qWaitFor([&] { return user.dialog().id != 0; }, 1200));
    const QStringList all{"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"};
    const QStringList browsing{"List", "Close"};
    QVERIFY(user.waitForPressable(WindowMap::LiveScreen, camera ? all : browsing));
    if (camera) {
        QVERIFY(user.isLiveAt(user.map().videoRect()));
        QVERIFY(user.takePhotoForPreview());
    }
}

QTEST_MAIN(TestMissingMicrophone)
#include "tst_missingmicrophone.moc"
