#include <fiscal/grupo_tributacao_pis_nt.hpp>

namespace kivo::erp::v12::fiscal {

grupo_tributacao_pis_nt::grupo_tributacao_pis_nt() = default;
grupo_tributacao_pis_nt::grupo_tributacao_pis_nt(const grupo_tributacao_pis_nt&) = default;
grupo_tributacao_pis_nt::grupo_tributacao_pis_nt(grupo_tributacao_pis_nt&&) = default;
grupo_tributacao_pis_nt&
grupo_tributacao_pis_nt::operator=(const grupo_tributacao_pis_nt&) = default;
grupo_tributacao_pis_nt& grupo_tributacao_pis_nt::operator=(grupo_tributacao_pis_nt&&) = default;
grupo_tributacao_pis_nt::~grupo_tributacao_pis_nt() = default;

grupo_tributacao_pis_nt::cst_pis grupo_tributacao_pis_nt::get_cst_pis() const { return cst_pis_; }
void grupo_tributacao_pis_nt::set_cst_pis(cst_pis value) { cst_pis_ = value; }

} // namespace kivo::erp::v12::fiscal
