#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Monophasic IBS and CBS of the operation itself (gMonoPadrao).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_monofasico_padrao {
public:
    grupo_monofasico_padrao() noexcept;
    grupo_monofasico_padrao(const grupo_monofasico_padrao& other) noexcept;
    grupo_monofasico_padrao(grupo_monofasico_padrao&& other) noexcept;
    grupo_monofasico_padrao& operator=(const grupo_monofasico_padrao& other) noexcept;
    grupo_monofasico_padrao& operator=(grupo_monofasico_padrao&& other) noexcept;
    ~grupo_monofasico_padrao();
    void swap(grupo_monofasico_padrao& other) noexcept;

    /// Taxed quantity, in the taxable unit (qBCMono).
    decimal get_quantidade_tributada() const;
    void set_quantidade_tributada(const decimal& value);

    /// IBS rate, in R$ per taxable unit (adRemIBS).
    decimal get_aliquota_ibs() const;
    void set_aliquota_ibs(const decimal& value);

    /// CBS rate, in R$ per taxable unit (adRemCBS).
    decimal get_aliquota_cbs() const;
    void set_aliquota_cbs(const decimal& value);

    /// Monophasic IBS amount, in R$ (vIBSMono).
    decimal get_valor_ibs_monofasico() const;
    void set_valor_ibs_monofasico(const decimal& value);

    /// Monophasic CBS amount, in R$ (vCBSMono).
    decimal get_valor_cbs_monofasico() const;
    void set_valor_cbs_monofasico(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
