#include "progress.hpp"

#include "language.hpp"
#include "platform.hpp"

#include <fmt/format.h>

namespace nfe_summary {

progress::progress(std::size_t total)
    : total_(total), shown_(platform::is_terminal(stderr) && total > 1) {}

progress::~progress() {
    if (shown_) {
        fmt::print(stderr, "\r\x1b[K");
    }
}

void progress::step() {
    const std::size_t done = ++done_;
    if (shown_ && done * 100 / total_ != (done - 1) * 100 / total_) {
        fmt::print(stderr, "\r{}", say("{} of {} files", done, total_));
    }
}

} // namespace nfe_summary
