#include <fiscal/grupo_tributacao_icms_900.hpp>

#include <fiscal/tributacao_credito_sn_icms_900.hpp>
#include <fiscal/tributacao_normal_icms_900.hpp>
#include <fiscal/tributacao_st_icms_900.hpp>

namespace kivo::erp::v12::fiscal {

struct grupo_tributacao_icms_900::record {
    origem_cst origem_mercadoria = {};
    fiscal::csosn csosn = {};
    optional<fiscal::tributacao_normal_icms_900> tributacao_normal_icms_900;
    optional<fiscal::tributacao_st_icms_900> tributacao_st_icms_900;
    optional<fiscal::tributacao_credito_sn_icms_900> tributacao_credito_sn_icms_900;
};

grupo_tributacao_icms_900::grupo_tributacao_icms_900() = default;
grupo_tributacao_icms_900::grupo_tributacao_icms_900(const grupo_tributacao_icms_900&) = default;
grupo_tributacao_icms_900::grupo_tributacao_icms_900(grupo_tributacao_icms_900&&) = default;
grupo_tributacao_icms_900&
grupo_tributacao_icms_900::operator=(const grupo_tributacao_icms_900&) = default;
grupo_tributacao_icms_900&
grupo_tributacao_icms_900::operator=(grupo_tributacao_icms_900&&) = default;
grupo_tributacao_icms_900::~grupo_tributacao_icms_900() = default;

origem_cst grupo_tributacao_icms_900::get_origem_mercadoria() const {
    return record_->origem_mercadoria;
}
void grupo_tributacao_icms_900::set_origem_mercadoria(origem_cst value) {
    record_->origem_mercadoria = value;
}

csosn grupo_tributacao_icms_900::get_csosn() const { return record_->csosn; }
void grupo_tributacao_icms_900::set_csosn(csosn value) { record_->csosn = value; }

optional<tributacao_normal_icms_900>
grupo_tributacao_icms_900::get_tributacao_normal_icms_900() const {
    return record_->tributacao_normal_icms_900;
}
void grupo_tributacao_icms_900::set_tributacao_normal_icms_900(
    const optional<tributacao_normal_icms_900>& value) {
    record_->tributacao_normal_icms_900 = value;
}

optional<tributacao_st_icms_900> grupo_tributacao_icms_900::get_tributacao_st_icms_900() const {
    return record_->tributacao_st_icms_900;
}
void grupo_tributacao_icms_900::set_tributacao_st_icms_900(
    const optional<tributacao_st_icms_900>& value) {
    record_->tributacao_st_icms_900 = value;
}

optional<tributacao_credito_sn_icms_900>
grupo_tributacao_icms_900::get_tributacao_credito_sn_icms_900() const {
    return record_->tributacao_credito_sn_icms_900;
}
void grupo_tributacao_icms_900::set_tributacao_credito_sn_icms_900(
    const optional<tributacao_credito_sn_icms_900>& value) {
    record_->tributacao_credito_sn_icms_900 = value;
}

} // namespace kivo::erp::v12::fiscal
