#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Monophasic IBS and CBS withheld at an earlier stage (gMonoRet).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_monofasica_retida {
public:
    grupo_monofasica_retida() noexcept;
    grupo_monofasica_retida(const grupo_monofasica_retida& other) noexcept;
    grupo_monofasica_retida(grupo_monofasica_retida&& other) noexcept;
    grupo_monofasica_retida& operator=(const grupo_monofasica_retida& other) noexcept;
    grupo_monofasica_retida& operator=(grupo_monofasica_retida&& other) noexcept;
    ~grupo_monofasica_retida();
    void swap(grupo_monofasica_retida& other) noexcept;

    /// Taxed quantity withheld earlier, in the taxable unit (qBCMonoRet).
    decimal get_quantidade_tributada() const;
    void set_quantidade_tributada(const decimal& value);

    /// IBS rate, in R$ per taxable unit (adRemIBSRet).
    decimal get_aliquota_ibs() const;
    void set_aliquota_ibs(const decimal& value);

    /// Monophasic IBS amount withheld earlier, in R$ (vIBSMonoRet).
    decimal get_valor_ibs_monofasico() const;
    void set_valor_ibs_monofasico(const decimal& value);

    /// CBS rate, in R$ per taxable unit (adRemCBSRet).
    decimal get_aliquota_cbs() const;
    void set_aliquota_cbs(const decimal& value);

    /// Monophasic CBS amount withheld earlier, in R$ (vCBSMonoRet).
    decimal get_valor_cbs_monofasico() const;
    void set_valor_cbs_monofasico(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
