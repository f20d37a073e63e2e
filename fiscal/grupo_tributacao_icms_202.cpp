#include <fiscal/grupo_tributacao_icms_202.hpp>

#include <fiscal/grupo_fcp_st_retido.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_icms_202::record {
    origem_cst origem_mercadoria = {};
    fiscal::csosn csosn = {};
    fiscal::modalidade_bc_icms_st modalidade_bc_icms_st = {};
    optional<decimal> percentual_margem_valor_adicionado_icms_st;
    optional<decimal> percentual_reducao_bc_icms_st;
    optional<decimal> valor_bc_icms_st;
    optional<decimal> aliquota_icms_st;
    optional<decimal> valor_icms_st;
    optional<grupo_fcp_st_retido> fcp_st_retido;
};

grupo_tributacao_icms_202::grupo_tributacao_icms_202() = default;
grupo_tributacao_icms_202::grupo_tributacao_icms_202(const grupo_tributacao_icms_202&) = default;
grupo_tributacao_icms_202::grupo_tributacao_icms_202(grupo_tributacao_icms_202&&) = default;
grupo_tributacao_icms_202&
grupo_tributacao_icms_202::operator=(const grupo_tributacao_icms_202&) = default;
grupo_tributacao_icms_202&
grupo_tributacao_icms_202::operator=(grupo_tributacao_icms_202&&) = default;
grupo_tributacao_icms_202::~grupo_tributacao_icms_202() = default;

origem_cst grupo_tributacao_icms_202::get_origem_mercadoria() const {
    return record_->origem_mercadoria;
}
void grupo_tributacao_icms_202::set_origem_mercadoria(origem_cst value) {
    record_->origem_mercadoria = value;
}

csosn grupo_tributacao_icms_202::get_csosn() const { return record_->csosn; }
void grupo_tributacao_icms_202::set_csosn(csosn value) { record_->csosn = value; }

modalidade_bc_icms_st grupo_tributacao_icms_202::get_modalidade_bc_icms_st() const {
    return record_->modalidade_bc_icms_st;
}
void grupo_tributacao_icms_202::set_modalidade_bc_icms_st(modalidade_bc_icms_st value) {
    record_->modalidade_bc_icms_st = value;
}

optional<decimal>
grupo_tributacao_icms_202::get_percentual_margem_valor_adicionado_icms_st() const {
    return record_->percentual_margem_valor_adicionado_icms_st;
}
void grupo_tributacao_icms_202::set_percentual_margem_valor_adicionado_icms_st(
    const optional<decimal>& value) {
    record_->percentual_margem_valor_adicionado_icms_st = value;
}

optional<decimal> grupo_tributacao_icms_202::get_percentual_reducao_bc_icms_st() const {
    return record_->percentual_reducao_bc_icms_st;
}
void grupo_tributacao_icms_202::set_percentual_reducao_bc_icms_st(const optional<decimal>& value) {
    record_->percentual_reducao_bc_icms_st = value;
}

optional<decimal> grupo_tributacao_icms_202::get_valor_bc_icms_st() const {
    return record_->valor_bc_icms_st;
}
void grupo_tributacao_icms_202::set_valor_bc_icms_st(const optional<decimal>& value) {
    record_->valor_bc_icms_st = value;
}

optional<decimal> grupo_tributacao_icms_202::get_aliquota_icms_st() const {
    return record_->aliquota_icms_st;
}
void grupo_tributacao_icms_202::set_aliquota_icms_st(const optional<decimal>& value) {
    record_->aliquota_icms_st = value;
}

optional<decimal> grupo_tributacao_icms_202::get_valor_icms_st() const {
    return record_->valor_icms_st;
}
void grupo_tributacao_icms_202::set_valor_icms_st(const optional<decimal>& value) {
    record_->valor_icms_st = value;
}

optional<grupo_fcp_st_retido> grupo_tributacao_icms_202::get_fcp_st_retido() const {
    return record_->fcp_st_retido;
}
void grupo_tributacao_icms_202::set_fcp_st_retido(const optional<grupo_fcp_st_retido>& value) {
    record_->fcp_st_retido = value;
}

} // namespace kivo::erp::v12::fiscal
