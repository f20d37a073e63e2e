#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class total_grupo_cbs;
class total_grupo_ibs;
class total_grupo_monofasia;

/// Totals of IBS and CBS of the invoice (IBSCBSTot).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT total_ibs_cbs {
public:
    total_ibs_cbs() noexcept;
    total_ibs_cbs(const total_ibs_cbs& other);
    total_ibs_cbs(total_ibs_cbs&& other) noexcept;
    total_ibs_cbs& operator=(const total_ibs_cbs& other);
    total_ibs_cbs& operator=(total_ibs_cbs&& other) noexcept;
    ~total_ibs_cbs();
    void swap(total_ibs_cbs& other) noexcept;

    /// Tax base of both IBS and CBS, in R$ (vBCIBSCBS).
    decimal get_total_bc_ibs_cbs() const;
    void set_total_bc_ibs_cbs(const decimal& value);

    /// IBS (gIBS).
    optional<total_grupo_ibs> get_total_grupo_ibs() const;
    void set_total_grupo_ibs(const optional<total_grupo_ibs>& value);

    /// CBS (gCBS).
    optional<total_grupo_cbs> get_total_grupo_cbs() const;
    void set_total_grupo_cbs(const optional<total_grupo_cbs>& value);

    /// Monophasic IBS and CBS (gMono).
    optional<total_grupo_monofasia> get_total_grupo_monofasia() const;
    void set_total_grupo_monofasia(const optional<total_grupo_monofasia>& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
