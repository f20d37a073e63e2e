#pragma once

#include <atomic>
#include <cstddef>

namespace nfe_summary {

/// Tells on a terminal how many files have been read, as long as it lives.
class progress {
public:
    explicit progress(std::size_t total);
    ~progress();
    progress(const progress&) = delete;
    progress& operator=(const progress&) = delete;

    /// From any thread: one more file has been read.
    void step();

private:
    std::size_t total_;
    bool shown_;
    std::atomic<std::size_t> done_ = 0;
};

} // namespace nfe_summary
