#include "Patience.h"
#include "Session.h"
#include "SpareTime.h"

#include <QElapsedTimer>
#include <QWidget>

#include <memory>

// The window comes back in front of what others put over it, until a question has been asked.
class TestStayingInFront : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theWindowComesBackWithinASecond();
    void theWindowComesBackEveryTime();
    void afterTheSettingsItStaysBehind();

private:
    // Puts a window of another program over everything and waits until it is seen.
    void cover();
    bool isCovered() const;

    std::unique_ptr<Session> m_user;
    std::unique_ptr<QWidget> m_other;
};

void TestStayingInFront::init()
{
    m_user = std::make_unique<Session>(ORVANTA_PROGRAM, "cam1", QSize(1280, 720));
    QVERIFY(m_user->startLive());
}

void TestStayingInFront::cleanup()
{
    m_other.reset();
    m_user.reset();
}

void TestStayingInFront::cover()
{
    m_other = std::make_unique<QWidget>();
    m_other->setStyleSheet("background: #308040");
    m_other->setGeometry(300, 250, 300, 200);
    // The program may come back sooner than anyone can look.
    bool seen = false;
    for (int attempt = 0; attempt < 10 && !seen; ++attempt) {
        m_other->show();
        m_other->raise();
        m_other->activateWindow();
        seen = QTest::qWaitFor([this] { return isCovered(); }, 400);
    }
    QVERIFY(seen);
}

bool TestStayingInFront::isCovered() const
{
    return m_user->desktop().pixel(QPoint(450, 350)) == QColor("#308040");
}

void TestStayingInFront::theWindowComesBackWithinASecond()
{
    cover();
    const SpareTime spare;
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY(!isCovered());
    QVERIFY2(double(timer.elapsed()) < 1000 + 1000 * spare.lateness(),
             qPrintable(QString::number(timer.elapsed())));
    QVERIFY(m_user->isLiveAt(m_user->map().videoRect()));
}

void TestStayingInFront::theWindowComesBackEveryTime()
{
    for (int i = 0; i < 3; ++i) {
        cover();
        QTRY_VERIFY_WITH_TIMEOUT(!isCovered(), 1500);
    }
}

void TestStayingInFront::afterTheSettingsItStaysBehind()
{
    QVERIFY(m_user->pressWhenReady(WindowMap::LiveScreen, "Settings"));
    QVERIFY(m_user->clickInSettings("btnCancel"));
    QVERIFY(m_user->waitUntilNoDialog());
    cover();
    QVERIFY(!QTest::qWaitFor([this] { return !isCovered(); }, 1500));
}

QTEST_MAIN(TestStayingInFront)
#include "tst_stayinginfront.moc"
