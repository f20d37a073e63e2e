#include <fiscal/grupo_monofasica_retida.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_monofasica_retida::record {
    decimal quantidade_tributada;
    decimal aliquota_ibs;
    decimal valor_ibs_monofasico;
    decimal aliquota_cbs;
    decimal valor_cbs_monofasico;
};

grupo_monofasica_retida::grupo_monofasica_retida() noexcept = default;
grupo_monofasica_retida::grupo_monofasica_retida(const grupo_monofasica_retida&) noexcept = default;
grupo_monofasica_retida::grupo_monofasica_retida(grupo_monofasica_retida&&) noexcept = default;
grupo_monofasica_retida&
grupo_monofasica_retida::operator=(const grupo_monofasica_retida&) noexcept = default;
grupo_monofasica_retida&
grupo_monofasica_retida::operator=(grupo_monofasica_retida&&) noexcept = default;
grupo_monofasica_retida::~grupo_monofasica_retida() = default;
void grupo_monofasica_retida::swap(grupo_monofasica_retida& other) noexcept {
    record_.swap(other.record_);
}

decimal grupo_monofasica_retida::get_quantidade_tributada() const {
    return record_.get(&record::quantidade_tributada);
}
void grupo_monofasica_retida::set_quantidade_tributada(const decimal& value) {
    record_.set(&record::quantidade_tributada, value);
}

decimal grupo_monofasica_retida::get_aliquota_ibs() const {
    return record_.get(&record::aliquota_ibs);
}
void grupo_monofasica_retida::set_aliquota_ibs(const decimal& value) {
    record_.set(&record::aliquota_ibs, value);
}

decimal grupo_monofasica_retida::get_valor_ibs_monofasico() const {
    return record_.get(&record::valor_ibs_monofasico);
}
void grupo_monofasica_retida::set_valor_ibs_monofasico(const decimal& value) {
    record_.set(&record::valor_ibs_monofasico, value);
}

decimal grupo_monofasica_retida::get_aliquota_cbs() const {
    return record_.get(&record::aliquota_cbs);
}
void grupo_monofasica_retida::set_aliquota_cbs(const decimal& value) {
    record_.set(&record::aliquota_cbs, value);
}

decimal grupo_monofasica_retida::get_valor_cbs_monofasico() const {
    return record_.get(&record::valor_cbs_monofasico);
}
void grupo_monofasica_retida::set_valor_cbs_monofasico(const decimal& value) {
    record_.set(&record::valor_cbs_monofasico, value);
}

} // namespace kivo::erp::v12::fiscal
