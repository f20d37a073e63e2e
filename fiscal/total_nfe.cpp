#include <fiscal/total_nfe.hpp>

#include <fiscal/total_ibs_cbs.hpp>
#include <fiscal/total_is.hpp>
#include <fiscal/total_nfe_icms.hpp>
#include <fiscal/total_nfe_issqn.hpp>
#include <fiscal/total_nfe_retencao_tributos.hpp>

namespace kivo::erp::v12::fiscal {

struct total_nfe::record {
    total_nfe_icms total_icms;
    optional<total_nfe_issqn> total_issqn;
    optional<fiscal::total_nfe_retencao_tributos> total_nfe_retencao_tributos;
    optional<fiscal::total_is> total_is;
    optional<fiscal::total_ibs_cbs> total_ibs_cbs;
    optional<decimal> total_nfe_geral;
};

total_nfe::total_nfe() noexcept = default;
total_nfe::total_nfe(const total_nfe&) = default;
total_nfe::total_nfe(total_nfe&&) noexcept = default;
total_nfe& total_nfe::operator=(const total_nfe&) = default;
total_nfe& total_nfe::operator=(total_nfe&&) noexcept = default;
total_nfe::~total_nfe() = default;
void total_nfe::swap(total_nfe& other) noexcept { record_.swap(other.record_); }

total_nfe_icms total_nfe::get_total_icms() const { return record_.get(&record::total_icms); }
void total_nfe::set_total_icms(const total_nfe_icms& value) {
    record_.set(&record::total_icms, value);
}

optional<total_nfe_issqn> total_nfe::get_total_issqn() const {
    return record_.get(&record::total_issqn);
}
void total_nfe::set_total_issqn(const optional<total_nfe_issqn>& value) {
    record_.set(&record::total_issqn, value);
}

optional<total_nfe_retencao_tributos> total_nfe::get_total_nfe_retencao_tributos() const {
    return record_.get(&record::total_nfe_retencao_tributos);
}
void total_nfe::set_total_nfe_retencao_tributos(
    const optional<total_nfe_retencao_tributos>& value) {
    record_.set(&record::total_nfe_retencao_tributos, value);
}

optional<total_is> total_nfe::get_total_is() const { return record_.get(&record::total_is); }
void total_nfe::set_total_is(const optional<total_is>& value) {
    record_.set(&record::total_is, value);
}

optional<total_ibs_cbs> total_nfe::get_total_ibs_cbs() const {
    return record_.get(&record::total_ibs_cbs);
}
void total_nfe::set_total_ibs_cbs(const optional<total_ibs_cbs>& value) {
    record_.set(&record::total_ibs_cbs, value);
}

optional<decimal> total_nfe::get_total_nfe_geral() const {
    return record_.get(&record::total_nfe_geral);
}
void total_nfe::set_total_nfe_geral(const optional<decimal>& value) {
    record_.set(&record::total_nfe_geral, value);
}

} // namespace kivo::erp::v12::fiscal
