#include <fiscal/grupo_icms_st_retido.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_icms_st_retido::record {
    decimal valor_bc_icms_retido;
    decimal aliquota_suportada_consumidor_final;
    optional<decimal> valor_icms_proprio_substituto;
    decimal valor_icms_st_retido;
};

grupo_icms_st_retido::grupo_icms_st_retido() = default;
grupo_icms_st_retido::grupo_icms_st_retido(const grupo_icms_st_retido&) = default;
grupo_icms_st_retido::grupo_icms_st_retido(grupo_icms_st_retido&&) = default;
grupo_icms_st_retido& grupo_icms_st_retido::operator=(const grupo_icms_st_retido&) = default;
grupo_icms_st_retido& grupo_icms_st_retido::operator=(grupo_icms_st_retido&&) = default;
grupo_icms_st_retido::~grupo_icms_st_retido() = default;

decimal grupo_icms_st_retido::get_valor_bc_icms_retido() const {
    return record_->valor_bc_icms_retido;
}
void grupo_icms_st_retido::set_valor_bc_icms_retido(const decimal& value) {
    record_->valor_bc_icms_retido = value;
}

decimal grupo_icms_st_retido::get_aliquota_suportada_consumidor_final() const {
    return record_->aliquota_suportada_consumidor_final;
}
void grupo_icms_st_retido::set_aliquota_suportada_consumidor_final(const decimal& value) {
    record_->aliquota_suportada_consumidor_final = value;
}

optional<decimal> grupo_icms_st_retido::get_valor_icms_proprio_substituto() const {
    return record_->valor_icms_proprio_substituto;
}
void grupo_icms_st_retido::set_valor_icms_proprio_substituto(const optional<decimal>& value) {
    record_->valor_icms_proprio_substituto = value;
}

decimal grupo_icms_st_retido::get_valor_icms_st_retido() const {
    return record_->valor_icms_st_retido;
}
void grupo_icms_st_retido::set_valor_icms_st_retido(const decimal& value) {
    record_->valor_icms_st_retido = value;
}

} // namespace kivo::erp::v12::fiscal
