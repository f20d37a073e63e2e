#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// PIS charged by rate (PISAliq).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_pis_aliquota {
public:
    /// Situation code of PIS charged by rate (CST).
    enum class cst_pis : std::uint32_t {
        nao_informado = 0,                    ///< never set; not a code of the layout
        tributavel_aliquota_basica = 1,       ///< taxed on the value of the operation, normal rate
        tributavel_aliquota_diferenciada = 2, ///< taxed on the value of the operation, other rate
    };

    grupo_tributacao_pis_aliquota();
    grupo_tributacao_pis_aliquota(const grupo_tributacao_pis_aliquota& other);
    grupo_tributacao_pis_aliquota(grupo_tributacao_pis_aliquota&& other);
    grupo_tributacao_pis_aliquota& operator=(const grupo_tributacao_pis_aliquota& other);
    grupo_tributacao_pis_aliquota& operator=(grupo_tributacao_pis_aliquota&& other);
    ~grupo_tributacao_pis_aliquota();

    /// Situation code of the PIS (CST).
    cst_pis get_cst_pis() const;
    void set_cst_pis(cst_pis value);

    /// PIS tax base, in R$ (vBC).
    optional<decimal> get_valor_bc_pis() const;
    void set_valor_bc_pis(const optional<decimal>& value);

    /// PIS rate, in percent (pPIS).
    optional<decimal> get_percentual_aliquota_pis() const;
    void set_percentual_aliquota_pis(const optional<decimal>& value);

    /// PIS amount, in R$ (vPIS).
    decimal get_valor_pis() const;
    void set_valor_pis(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
