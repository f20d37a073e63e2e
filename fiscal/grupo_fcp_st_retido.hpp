#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Poverty fund (FCP) share withheld by tax substitution in this operation (its elements stand in
/// the ICMS group).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_fcp_st_retido {
public:
    grupo_fcp_st_retido();
    grupo_fcp_st_retido(const grupo_fcp_st_retido& other);
    grupo_fcp_st_retido(grupo_fcp_st_retido&& other);
    grupo_fcp_st_retido& operator=(const grupo_fcp_st_retido& other);
    grupo_fcp_st_retido& operator=(grupo_fcp_st_retido&& other);
    ~grupo_fcp_st_retido();

    /// Tax base of the FCP withheld, in R$ (vBCFCPST).
    decimal get_valor_bc() const;
    void set_valor_bc(const decimal& value);

    /// Rate of the FCP withheld, in percent (pFCPST).
    decimal get_percentual() const;
    void set_percentual(const decimal& value);

    /// Amount of the FCP withheld, in R$ (vFCPST).
    decimal get_valor() const;
    void set_valor(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
