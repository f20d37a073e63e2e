#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_diferimento_monofasica;
class grupo_monofasica_retencao;
class grupo_monofasica_retida;
class grupo_monofasico_padrao;

/// Monophasic IBS and CBS of an item, charged once in the chain, on a quantity (gIBSCBSMono).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_ibs_cbs_monofasico {
public:
    grupo_ibs_cbs_monofasico() noexcept;
    grupo_ibs_cbs_monofasico(const grupo_ibs_cbs_monofasico& other) noexcept;
    grupo_ibs_cbs_monofasico(grupo_ibs_cbs_monofasico&& other) noexcept;
    grupo_ibs_cbs_monofasico& operator=(const grupo_ibs_cbs_monofasico& other) noexcept;
    grupo_ibs_cbs_monofasico& operator=(grupo_ibs_cbs_monofasico&& other) noexcept;
    ~grupo_ibs_cbs_monofasico();
    void swap(grupo_ibs_cbs_monofasico& other) noexcept;

    /// Tax of the operation itself (gMonoPadrao).
    optional<grupo_monofasico_padrao> get_grupo_monofasico_padrao() const;
    void set_grupo_monofasico_padrao(const optional<grupo_monofasico_padrao>& value);

    /// Tax subject to withholding in the operation (gMonoReten).
    optional<grupo_monofasica_retencao> get_monofasica_retencao() const;
    void set_grupo_monofasica_retencao(const optional<grupo_monofasica_retencao>& value);

    /// Tax withheld at an earlier stage (gMonoRet).
    optional<grupo_monofasica_retida> get_monofasica_retida() const;
    void set_grupo_monofasica_retida(const optional<grupo_monofasica_retida>& value);

    /// Deferral of the tax (gMonoDif).
    optional<grupo_diferimento_monofasica> get_grupo_diferimento_monofasica() const;
    void set_grupo_diferimento_monofasica(const optional<grupo_diferimento_monofasica>& value);

    /// Total monophasic IBS of the item, in R$ (vTotIBSMonoItem).
    decimal get_valor_total_ibs_monofasico() const;
    void set_valor_total_ibs_monofasico(const decimal& value);

    /// Total monophasic CBS of the item, in R$ (vTotCBSMonoItem).
    decimal get_valor_total_cbs_monofasico() const;
    void set_valor_total_cbs_monofasico(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
