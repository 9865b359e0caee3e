#include "ChangeListeners.h"

void ChangeListeners::add(const std::function<void()> *listener)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_all.append(listener);
}

void ChangeListeners::remove(const std::function<void()> *listener)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_all.removeOne(listener);
}

void ChangeListeners::tell()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    for (const std::function<void()> *listener : qAsConst(m_all))
        (*listener)();
}
