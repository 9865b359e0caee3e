#ifndef CHANGELISTENERS_H
#define CHANGELISTENERS_H

#include <QVector>

#include <functional>
#include <mutex>

/**
 * Whom a change among the devices is told. What finds devices is shared by all engines of a process
 * and outlives them; an engine listens for as long as it is there.
 *
 * Threads: any.
 */
class ChangeListeners {
public:
    /// Kept by its address until remove(); called on whatever thread tell() is called on.
    void add(const std::function<void()> *listener);

    /// @p listener is not being called any more when this returns.
    void remove(const std::function<void()> *listener);

    void tell();

private:
    std::mutex m_mutex; ///< guards m_all
    QVector<const std::function<void()> *> m_all;
};

#endif
