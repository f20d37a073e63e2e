#include <fiscal/grupo_tributacao_pis_outros.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_pis_outros::record {
    grupo_tributacao_pis_outros::cst_pis cst_pis = {};
    optional<decimal> valor_bc_pis;
    optional<decimal> percentual_aliquota_pis;
    decimal valor_pis;
};

grupo_tributacao_pis_outros::grupo_tributacao_pis_outros() = default;
grupo_tributacao_pis_outros::grupo_tributacao_pis_outros(const grupo_tributacao_pis_outros&) =
    default;
grupo_tributacao_pis_outros::grupo_tributacao_pis_outros(grupo_tributacao_pis_outros&&) = default;
grupo_tributacao_pis_outros&
grupo_tributacao_pis_outros::operator=(const grupo_tributacao_pis_outros&) = default;
grupo_tributacao_pis_outros&
grupo_tributacao_pis_outros::operator=(grupo_tributacao_pis_outros&&) = default;
grupo_tributacao_pis_outros::~grupo_tributacao_pis_outros() = default;

grupo_tributacao_pis_outros::cst_pis grupo_tributacao_pis_outros::get_cst_pis() const {
    return record_->cst_pis;
}
void grupo_tributacao_pis_outros::set_cst_pis(cst_pis value) { record_->cst_pis = value; }

optional<decimal> grupo_tributacao_pis_outros::get_valor_bc_pis() const {
    return record_->valor_bc_pis;
}
void grupo_tributacao_pis_outros::set_valor_bc_pis(const optional<decimal>& value) {
    record_->valor_bc_pis = value;
}

optional<decimal> grupo_tributacao_pis_outros::get_percentual_aliquota_pis() const {
    return record_->percentual_aliquota_pis;
}
void grupo_tributacao_pis_outros::set_percentual_aliquota_pis(const optional<decimal>& value) {
    record_->percentual_aliquota_pis = value;
}

decimal grupo_tributacao_pis_outros::get_valor_pis() const { return record_->valor_pis; }
void grupo_tributacao_pis_outros::set_valor_pis(const decimal& value) {
    record_->valor_pis = value;
}

} // namespace kivo::erp::v12::fiscal
