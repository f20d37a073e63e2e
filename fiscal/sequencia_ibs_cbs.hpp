#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_ibs_cbs;
class grupo_ibs_cbs_monofasico;

/// How an item is taxed, regularly or monophasically (no element of its own: gIBSCBS or gIBSCBSMono
/// stands in IBSCBS).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT sequencia_ibs_cbs {
public:
    sequencia_ibs_cbs() noexcept;
    sequencia_ibs_cbs(const sequencia_ibs_cbs& other) noexcept;
    sequencia_ibs_cbs(sequencia_ibs_cbs&& other) noexcept;
    sequencia_ibs_cbs& operator=(const sequencia_ibs_cbs& other) noexcept;
    sequencia_ibs_cbs& operator=(sequencia_ibs_cbs&& other) noexcept;
    ~sequencia_ibs_cbs();
    void swap(sequencia_ibs_cbs& other) noexcept;

    /// Regular tax (gIBSCBS) or monophasic tax (gIBSCBSMono). The getter does not throw: a copy
    /// that fails ends the process.
    variant<grupo_ibs_cbs, grupo_ibs_cbs_monofasico> get_grupo_ibs_cbs() const noexcept;
    void set_grupo_ibs_cbs(const variant<grupo_ibs_cbs, grupo_ibs_cbs_monofasico>& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
