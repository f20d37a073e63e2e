#include <fiscal/total_is.hpp>

namespace kivo::erp::v12::fiscal {

struct total_is::record {
    decimal total;
};

total_is::total_is() noexcept = default;
total_is::total_is(const total_is&) = default;
total_is::total_is(total_is&&) noexcept = default;
total_is& total_is::operator=(const total_is&) = default;
total_is& total_is::operator=(total_is&&) noexcept = default;
total_is::~total_is() = default;
void total_is::swap(total_is& other) noexcept { record_.swap(other.record_); }

decimal total_is::get_total() const { return record_.get(&record::total); }
void total_is::set_total(const decimal& value) { record_.set(&record::total, value); }

} // namespace kivo::erp::v12::fiscal
