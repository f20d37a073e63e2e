#include <fiscal/grupo_tributacao_icms_102.hpp>

namespace kivo::erp::v12::fiscal {

grupo_tributacao_icms_102::grupo_tributacao_icms_102() = default;
grupo_tributacao_icms_102::grupo_tributacao_icms_102(const grupo_tributacao_icms_102&) = default;
grupo_tributacao_icms_102::grupo_tributacao_icms_102(grupo_tributacao_icms_102&&) = default;
grupo_tributacao_icms_102&
grupo_tributacao_icms_102::operator=(const grupo_tributacao_icms_102&) = default;
grupo_tributacao_icms_102&
grupo_tributacao_icms_102::operator=(grupo_tributacao_icms_102&&) = default;
grupo_tributacao_icms_102::~grupo_tributacao_icms_102() = default;

origem_cst grupo_tributacao_icms_102::get_origem_mercadoria() const { return origem_mercadoria_; }
void grupo_tributacao_icms_102::set_origem_mercadoria(origem_cst value) {
    origem_mercadoria_ = value;
}

csosn grupo_tributacao_icms_102::get_csosn() const { return csosn_; }
void grupo_tributacao_icms_102::set_csosn(csosn value) { csosn_ = value; }

} // namespace kivo::erp::v12::fiscal
