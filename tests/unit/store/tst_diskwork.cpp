#include "DiskWork.h"
#include "Patience.h"

#include <QSemaphore>
#include <QTest>
#include <QWidget>

#include <atomic>
#include <memory>

using std::chrono::milliseconds;

// A window that counts how often it is painted.
class PaintedWindow : public QWidget {
public:
    std::atomic<int> paints{0};

protected:
    void paintEvent(QPaintEvent *) override { ++paints; }
};

// Work on a disk that may hang, while a window stands there.
class TestDiskWork : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void workIsWaitedFor();
    void slowWorkThatGetsOnIsNotGivenUp();
    void workThatHangsIsGivenUpAndHearsOfIt();
    void theWindowsStayPainted();
};

void TestDiskWork::workIsWaitedFor()
{
    const auto isDone = std::make_shared<std::atomic<bool>>(false);
    QVERIFY(DiskWork::run([isDone](DiskWork::Progress &progress) { *isDone = progress.step(); }));
    QVERIFY(*isDone);
    QVERIFY(!QGuiApplication::overrideCursor());
}

void TestDiskWork::slowWorkThatGetsOnIsNotGivenUp()
{
    const auto all = std::make_shared<std::atomic<bool>>(true);
    QVERIFY(DiskWork::run(
        [all](DiskWork::Progress &progress) {
            for (int i = 0; i < 20; ++i) {
                QTest::qSleep(200); // nothing to wait for: how long the disk takes for a step
                *all = *all && progress.step();
            }
        },
        milliseconds(2500)));
    QVERIFY(*all);
}

void TestDiskWork::workThatHangsIsGivenUpAndHearsOfIt()
{
    const auto answers = std::make_shared<QSemaphore>();
    const auto ended = std::make_shared<QSemaphore>();
    const auto mayGoOn = std::make_shared<std::atomic<bool>>(true);
    QVERIFY(!DiskWork::run(
        [=](DiskWork::Progress &progress) {
            answers->acquire();
            *mayGoOn = progress.step();
            ended->release();
        },
        milliseconds(300)));
    QVERIFY(!QGuiApplication::overrideCursor());
    answers->release();
    QVERIFY(ended->tryAcquire(1, patience));
    QVERIFY(!*mayGoOn);
}

void TestDiskWork::theWindowsStayPainted()
{
    PaintedWindow window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const int before = window.paints;
    bool isSeen = false;
    QVERIFY(DiskWork::run([&](DiskWork::Progress &progress) {
        for (int i = 0; i < patience / 50 && !isSeen; ++i) {
            QTest::qSleep(50); // nothing to wait for: how long the disk takes for a step
            progress.step();
            isSeen = window.paints > before + 1;
        }
    }));
    QVERIFY(isSeen);
}

QTEST_MAIN(TestDiskWork)
#include "tst_diskwork.moc"
