#include "Patience.h"
#include "Session.h"

#include <QWidget>

#include <memory>

// Two cameras: the user is asked which one.
class TestSeveralCameras : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theChosenCameraIsShown_data();
    void theChosenCameraIsShown();
    void afterTheChoiceTheWindowComesBackInFront();
    void closingTheChooserEndsTheProgram();
};

// The first start on a machine looks through all plug-ins of the media framework. A busy machine
// may need longer for that than the first list of cameras waits, and would open the one it knows
// of.
void TestSeveralCameras::initTestCase()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    user.program().start();
    QTRY_VERIFY_WITH_TIMEOUT(user.dialog().isActive || user.mainWindow().id, 30000);
}

void TestSeveralCameras::theChosenCameraIsShown_data()
{
    QTest::addColumn<QString>("camera");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("position");
    QTest::newRow("the first") << "cam1" << QSize(1280, 720) << 0;
    QTest::newRow("the second") << "cam2" << QSize(640, 480) << 1;
}

void TestSeveralCameras::theChosenCameraIsShown()
{
    QFETCH(QString, camera);
    QFETCH(QSize, size);
    QFETCH(int, position);
    Session user(ORVANTA_PROGRAM, camera, size);
    user.program().start();
    QVERIFY2(user.waitForChooser(), user.mainWindow().id ? "asked nothing" : "did not come up");
    QCOMPARE(user.mainWindow().id, 0U);
    user.chooseCamera(position);
    QVERIFY(user.waitForMainWindow());
    QTRY_VERIFY(user.isLiveAt(user.map().videoRect()));
}

void TestSeveralCameras::afterTheChoiceTheWindowComesBackInFront()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    user.program().start();
    QVERIFY(user.waitForChooser());
    user.chooseCamera(0);
    QVERIFY(user.waitForMainWindow());
    QTRY_VERIFY(user.isLiveAt(user.map().videoRect()));

    QWidget other;
    other.setStyleSheet("background: #308040");
    other.setGeometry(300, 250, 300, 200);
    const auto isCovered = [&] {
        return user.desktop().pixel(QPoint(450, 350)) == QColor("#308040");
    };
    // The program may come back sooner than anyone can look.
    bool wasCovered = false;
    for (int attempt = 0; attempt < 10 && !wasCovered; ++attempt) {
        other.show();
        other.raise();
        other.activateWindow();
        wasCovered = QTest::qWaitFor(isCovered, 400);
    }
    QVERIFY(wasCovered);
    QTRY_VERIFY(!isCovered());
}

void TestSeveralCameras::closingTheChooserEndsTheProgram()
{
    Session user(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    user.program().start();
    QVERIFY(user.waitForChooser());
    user.desktop().closeWindow(user.dialog().id);
    QVERIFY(user.program().hasEndedWithin(4000));
    QVERIFY(!user.program().hasCrashed());
    QCOMPARE(user.program().exitStatus(), 255);
}

QTEST_MAIN(TestSeveralCameras)
#include "tst_severalcameras.moc"
