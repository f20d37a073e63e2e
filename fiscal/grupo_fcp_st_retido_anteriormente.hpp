#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Poverty fund (FCP) share withheld by tax substitution in an earlier operation (its elements
/// stand in the ICMS group).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_fcp_st_retido_anteriormente {
public:
    grupo_fcp_st_retido_anteriormente();
    grupo_fcp_st_retido_anteriormente(const grupo_fcp_st_retido_anteriormente& other);
    grupo_fcp_st_retido_anteriormente(grupo_fcp_st_retido_anteriormente&& other);
    grupo_fcp_st_retido_anteriormente& operator=(const grupo_fcp_st_retido_anteriormente& other);
    grupo_fcp_st_retido_anteriormente& operator=(grupo_fcp_st_retido_anteriormente&& other);
    ~grupo_fcp_st_retido_anteriormente();

    /// Tax base of the FCP withheld earlier, in R$ (vBCFCPSTRet).
    decimal get_valor_bc() const;
    void set_valor_bc(const decimal& value);

    /// Rate of the FCP withheld earlier, in percent (pFCPSTRet).
    decimal get_percentual() const;
    void set_percentual(const decimal& value);

    /// Amount of the FCP withheld earlier, in R$ (vFCPSTRet).
    decimal get_valor() const;
    void set_valor(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
