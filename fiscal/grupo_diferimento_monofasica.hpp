#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Deferral of the monophasic IBS and CBS (gMonoDif).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_diferimento_monofasica {
public:
    grupo_diferimento_monofasica() noexcept;
    grupo_diferimento_monofasica(const grupo_diferimento_monofasica& other) noexcept;
    grupo_diferimento_monofasica(grupo_diferimento_monofasica&& other) noexcept;
    grupo_diferimento_monofasica& operator=(const grupo_diferimento_monofasica& other) noexcept;
    grupo_diferimento_monofasica& operator=(grupo_diferimento_monofasica&& other) noexcept;
    ~grupo_diferimento_monofasica();
    void swap(grupo_diferimento_monofasica& other) noexcept;

    /// Percentage of the monophasic IBS that is deferred (pDifIBS).
    decimal get_percentual_ibs_diferido() const;
    void set_percentual_ibs_diferido(const decimal& value);

    /// Deferred IBS amount, in R$ (vIBSMonoDif).
    decimal get_valor_ibs_diferido() const;
    void set_valor_ibs_diferido(const decimal& value);

    /// Percentage of the monophasic CBS that is deferred (pDifCBS).
    decimal get_percentual_cbs_diferido() const;
    void set_percentual_cbs_diferido(const decimal& value);

    /// Deferred CBS amount, in R$ (vCBSMonoDif).
    decimal get_valor_cbs_diferido() const;
    void set_valor_cbs_diferido(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
