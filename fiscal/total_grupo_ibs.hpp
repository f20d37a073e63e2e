#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class total_grupo_ibs_municipio;
class total_grupo_ibs_uf;

/// Totals of the IBS (gIBS).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT total_grupo_ibs {
public:
    total_grupo_ibs() noexcept;
    total_grupo_ibs(const total_grupo_ibs& other);
    total_grupo_ibs(total_grupo_ibs&& other) noexcept;
    total_grupo_ibs& operator=(const total_grupo_ibs& other);
    total_grupo_ibs& operator=(total_grupo_ibs&& other) noexcept;
    ~total_grupo_ibs();
    void swap(total_grupo_ibs& other) noexcept;

    /// State share (gIBSUF).
    total_grupo_ibs_uf get_total_grupo_ibs_uf() const;
    void set_total_grupo_ibs_uf(const total_grupo_ibs_uf& value);

    /// Municipal share (gIBSMun).
    total_grupo_ibs_municipio get_total_grupo_ibs_municipio() const;
    void set_total_grupo_ibs_municipio(const total_grupo_ibs_municipio& value);

    /// IBS, state and municipal shares together, in R$ (vIBS).
    decimal get_total_ibs() const;
    void set_total_ibs(const decimal& value);

    /// Presumed credit of IBS, in R$ (vCredPres).
    decimal get_total_cred_pres() const;
    void set_total_cred_pres(const decimal& value);

    /// Presumed credit of IBS under a condition precedent, in R$ (vCredPresCondSus).
    decimal get_total_cred_pres_sus() const;
    void set_total_cred_pres_sus(const decimal& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
