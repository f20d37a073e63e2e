#include <fiscal/grupo_tributacao_icms_51.hpp>

#include <fiscal/grupo_fcp.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_icms_51::record {
    origem_cst origem_mercadoria = {};
    fiscal::cst cst = {};
    fiscal::modalidade_bc_icms modalidade_bc_icms = {};
    optional<decimal> percentual_reducao_bc_icms;
    optional<std::string> codigo_beneficio_fiscal_reducao_bc_icms;
    optional<decimal> valor_bc_icms;
    optional<decimal> aliquota_icms;
    optional<decimal> valor_icms_operacao;
    optional<decimal> percentual_diferimento;
    optional<decimal> valor_icms_diferido;
    optional<decimal> valor_icms;
    optional<grupo_fcp> fcp;
};

grupo_tributacao_icms_51::grupo_tributacao_icms_51() = default;
grupo_tributacao_icms_51::grupo_tributacao_icms_51(const grupo_tributacao_icms_51&) = default;
grupo_tributacao_icms_51::grupo_tributacao_icms_51(grupo_tributacao_icms_51&&) = default;
grupo_tributacao_icms_51&
grupo_tributacao_icms_51::operator=(const grupo_tributacao_icms_51&) = default;
grupo_tributacao_icms_51& grupo_tributacao_icms_51::operator=(grupo_tributacao_icms_51&&) = default;
grupo_tributacao_icms_51::~grupo_tributacao_icms_51() = default;

origem_cst grupo_tributacao_icms_51::get_origem_mercadoria() const {
    return record_->origem_mercadoria;
}
void grupo_tributacao_icms_51::set_origem_mercadoria(origem_cst value) {
    record_->origem_mercadoria = value;
}

cst grupo_tributacao_icms_51::get_cst() const { return record_->cst; }
void grupo_tributacao_icms_51::set_cst(cst value) { record_->cst = value; }

modalidade_bc_icms grupo_tributacao_icms_51::get_modalidade_bc_icms() const {
    return record_->modalidade_bc_icms;
}
void grupo_tributacao_icms_51::set_modalidade_bc_icms(modalidade_bc_icms value) {
    record_->modalidade_bc_icms = value;
}

optional<decimal> grupo_tributacao_icms_51::get_percentual_reducao_bc_icms() const {
    return record_->percentual_reducao_bc_icms;
}
void grupo_tributacao_icms_51::set_percentual_reducao_bc_icms(const optional<decimal>& value) {
    record_->percentual_reducao_bc_icms = value;
}

optional<decimal> grupo_tributacao_icms_51::get_valor_bc_icms() const {
    return record_->valor_bc_icms;
}
void grupo_tributacao_icms_51::set_valor_bc_icms(const optional<decimal>& value) {
    record_->valor_bc_icms = value;
}

optional<decimal> grupo_tributacao_icms_51::get_aliquota_icms() const {
    return record_->aliquota_icms;
}
void grupo_tributacao_icms_51::set_aliquota_icms(const optional<decimal>& value) {
    record_->aliquota_icms = value;
}

optional<decimal> grupo_tributacao_icms_51::get_valor_icms_operacao() const {
    return record_->valor_icms_operacao;
}
void grupo_tributacao_icms_51::set_valor_icms_operacao(const optional<decimal>& value) {
    record_->valor_icms_operacao = value;
}

optional<decimal> grupo_tributacao_icms_51::get_percentual_diferimento() const {
    return record_->percentual_diferimento;
}
void grupo_tributacao_icms_51::set_percentual_diferimento(const optional<decimal>& value) {
    record_->percentual_diferimento = value;
}

optional<decimal> grupo_tributacao_icms_51::get_valor_icms_diferido() const {
    return record_->valor_icms_diferido;
}
void grupo_tributacao_icms_51::set_valor_icms_diferido(const optional<decimal>& value) {
    record_->valor_icms_diferido = value;
}

optional<decimal> grupo_tributacao_icms_51::get_valor_icms() const { return record_->valor_icms; }
void grupo_tributacao_icms_51::set_valor_icms(const optional<decimal>& value) {
    record_->valor_icms = value;
}

optional<grupo_fcp> grupo_tributacao_icms_51::get_fcp() const { return record_->fcp; }
void grupo_tributacao_icms_51::set_fcp(const optional<grupo_fcp>& value) { record_->fcp = value; }

optional<std::string>
grupo_tributacao_icms_51::get_codigo_beneficio_fiscal_reducao_bc_icms() const {
    return record_->codigo_beneficio_fiscal_reducao_bc_icms;
}
void grupo_tributacao_icms_51::set_codigo_beneficio_fiscal_reducao_bc_icms(
    const optional<std::string>& value) {
    record_->codigo_beneficio_fiscal_reducao_bc_icms = value;
}

} // namespace kivo::erp::v12::fiscal
