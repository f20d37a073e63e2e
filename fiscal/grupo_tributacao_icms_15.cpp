#include <fiscal/grupo_tributacao_icms_15.hpp>

#include <fiscal/grupo_reducao_ad_rem.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_icms_15::record {
    origem_cst origem_mercadoria = {};
    fiscal::cst cst = {};
    optional<decimal> quantidade_tributada;
    decimal aliquota_ad_rem;
    decimal valor_icms;
    optional<decimal> quantidade_tributada_retencao;
    decimal aliquota_ad_rem_retencao;
    decimal valor_icms_retencao;
    optional<grupo_reducao_ad_rem> reducao_ad_rem;
};

grupo_tributacao_icms_15::grupo_tributacao_icms_15() noexcept = default;
grupo_tributacao_icms_15::grupo_tributacao_icms_15(const grupo_tributacao_icms_15&) noexcept =
    default;
grupo_tributacao_icms_15::grupo_tributacao_icms_15(grupo_tributacao_icms_15&&) noexcept = default;
grupo_tributacao_icms_15&
grupo_tributacao_icms_15::operator=(const grupo_tributacao_icms_15&) noexcept = default;
grupo_tributacao_icms_15&
grupo_tributacao_icms_15::operator=(grupo_tributacao_icms_15&&) noexcept = default;
grupo_tributacao_icms_15::~grupo_tributacao_icms_15() = default;
void grupo_tributacao_icms_15::swap(grupo_tributacao_icms_15& other) noexcept {
    record_.swap(other.record_);
}

origem_cst grupo_tributacao_icms_15::get_origem_mercadoria() const {
    return record_.get(&record::origem_mercadoria);
}
void grupo_tributacao_icms_15::set_origem_mercadoria(origem_cst value) {
    record_.set(&record::origem_mercadoria, value);
}

cst grupo_tributacao_icms_15::get_cst() const { return record_.get(&record::cst); }
void grupo_tributacao_icms_15::set_cst(cst value) { record_.set(&record::cst, value); }

optional<decimal> grupo_tributacao_icms_15::get_quantidade_tributada() const {
    return record_.get(&record::quantidade_tributada);
}
void grupo_tributacao_icms_15::set_quantidade_tributada(const optional<decimal>& value) {
    record_.set(&record::quantidade_tributada, value);
}

decimal grupo_tributacao_icms_15::get_aliquota_ad_rem() const {
    return record_.get(&record::aliquota_ad_rem);
}
void grupo_tributacao_icms_15::set_aliquota_ad_rem(const decimal& value) {
    record_.set(&record::aliquota_ad_rem, value);
}

decimal grupo_tributacao_icms_15::get_valor_icms() const {
    return record_.get(&record::valor_icms);
}
void grupo_tributacao_icms_15::set_valor_icms(const decimal& value) {
    record_.set(&record::valor_icms, value);
}

optional<decimal> grupo_tributacao_icms_15::get_quantidade_tributada_retencao() const {
    return record_.get(&record::quantidade_tributada_retencao);
}
void grupo_tributacao_icms_15::set_quantidade_tributada_retencao(const optional<decimal>& value) {
    record_.set(&record::quantidade_tributada_retencao, value);
}

decimal grupo_tributacao_icms_15::get_aliquota_ad_rem_retencao() const {
    return record_.get(&record::aliquota_ad_rem_retencao);
}
void grupo_tributacao_icms_15::set_aliquota_ad_rem_retencao(const decimal& value) {
    record_.set(&record::aliquota_ad_rem_retencao, value);
}

decimal grupo_tributacao_icms_15::get_valor_icms_retencao() const {
    return record_.get(&record::valor_icms_retencao);
}
void grupo_tributacao_icms_15::set_valor_icms_retencao(const decimal& value) {
    record_.set(&record::valor_icms_retencao, value);
}

optional<grupo_reducao_ad_rem> grupo_tributacao_icms_15::get_reducao_ad_rem() const {
    return record_.get(&record::reducao_ad_rem);
}
void grupo_tributacao_icms_15::set_reducao_ad_rem(const optional<grupo_reducao_ad_rem>& value) {
    record_.set(&record::reducao_ad_rem, value);
}

} // namespace kivo::erp::v12::fiscal
