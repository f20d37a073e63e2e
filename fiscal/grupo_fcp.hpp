#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Poverty fund (FCP) share of the operation's own ICMS (its elements stand in the ICMS group).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT grupo_fcp {
public:
    grupo_fcp();
    grupo_fcp(const grupo_fcp& other);
    grupo_fcp(grupo_fcp&& other);
    grupo_fcp& operator=(const grupo_fcp& other);
    grupo_fcp& operator=(grupo_fcp&& other);
    ~grupo_fcp();

    /// FCP tax base, in R$ (vBCFCP).
    decimal get_valor_bc() const;
    void set_valor_bc(const decimal& value);

    /// FCP rate, in percent (pFCP).
    decimal get_percentual() const;
    void set_percentual(const decimal& value);

    /// FCP amount, in R$ (vFCP).
    decimal get_valor() const;
    void set_valor(const decimal& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
