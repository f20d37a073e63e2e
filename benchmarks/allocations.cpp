#include "allocations.hpp"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <unordered_map>

#include <malloc.h>

namespace {

// one thread records, while no other runs
bool recording = false;
kivo::benchmarks::trace* recorded = nullptr;
std::unordered_map<void*, std::size_t>* block_numbers = nullptr;

void record_taken(void* block, std::size_t size) {
    recording = false;
    (*block_numbers)[block] = recorded->taken;
    recorded->requests.push_back({recorded->taken, std::max<std::size_t>(size, 1)});
    ++recorded->taken;
    recording = true;
}

void record_given_back(void* block) {
    recording = false;
    const auto found = block_numbers->find(block);
    if (found != block_numbers->end()) { // not taken before the recording
        recorded->requests.push_back({found->second, 0});
        block_numbers->erase(found);
    }
    recording = true;
}

} // namespace

void* operator new(std::size_t size) {
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    if (recording) [[unlikely]] {
        record_taken(block, size);
    }
    return block;
}

void operator delete(void* block) noexcept {
    if (recording && block != nullptr) [[unlikely]] {
        record_given_back(block);
    }
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

namespace kivo::benchmarks {

trace record(const std::function<void()>& operation) {
    trace result;
    std::unordered_map<void*, std::size_t> numbers;
    recorded = &result;
    block_numbers = &numbers;
    recording = true;
    operation();
    recording = false;
    result.still_taken = numbers.size();
    for (const auto& [block, number] : numbers) {
        result.bytes += malloc_usable_size(block) + sizeof(std::size_t);
    }
    return result;
}

replay::replay(const trace& recorded_trace)
    : requests_(recorded_trace.requests), blocks_(recorded_trace.taken) {
    for (const request& next : requests_) {
        if (next.size != 0) {
            sources_.push_back(std::memset(operator new(next.size), 1, next.size));
        }
    }
}

replay::~replay() {
    for (void* const source : sources_) {
        operator delete(source);
    }
}

template <bool copying> void replay::run() {
    for (const request& next : requests_) {
        void*& block = blocks_[next.block];
        if (next.size == 0) {
            operator delete(block);
        } else {
            block = operator new(next.size);
            if constexpr (copying) {
                std::memcpy(block, sources_[next.block], next.size);
            }
        }
    }
}

void replay::take_and_copy(std::size_t times) {
    held_.reserve(times * blocks_.size());
    for (std::size_t time = 0; time < times; ++time) {
        for (const request& next : requests_) {
            if (next.size != 0) {
                held_.push_back(
                    std::memcpy(operator new(next.size), sources_[next.block], next.size));
            }
        }
    }
}

void replay::give_back() {
    for (std::size_t first = 0; first < held_.size(); first += blocks_.size()) {
        for (const request& next : requests_) {
            if (next.size == 0) {
                operator delete(held_[first + next.block]);
            }
        }
    }
    held_.clear();
}

void replay::take() { run<false>(); }
void replay::take_and_copy() { run<true>(); }

} // namespace kivo::benchmarks
