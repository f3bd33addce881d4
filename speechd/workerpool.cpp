#include "workerpool.h"

#include <algorithm>

WorkerPool::WorkerPool(size_t threads, size_t maxParked)
    : m_base(std::max<size_t>(1, threads))
    , m_maxParked(maxParked)
{
    for (size_t i = 0; i < m_base; ++i) {
        m_threads.emplace_back(&WorkerPool::run, this);
    }
}

WorkerPool::~WorkerPool()
{
    shutdown();
}

void WorkerPool::post(std::function<void()> task)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_tasks.push_back(std::move(task));
    }
    m_wake.notify_one();
}

bool WorkerPool::park()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_parked >= m_maxParked || m_shutdown) {
        return false;
    }
    ++m_parked;
    if (m_threads.size() - m_parked < m_base) {
        m_threads.emplace_back(&WorkerPool::run, this);
    }
    return true;
}

void WorkerPool::unpark()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    --m_parked;
}

void WorkerPool::shutdown()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_shutdown) {
            return;
        }
        m_shutdown = true;
    }
    m_wake.notify_all();
    // No thread is added once m_shutdown is set, so the list is stable here.
    for (std::thread& thread : m_threads) {
        thread.join();
    }
}

void WorkerPool::run()
{
    for (;;) {
        std::function<void()> task;
        {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_wake.wait(lock, [this] { return m_shutdown || !m_tasks.empty(); });
            if (m_tasks.empty()) {
                return; // shut down, nothing left
            }
            task = std::move(m_tasks.front());
            m_tasks.pop_front();
        }
        task();
    }
}
