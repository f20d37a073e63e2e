#include <fiscal/tributacao_st_icms_90.hpp>

#include <fiscal/grupo_fcp_st_retido.hpp>

namespace kivo::erp::v12::fiscal {

struct tributacao_st_icms_90::record {
    fiscal::modalidade_bc_icms_st modalidade_bc_icms_st = {};
    optional<decimal> percentual_margem_valor_adicionado_icms_st;
    optional<decimal> percentual_reducao_bc_icms_st;
    optional<decimal> valor_bc_icms_st;
    optional<decimal> aliquota_icms_st;
    optional<decimal> valor_icms_st;
    optional<grupo_fcp_st_retido> fcp_st_retido;
};

tributacao_st_icms_90::tributacao_st_icms_90() = default;
tributacao_st_icms_90::tributacao_st_icms_90(const tributacao_st_icms_90&) = default;
tributacao_st_icms_90::tributacao_st_icms_90(tributacao_st_icms_90&&) = default;
tributacao_st_icms_90& tributacao_st_icms_90::operator=(const tributacao_st_icms_90&) = default;
tributacao_st_icms_90& tributacao_st_icms_90::operator=(tributacao_st_icms_90&&) = default;
tributacao_st_icms_90::~tributacao_st_icms_90() = default;

modalidade_bc_icms_st tributacao_st_icms_90::get_modalidade_bc_icms_st() const {
    return record_->modalidade_bc_icms_st;
}
void tributacao_st_icms_90::set_modalidade_bc_icms_st(modalidade_bc_icms_st value) {
    record_->modalidade_bc_icms_st = value;
}

optional<decimal> tributacao_st_icms_90::get_percentual_margem_valor_adicionado_icms_st() const {
    return record_->percentual_margem_valor_adicionado_icms_st;
}
void tributacao_st_icms_90::set_percentual_margem_valor_adicionado_icms_st(
    const optional<decimal>& value) {
    record_->percentual_margem_valor_adicionado_icms_st = value;
}

optional<decimal> tributacao_st_icms_90::get_percentual_reducao_bc_icms_st() const {
    return record_->percentual_reducao_bc_icms_st;
}
void tributacao_st_icms_90::set_percentual_reducao_bc_icms_st(const optional<decimal>& value) {
    record_->percentual_reducao_bc_icms_st = value;
}

optional<decimal> tributacao_st_icms_90::get_valor_bc_icms_st() const {
    return record_->valor_bc_icms_st;
}
void tributacao_st_icms_90::set_valor_bc_icms_st(const optional<decimal>& value) {
    record_->valor_bc_icms_st = value;
}

optional<decimal> tributacao_st_icms_90::get_aliquota_icms_st() const {
    return record_->aliquota_icms_st;
}
void tributacao_st_icms_90::set_aliquota_icms_st(const optional<decimal>& value) {
    record_->aliquota_icms_st = value;
}

optional<decimal> tributacao_st_icms_90::get_valor_icms_st() const {
    return record_->valor_icms_st;
}
void tributacao_st_icms_90::set_valor_icms_st(const optional<decimal>& value) {
    record_->valor_icms_st = value;
}

optional<grupo_fcp_st_retido> tributacao_st_icms_90::get_fcp_st_retido() const {
    return record_->fcp_st_retido;
}
void tributacao_st_icms_90::set_fcp_st_retido(const optional<grupo_fcp_st_retido>& value) {
    record_->fcp_st_retido = value;
}

} // namespace kivo::erp::v12::fiscal
