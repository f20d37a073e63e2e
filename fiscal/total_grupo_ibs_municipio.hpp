#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Totals of the municipal share of the IBS (gIBSMun).
/// Lazy: failures and moved-from objects follow lazy_handle.
class KIVO_ERP_FISCAL_EXPORT total_grupo_ibs_municipio {
public:
    total_grupo_ibs_municipio() noexcept;
    total_grupo_ibs_municipio(const total_grupo_ibs_municipio& other);
    total_grupo_ibs_municipio(total_grupo_ibs_municipio&& other) noexcept;
    total_grupo_ibs_municipio& operator=(const total_grupo_ibs_municipio& other);
    total_grupo_ibs_municipio& operator=(total_grupo_ibs_municipio&& other) noexcept;
    ~total_grupo_ibs_municipio();
    void swap(total_grupo_ibs_municipio& other) noexcept;

    /// Deferred municipal IBS, in R$ (vDif).
    decimal get_total_diferimento() const;
    void set_total_diferimento(const decimal& value);

    /// Municipal IBS returned to the buyer, in R$ (vDevTrib).
    decimal get_total_devolucao() const;
    void set_total_devolucao(const decimal& value);

    /// Municipal IBS, in R$ (vIBSMun).
    decimal get_total() const;
    void set_total(const decimal& value);

private:
    struct record;
    lazy_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
