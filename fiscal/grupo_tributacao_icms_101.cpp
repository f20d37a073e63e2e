#include <fiscal/grupo_tributacao_icms_101.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_icms_101::record {
    origem_cst origem_mercadoria = {};
    fiscal::csosn csosn = {};
    optional<decimal> aliquota_de_credito_sn;
    optional<decimal> valor_de_credito_sn;
};

grupo_tributacao_icms_101::grupo_tributacao_icms_101() = default;
grupo_tributacao_icms_101::grupo_tributacao_icms_101(const grupo_tributacao_icms_101&) = default;
grupo_tributacao_icms_101::grupo_tributacao_icms_101(grupo_tributacao_icms_101&&) = default;
grupo_tributacao_icms_101&
grupo_tributacao_icms_101::operator=(const grupo_tributacao_icms_101&) = default;
grupo_tributacao_icms_101&
grupo_tributacao_icms_101::operator=(grupo_tributacao_icms_101&&) = default;
grupo_tributacao_icms_101::~grupo_tributacao_icms_101() = default;

origem_cst grupo_tributacao_icms_101::get_origem_mercadoria() const {
    return record_->origem_mercadoria;
}
void grupo_tributacao_icms_101::set_origem_mercadoria(origem_cst value) {
    record_->origem_mercadoria = value;
}

csosn grupo_tributacao_icms_101::get_csosn() const { return record_->csosn; }
void grupo_tributacao_icms_101::set_csosn(csosn value) { record_->csosn = value; }

optional<decimal> grupo_tributacao_icms_101::get_aliquota_de_credito_sn() const {
    return record_->aliquota_de_credito_sn;
}
void grupo_tributacao_icms_101::set_aliquota_de_credito_sn(const optional<decimal>& value) {
    record_->aliquota_de_credito_sn = value;
}

optional<decimal> grupo_tributacao_icms_101::get_valor_de_credito_sn() const {
    return record_->valor_de_credito_sn;
}
void grupo_tributacao_icms_101::set_valor_de_credito_sn(const optional<decimal>& value) {
    record_->valor_de_credito_sn = value;
}

} // namespace kivo::erp::v12::fiscal
