#include <fiscal/grupo_monofasica_retencao.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_monofasica_retencao::record {
    decimal quantidade_tributada;
    decimal aliquota_ibs;
    decimal valor_ibs_monofasico;
    decimal aliquota_cbs;
    decimal valor_cbs_monofasico;
};

grupo_monofasica_retencao::grupo_monofasica_retencao() noexcept = default;
grupo_monofasica_retencao::grupo_monofasica_retencao(const grupo_monofasica_retencao&) noexcept =
    default;
grupo_monofasica_retencao::grupo_monofasica_retencao(grupo_monofasica_retencao&&) noexcept =
    default;
grupo_monofasica_retencao&
grupo_monofasica_retencao::operator=(const grupo_monofasica_retencao&) noexcept = default;
grupo_monofasica_retencao&
grupo_monofasica_retencao::operator=(grupo_monofasica_retencao&&) noexcept = default;
grupo_monofasica_retencao::~grupo_monofasica_retencao() = default;
void grupo_monofasica_retencao::swap(grupo_monofasica_retencao& other) noexcept {
    record_.swap(other.record_);
}

decimal grupo_monofasica_retencao::get_quantidade_tributada() const {
    return record_.get(&record::quantidade_tributada);
}
void grupo_monofasica_retencao::set_quantidade_tributada(const decimal& value) {
    record_.set(&record::quantidade_tributada, value);
}

decimal grupo_monofasica_retencao::get_aliquota_ibs() const {
    return record_.get(&record::aliquota_ibs);
}
void grupo_monofasica_retencao::set_aliquota_ibs(const decimal& value) {
    record_.set(&record::aliquota_ibs, value);
}

decimal grupo_monofasica_retencao::get_valor_ibs_monofasico() const {
    return record_.get(&record::valor_ibs_monofasico);
}
void grupo_monofasica_retencao::set_valor_ibs_monofasico(const decimal& value) {
    record_.set(&record::valor_ibs_monofasico, value);
}

decimal grupo_monofasica_retencao::get_aliquota_cbs() const {
    return record_.get(&record::aliquota_cbs);
}
void grupo_monofasica_retencao::set_aliquota_cbs(const decimal& value) {
    record_.set(&record::aliquota_cbs, value);
}

decimal grupo_monofasica_retencao::get_valor_cbs_monofasico() const {
    return record_.get(&record::valor_cbs_monofasico);
}
void grupo_monofasica_retencao::set_valor_cbs_monofasico(const decimal& value) {
    record_.set(&record::valor_cbs_monofasico, value);
}

} // namespace kivo::erp::v12::fiscal
