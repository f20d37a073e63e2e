#pragma once

#include <fiscal/cst.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Monophasic ICMS on fuel, with deferred payment, CST 53 (ICMS53). The group holds the deferred
/// part alone.
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_53 {
public:
    grupo_tributacao_icms_53() noexcept;
    grupo_tributacao_icms_53(const grupo_tributacao_icms_53& other) noexcept;
    grupo_tributacao_icms_53(grupo_tributacao_icms_53&& other) noexcept;
    grupo_tributacao_icms_53& operator=(const grupo_tributacao_icms_53& other) noexcept;
    grupo_tributacao_icms_53& operator=(grupo_tributacao_icms_53&& other) noexcept;
    ~grupo_tributacao_icms_53();
    void swap(grupo_tributacao_icms_53& other) noexcept;

    /// Origin of the goods (orig).
    origem_cst get_origem_mercadoria() const;
    void set_origem_mercadoria(origem_cst value);

    /// Situation code (CST).
    cst get_cst() const;
    void set_cst(cst value);

    /// Quantity whose tax is deferred, in litres or kilograms (qBCMonoDif).
    optional<decimal> get_quantidade_tributada_diferida() const;
    void set_quantidade_tributada_diferida(const optional<decimal>& value);

    /// Ad rem rate of the deferred tax, in R$ per litre or kilogram (adRemICMSDif).
    optional<decimal> get_aliquota_ad_rem_diferido() const;
    void set_aliquota_ad_rem_diferido(const optional<decimal>& value);

    /// Deferred ICMS amount, in R$ (vICMSMonoDif).
    optional<decimal> get_valor_icms_diferido() const;
    void set_valor_icms_diferido(const optional<decimal>& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
