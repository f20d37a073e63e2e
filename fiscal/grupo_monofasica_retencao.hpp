#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Monophasic IBS and CBS subject to withholding in the operation (gMonoReten).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_monofasica_retencao {
public:
    grupo_monofasica_retencao() noexcept;
    grupo_monofasica_retencao(const grupo_monofasica_retencao& other) noexcept;
    grupo_monofasica_retencao(grupo_monofasica_retencao&& other) noexcept;
    grupo_monofasica_retencao& operator=(const grupo_monofasica_retencao& other) noexcept;
    grupo_monofasica_retencao& operator=(grupo_monofasica_retencao&& other) noexcept;
    ~grupo_monofasica_retencao();
    void swap(grupo_monofasica_retencao& other) noexcept;

    /// Taxed quantity subject to withholding, in the taxable unit (qBCMonoReten).
    decimal get_quantidade_tributada() const;
    void set_quantidade_tributada(const decimal& value);

    /// IBS rate, in R$ per taxable unit (adRemIBSReten).
    decimal get_aliquota_ibs() const;
    void set_aliquota_ibs(const decimal& value);

    /// Monophasic IBS amount subject to withholding, in R$ (vIBSMonoReten).
    decimal get_valor_ibs_monofasico() const;
    void set_valor_ibs_monofasico(const decimal& value);

    /// CBS rate, in R$ per taxable unit (adRemCBSReten).
    decimal get_aliquota_cbs() const;
    void set_aliquota_cbs(const decimal& value);

    /// Monophasic CBS amount subject to withholding, in R$ (vCBSMonoReten).
    decimal get_valor_cbs_monofasico() const;
    void set_valor_cbs_monofasico(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
