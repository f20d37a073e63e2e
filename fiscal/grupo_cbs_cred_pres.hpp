#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>
#include <fiscal/valor_cred_pres.hpp>

#include <cstdint>

namespace kivo::erp::v12::fiscal {

/// Presumed credit of the CBS (gCBSCredPres).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_cbs_cred_pres {
public:
    grupo_cbs_cred_pres() noexcept;
    grupo_cbs_cred_pres(const grupo_cbs_cred_pres& other) noexcept;
    grupo_cbs_cred_pres(grupo_cbs_cred_pres&& other) noexcept;
    grupo_cbs_cred_pres& operator=(const grupo_cbs_cred_pres& other) noexcept;
    grupo_cbs_cred_pres& operator=(grupo_cbs_cred_pres&& other) noexcept;
    ~grupo_cbs_cred_pres();
    void swap(grupo_cbs_cred_pres& other) noexcept;

    /// Classification code of the credit, as a number (no element in layout 4.00; an earlier
    /// release of it had cCredPres here). The code that both taxes share is
    /// grupo_cred_pres::get_codigo.
    std::uint32_t get_codigo_classificacao() const;
    void set_codigo_classificacao(std::uint32_t value);

    /// Presumed credit, in percent of its base (pCredPres).
    decimal get_percentual_credito_presumido() const;
    void set_percentual_credito_presumido(const decimal& value);

    /// Amount of the credit, in R$: available at once (vCredPres), or under a condition precedent
    /// (vCredPresCondSus). One goes before the other is copied: a setter that fails in between
    /// leaves the field valueless.
    variant<valor_cred_pres, valor_cred_pres_sus> get_valor_credito_presumido() const;
    void set_valor_credito_presumido(const variant<valor_cred_pres, valor_cred_pres_sus>& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
