#include <fiscal/grupo_tributacao_icms_61.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_icms_61::record {
    origem_cst origem_mercadoria = {};
    fiscal::cst cst = {};
    optional<decimal> quantidade_tributada_retida;
    decimal aliquota_ad_rem_retido;
    decimal valor_icms_retido;
};

grupo_tributacao_icms_61::grupo_tributacao_icms_61() noexcept = default;
grupo_tributacao_icms_61::grupo_tributacao_icms_61(const grupo_tributacao_icms_61&) noexcept =
    default;
grupo_tributacao_icms_61::grupo_tributacao_icms_61(grupo_tributacao_icms_61&&) noexcept = default;
grupo_tributacao_icms_61&
grupo_tributacao_icms_61::operator=(const grupo_tributacao_icms_61&) noexcept = default;
grupo_tributacao_icms_61&
grupo_tributacao_icms_61::operator=(grupo_tributacao_icms_61&&) noexcept = default;
grupo_tributacao_icms_61::~grupo_tributacao_icms_61() = default;
void grupo_tributacao_icms_61::swap(grupo_tributacao_icms_61& other) noexcept {
    record_.swap(other.record_);
}

origem_cst grupo_tributacao_icms_61::get_origem_mercadoria() const {
    return record_.get(&record::origem_mercadoria);
}
void grupo_tributacao_icms_61::set_origem_mercadoria(origem_cst value) {
    record_.set(&record::origem_mercadoria, value);
}

cst grupo_tributacao_icms_61::get_cst() const { return record_.get(&record::cst); }
void grupo_tributacao_icms_61::set_cst(cst value) { record_.set(&record::cst, value); }

optional<decimal> grupo_tributacao_icms_61::get_quantidade_tributada_retida() const {
    return record_.get(&record::quantidade_tributada_retida);
}
void grupo_tributacao_icms_61::set_quantidade_tributada_retida(const optional<decimal>& value) {
    record_.set(&record::quantidade_tributada_retida, value);
}

decimal grupo_tributacao_icms_61::get_aliquota_ad_rem_retido() const {
    return record_.get(&record::aliquota_ad_rem_retido);
}
void grupo_tributacao_icms_61::set_aliquota_ad_rem_retido(const decimal& value) {
    record_.set(&record::aliquota_ad_rem_retido, value);
}

decimal grupo_tributacao_icms_61::get_valor_icms_retido() const {
    return record_.get(&record::valor_icms_retido);
}
void grupo_tributacao_icms_61::set_valor_icms_retido(const decimal& value) {
    record_.set(&record::valor_icms_retido, value);
}

} // namespace kivo::erp::v12::fiscal
