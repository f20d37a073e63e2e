#pragma once

#include <cstddef>

/// Counts the blocks of the global allocator, and makes it run out of memory at will.
/// One thread at a time.
namespace kivo::tests {

/// How many blocks are taken and not given back.
std::size_t live_blocks();

/// How many blocks were ever taken.
std::size_t taken_blocks();

/// Is told the size of every block that is taken; null: nobody is.
extern void (*on_allocation)(std::size_t size);

/// Lets so many allocations through and fails the next: that one alone, or all that follow too.
class allocation_limit {
public:
    enum class failing { once, from_then_on };

    explicit allocation_limit(std::size_t allowed, failing kind = failing::once);
    ~allocation_limit();
    allocation_limit(const allocation_limit&) = delete;
    allocation_limit& operator=(const allocation_limit&) = delete;

    /// Whether an allocation failed by now.
    bool was_reached() const;
};

} // namespace kivo::tests
