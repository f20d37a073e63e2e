#include <fiscal/grupo_tributacao_icms_60.hpp>

#include <fiscal/grupo_fcp_st_retido_anteriormente.hpp>
#include <fiscal/grupo_icms_st_retido.hpp>
#include <fiscal/informacoes_icms_efetivo.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_icms_60::record {
    origem_cst origem_mercadoria = {};
    fiscal::cst cst = {};
    optional<grupo_icms_st_retido> icms_st_retido;
    optional<grupo_fcp_st_retido_anteriormente> fcp_st_retido_anteriormente;
    optional<fiscal::informacoes_icms_efetivo> informacoes_icms_efetivo;
};

grupo_tributacao_icms_60::grupo_tributacao_icms_60() = default;
grupo_tributacao_icms_60::grupo_tributacao_icms_60(const grupo_tributacao_icms_60&) = default;
grupo_tributacao_icms_60::grupo_tributacao_icms_60(grupo_tributacao_icms_60&&) = default;
grupo_tributacao_icms_60&
grupo_tributacao_icms_60::operator=(const grupo_tributacao_icms_60&) = default;
grupo_tributacao_icms_60& grupo_tributacao_icms_60::operator=(grupo_tributacao_icms_60&&) = default;
grupo_tributacao_icms_60::~grupo_tributacao_icms_60() = default;

origem_cst grupo_tributacao_icms_60::get_origem_mercadoria() const {
    return record_->origem_mercadoria;
}
void grupo_tributacao_icms_60::set_origem_mercadoria(origem_cst value) {
    record_->origem_mercadoria = value;
}

cst grupo_tributacao_icms_60::get_cst() const { return record_->cst; }
void grupo_tributacao_icms_60::set_cst(cst value) { record_->cst = value; }

optional<grupo_icms_st_retido> grupo_tributacao_icms_60::get_icms_st_retido() const {
    return record_->icms_st_retido;
}
void grupo_tributacao_icms_60::set_icms_st_retido(const optional<grupo_icms_st_retido>& value) {
    record_->icms_st_retido = value;
}

optional<grupo_fcp_st_retido_anteriormente>
grupo_tributacao_icms_60::get_fcp_st_retido_anteriormente() const {
    return record_->fcp_st_retido_anteriormente;
}
void grupo_tributacao_icms_60::set_fcp_st_retido_anteriormente(
    const optional<grupo_fcp_st_retido_anteriormente>& value) {
    record_->fcp_st_retido_anteriormente = value;
}

optional<informacoes_icms_efetivo> grupo_tributacao_icms_60::get_informacoes_icms_efetivo() const {
    return record_->informacoes_icms_efetivo;
}
void grupo_tributacao_icms_60::set_informacoes_icms_efetivo(
    const optional<informacoes_icms_efetivo>& value) {
    record_->informacoes_icms_efetivo = value;
}

} // namespace kivo::erp::v12::fiscal
