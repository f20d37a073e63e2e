#include <fiscal/grupo_tributacao_cofins_nt.hpp>

namespace kivo::erp::v12::fiscal {

grupo_tributacao_cofins_nt::grupo_tributacao_cofins_nt() = default;
grupo_tributacao_cofins_nt::grupo_tributacao_cofins_nt(const grupo_tributacao_cofins_nt&) = default;
grupo_tributacao_cofins_nt::grupo_tributacao_cofins_nt(grupo_tributacao_cofins_nt&&) = default;
grupo_tributacao_cofins_nt&
grupo_tributacao_cofins_nt::operator=(const grupo_tributacao_cofins_nt&) = default;
grupo_tributacao_cofins_nt&
grupo_tributacao_cofins_nt::operator=(grupo_tributacao_cofins_nt&&) = default;
grupo_tributacao_cofins_nt::~grupo_tributacao_cofins_nt() = default;

grupo_tributacao_cofins_nt::cst_cofins grupo_tributacao_cofins_nt::get_cst_cofins() const {
    return cst_cofins_;
}
void grupo_tributacao_cofins_nt::set_cst_cofins(cst_cofins value) { cst_cofins_ = value; }

} // namespace kivo::erp::v12::fiscal
