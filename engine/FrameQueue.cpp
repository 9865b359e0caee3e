#include "FrameQueue.h"

#include <algorithm>
#include <cmath>
#include <limits>

static const qint64 second = 1000000000; // ns
static const qint64 memory = 64000000; // bytes
static const qint64 longestBacklog = second / 2; // of work
static const qint64 shortBacklog = second / 5;
static const qint64 trialTime = 3 * second / 10; // of a stride, before a shorter one is tried
static const size_t fewest = 3; // frames that were worked on, before their times say anything
static const int widest = std::numeric_limits<int>::max() / 4;
// An encoder that is asked for all that it can do is late with every delay.
static const double spare = 1.1;
static const double nearly = 0.95;

FrameQueue::FrameQueue(qint64 period, qint64 bytes)
    : m_period(period)
    , m_most(int(qBound(qint64(2), qMin(second / period, memory / bytes), qint64(120))))
{
}

// The median: one frame for which the machine had something else to do says nothing.
qint64 FrameQueue::timePerFrame() const
{
    if (m_timed < fewest)
        return 0;
    std::array<qint64, 7> times = m_times;
    auto *const end = times.begin() + std::min(m_timed, times.size());
    auto *const middle = times.begin() + (end - times.begin()) / 2;
    std::nth_element(times.begin(), middle, end);
    return *middle;
}

bool FrameQueue::wants(qint64 slot) const
{
    return m_newest < 0 || slot >= m_newest + m_stride;
}

void FrameQueue::add(qint64 slot, GstMiniHandle<GstBuffer> frame)
{
    m_waiting.push_back({slot, std::move(frame)});
    m_newest = slot;
    const qint64 perFrame = timePerFrame();
    const qint64 backlog = perFrame * size();
    if (backlog > longestBacklog && size() > 1)
        widen(qMax(m_stride + 1, int(std::ceil(spare * double(perFrame) / double(m_period)))));
    while (size() > m_most)
        widen(m_stride * 2);
    if (backlog < shortBacklog || size() == 1)
        narrow(slot);
}

void FrameQueue::addLast(qint64 slot, GstMiniHandle<GstBuffer> frame)
{
    m_waiting.push_back({slot, std::move(frame)});
    m_newest = slot;
}

FrameQueue::Waiting FrameQueue::take()
{
    Waiting oldest = std::move(m_waiting.front());
    m_waiting.pop_front();
    m_taken = oldest.slot;
    return oldest;
}

void FrameQueue::worked(qint64 time)
{
    m_times[m_timed++ % m_times.size()] = time;
}

void FrameQueue::widen(int stride)
{
    m_stride = qMin(stride, widest);
    m_changed = m_newest;
    qint64 kept = m_taken;
    std::deque<Waiting> spread;
    for (Waiting &waiting : m_waiting) {
        if (kept >= 0 && waiting.slot < kept + m_stride)
            continue;
        kept = waiting.slot;
        spread.push_back(std::move(waiting));
    }
    m_waiting.swap(spread);
    m_newest = kept;
}

void FrameQueue::narrow(qint64 slot)
{
    const bool isTried = (slot - m_changed) * m_period >= trialTime;
    const double sustained = nearly * double(timePerFrame()) / double(m_period);
    if (m_stride == 1 || !isTried || m_stride - 1 < sustained)
        return;
    --m_stride;
    m_changed = slot;
}
