#include <fiscal/grupo_tributacao_icms_20.hpp>

#include <fiscal/grupo_fcp.hpp>
#include <fiscal/grupo_icms_desonerado.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_icms_20::record {
    origem_cst origem_mercadoria = {};
    fiscal::cst cst = {};
    fiscal::modalidade_bc_icms modalidade_bc_icms = {};
    optional<decimal> percentual_reducao_bc_icms;
    optional<decimal> valor_bc_icms;
    optional<decimal> aliquota_icms;
    optional<decimal> valor_icms;
    optional<grupo_fcp> fcp;
    optional<fiscal::grupo_icms_desonerado> grupo_icms_desonerado;
};

grupo_tributacao_icms_20::grupo_tributacao_icms_20() = default;
grupo_tributacao_icms_20::grupo_tributacao_icms_20(const grupo_tributacao_icms_20&) = default;
grupo_tributacao_icms_20::grupo_tributacao_icms_20(grupo_tributacao_icms_20&&) = default;
grupo_tributacao_icms_20&
grupo_tributacao_icms_20::operator=(const grupo_tributacao_icms_20&) = default;
grupo_tributacao_icms_20& grupo_tributacao_icms_20::operator=(grupo_tributacao_icms_20&&) = default;
grupo_tributacao_icms_20::~grupo_tributacao_icms_20() = default;

origem_cst grupo_tributacao_icms_20::get_origem_mercadoria() const {
    return record_->origem_mercadoria;
}
void grupo_tributacao_icms_20::set_origem_mercadoria(origem_cst value) {
    record_->origem_mercadoria = value;
}

cst grupo_tributacao_icms_20::get_cst() const { return record_->cst; }
void grupo_tributacao_icms_20::set_cst(cst value) { record_->cst = value; }

modalidade_bc_icms grupo_tributacao_icms_20::get_modalidade_bc_icms() const {
    return record_->modalidade_bc_icms;
}
void grupo_tributacao_icms_20::set_modalidade_bc_icms(modalidade_bc_icms value) {
    record_->modalidade_bc_icms = value;
}

optional<decimal> grupo_tributacao_icms_20::get_percentual_reducao_bc_icms() const {
    return record_->percentual_reducao_bc_icms;
}
void grupo_tributacao_icms_20::set_percentual_reducao_bc_icms(const optional<decimal>& value) {
    record_->percentual_reducao_bc_icms = value;
}

optional<decimal> grupo_tributacao_icms_20::get_valor_bc_icms() const {
    return record_->valor_bc_icms;
}
void grupo_tributacao_icms_20::set_valor_bc_icms(const optional<decimal>& value) {
    record_->valor_bc_icms = value;
}

optional<decimal> grupo_tributacao_icms_20::get_aliquota_icms() const {
    return record_->aliquota_icms;
}
void grupo_tributacao_icms_20::set_aliquota_icms(const optional<decimal>& value) {
    record_->aliquota_icms = value;
}

optional<decimal> grupo_tributacao_icms_20::get_valor_icms() const { return record_->valor_icms; }
void grupo_tributacao_icms_20::set_valor_icms(const optional<decimal>& value) {
    record_->valor_icms = value;
}

optional<grupo_fcp> grupo_tributacao_icms_20::get_fcp() const { return record_->fcp; }
void grupo_tributacao_icms_20::set_fcp(const optional<grupo_fcp>& value) { record_->fcp = value; }

optional<grupo_icms_desonerado> grupo_tributacao_icms_20::get_grupo_icms_desonerado() const {
    return record_->grupo_icms_desonerado;
}
void grupo_tributacao_icms_20::set_grupo_icms_desonerado(
    const optional<grupo_icms_desonerado>& value) {
    record_->grupo_icms_desonerado = value;
}

} // namespace kivo::erp::v12::fiscal
