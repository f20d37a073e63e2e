#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// Totals of the services subject to the municipal service tax (ISSQNtot).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT total_nfe_issqn {
public:
    total_nfe_issqn() noexcept;
    total_nfe_issqn(const total_nfe_issqn& other);
    total_nfe_issqn(total_nfe_issqn&& other) noexcept;
    total_nfe_issqn& operator=(const total_nfe_issqn& other);
    total_nfe_issqn& operator=(total_nfe_issqn&& other) noexcept;
    ~total_nfe_issqn();
    void swap(total_nfe_issqn& other) noexcept;

    /// Services on which no ICMS is charged, in R$ (vServ).
    optional<decimal> get_valor_servico() const;
    void set_valor_servico(const optional<decimal>& value);

    /// ISSQN tax base, in R$ (vBC).
    optional<decimal> get_valor_base_calculo() const;
    void set_valor_base_calculo(const optional<decimal>& value);

    /// ISSQN amount, in R$ (vISS).
    optional<decimal> get_valor_iss() const;
    void set_valor_iss(const optional<decimal>& value);

    /// PIS on the services, in R$ (vPIS).
    optional<decimal> get_valor_pis() const;
    void set_valor_pis(const optional<decimal>& value);

    /// COFINS on the services, in R$ (vCOFINS).
    optional<decimal> get_valor_cofins() const;
    void set_valor_cofins(const optional<decimal>& value);

    /// Date on which the services were rendered (dCompet).
    date get_data_prestacao_servico() const;
    void set_data_prestacao_servico(const date& value);

    /// Deductions from the tax base, in R$ (vDeducao).
    optional<decimal> get_valor_deducao() const;
    void set_valor_deducao(const optional<decimal>& value);

    /// Other amounts withheld, in R$ (vOutro).
    optional<decimal> get_valor_outras_retencoes() const;
    void set_valor_outras_retencoes(const optional<decimal>& value);

    /// Unconditional discounts, in R$ (vDescIncond).
    optional<decimal> get_valor_desconto_incondicionado() const;
    void set_valor_desconto_incondicionado(const optional<decimal>& value);

    /// Conditional discounts, in R$ (vDescCond).
    optional<decimal> get_valor_desconto_condicionado() const;
    void set_valor_desconto_condicionado(const optional<decimal>& value);

    /// ISSQN withheld by the taker of the services, in R$ (vISSRet).
    optional<decimal> get_valor_iss_retido() const;
    void set_valor_iss_retido(const optional<decimal>& value);

    /// Special tax regime of the service provider: 1 municipal micro-company, 2 estimate, 3
    /// partnership of professionals, 4 cooperative, 5 individual micro-entrepreneur, 6 micro or
    /// small company (cRegTrib).
    optional<std::uint16_t> get_codigo_regime_tributacao() const;
    void set_codigo_regime_tributacao(const optional<std::uint16_t>& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
