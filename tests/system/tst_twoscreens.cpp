#include "Patience.h"
#include "Session.h"

#include <memory>

// A desktop of two screens whose primary one is at the right, as beside an interactive board. There
// is no microphone, so a message comes up at the start.
class TestTwoScreens : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theWindowFillsThePrimaryScreenAlone();
    void aMessageCanBeReadInWholeAndConfirmed();
    void theSettingsAndTheQuestionAtExitCanBeAnswered();

private:
    const QRect m_primary{1024, 0, 1024, 768};
    std::unique_ptr<Session> m_user;
};

void TestTwoScreens::init()
{
    m_user.reset();
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(1280, 720), m_primary);
    QCOMPARE(m_user->desktop().screen(), QRect(0, 0, 2048, 768));
    m_user->program().start();
    QVERIFY(m_user->waitForMainWindow());
    QVERIFY(m_user->messageSays("Cannot find Audio Devices."));
}

void TestTwoScreens::theWindowFillsThePrimaryScreenAlone()
{
    QVERIFY(m_user->confirmMessage());
    QTRY_VERIFY(m_user->isLiveAt(m_user->map().videoRect()));
    QCOMPARE(m_user->mainWindow().geometry, m_primary);
    QVERIFY(m_user->waitForPressable(
        WindowMap::LiveScreen,
        {"Live", "Photo", "PhotoMulti", "Movie", "List", "Settings", "Close"}));
}

// The middle of the whole desktop is where the two screens meet. A window manager that knows of the
// screens moves the box from there onto one of them.
void TestTwoScreens::aMessageCanBeReadInWholeAndConfirmed()
{
    const QRect box = m_user->dialog().geometry;
    QVERIFY(m_primary.contains(box) || m_primary.translated(-1024, 0).contains(box));
    QVERIFY(qAbs(box.center().x() - 1024) <= box.width());
    QVERIFY(m_user->confirmMessage());
}

void TestTwoScreens::theSettingsAndTheQuestionAtExitCanBeAnswered()
{
    QVERIFY(m_user->confirmMessage());
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Settings"));
    QVERIFY(m_user->clickInSettings("btnCancel"));
    QVERIFY(m_user->waitUntilNoDialog());
    QVERIFY(m_user->takePhotoForPreview());
    QVERIFY(m_user->pressWhenReady(WindowMap::PreviewScreen, "Apply"));
    QVERIFY(m_user->pressWhenReady(WindowMap::PhotoScreen, "Close"));
    QVERIFY(m_user->answerExitQuestion("No"));
    QVERIFY(m_user->program().hasEndedWithin(5000));
    QCOMPARE(m_user->program().exitStatus(), 0);
}

QTEST_MAIN(TestTwoScreens)
#include "tst_twoscreens.moc"
