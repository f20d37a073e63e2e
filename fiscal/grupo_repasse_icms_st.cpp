#include <fiscal/grupo_repasse_icms_st.hpp>

#include <fiscal/grupo_fcp_st_retido_anteriormente.hpp>
#include <fiscal/informacoes_icms_efetivo.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_repasse_icms_st::record {
    origem_cst origem_mercadoria = {};
    cst tributacao_icms = {};
    decimal valor_bc_icms_st_retido;
    optional<decimal> aliquota_suportada_consumidor_final;
    optional<decimal> valor_icms_proprio_substituto;
    decimal valor_icms_st_retido;
    decimal valor_bc_icms_st_destino;
    decimal valor_icms_st_destino;
    optional<grupo_fcp_st_retido_anteriormente> fcp_st_retido_anteriormente;
    optional<fiscal::informacoes_icms_efetivo> informacoes_icms_efetivo;
};

grupo_repasse_icms_st::grupo_repasse_icms_st() = default;
grupo_repasse_icms_st::grupo_repasse_icms_st(const grupo_repasse_icms_st&) = default;
grupo_repasse_icms_st::grupo_repasse_icms_st(grupo_repasse_icms_st&&) = default;
grupo_repasse_icms_st& grupo_repasse_icms_st::operator=(const grupo_repasse_icms_st&) = default;
grupo_repasse_icms_st& grupo_repasse_icms_st::operator=(grupo_repasse_icms_st&&) = default;
grupo_repasse_icms_st::~grupo_repasse_icms_st() = default;

origem_cst grupo_repasse_icms_st::get_origem_mercadoria() const {
    return record_->origem_mercadoria;
}
void grupo_repasse_icms_st::set_origem_mercadoria(const origem_cst& value) {
    record_->origem_mercadoria = value;
}

cst grupo_repasse_icms_st::get_tributacao_icms() const { return record_->tributacao_icms; }
void grupo_repasse_icms_st::set_tributacao_icms(const cst& value) {
    record_->tributacao_icms = value;
}

decimal grupo_repasse_icms_st::get_valor_bc_icms_st_retido() const {
    return record_->valor_bc_icms_st_retido;
}
void grupo_repasse_icms_st::set_valor_bc_icms_st_retido(const decimal& value) {
    record_->valor_bc_icms_st_retido = value;
}

optional<decimal> grupo_repasse_icms_st::get_aliquota_suportada_consumidor_final() const {
    return record_->aliquota_suportada_consumidor_final;
}
void grupo_repasse_icms_st::set_aliquota_suportada_consumidor_final(
    const optional<decimal>& value) {
    record_->aliquota_suportada_consumidor_final = value;
}

optional<decimal> grupo_repasse_icms_st::get_valor_icms_proprio_substituto() const {
    return record_->valor_icms_proprio_substituto;
}
void grupo_repasse_icms_st::set_valor_icms_proprio_substituto(const optional<decimal>& value) {
    record_->valor_icms_proprio_substituto = value;
}

decimal grupo_repasse_icms_st::get_valor_icms_st_retido() const {
    return record_->valor_icms_st_retido;
}
void grupo_repasse_icms_st::set_valor_icms_st_retido(const decimal& value) {
    record_->valor_icms_st_retido = value;
}

decimal grupo_repasse_icms_st::get_valor_bc_icms_st_destino() const {
    return record_->valor_bc_icms_st_destino;
}
void grupo_repasse_icms_st::set_valor_bc_icms_st_destino(const decimal& value) {
    record_->valor_bc_icms_st_destino = value;
}

decimal grupo_repasse_icms_st::get_valor_icms_st_destino() const {
    return record_->valor_icms_st_destino;
}
void grupo_repasse_icms_st::set_valor_icms_st_destino(const decimal& value) {
    record_->valor_icms_st_destino = value;
}

optional<grupo_fcp_st_retido_anteriormente>
grupo_repasse_icms_st::get_fcp_st_retido_anteriormente() const {
    return record_->fcp_st_retido_anteriormente;
}
void grupo_repasse_icms_st::set_fcp_st_retido_anteriormente(
    const optional<grupo_fcp_st_retido_anteriormente>& value) {
    record_->fcp_st_retido_anteriormente = value;
}

optional<informacoes_icms_efetivo> grupo_repasse_icms_st::get_informacoes_icms_efetivo() const {
    return record_->informacoes_icms_efetivo;
}
void grupo_repasse_icms_st::set_informacoes_icms_efetivo(
    const optional<informacoes_icms_efetivo>& value) {
    record_->informacoes_icms_efetivo = value;
}

} // namespace kivo::erp::v12::fiscal
