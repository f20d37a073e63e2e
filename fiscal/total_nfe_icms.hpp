#pragma once

#include <fiscal/export.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/types.hpp>

namespace kivo::erp::v12::fiscal {

/// Totals of the invoice, of the ICMS and of the other taxes and charges of its items (ICMSTot).
/// Eager: failures and moved-from objects follow eager_handle.
class KIVO_ERP_FISCAL_EXPORT total_nfe_icms {
public:
    total_nfe_icms();
    total_nfe_icms(const total_nfe_icms& other);
    total_nfe_icms(total_nfe_icms&& other);
    total_nfe_icms& operator=(const total_nfe_icms& other);
    total_nfe_icms& operator=(total_nfe_icms&& other);
    ~total_nfe_icms();

    /// Insurance, in R$ (vSeg).
    decimal get_total_seguro() const;
    void set_total_seguro(const decimal& value);

    /// Relieved ICMS, in R$ (vICMSDeson).
    decimal get_total_desonerado() const;
    void set_total_desonerado(const decimal& value);

    /// Poverty fund (FCP) share of the operations' own ICMS, in R$ (vFCP).
    decimal get_total_fcp() const;
    void set_total_fcp(const decimal& value);

    /// IPI, in R$ (vIPI).
    decimal get_total_ipi() const;
    void set_total_ipi(const decimal& value);

    /// IPI given back with returned goods, in R$ (vIPIDevol).
    decimal get_total_ipi_devolvido() const;
    void set_total_ipi_devolvido(const decimal& value);

    /// Import tax, in R$ (vII).
    decimal get_total_imposto_de_importacao() const;
    void set_total_imposto_de_importacao(const decimal& value);

    /// Total of the invoice without IBS, CBS and selective tax, in R$ (vNF).
    decimal get_total_da_nota() const;
    void set_total_da_nota(const decimal& value);

    /// Estimate of all federal, state and municipal taxes in the prices, in R$ (vTotTrib).
    optional<decimal> get_total_dos_tributos_do_item() const;
    void set_total_dos_tributos_do_item(const optional<decimal>& value);

    /// Tax base of the ICMS by tax substitution, in R$ (vBCST).
    decimal get_total_base_st() const;
    void set_total_base_st(const decimal& value);

    /// Tax base of the operations' own ICMS, in R$ (vBC).
    decimal get_total_base_normal() const;
    void set_total_base_normal(const decimal& value);

    /// The operations' own ICMS, in R$ (vICMS).
    decimal get_total_icms_normal() const;
    void set_total_icms_normal(const decimal& value);

    /// Products and services before discount and charges, in R$ (vProd).
    decimal get_valor_total_dos_produtos_da_nota() const;
    void set_valor_total_dos_produtos_da_nota(const decimal& value);

    /// ICMS withheld by tax substitution, in R$ (vST).
    decimal get_total_retido() const;
    void set_total_retido(const decimal& value);

    /// FCP withheld by tax substitution, in R$ (vFCPST).
    decimal get_total_fcp_retido() const;
    void set_total_fcp_retido(const decimal& value);

    /// FCP withheld earlier by tax substitution, in R$ (vFCPSTRet).
    decimal get_total_fcp_retido_anteriormente() const;
    void set_total_fcp_retido_anteriormente(const decimal& value);

    /// Other charges, in R$ (vOutro).
    decimal get_total_despesas_acessorias() const;
    void set_total_despesas_acessorias(const decimal& value);

    /// Freight, in R$ (vFrete).
    decimal get_total_frete() const;
    void set_total_frete(const decimal& value);

    /// Discounts, in R$ (vDesc).
    decimal get_valor_total_do_desconto_da_nota() const;
    void set_valor_total_do_desconto_da_nota(const decimal& value);

    /// PIS, in R$ (vPIS).
    decimal get_total_imposto_pis() const;
    void set_total_imposto_pis(const decimal& value);

    /// COFINS, in R$ (vCOFINS).
    decimal get_total_imposto_confins() const;
    void set_total_imposto_confins(const decimal& value);

    /// Poverty fund of the state (FECOP), in R$ (no element in layout 4.00).
    optional<decimal> get_total_fecop() const;
    void set_total_fecop(const optional<decimal>& value);

    /// FCP due to the state of destination, in R$ (vFCPUFDest).
    optional<decimal> get_total_icms_fcp() const;
    void set_total_icms_fcp(const optional<decimal>& value);

    /// ICMS due to the state of destination, in R$ (vICMSUFDest).
    optional<decimal> get_total_icms_destino() const;
    void set_total_icms_destino(const optional<decimal>& value);

    /// ICMS due to the sender's state, in R$ (vICMSUFRemet).
    optional<decimal> get_total_icms_remetente() const;
    void set_total_icms_remetente(const optional<decimal>& value);

    /// Quantity of the operations' own monophasic ICMS, in litres or kilograms (qBCMono).
    optional<decimal> get_total_quantidade_tributada_icms_monofasico() const;
    void set_total_quantidade_tributada_icms_monofasico(const optional<decimal>& value);

    /// The operations' own monophasic ICMS, in R$ (vICMSMono).
    optional<decimal> get_total_icms_monofasico() const;
    void set_total_icms_monofasico(const optional<decimal>& value);

    /// Quantity of the monophasic ICMS subject to withholding, in litres or kilograms
    /// (qBCMonoReten).
    optional<decimal> get_total_quantidade_tributada_icms_monofasico_retencao() const;
    void set_total_quantidade_tributada_icms_monofasico_retencao(const optional<decimal>& value);

    /// Monophasic ICMS subject to withholding, in R$ (vICMSMonoReten).
    optional<decimal> get_total_icms_monofasico_retencao() const;
    void set_total_icms_monofasico_retencao(const optional<decimal>& value);

    /// Quantity whose monophasic ICMS was withheld earlier, in litres or kilograms (qBCMonoRet).
    optional<decimal> get_total_quantidade_tributada_icms_monofasico_retido() const;
    void set_total_quantidade_tributada_icms_monofasico_retido(const optional<decimal>& value);

    /// Monophasic ICMS withheld earlier, in R$ (vICMSMonoRet).
    optional<decimal> get_total_icms_monofasico_retido() const;
    void set_total_icms_monofasico_retido(const optional<decimal>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
