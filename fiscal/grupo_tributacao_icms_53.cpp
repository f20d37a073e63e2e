#include <fiscal/grupo_tributacao_icms_53.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_icms_53::record {
    origem_cst origem_mercadoria = {};
    fiscal::cst cst = {};
    optional<decimal> quantidade_tributada_diferida;
    optional<decimal> aliquota_ad_rem_diferido;
    optional<decimal> valor_icms_diferido;
};

grupo_tributacao_icms_53::grupo_tributacao_icms_53() noexcept = default;
grupo_tributacao_icms_53::grupo_tributacao_icms_53(const grupo_tributacao_icms_53&) noexcept =
    default;
grupo_tributacao_icms_53::grupo_tributacao_icms_53(grupo_tributacao_icms_53&&) noexcept = default;
grupo_tributacao_icms_53&
grupo_tributacao_icms_53::operator=(const grupo_tributacao_icms_53&) noexcept = default;
grupo_tributacao_icms_53&
grupo_tributacao_icms_53::operator=(grupo_tributacao_icms_53&&) noexcept = default;
grupo_tributacao_icms_53::~grupo_tributacao_icms_53() = default;
void grupo_tributacao_icms_53::swap(grupo_tributacao_icms_53& other) noexcept {
    record_.swap(other.record_);
}

origem_cst grupo_tributacao_icms_53::get_origem_mercadoria() const {
    return record_.get(&record::origem_mercadoria);
}
void grupo_tributacao_icms_53::set_origem_mercadoria(origem_cst value) {
    record_.set(&record::origem_mercadoria, value);
}

cst grupo_tributacao_icms_53::get_cst() const { return record_.get(&record::cst); }
void grupo_tributacao_icms_53::set_cst(cst value) { record_.set(&record::cst, value); }

optional<decimal> grupo_tributacao_icms_53::get_quantidade_tributada_diferida() const {
    return record_.get(&record::quantidade_tributada_diferida);
}
void grupo_tributacao_icms_53::set_quantidade_tributada_diferida(const optional<decimal>& value) {
    record_.set(&record::quantidade_tributada_diferida, value);
}

optional<decimal> grupo_tributacao_icms_53::get_aliquota_ad_rem_diferido() const {
    return record_.get(&record::aliquota_ad_rem_diferido);
}
void grupo_tributacao_icms_53::set_aliquota_ad_rem_diferido(const optional<decimal>& value) {
    record_.set(&record::aliquota_ad_rem_diferido, value);
}

optional<decimal> grupo_tributacao_icms_53::get_valor_icms_diferido() const {
    return record_.get(&record::valor_icms_diferido);
}
void grupo_tributacao_icms_53::set_valor_icms_diferido(const optional<decimal>& value) {
    record_.set(&record::valor_icms_diferido, value);
}

} // namespace kivo::erp::v12::fiscal
