#include "allocations.hpp"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

// other threads may allocate, though never while a limit is set
std::atomic<std::size_t> live = 0;
std::atomic<std::size_t> taken = 0;

bool limited = false;
bool reached = false;
bool failing_on = false;
std::size_t left = 0;

} // namespace

namespace kivo::tests {

void (*on_allocation)(std::size_t size) = nullptr;

std::size_t live_blocks() { return live; }
std::size_t taken_blocks() { return taken; }

allocation_limit::allocation_limit(std::size_t allowed, failing kind) {
    left = allowed;
    reached = false;
    failing_on = kind == failing::from_then_on;
    limited = true;
}

allocation_limit::~allocation_limit() { limited = false; }

bool allocation_limit::was_reached() const { return reached; }

} // namespace kivo::tests

void* operator new(std::size_t size) {
    if (limited && (!reached || failing_on)) {
        if (left == 0) {
            reached = true;
            throw std::bad_alloc();
        }
        --left;
    }
    if (kivo::tests::on_allocation != nullptr) {
        kivo::tests::on_allocation(size);
    }
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    ++live;
    ++taken;
    return block;
}

void operator delete(void* block) noexcept {
    live -= block == nullptr ? 0 : 1;
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept { operator delete(block); }
