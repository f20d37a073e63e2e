#pragma once

#include <base/counted.hpp>

#include <cstddef>
#include <limits>
#include <vector>

namespace kivo::tests {

/// An operation of a base value that fails. The evidence is the log.
class failing_operation {
public:
    using failure = counting::failure;
    using evidence_type = std::vector<counting::event>;
    static constexpr const char* name = "failing operations of base values";
    static std::size_t live() { return counting::live; }

    explicit failing_operation(std::size_t allowed) {
        counting::log = &log_;
        counting::allowed = allowed;
    }
    failing_operation(const failing_operation&) = delete;
    failing_operation& operator=(const failing_operation&) = delete;
    void end() {
        reached_ = counting::failed;
        counting::log = nullptr;
        counting::allowed = std::numeric_limits<std::size_t>::max();
        counting::failed = false;
    }
    bool was_reached() const { return reached_; }
    std::size_t steps() const { return log_.size(); }
    const evidence_type& evidence() const { return log_; }

private:
    std::vector<counting::event> log_;
    bool reached_ = false;
};

} // namespace kivo::tests
