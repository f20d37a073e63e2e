#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_informacoes_devolucao;
class grupo_informacoes_diferimento;
class grupo_informacoes_reducao;

/// CBS of an item (gCBS).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_informacoes_cbs {
public:
    grupo_informacoes_cbs() noexcept;
    grupo_informacoes_cbs(const grupo_informacoes_cbs& other) noexcept;
    grupo_informacoes_cbs(grupo_informacoes_cbs&& other) noexcept;
    grupo_informacoes_cbs& operator=(const grupo_informacoes_cbs& other) noexcept;
    grupo_informacoes_cbs& operator=(grupo_informacoes_cbs&& other) noexcept;
    ~grupo_informacoes_cbs();
    void swap(grupo_informacoes_cbs& other) noexcept;

    /// CBS rate, in percent (pCBS).
    decimal get_aliquota_cbs() const;
    void set_aliquota_cbs(const decimal& value);

    /// Deferral of the tax (gDif).
    optional<grupo_informacoes_diferimento> get_informacoes_diferimento() const;
    void set_informacoes_diferimento(const optional<grupo_informacoes_diferimento>& value);

    /// Return of the tax (gDevTrib).
    optional<grupo_informacoes_devolucao> get_informacoes_devolucao() const;
    void set_informacoes_devolucao(const optional<grupo_informacoes_devolucao>& value);

    /// Reduction of the rate (gRed).
    optional<grupo_informacoes_reducao> get_informacoes_reducao() const;
    void set_informacoes_reducao(const optional<grupo_informacoes_reducao>& value);

    /// CBS amount, in R$ (vCBS).
    decimal get_valor_cbs() const;
    void set_valor_cbs(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
