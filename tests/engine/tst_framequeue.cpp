#include "FrameQueue.h"
#include "GstStart.h"

#include <QTest>
#include <QVector>

#include <algorithm>

namespace {

constexpr qint64 second = 1000000000; // ns
constexpr qint64 small = 600000; // bytes of a frame
constexpr qint64 big = 4000000;

GstMiniHandle<GstBuffer> frame()
{
    return GstMiniHandle<GstBuffer>(gst_buffer_new());
}

/// A camera and an encoder on a clock of their own.
class Machine {
public:
    Machine(int rate, qint64 bytes)
        : m_period(second / rate)
        , m_queue(m_period, bytes)
    {
    }

    /// The encoder needs @p work ns for a frame from now on.
    void setWork(qint64 work) { m_work = work; }

    void run(double seconds)
    {
        const qint64 end = m_next + qint64(seconds * double(second)) / m_period;
        for (; m_next < end; ++m_next) {
            encodeUntil(m_next * m_period);
            if (m_queue.wants(m_next))
                m_queue.add(m_next, frame());
            longest = qMax(longest, m_queue.size());
            encodeUntil(m_next * m_period);
        }
    }

    const QVector<qint64> &encoded() const { return m_encoded; }
    const FrameQueue &queue() const { return m_queue; }
    int longest = 0; ///< that the queue has been

private:
    void encodeUntil(qint64 now)
    {
        while (!m_queue.isEmpty() && m_free <= now) {
            m_encoded.append(m_queue.take().slot);
            m_free = qMax(m_free, m_encoded.last() * m_period) + m_work;
            m_queue.worked(m_work);
        }
    }

    const qint64 m_period;
    FrameQueue m_queue;
    qint64 m_work = 0;
    qint64 m_next = 0; ///< slot of the camera's next frame
    qint64 m_free = 0; ///< when the encoder is done
    QVector<qint64> m_encoded; ///< slots
};

int largestGap(const QVector<qint64> &taken, int from)
{
    qint64 largest = 0;
    for (int i = from + 1; i < taken.size(); ++i)
        largest = qMax(largest, taken[i] - taken[i - 1]);
    return int(largest);
}

} // namespace

class TestFrameQueue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(startGstreamer()); }
    void anEncoderThatKeepsUpGetsEveryFrame();
    void anEncoderThatFallsBehindGetsAsManyAsItHasTimeFor_data();
    void anEncoderThatFallsBehindGetsAsManyAsItHasTimeFor();
    void framesComeBackWhenTheEncoderIsQuickAgain();
    void aStandstillLeavesFramesFromAllOfIt();
    void theQueueHoldsOneSecondAtMost();
    void theQueueHoldsNoMoreMemoryThanItMay();
    void oneSlowFrameChangesNothing();
    void theLastFrameIsAlwaysKept();
};

void TestFrameQueue::anEncoderThatKeepsUpGetsEveryFrame()
{
    Machine machine(30, small);
    machine.setWork(second / 31);
    machine.run(20);
    QCOMPARE(largestGap(machine.encoded(), 0), 1);
    QVERIFY(machine.encoded().size() >= 598);
}

void TestFrameQueue::anEncoderThatFallsBehindGetsAsManyAsItHasTimeFor_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("percent");
    for (const int rate : {15, 30, 60})
        for (const int percent : {5, 10, 25, 50, 90})
            QTest::addRow("%d %% of %d", percent, rate) << rate << percent;
}

void TestFrameQueue::anEncoderThatFallsBehindGetsAsManyAsItHasTimeFor()
{
    QFETCH(int, rate);
    QFETCH(int, percent);
    Machine machine(rate, small);
    machine.setWork(second * 100 / (qint64(rate) * percent));
    machine.run(30);
    const double possible = 30.0 * rate * percent / 100;
    const int encoded = machine.encoded().size();
    QVERIFY2(encoded > 0.6 * possible,
             qPrintable(QStringLiteral("%1 of %2").arg(encoded).arg(possible)));
    const double usual = 30.0 * rate / encoded;
    const int largest = largestGap(machine.encoded(), 0);
    QVERIFY2(largest <= 2.5 * usual + 1,
             qPrintable(QStringLiteral("%1, usually %2").arg(largest).arg(usual)));
    // What waits is worked off soon when the movie is over.
    QVERIFY(machine.queue().size() * (100.0 / (rate * percent)) < 1.5);
}

void TestFrameQueue::framesComeBackWhenTheEncoderIsQuickAgain()
{
    Machine machine(30, small);
    machine.setWork(second / 4);
    machine.run(5);
    QVERIFY(machine.queue().stride() > 4);
    machine.setWork(second / 100);
    machine.run(8);
    QCOMPARE(machine.queue().stride(), 1);
    machine.run(5);
    const QVector<qint64> late = machine.encoded().mid(machine.encoded().size() - 140);
    QCOMPARE(largestGap(late, 0), 1);
}

void TestFrameQueue::aStandstillLeavesFramesFromAllOfIt()
{
    FrameQueue queue(second / 30, small);
    QVector<qint64> taken;
    for (qint64 slot = 0; slot < 300; ++slot)
        if (queue.wants(slot))
            queue.add(slot, frame());
    while (!queue.isEmpty())
        taken.append(queue.take().slot);
    QVERIFY2(taken.size() >= 10, qPrintable(QString::number(taken.size())));
    QVERIFY2(largestGap(taken, 0) <= 40, qPrintable(QString::number(largestGap(taken, 0))));
    QVERIFY(taken.first() < 20);
    QVERIFY(taken.last() > 260);
}

void TestFrameQueue::theQueueHoldsOneSecondAtMost()
{
    Machine machine(30, small);
    machine.setWork(100 * second);
    machine.run(60);
    QVERIFY2(machine.longest <= 30, qPrintable(QString::number(machine.longest)));
    QVERIFY(machine.longest > 10);
}

void TestFrameQueue::theQueueHoldsNoMoreMemoryThanItMay()
{
    Machine machine(60, big);
    machine.setWork(100 * second);
    machine.run(20);
    QVERIFY2(machine.longest * big <= 64000000, qPrintable(QString::number(machine.longest)));
    QVERIFY(machine.longest > 5);
}

void TestFrameQueue::oneSlowFrameChangesNothing()
{
    Machine machine(30, small);
    machine.setWork(second / 100);
    machine.run(2);
    machine.setWork(second / 2);
    machine.run(1.0 / 30);
    machine.setWork(second / 100);
    machine.run(3);
    QCOMPARE(largestGap(machine.encoded(), 0), 1);
}

void TestFrameQueue::theLastFrameIsAlwaysKept()
{
    FrameQueue queue(second / 30, small);
    for (qint64 slot = 0; slot < 200; ++slot)
        if (queue.wants(slot))
            queue.add(slot, frame());
    QVERIFY(!queue.wants(200));
    queue.addLast(200, frame());
    QCOMPARE(queue.newest(), qint64(200));
    qint64 last = -1;
    while (!queue.isEmpty())
        last = queue.take().slot;
    QCOMPARE(last, qint64(200));
}

QTEST_GUILESS_MAIN(TestFrameQueue)
#include "tst_framequeue.moc"
