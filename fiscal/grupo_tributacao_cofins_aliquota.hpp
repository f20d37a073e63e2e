#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// COFINS charged by rate (COFINSAliq).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_cofins_aliquota {
public:
    /// Situation code of COFINS charged by rate (CST).
    enum class cst_cofins : std::uint32_t {
        nao_informado = 0,                    ///< never set; not a code of the layout
        tributavel_aliquota_basica = 1,       ///< taxed on the value of the operation, normal rate
        tributavel_aliquota_diferenciada = 2, ///< taxed on the value of the operation, other rate
    };

    grupo_tributacao_cofins_aliquota();
    grupo_tributacao_cofins_aliquota(const grupo_tributacao_cofins_aliquota& other);
    grupo_tributacao_cofins_aliquota(grupo_tributacao_cofins_aliquota&& other);
    grupo_tributacao_cofins_aliquota& operator=(const grupo_tributacao_cofins_aliquota& other);
    grupo_tributacao_cofins_aliquota& operator=(grupo_tributacao_cofins_aliquota&& other);
    ~grupo_tributacao_cofins_aliquota();

    /// Situation code of the COFINS (CST).
    cst_cofins get_cst_cofins() const;
    void set_cst_cofins(cst_cofins value);

    /// COFINS tax base, in R$ (vBC).
    optional<decimal> get_valor_bc_cofins() const;
    void set_valor_bc_cofins(const optional<decimal>& value);

    /// COFINS rate, in percent (pCOFINS).
    optional<decimal> get_percentual_aliquota_cofins() const;
    void set_percentual_aliquota_cofins(const optional<decimal>& value);

    /// COFINS amount, in R$ (vCOFINS).
    decimal get_valor_cofins() const;
    void set_valor_cofins(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
