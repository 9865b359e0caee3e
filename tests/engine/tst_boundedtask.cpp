#include "BoundedTask.h"

#include <QElapsedTimer>
#include <QTest>

#include <future>
#include <optional>
#include <thread>

using std::chrono::milliseconds;
using std::chrono::steady_clock;

class TestBoundedTask : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theResultOfFinishedWorkIsReported();
    void workInTheMiddleHasNoResult();
    void aResultThatNobodyWaitsForGoesOnTheThreadThatMadeIt();
    void aResultThatNobodyWaitsForGoesBeforeWhatItWasMadeOf();
    void hangingWorkIsNotWaitedForLongerThanAsked();
    void whatTheWorkOwnsIsGoneWhenItIsDone();
    void hangingWorkOutlivesWhoeverAskedForIt();
};

void TestBoundedTask::theResultOfFinishedWorkIsReported()
{
    const BoundedTask task([] { return 7; });
    QCOMPARE(task.waitUntil(steady_clock::now() + milliseconds(5000)), std::optional<int>(7));
}

void TestBoundedTask::workInTheMiddleHasNoResult()
{
    auto release = std::make_shared<std::promise<void>>();
    const BoundedTask task([release] {
        release->get_future().wait();
        return false;
    });
    QVERIFY(!task.waitUntil(steady_clock::now() + milliseconds(20)).has_value());
    release->set_value();
    QCOMPARE(task.waitUntil(steady_clock::now() + milliseconds(5000)), std::optional<bool>(false));
}

void TestBoundedTask::aResultThatNobodyWaitsForGoesOnTheThreadThatMadeIt()
{
    auto release = std::make_shared<std::promise<void>>();
    auto ended = std::make_shared<std::promise<std::thread::id>>();
    std::future<std::thread::id> end = ended->get_future();
    {
        const BoundedTask task([release, ended] {
            release->get_future().wait();
            return std::shared_ptr<int>(
                new int(1),
                [ended](const int *result) {
                    delete result;
                    ended->set_value(std::this_thread::get_id());
                });
        });
    }
    release->set_value();
    QCOMPARE(end.wait_for(milliseconds(5000)), std::future_status::ready);
    QVERIFY(end.get() != std::this_thread::get_id());
}

// Tells of its end.
static std::shared_ptr<int> makeToken(const std::function<void()> &gone)
{
    return {new int(1),
            [gone](const int *token) {
                delete token;
                gone();
            }};
}

void TestBoundedTask::aResultThatNobodyWaitsForGoesBeforeWhatItWasMadeOf()
{
    auto release = std::make_shared<std::promise<void>>();
    auto order = std::make_shared<QStringList>(); // the task's thread only, until the promise
    auto ended = std::make_shared<std::promise<void>>();
    std::future<void> end = ended->get_future();
    {
        const BoundedTask task([release, order, connection = makeToken([order, ended] {
                                                    order->append("connection");
                                                    ended->set_value();
                                                })] {
            release->get_future().wait();
            return makeToken([order] { order->append("result"); });
        });
    }
    release->set_value();
    QCOMPARE(end.wait_for(milliseconds(5000)), std::future_status::ready);
    QCOMPARE(*order, (QStringList{"result", "connection"}));
}

void TestBoundedTask::hangingWorkIsNotWaitedForLongerThanAsked()
{
    auto release = std::make_shared<std::promise<void>>();
    const BoundedTask task([release] { release->get_future().wait(); });
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!task.waitUntil(steady_clock::now() + milliseconds(100)));
    QVERIFY2(timer.elapsed() >= 99, "it gave up too early");
    QVERIFY2(timer.elapsed() < 1000, "it waited too long");
    release->set_value();
    QVERIFY(task.waitUntil(steady_clock::now() + milliseconds(5000)));
}

void TestBoundedTask::whatTheWorkOwnsIsGoneWhenItIsDone()
{
    auto owned = std::make_shared<int>(1);
    const std::weak_ptr<int> watched = owned;
    const BoundedTask task([owned = std::move(owned)] {});
    QVERIFY(task.waitUntil(steady_clock::now() + milliseconds(5000)));
    QVERIFY(watched.expired());
}

void TestBoundedTask::hangingWorkOutlivesWhoeverAskedForIt()
{
    auto release = std::make_shared<std::promise<void>>();
    auto done = std::make_shared<std::promise<int>>();
    std::future<int> result = done->get_future();
    {
        const BoundedTask task([release, done] {
            release->get_future().wait();
            done->set_value(3);
        });
    }
    release->set_value();
    QCOMPARE(result.wait_for(milliseconds(5000)), std::future_status::ready);
    QCOMPARE(result.get(), 3);
}

QTEST_GUILESS_MAIN(TestBoundedTask)
#include "tst_boundedtask.moc"
