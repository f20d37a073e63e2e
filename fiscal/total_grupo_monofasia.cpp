#include <fiscal/total_grupo_monofasia.hpp>

namespace kivo::erp::v12::fiscal {

struct total_grupo_monofasia::record {
    decimal total_ibs;
    decimal total_cbs;
    decimal total_ibs_retencao;
    decimal total_cbs_retencao;
    decimal total_ibs_retido;
    decimal total_cbs_retido;
};

total_grupo_monofasia::total_grupo_monofasia() noexcept = default;
total_grupo_monofasia::total_grupo_monofasia(const total_grupo_monofasia&) = default;
total_grupo_monofasia::total_grupo_monofasia(total_grupo_monofasia&&) noexcept = default;
total_grupo_monofasia& total_grupo_monofasia::operator=(const total_grupo_monofasia&) = default;
total_grupo_monofasia& total_grupo_monofasia::operator=(total_grupo_monofasia&&) noexcept = default;
total_grupo_monofasia::~total_grupo_monofasia() = default;
void total_grupo_monofasia::swap(total_grupo_monofasia& other) noexcept {
    record_.swap(other.record_);
}

decimal total_grupo_monofasia::get_total_ibs() const { return record_.get(&record::total_ibs); }
void total_grupo_monofasia::set_total_ibs(const decimal& value) {
    record_.set(&record::total_ibs, value);
}

decimal total_grupo_monofasia::get_total_cbs() const { return record_.get(&record::total_cbs); }
void total_grupo_monofasia::set_total_cbs(const decimal& value) {
    record_.set(&record::total_cbs, value);
}

decimal total_grupo_monofasia::get_total_ibs_retencao() const {
    return record_.get(&record::total_ibs_retencao);
}
void total_grupo_monofasia::set_total_ibs_retencao(const decimal& value) {
    record_.set(&record::total_ibs_retencao, value);
}

decimal total_grupo_monofasia::get_total_cbs_retencao() const {
    return record_.get(&record::total_cbs_retencao);
}
void total_grupo_monofasia::set_total_cbs_retencao(const decimal& value) {
    record_.set(&record::total_cbs_retencao, value);
}

decimal total_grupo_monofasia::get_total_ibs_retido() const {
    return record_.get(&record::total_ibs_retido);
}
void total_grupo_monofasia::set_total_ibs_retido(const decimal& value) {
    record_.set(&record::total_ibs_retido, value);
}

decimal total_grupo_monofasia::get_total_cbs_retido() const {
    return record_.get(&record::total_cbs_retido);
}
void total_grupo_monofasia::set_total_cbs_retido(const decimal& value) {
    record_.set(&record::total_cbs_retido, value);
}

} // namespace kivo::erp::v12::fiscal
