#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <variant>
#include <vector>

namespace nfe_summary {

/// Makes something for each number below a count, on all cores, and uses the results in the order
/// of the numbers, on this thread. Little more is made than what is used next. What `make` throws
/// is thrown here.
template <class Make, class Use> void make_in_order(std::size_t count, Make make, Use use) {
    using result = decltype(make(std::size_t{}));
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    if (cores == 1 || count < 2) {
        for (std::size_t index = 0; index < count; ++index) {
            use(index, make(index));
        }
        return;
    }
    constexpr std::size_t most_ahead = 256;
    std::vector<std::variant<std::monostate, result, std::exception_ptr>> made(most_ahead);
    std::mutex mutex;
    std::condition_variable changed; // for those that make
    std::condition_variable ready;   // for the one that uses
    std::size_t waiting = 0;         // to make
    std::size_t next = 0;            // to make
    std::size_t used = 0;
    bool stopped = false;

    const auto work = [&] {
        std::unique_lock lock(mutex);
        for (;;) {
            ++waiting;
            changed.wait(lock,
                         [&] { return stopped || next == count || next < used + most_ahead; });
            --waiting;
            if (stopped || next == count) {
                return;
            }
            const std::size_t index = next++;
            lock.unlock();
            std::variant<std::monostate, result, std::exception_ptr> outcome;
            try {
                outcome = make(index);
            } catch (...) {
                outcome = std::current_exception();
            }
            lock.lock();
            made[index % most_ahead] = std::move(outcome);
            if (index == used) { // the others are not waited for yet
                ready.notify_one();
            }
        }
    };
    std::vector<std::jthread> workers;
    struct stopper { // where using fails, the workers have to end before what they use does
        std::mutex& mutex;
        std::condition_variable& changed;
        bool& stopped;
        std::vector<std::jthread>& workers;
        ~stopper() {
            {
                const std::lock_guard lock(mutex);
                stopped = true;
            }
            changed.notify_all();
            workers.clear();
        }
    };
    const stopper at_end{mutex, changed, stopped, workers};
    for (std::size_t worker = 0; worker < std::min(cores, count); ++worker) {
        workers.emplace_back(work);
    }
    for (std::size_t index = 0; index < count; ++index) {
        std::unique_lock lock(mutex);
        auto& slot = made[index % most_ahead];
        ready.wait(lock, [&] { return slot.index() != 0; });
        auto outcome = std::exchange(slot, std::monostate());
        ++used;
        const bool full = waiting != 0;
        lock.unlock();
        if (full) {
            changed.notify_all();
        }
        if (auto* const failure = std::get_if<std::exception_ptr>(&outcome)) {
            std::rethrow_exception(*failure);
        }
        use(index, std::get<result>(std::move(outcome)));
    }
}

} // namespace nfe_summary
