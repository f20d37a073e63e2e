#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Totals of the monophasic IBS and CBS (gMono).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT total_grupo_monofasia {
public:
    total_grupo_monofasia() noexcept;
    total_grupo_monofasia(const total_grupo_monofasia& other);
    total_grupo_monofasia(total_grupo_monofasia&& other) noexcept;
    total_grupo_monofasia& operator=(const total_grupo_monofasia& other);
    total_grupo_monofasia& operator=(total_grupo_monofasia&& other) noexcept;
    ~total_grupo_monofasia();
    void swap(total_grupo_monofasia& other) noexcept;

    /// The operations' own monophasic IBS, in R$ (vIBSMono).
    decimal get_total_ibs() const;
    void set_total_ibs(const decimal& value);

    /// The operations' own monophasic CBS, in R$ (vCBSMono).
    decimal get_total_cbs() const;
    void set_total_cbs(const decimal& value);

    /// Monophasic IBS subject to withholding, in R$ (vIBSMonoReten).
    decimal get_total_ibs_retencao() const;
    void set_total_ibs_retencao(const decimal& value);

    /// Monophasic CBS subject to withholding, in R$ (vCBSMonoReten).
    decimal get_total_cbs_retencao() const;
    void set_total_cbs_retencao(const decimal& value);

    /// Monophasic IBS withheld earlier, in R$ (vIBSMonoRet).
    decimal get_total_ibs_retido() const;
    void set_total_ibs_retido(const decimal& value);

    /// Monophasic CBS withheld earlier, in R$ (vCBSMonoRet).
    decimal get_total_cbs_retido() const;
    void set_total_cbs_retido(const decimal& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
