#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Deferral of the IBS or of the CBS (gDif).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_informacoes_diferimento {
public:
    grupo_informacoes_diferimento() noexcept;
    grupo_informacoes_diferimento(const grupo_informacoes_diferimento& other) noexcept;
    grupo_informacoes_diferimento(grupo_informacoes_diferimento&& other) noexcept;
    grupo_informacoes_diferimento& operator=(const grupo_informacoes_diferimento& other) noexcept;
    grupo_informacoes_diferimento& operator=(grupo_informacoes_diferimento&& other) noexcept;
    ~grupo_informacoes_diferimento();
    void swap(grupo_informacoes_diferimento& other) noexcept;

    /// Percentage of the tax that is deferred (pDif).
    decimal get_percentual_diferimento() const;
    void set_percentual_diferimento(const decimal& value);

    /// Deferred amount, in R$ (vDif).
    decimal get_valor_diferimento() const;
    void set_valor_diferimento(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
