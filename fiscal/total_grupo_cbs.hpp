#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Totals of the CBS (gCBS).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT total_grupo_cbs {
public:
    total_grupo_cbs() noexcept;
    total_grupo_cbs(const total_grupo_cbs& other);
    total_grupo_cbs(total_grupo_cbs&& other) noexcept;
    total_grupo_cbs& operator=(const total_grupo_cbs& other);
    total_grupo_cbs& operator=(total_grupo_cbs&& other) noexcept;
    ~total_grupo_cbs();
    void swap(total_grupo_cbs& other) noexcept;

    /// Deferred CBS, in R$ (vDif).
    decimal get_total_diferimento() const;
    void set_total_diferimento(const decimal& value);

    /// CBS returned to the buyer, in R$ (vDevTrib).
    decimal get_total_devolucao_tributos() const;
    void set_total_devolucao_tributos(const decimal& value);

    /// CBS, in R$ (vCBS).
    decimal get_total_cbs() const;
    void set_total_cbs(const decimal& value);

    /// Presumed credit of CBS, in R$ (vCredPres).
    decimal get_total_cred_pres() const;
    void set_total_cred_pres(const decimal& value);

    /// Presumed credit of CBS under a condition precedent, in R$ (vCredPresCondSus).
    decimal get_total_cred_pres_sus() const;
    void set_total_cred_pres_sus(const decimal& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
