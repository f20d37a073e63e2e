#pragma once

#include <cstddef>
#include <functional>
#include <vector>

/// What an operation asks of the allocator, and the same requests without the operation.
namespace kivo::benchmarks {

/// One request: a block is taken, or (size 0) given back.
struct request {
    std::size_t block; ///< the number of the block, counted as they are taken
    std::size_t size;
};

struct trace {
    std::vector<request> requests;
    std::size_t taken = 0;       ///< how many blocks were taken
    std::size_t still_taken = 0; ///< how many of them were not given back
    std::size_t bytes = 0;       ///< in those, with the allocator's rounding and one word each
};

/// Runs an operation and records its requests.
trace record(const std::function<void()>& operation);

/// The requests of an operation, with as many bytes copied into each block as it holds or none.
class replay {
public:
    explicit replay(const trace& recorded);
    ~replay();
    replay(const replay&) = delete;
    replay& operator=(const replay&) = delete;

    /// Takes and gives back.
    void take();
    /// Takes, copies and gives back; the bytes come from blocks that were taken in the same order.
    void take_and_copy();
    /// Takes and copies so many times over.
    void take_and_copy(std::size_t times);
    /// Gives back what was taken so.
    void give_back();

private:
    template <bool copying> void run();

    const std::vector<request> requests_;
    std::vector<void*> blocks_;
    std::vector<void*> sources_;
    std::vector<void*> held_;
};

} // namespace kivo::benchmarks
