#include <fiscal/grupo_tributacao_icms_02.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_icms_02::record {
    origem_cst origem_mercadoria = {};
    fiscal::cst cst = {};
    optional<decimal> quantidade_tributada;
    decimal aliquota_ad_rem;
    decimal valor_icms;
};

grupo_tributacao_icms_02::grupo_tributacao_icms_02() noexcept = default;
grupo_tributacao_icms_02::grupo_tributacao_icms_02(const grupo_tributacao_icms_02&) noexcept =
    default;
grupo_tributacao_icms_02::grupo_tributacao_icms_02(grupo_tributacao_icms_02&&) noexcept = default;
grupo_tributacao_icms_02&
grupo_tributacao_icms_02::operator=(const grupo_tributacao_icms_02&) noexcept = default;
grupo_tributacao_icms_02&
grupo_tributacao_icms_02::operator=(grupo_tributacao_icms_02&&) noexcept = default;
grupo_tributacao_icms_02::~grupo_tributacao_icms_02() = default;
void grupo_tributacao_icms_02::swap(grupo_tributacao_icms_02& other) noexcept {
    record_.swap(other.record_);
}

origem_cst grupo_tributacao_icms_02::get_origem_mercadoria() const {
    return record_.get(&record::origem_mercadoria);
}
void grupo_tributacao_icms_02::set_origem_mercadoria(origem_cst value) {
    record_.set(&record::origem_mercadoria, value);
}

cst grupo_tributacao_icms_02::get_cst() const { return record_.get(&record::cst); }
void grupo_tributacao_icms_02::set_cst(cst value) { record_.set(&record::cst, value); }

optional<decimal> grupo_tributacao_icms_02::get_quantidade_tributada() const {
    return record_.get(&record::quantidade_tributada);
}
void grupo_tributacao_icms_02::set_quantidade_tributada(const optional<decimal>& value) {
    record_.set(&record::quantidade_tributada, value);
}

decimal grupo_tributacao_icms_02::get_aliquota_ad_rem() const {
    return record_.get(&record::aliquota_ad_rem);
}
void grupo_tributacao_icms_02::set_aliquota_ad_rem(const decimal& value) {
    record_.set(&record::aliquota_ad_rem, value);
}

decimal grupo_tributacao_icms_02::get_valor_icms() const {
    return record_.get(&record::valor_icms);
}
void grupo_tributacao_icms_02::set_valor_icms(const decimal& value) {
    record_.set(&record::valor_icms, value);
}

} // namespace kivo::erp::v12::fiscal
