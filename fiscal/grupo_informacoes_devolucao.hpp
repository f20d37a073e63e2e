#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Return of the IBS or of the CBS to the buyer (gDevTrib).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_informacoes_devolucao {
public:
    grupo_informacoes_devolucao() noexcept;
    grupo_informacoes_devolucao(const grupo_informacoes_devolucao& other) noexcept;
    grupo_informacoes_devolucao(grupo_informacoes_devolucao&& other) noexcept;
    grupo_informacoes_devolucao& operator=(const grupo_informacoes_devolucao& other) noexcept;
    grupo_informacoes_devolucao& operator=(grupo_informacoes_devolucao&& other) noexcept;
    ~grupo_informacoes_devolucao();
    void swap(grupo_informacoes_devolucao& other) noexcept;

    /// Amount of tax returned, in R$ (vDevTrib).
    decimal get_valor_tributo_devolvido() const;
    void set_valor_tributo_devolvido(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
