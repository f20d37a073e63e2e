#pragma once

#include <fiscal/cst.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Monophasic ICMS on fuel, charged before, CST 61 (ICMS61).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_61 {
public:
    grupo_tributacao_icms_61() noexcept;
    grupo_tributacao_icms_61(const grupo_tributacao_icms_61& other) noexcept;
    grupo_tributacao_icms_61(grupo_tributacao_icms_61&& other) noexcept;
    grupo_tributacao_icms_61& operator=(const grupo_tributacao_icms_61& other) noexcept;
    grupo_tributacao_icms_61& operator=(grupo_tributacao_icms_61&& other) noexcept;
    ~grupo_tributacao_icms_61();
    void swap(grupo_tributacao_icms_61& other) noexcept;

    /// Origin of the goods (orig).
    origem_cst get_origem_mercadoria() const;
    void set_origem_mercadoria(origem_cst value);

    /// Situation code (CST).
    cst get_cst() const;
    void set_cst(cst value);

    /// Quantity whose tax was withheld earlier, in litres or kilograms (qBCMonoRet).
    optional<decimal> get_quantidade_tributada_retida() const;
    void set_quantidade_tributada_retida(const optional<decimal>& value);

    /// Ad rem rate of the tax withheld earlier, in R$ per litre or kilogram (adRemICMSRet).
    decimal get_aliquota_ad_rem_retido() const;
    void set_aliquota_ad_rem_retido(const decimal& value);

    /// ICMS amount withheld earlier, in R$ (vICMSMonoRet).
    decimal get_valor_icms_retido() const;
    void set_valor_icms_retido(const decimal& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
