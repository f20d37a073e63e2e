#include <fiscal/grupo_tributacao_icms_70.hpp>

#include <fiscal/grupo_fcp.hpp>
#include <fiscal/grupo_fcp_st_retido.hpp>
#include <fiscal/grupo_icms_desonerado.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_icms_70::record {
    origem_cst origem_mercadoria = {};
    fiscal::cst cst = {};
    fiscal::modalidade_bc_icms modalidade_bc_icms = {};
    optional<decimal> percentual_reducao_bc_icms;
    optional<decimal> valor_bc_icms;
    optional<decimal> aliquota_icms;
    optional<decimal> valor_icms;
    optional<grupo_fcp> fcp;
    fiscal::modalidade_bc_icms_st modalidade_bc_icms_st = {};
    optional<decimal> percentual_margem_valor_adicionado_icms_st;
    optional<decimal> percentual_reducao_bc_icms_st;
    optional<decimal> valor_bc_icms_st;
    optional<decimal> aliquota_icms_st;
    optional<decimal> valor_icms_st;
    optional<grupo_fcp_st_retido> fcp_st_retido;
    optional<fiscal::grupo_icms_desonerado> grupo_icms_desonerado;
};

grupo_tributacao_icms_70::grupo_tributacao_icms_70() = default;
grupo_tributacao_icms_70::grupo_tributacao_icms_70(const grupo_tributacao_icms_70&) = default;
grupo_tributacao_icms_70::grupo_tributacao_icms_70(grupo_tributacao_icms_70&&) = default;
grupo_tributacao_icms_70&
grupo_tributacao_icms_70::operator=(const grupo_tributacao_icms_70&) = default;
grupo_tributacao_icms_70& grupo_tributacao_icms_70::operator=(grupo_tributacao_icms_70&&) = default;
grupo_tributacao_icms_70::~grupo_tributacao_icms_70() = default;

origem_cst grupo_tributacao_icms_70::get_origem_mercadoria() const {
    return record_->origem_mercadoria;
}
void grupo_tributacao_icms_70::set_origem_mercadoria(origem_cst value) {
    record_->origem_mercadoria = value;
}

cst grupo_tributacao_icms_70::get_cst() const { return record_->cst; }
void grupo_tributacao_icms_70::set_cst(cst value) { record_->cst = value; }

modalidade_bc_icms grupo_tributacao_icms_70::get_modalidade_bc_icms() const {
    return record_->modalidade_bc_icms;
}
void grupo_tributacao_icms_70::set_modalidade_bc_icms(modalidade_bc_icms value) {
    record_->modalidade_bc_icms = value;
}

optional<decimal> grupo_tributacao_icms_70::get_percentual_reducao_bc_icms() const {
    return record_->percentual_reducao_bc_icms;
}
void grupo_tributacao_icms_70::set_percentual_reducao_bc_icms(const optional<decimal>& value) {
    record_->percentual_reducao_bc_icms = value;
}

optional<decimal> grupo_tributacao_icms_70::get_valor_bc_icms() const {
    return record_->valor_bc_icms;
}
void grupo_tributacao_icms_70::set_valor_bc_icms(const optional<decimal>& value) {
    record_->valor_bc_icms = value;
}

optional<grupo_fcp> grupo_tributacao_icms_70::get_fcp() const { return record_->fcp; }
void grupo_tributacao_icms_70::set_fcp(const optional<grupo_fcp>& value) { record_->fcp = value; }

optional<decimal> grupo_tributacao_icms_70::get_aliquota_icms() const {
    return record_->aliquota_icms;
}
void grupo_tributacao_icms_70::set_aliquota_icms(const optional<decimal>& value) {
    record_->aliquota_icms = value;
}

optional<decimal> grupo_tributacao_icms_70::get_valor_icms() const { return record_->valor_icms; }
void grupo_tributacao_icms_70::set_valor_icms(const optional<decimal>& value) {
    record_->valor_icms = value;
}

modalidade_bc_icms_st grupo_tributacao_icms_70::get_modalidade_bc_icms_st() const {
    return record_->modalidade_bc_icms_st;
}
void grupo_tributacao_icms_70::set_modalidade_bc_icms_st(modalidade_bc_icms_st value) {
    record_->modalidade_bc_icms_st = value;
}

optional<decimal> grupo_tributacao_icms_70::get_percentual_margem_valor_adicionado_icms_st() const {
    return record_->percentual_margem_valor_adicionado_icms_st;
}
void grupo_tributacao_icms_70::set_percentual_margem_valor_adicionado_icms_st(
    const optional<decimal>& value) {
    record_->percentual_margem_valor_adicionado_icms_st = value;
}

optional<decimal> grupo_tributacao_icms_70::get_percentual_reducao_bc_icms_st() const {
    return record_->percentual_reducao_bc_icms_st;
}
void grupo_tributacao_icms_70::set_percentual_reducao_bc_icms_st(const optional<decimal>& value) {
    record_->percentual_reducao_bc_icms_st = value;
}

optional<decimal> grupo_tributacao_icms_70::get_valor_bc_icms_st() const {
    return record_->valor_bc_icms_st;
}
void grupo_tributacao_icms_70::set_valor_bc_icms_st(const optional<decimal>& value) {
    record_->valor_bc_icms_st = value;
}

optional<decimal> grupo_tributacao_icms_70::get_aliquota_icms_st() const {
    return record_->aliquota_icms_st;
}
void grupo_tributacao_icms_70::set_aliquota_icms_st(const optional<decimal>& value) {
    record_->aliquota_icms_st = value;
}

optional<decimal> grupo_tributacao_icms_70::get_valor_icms_st() const {
    return record_->valor_icms_st;
}
void grupo_tributacao_icms_70::set_valor_icms_st(const optional<decimal>& value) {
    record_->valor_icms_st = value;
}

optional<grupo_fcp_st_retido> grupo_tributacao_icms_70::get_fcp_st_retido() const {
    return record_->fcp_st_retido;
}
void grupo_tributacao_icms_70::set_fcp_st_retido(const optional<grupo_fcp_st_retido>& value) {
    record_->fcp_st_retido = value;
}

optional<grupo_icms_desonerado> grupo_tributacao_icms_70::get_grupo_icms_desonerado() const {
    return record_->grupo_icms_desonerado;
}
void grupo_tributacao_icms_70::set_grupo_icms_desonerado(
    const optional<grupo_icms_desonerado>& value) {
    record_->grupo_icms_desonerado = value;
}

} // namespace kivo::erp::v12::fiscal
