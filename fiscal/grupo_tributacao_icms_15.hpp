#pragma once

#include <fiscal/cst.hpp>
#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/origem_cst.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

class grupo_reducao_ad_rem;

/// Monophasic ICMS on fuel, with withholding, CST 15 (ICMS15).
/// Lazy: failures and moved-from objects follow lazy_handle; a copy that fails ends the process.
class KIVO_ERP_FISCAL_EXPORT grupo_tributacao_icms_15 {
public:
    grupo_tributacao_icms_15() noexcept;
    grupo_tributacao_icms_15(const grupo_tributacao_icms_15& other) noexcept;
    grupo_tributacao_icms_15(grupo_tributacao_icms_15&& other) noexcept;
    grupo_tributacao_icms_15& operator=(const grupo_tributacao_icms_15& other) noexcept;
    grupo_tributacao_icms_15& operator=(grupo_tributacao_icms_15&& other) noexcept;
    ~grupo_tributacao_icms_15();
    void swap(grupo_tributacao_icms_15& other) noexcept;

    /// Origin of the goods (orig).
    origem_cst get_origem_mercadoria() const;
    void set_origem_mercadoria(origem_cst value);

    /// Situation code (CST).
    cst get_cst() const;
    void set_cst(cst value);

    /// Taxed quantity, in litres or kilograms (qBCMono).
    optional<decimal> get_quantidade_tributada() const;
    void set_quantidade_tributada(const optional<decimal>& value);

    /// Ad rem rate, in R$ per litre or kilogram (adRemICMS).
    decimal get_aliquota_ad_rem() const;
    void set_aliquota_ad_rem(const decimal& value);

    /// The operation's own ICMS amount, in R$ (vICMSMono).
    decimal get_valor_icms() const;
    void set_valor_icms(const decimal& value);

    /// Quantity subject to withholding, in litres or kilograms (qBCMonoReten).
    optional<decimal> get_quantidade_tributada_retencao() const;
    void set_quantidade_tributada_retencao(const optional<decimal>& value);

    /// Ad rem rate of the withholding, in R$ per litre or kilogram (adRemICMSReten).
    decimal get_aliquota_ad_rem_retencao() const;
    void set_aliquota_ad_rem_retencao(const decimal& value);

    /// ICMS amount subject to withholding, in R$ (vICMSMonoReten).
    decimal get_valor_icms_retencao() const;
    void set_valor_icms_retencao(const decimal& value);

    /// Reduction of the ad rem rate and its reason (pRedAdRem, motRedAdRem).
    optional<grupo_reducao_ad_rem> get_reducao_ad_rem() const;
    void set_reducao_ad_rem(const optional<grupo_reducao_ad_rem>& value);

private:
    struct record;
    lazy_handle<record, failed_copy::ends_process> record_;
};

} // namespace kivo::erp::v12::fiscal
