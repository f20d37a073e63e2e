#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Totals of the state share of the IBS (gIBSUF).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT total_grupo_ibs_uf {
public:
    total_grupo_ibs_uf() noexcept;
    total_grupo_ibs_uf(const total_grupo_ibs_uf& other);
    total_grupo_ibs_uf(total_grupo_ibs_uf&& other) noexcept;
    total_grupo_ibs_uf& operator=(const total_grupo_ibs_uf& other);
    total_grupo_ibs_uf& operator=(total_grupo_ibs_uf&& other) noexcept;
    ~total_grupo_ibs_uf();
    void swap(total_grupo_ibs_uf& other) noexcept;

    /// Deferred state IBS, in R$ (vDif).
    decimal get_total_diferimento() const;
    void set_total_diferimento(const decimal& value);

    /// State IBS returned to the buyer, in R$ (vDevTrib).
    decimal get_total_devolucao() const;
    void set_total_devolucao(const decimal& value);

    /// State IBS, in R$ (vIBSUF).
    decimal get_total() const;
    void set_total(const decimal& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
