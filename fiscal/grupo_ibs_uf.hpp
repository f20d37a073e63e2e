#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_informacoes_devolucao;
class grupo_informacoes_diferimento;
class grupo_informacoes_reducao;

/// State share of the IBS (gIBSUF).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_ibs_uf {
public:
    grupo_ibs_uf() noexcept;
    grupo_ibs_uf(const grupo_ibs_uf& other) noexcept;
    grupo_ibs_uf(grupo_ibs_uf&& other) noexcept;
    grupo_ibs_uf& operator=(const grupo_ibs_uf& other) noexcept;
    grupo_ibs_uf& operator=(grupo_ibs_uf&& other) noexcept;
    ~grupo_ibs_uf();
    void swap(grupo_ibs_uf& other) noexcept;

    /// State IBS rate, in percent (pIBSUF).
    decimal get_aliquota_ibs() const;
    void set_aliquota_ibs(const decimal& value);

    /// Deferral of the tax (gDif).
    optional<grupo_informacoes_diferimento> get_informacoes_diferimento() const;
    void set_informacoes_diferimento(const optional<grupo_informacoes_diferimento>& value);

    /// Return of the tax (gDevTrib).
    optional<grupo_informacoes_devolucao> get_informacoes_devolucao() const;
    void set_informacoes_devolucao(const optional<grupo_informacoes_devolucao>& value);

    /// Reduction of the rate (gRed).
    optional<grupo_informacoes_reducao> get_informacoes_reducao() const;
    void set_informacoes_reducao(const optional<grupo_informacoes_reducao>& value);

    /// State IBS amount, in R$ (vIBSUF).
    decimal get_valor_ibs() const;
    void set_valor_ibs(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
