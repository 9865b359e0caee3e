#include "FrameFeed.h"

using std::chrono::steady_clock;

std::shared_ptr<FrameFeed> FrameFeed::attach(GstAppSrc *source, qint64 period, qint64 bytes)
{
    std::shared_ptr<FrameFeed> feed(new FrameFeed(source, period, bytes));
    GstAppSrcCallbacks callbacks = {};
    callbacks.need_data = onHungry;
    gst_app_src_set_callbacks(
        source, &callbacks, new std::shared_ptr<FrameFeed>(feed),
        [](gpointer shared) { delete static_cast<std::shared_ptr<FrameFeed> *>(shared); });
    return feed;
}

FrameFeed::FrameFeed(GstAppSrc *source, qint64 period, qint64 bytes)
    : m_source(source)
    , m_queue(period, bytes)
{
}

bool FrameFeed::wants(qint64 slot) const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return !m_stopped && !m_ending && m_queue.wants(slot);
}

bool FrameFeed::isHungry() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_hungry;
}

void FrameFeed::add(qint64 slot, GstMiniHandle<GstBuffer> frame)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped || m_ending)
        return;
    m_queue.add(slot, std::move(frame));
    if (m_hungry)
        giveOne();
}

void FrameFeed::end(qint64 slot, GstMiniHandle<GstBuffer> frame)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_stopped || m_ending)
        return;
    m_ending = true;
    if (frame)
        m_queue.addLast(slot, std::move(frame));
    if (m_hungry)
        giveOne();
}

void FrameFeed::stop()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_stopped = true;
    while (!m_queue.isEmpty())
        m_queue.take();
}

qint64 FrameFeed::newestKept() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_queue.newest();
}

int FrameFeed::fed() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_fed;
}

void FrameFeed::onHungry(GstAppSrc *, guint, gpointer shared)
{
    FrameFeed &feed = **static_cast<std::shared_ptr<FrameFeed> *>(shared);
    const std::lock_guard<std::mutex> lock(feed.m_mutex);
    if (feed.m_fed > 0 && !feed.m_hungry)
        feed.m_queue.worked(std::chrono::nanoseconds(steady_clock::now() - feed.m_fedAt).count());
    feed.giveOne();
}

void FrameFeed::giveOne()
{
    m_hungry = m_queue.isEmpty() && !m_ending;
    if (m_hungry)
        return;
    if (m_queue.isEmpty()) {
        gst_app_src_end_of_stream(m_source);
        return;
    }
    ++m_fed;
    m_fedAt = steady_clock::now();
    gst_app_src_push_buffer(m_source, m_queue.take().frame.release());
}
