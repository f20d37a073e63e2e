#include <fiscal/grupo_tributacao_cofins_outros.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_cofins_outros::record {
    grupo_tributacao_cofins_outros::cst_cofins cst_cofins = {};
    optional<decimal> valor_bc_cofins;
    optional<decimal> percentual_aliquota_cofins;
    decimal valor_cofins;
};

grupo_tributacao_cofins_outros::grupo_tributacao_cofins_outros() = default;
grupo_tributacao_cofins_outros::grupo_tributacao_cofins_outros(
    const grupo_tributacao_cofins_outros&) = default;
grupo_tributacao_cofins_outros::grupo_tributacao_cofins_outros(grupo_tributacao_cofins_outros&&) =
    default;
grupo_tributacao_cofins_outros&
grupo_tributacao_cofins_outros::operator=(const grupo_tributacao_cofins_outros&) = default;
grupo_tributacao_cofins_outros&
grupo_tributacao_cofins_outros::operator=(grupo_tributacao_cofins_outros&&) = default;
grupo_tributacao_cofins_outros::~grupo_tributacao_cofins_outros() = default;

grupo_tributacao_cofins_outros::cst_cofins grupo_tributacao_cofins_outros::get_cst_cofins() const {
    return record_->cst_cofins;
}
void grupo_tributacao_cofins_outros::set_cst_cofins(cst_cofins value) {
    record_->cst_cofins = value;
}

optional<decimal> grupo_tributacao_cofins_outros::get_valor_bc_cofins() const {
    return record_->valor_bc_cofins;
}
void grupo_tributacao_cofins_outros::set_valor_bc_cofins(const optional<decimal>& value) {
    record_->valor_bc_cofins = value;
}

optional<decimal> grupo_tributacao_cofins_outros::get_percentual_aliquota_cofins() const {
    return record_->percentual_aliquota_cofins;
}
void grupo_tributacao_cofins_outros::set_percentual_aliquota_cofins(
    const optional<decimal>& value) {
    record_->percentual_aliquota_cofins = value;
}

decimal grupo_tributacao_cofins_outros::get_valor_cofins() const { return record_->valor_cofins; }
void grupo_tributacao_cofins_outros::set_valor_cofins(const decimal& value) {
    record_->valor_cofins = value;
}

} // namespace kivo::erp::v12::fiscal
