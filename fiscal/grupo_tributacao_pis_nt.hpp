#pragma once

#include <fiscal/export.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// PIS not charged (PISNT).
/// In place: the field stands in the object, nothing is allocated and nothing fails.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_pis_nt {
public:
    /// Situation code of PIS not charged (CST).
    enum class cst_pis : std::uint32_t {
        nao_informado = 0,            ///< never set; not a code of the layout
        monofasica_aliquota_zero = 4, ///< single-phase, at a rate of zero
        substituicao_tributaria = 5,  ///< collected by tax substitution
        aliquota_zero = 6,            ///< taxable, at a rate of zero
        isenta = 7,                   ///< exempt
        sem_incidencia = 8,           ///< outside the scope of the tax
        suspensao = 9,                ///< tax suspended
    };

    grupo_tributacao_pis_nt();
    grupo_tributacao_pis_nt(const grupo_tributacao_pis_nt& other);
    grupo_tributacao_pis_nt(grupo_tributacao_pis_nt&& other);
    grupo_tributacao_pis_nt& operator=(const grupo_tributacao_pis_nt& other);
    grupo_tributacao_pis_nt& operator=(grupo_tributacao_pis_nt&& other);
    ~grupo_tributacao_pis_nt();

    /// Situation code of the PIS (CST).
    cst_pis get_cst_pis() const;
    void set_cst_pis(cst_pis value);

private:
    cst_pis cst_pis_ = {};
};

} // namespace kivo::erp::v12::fiscal
