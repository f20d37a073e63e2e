#pragma once

#include <fiscal/export.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// COFINS not charged (COFINSNT).
/// In place: the field stands in the object, nothing is allocated and nothing fails.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_cofins_nt {
public:
    /// Situation code of COFINS not charged (CST).
    enum class cst_cofins : std::uint32_t {
        nao_informado = 0,            ///< never set; not a code of the layout
        monofasica_aliquota_zero = 4, ///< single-phase, at a rate of zero
        substituicao_tributaria = 5,  ///< collected by tax substitution
        aliquota_zero = 6,            ///< taxable, at a rate of zero
        isenta = 7,                   ///< exempt
        sem_incidencia = 8,           ///< outside the scope of the tax
        suspensao = 9,                ///< tax suspended
    };

    grupo_tributacao_cofins_nt();
    grupo_tributacao_cofins_nt(const grupo_tributacao_cofins_nt& other);
    grupo_tributacao_cofins_nt(grupo_tributacao_cofins_nt&& other);
    grupo_tributacao_cofins_nt& operator=(const grupo_tributacao_cofins_nt& other);
    grupo_tributacao_cofins_nt& operator=(grupo_tributacao_cofins_nt&& other);
    ~grupo_tributacao_cofins_nt();

    /// Situation code of the COFINS (CST).
    cst_cofins get_cst_cofins() const;
    void set_cst_cofins(cst_cofins value);

private:
    cst_cofins cst_cofins_ = {};
};

} // namespace kivo::erp::v12::fiscal
