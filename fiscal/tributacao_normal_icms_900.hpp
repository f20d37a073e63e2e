#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/modalidade_bc_icms.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Own ICMS of an operation under CSOSN 900 (its elements stand in ICMSSN900).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT tributacao_normal_icms_900 {
public:
    tributacao_normal_icms_900();
    tributacao_normal_icms_900(const tributacao_normal_icms_900& other);
    tributacao_normal_icms_900(tributacao_normal_icms_900&& other);
    tributacao_normal_icms_900& operator=(const tributacao_normal_icms_900& other);
    tributacao_normal_icms_900& operator=(tributacao_normal_icms_900&& other);
    ~tributacao_normal_icms_900();

    /// How the tax base is determined (modBC).
    modalidade_bc_icms get_modalidade_bc_icms() const;
    void set_modalidade_bc_icms(modalidade_bc_icms value);

    /// Reduction of the tax base, in percent (pRedBC).
    optional<decimal> get_percentual_reducao_bc_icms() const;
    void set_percentual_reducao_bc_icms(const optional<decimal>& value);

    /// Tax base, in R$ (vBC).
    optional<decimal> get_valor_bc_icms() const;
    void set_valor_bc_icms(const optional<decimal>& value);

    /// Rate, in percent (pICMS).
    optional<decimal> get_aliquota_icms() const;
    void set_aliquota_icms(const optional<decimal>& value);

    /// Amount, in R$ (vICMS).
    optional<decimal> get_valor_icms() const;
    void set_valor_icms(const optional<decimal>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
