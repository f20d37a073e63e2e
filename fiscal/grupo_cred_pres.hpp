#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

class grupo_cbs_cred_pres;
class grupo_ibs_cred_pres;

/// Presumed credit of IBS and CBS from an operation (gCredPresOper).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_cred_pres {
public:
    grupo_cred_pres() noexcept;
    grupo_cred_pres(const grupo_cred_pres& other) noexcept;
    grupo_cred_pres(grupo_cred_pres&& other) noexcept;
    grupo_cred_pres& operator=(const grupo_cred_pres& other) noexcept;
    grupo_cred_pres& operator=(grupo_cred_pres&& other) noexcept;
    ~grupo_cred_pres();
    void swap(grupo_cred_pres& other) noexcept;

    /// Base of the credit, in R$ (vBCCredPres).
    decimal get_valor_base_calculo() const;
    void set_valor_base_calculo(const decimal& value);

    /// Classification code of the credit, 2 digits as a number (cCredPres).
    std::uint8_t get_codigo() const;
    void set_codigo(std::uint8_t value);

    /// Credit of the IBS (gIBSCredPres).
    optional<grupo_ibs_cred_pres> get_ibs_cred_pres() const;
    void set_ibs_cred_pres(const optional<grupo_ibs_cred_pres>& value);

    /// Credit of the CBS (gCBSCredPres).
    optional<grupo_cbs_cred_pres> get_cbs_cred_pres() const;
    void set_cbs_cred_pres(const optional<grupo_cbs_cred_pres>& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
