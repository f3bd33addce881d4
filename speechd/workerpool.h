#ifndef WORKERPOOL_H
#define WORKERPOOL_H

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

// Threads that serve requests. A request that waits a long time (a result
// query) parks its thread: another thread takes its place, so that waiting
// clients never take the places the others need.
class WorkerPool
{
public:
    WorkerPool(size_t threads, size_t maxParked);
    ~WorkerPool();

    void post(std::function<void()> task);

    // Called from a task before a long wait; false when too many wait already.
    bool park();
    void unpark();

    // Runs what is still queued, then joins the threads.
    void shutdown();

private:
    void run();

    const size_t m_base;
    const size_t m_maxParked;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::deque<std::function<void()>> m_tasks;
    std::vector<std::thread> m_threads; // never shrinks: at most base + maxParked
    size_t m_parked = 0;
    bool m_shutdown = false;
};

#endif // WORKERPOOL_H
