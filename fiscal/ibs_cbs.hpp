#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

class sequencia_cred_pres;
class sequencia_ibs_cbs;

/// IBS and CBS of an item (IBSCBS).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT ibs_cbs {
public:
    ibs_cbs() noexcept;
    ibs_cbs(const ibs_cbs& other) noexcept;
    ibs_cbs(ibs_cbs&& other) noexcept;
    ibs_cbs& operator=(const ibs_cbs& other) noexcept;
    ibs_cbs& operator=(ibs_cbs&& other) noexcept;
    ~ibs_cbs();
    void swap(ibs_cbs& other) noexcept;

    /// Tax situation, code of 3 digits as a number (CST).
    std::uint32_t get_codigo_situacao_tributaria() const;
    void set_codigo_situacao_tributaria(std::uint32_t value);

    /// Tax classification, code of 6 digits as a number (cClassTrib).
    std::uint32_t get_codigo_classificacao_tributaria() const;
    void set_codigo_classificacao_tributaria(std::uint32_t value);

    /// Regular or monophasic tax (gIBSCBS or gIBSCBSMono).
    optional<sequencia_ibs_cbs> get_sequencia_ibs_cbs() const;
    void set_sequencia_ibs_cbs(const optional<sequencia_ibs_cbs>& value);

    /// Presumed credit, if any (gCredPresOper).
    optional<sequencia_cred_pres> get_sequencia_cred_pres() const;
    void set_sequencia_cred_pres(const optional<sequencia_cred_pres>& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
