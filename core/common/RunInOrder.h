#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace sw {

namespace detail {

// The jobs of one ordered run, shared by its workers and the thread that
// takes the results. At most `window` results are made ahead of the one
// taken last, so that a slow taker holds back memory, not the workers.
template <typename Result> class OrderedJobs {
public:
    // A job's outcome: its result or its exception, or neither while it runs.
    struct Slot {
        std::optional<Result> result;
        std::exception_ptr error;
        bool Filled() const { return result.has_value() || error != nullptr; }
    };

    OrderedJobs(std::size_t count, std::size_t window,
                const std::function<Result(std::size_t)>& produce)
        : count_(count), window_(window), produce_(produce), slots_(window) {}

    // A worker's loop: claims the next job while there is room, until none is left.
    void Work() {
        for (std::optional<std::size_t> job = claim(); job; job = claim()) {
            Slot slot;
            try {
                slot.result.emplace(produce_(*job));
            } catch (...) {
                slot.error = std::current_exception();
            }
            {
                const std::lock_guard lock(mutex_);
                slots_[*job % window_] = std::move(slot);
            }
            ready_.notify_all();
        }
    }

    // Waits for the result of job `index`, which must be the one after the
    // last taken, and frees its place for a further job.
    Slot Take(std::size_t index) {
        std::unique_lock lock(mutex_);
        Slot& place = slots_[index % window_];
        ready_.wait(lock, [&] { return place.Filled(); });
        Slot slot = std::move(place);
        place = Slot{};
        taken_ = index + 1;
        lock.unlock();
        room_.notify_all();
        return slot;
    }

    // No job is claimed after this; jobs under way finish.
    void Stop() {
        {
            const std::lock_guard lock(mutex_);
            stopped_ = true;
        }
        room_.notify_all();
    }

private:
    std::optional<std::size_t> claim() {
        std::unique_lock lock(mutex_);
        room_.wait(lock, [&] { return stopped_ || next_ >= count_ || next_ < taken_ + window_; });
        if (stopped_ || next_ >= count_) {
            return std::nullopt;
        }
        return next_++;
    }

    const std::size_t count_;
    const std::size_t window_;
    const std::function<Result(std::size_t)>& produce_;
    std::mutex mutex_;
    std::condition_variable room_;
    std::condition_variable ready_;
    std::vector<Slot> slots_;
    std::size_t next_ = 0;
    std::size_t taken_ = 0;
    bool stopped_ = false;
};

} // namespace detail

// Runs produce(i) for every i below `count` on up to `threads` threads and
// hands each result to consume(i, result) on the calling thread, strictly in
// the order of i: what consume sees is what a plain loop running both in turn
// gives. consume answers false to end the run; no further result is consumed,
// and produce calls already under way are finished and dropped. An exception
// from produce reaches the caller when its result's turn comes, one from
// consume at once. With one thread (or one job) everything runs on the
// caller, one job after the other. produce must be safe to call on several
// threads at once.
template <typename Result>
void RunInOrder(std::size_t count, int threads, const std::function<Result(std::size_t)>& produce,
                const std::function<bool(std::size_t, Result&)>& consume) {
    if (threads <= 1 || count <= 1) {
        for (std::size_t i = 0; i < count; ++i) {
            Result result = produce(i);
            if (!consume(i, result)) {
                return;
            }
        }
        return;
    }
    const std::size_t workers = std::min(static_cast<std::size_t>(threads), count);
    detail::OrderedJobs<Result> jobs(count, 2 * workers, produce);
    std::vector<std::jthread> pool;
    // However the run ends, the workers stop claiming and are joined before
    // the jobs they share go away.
    struct StopAndJoin {
        detail::OrderedJobs<Result>& jobs;
        std::vector<std::jthread>& pool;
        ~StopAndJoin() {
            jobs.Stop();
            pool.clear();
        }
    } stopAndJoin{jobs, pool};
    for (std::size_t w = 0; w < workers; ++w) {
        pool.emplace_back([&jobs] { jobs.Work(); });
    }
    for (std::size_t i = 0; i < count; ++i) {
        typename detail::OrderedJobs<Result>::Slot slot = jobs.Take(i);
        if (slot.error) {
            std::rethrow_exception(slot.error);
        }
        if (!consume(i, *slot.result)) {
            return;
        }
    }
}

// The number of threads that use every core of the machine (at least one).
inline int EveryCore() {
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

} // namespace sw
