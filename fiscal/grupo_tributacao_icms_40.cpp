#include <fiscal/grupo_tributacao_icms_40.hpp>

#include <fiscal/grupo_icms_desonerado.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_icms_40::record {
    origem_cst origem_mercadoria = {};
    fiscal::cst cst = {};
    optional<fiscal::grupo_icms_desonerado> grupo_icms_desonerado;
};

grupo_tributacao_icms_40::grupo_tributacao_icms_40() = default;
grupo_tributacao_icms_40::grupo_tributacao_icms_40(const grupo_tributacao_icms_40&) = default;
grupo_tributacao_icms_40::grupo_tributacao_icms_40(grupo_tributacao_icms_40&&) = default;
grupo_tributacao_icms_40&
grupo_tributacao_icms_40::operator=(const grupo_tributacao_icms_40&) = default;
grupo_tributacao_icms_40& grupo_tributacao_icms_40::operator=(grupo_tributacao_icms_40&&) = default;
grupo_tributacao_icms_40::~grupo_tributacao_icms_40() = default;

origem_cst grupo_tributacao_icms_40::get_origem_mercadoria() const {
    return record_->origem_mercadoria;
}
void grupo_tributacao_icms_40::set_origem_mercadoria(origem_cst value) {
    record_->origem_mercadoria = value;
}

cst grupo_tributacao_icms_40::get_cst() const { return record_->cst; }
void grupo_tributacao_icms_40::set_cst(cst value) { record_->cst = value; }

optional<grupo_icms_desonerado> grupo_tributacao_icms_40::get_grupo_icms_desonerado() const {
    return record_->grupo_icms_desonerado;
}
void grupo_tributacao_icms_40::set_grupo_icms_desonerado(
    const optional<grupo_icms_desonerado>& value) {
    record_->grupo_icms_desonerado = value;
}

} // namespace kivo::erp::v12::fiscal
