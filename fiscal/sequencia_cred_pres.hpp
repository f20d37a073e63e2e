#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_cred_pres;

/// The presumed credit of an item, or none (no element of its own: gCredPresOper stands in IBSCBS).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT sequencia_cred_pres {
public:
    sequencia_cred_pres() noexcept;
    sequencia_cred_pres(const sequencia_cred_pres& other) noexcept;
    sequencia_cred_pres(sequencia_cred_pres&& other) noexcept;
    sequencia_cred_pres& operator=(const sequencia_cred_pres& other) noexcept;
    sequencia_cred_pres& operator=(sequencia_cred_pres&& other) noexcept;
    ~sequencia_cred_pres();
    void swap(sequencia_cred_pres& other) noexcept;

    /// Nothing, or the presumed credit (gCredPresOper). The getter does not throw: a copy that
    /// fails ends the process.
    variant<monostate, grupo_cred_pres> get_grupo_cred_pres() const noexcept;
    void set_grupo_cred_pres(const variant<monostate, grupo_cred_pres>& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
