#include <fiscal/total_ibs_cbs.hpp>

#include <fiscal/total_grupo_cbs.hpp>
#include <fiscal/total_grupo_ibs.hpp>
#include <fiscal/total_grupo_monofasia.hpp>

namespace kivo::erp::v12::fiscal {

struct total_ibs_cbs::record {
    decimal total_bc_ibs_cbs;
    optional<fiscal::total_grupo_ibs> total_grupo_ibs;
    optional<fiscal::total_grupo_cbs> total_grupo_cbs;
    optional<fiscal::total_grupo_monofasia> total_grupo_monofasia;
};

total_ibs_cbs::total_ibs_cbs() noexcept = default;
total_ibs_cbs::total_ibs_cbs(const total_ibs_cbs&) = default;
total_ibs_cbs::total_ibs_cbs(total_ibs_cbs&&) noexcept = default;
total_ibs_cbs& total_ibs_cbs::operator=(const total_ibs_cbs&) = default;
total_ibs_cbs& total_ibs_cbs::operator=(total_ibs_cbs&&) noexcept = default;
total_ibs_cbs::~total_ibs_cbs() = default;
void total_ibs_cbs::swap(total_ibs_cbs& other) noexcept { record_.swap(other.record_); }

decimal total_ibs_cbs::get_total_bc_ibs_cbs() const {
    return record_.get(&record::total_bc_ibs_cbs);
}
void total_ibs_cbs::set_total_bc_ibs_cbs(const decimal& value) {
    record_.set(&record::total_bc_ibs_cbs, value);
}

optional<total_grupo_ibs> total_ibs_cbs::get_total_grupo_ibs() const {
    return record_.get(&record::total_grupo_ibs);
}
void total_ibs_cbs::set_total_grupo_ibs(const optional<total_grupo_ibs>& value) {
    record_.set(&record::total_grupo_ibs, value);
}

optional<total_grupo_cbs> total_ibs_cbs::get_total_grupo_cbs() const {
    return record_.get(&record::total_grupo_cbs);
}
void total_ibs_cbs::set_total_grupo_cbs(const optional<total_grupo_cbs>& value) {
    record_.set(&record::total_grupo_cbs, value);
}

optional<total_grupo_monofasia> total_ibs_cbs::get_total_grupo_monofasia() const {
    return record_.get(&record::total_grupo_monofasia);
}
void total_ibs_cbs::set_total_grupo_monofasia(const optional<total_grupo_monofasia>& value) {
    record_.set(&record::total_grupo_monofasia, value);
}

} // namespace kivo::erp::v12::fiscal
