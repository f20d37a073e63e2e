#include <fiscal/grupo_tributacao_icms_90.hpp>

#include <fiscal/grupo_icms_desonerado.hpp>
#include <fiscal/tributacao_normal_icms_90.hpp>
#include <fiscal/tributacao_st_icms_90.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_icms_90::record {
    origem_cst origem_mercadoria = {};
    fiscal::cst cst = {};
    optional<fiscal::tributacao_normal_icms_90> tributacao_normal_icms_90;
    optional<fiscal::tributacao_st_icms_90> tributacao_st_icms_90;
    optional<fiscal::grupo_icms_desonerado> grupo_icms_desonerado;
};

grupo_tributacao_icms_90::grupo_tributacao_icms_90() = default;
grupo_tributacao_icms_90::grupo_tributacao_icms_90(const grupo_tributacao_icms_90&) = default;
grupo_tributacao_icms_90::grupo_tributacao_icms_90(grupo_tributacao_icms_90&&) = default;
grupo_tributacao_icms_90&
grupo_tributacao_icms_90::operator=(const grupo_tributacao_icms_90&) = default;
grupo_tributacao_icms_90& grupo_tributacao_icms_90::operator=(grupo_tributacao_icms_90&&) = default;
grupo_tributacao_icms_90::~grupo_tributacao_icms_90() = default;

origem_cst grupo_tributacao_icms_90::get_origem_mercadoria() const {
    return record_->origem_mercadoria;
}
void grupo_tributacao_icms_90::set_origem_mercadoria(origem_cst value) {
    record_->origem_mercadoria = value;
}

cst grupo_tributacao_icms_90::get_cst() const { return record_->cst; }
void grupo_tributacao_icms_90::set_cst(cst value) { record_->cst = value; }

optional<tributacao_normal_icms_90>
grupo_tributacao_icms_90::get_tributacao_normal_icms_90() const {
    return record_->tributacao_normal_icms_90;
}
void grupo_tributacao_icms_90::set_tributacao_normal_icms_90(
    const optional<tributacao_normal_icms_90>& value) {
    record_->tributacao_normal_icms_90 = value;
}

optional<tributacao_st_icms_90> grupo_tributacao_icms_90::get_tributacao_st_icms_90() const {
    return record_->tributacao_st_icms_90;
}
void grupo_tributacao_icms_90::set_tributacao_st_icms_90(
    const optional<tributacao_st_icms_90>& value) {
    record_->tributacao_st_icms_90 = value;
}

optional<grupo_icms_desonerado> grupo_tributacao_icms_90::get_grupo_icms_desonerado() const {
    return record_->grupo_icms_desonerado;
}
void grupo_tributacao_icms_90::set_grupo_icms_desonerado(
    const optional<grupo_icms_desonerado>& value) {
    record_->grupo_icms_desonerado = value;
}

} // namespace kivo::erp::v12::fiscal
