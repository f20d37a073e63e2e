#pragma once

#include <fiscal/adicao.hpp>
#include <fiscal/arma.hpp>
#include <fiscal/combustiveis.hpp>
#include <fiscal/declaracao_importacao.hpp>
#include <fiscal/encerrante_bomba_combustiveis.hpp>
#include <fiscal/export.hpp>
#include <fiscal/grupo_cbs_cred_pres.hpp>
#include <fiscal/grupo_cred_pres.hpp>
#include <fiscal/grupo_credito_presumido.hpp>
#include <fiscal/grupo_diferimento_monofasica.hpp>
#include <fiscal/grupo_exportacao.hpp>
#include <fiscal/grupo_fcp.hpp>
#include <fiscal/grupo_fcp_st_retido.hpp>
#include <fiscal/grupo_fcp_st_retido_anteriormente.hpp>
#include <fiscal/grupo_ibs_cbs.hpp>
#include <fiscal/grupo_ibs_cbs_monofasico.hpp>
#include <fiscal/grupo_ibs_cred_pres.hpp>
#include <fiscal/grupo_ibs_municipio.hpp>
#include <fiscal/grupo_ibs_uf.hpp>
#include <fiscal/grupo_icms_desonerado.hpp>
#include <fiscal/grupo_icms_st_retido.hpp>
#include <fiscal/grupo_informacoes_cbs.hpp>
#include <fiscal/grupo_informacoes_devolucao.hpp>
#include <fiscal/grupo_informacoes_diferimento.hpp>
#include <fiscal/grupo_informacoes_reducao.hpp>
#include <fiscal/grupo_monofasica_retencao.hpp>
#include <fiscal/grupo_monofasica_retida.hpp>
#include <fiscal/grupo_monofasico_padrao.hpp>
#include <fiscal/grupo_reducao_ad_rem.hpp>
#include <fiscal/grupo_repasse_icms_st.hpp>
#include <fiscal/grupo_tributacao_cofins_aliquota.hpp>
#include <fiscal/grupo_tributacao_cofins_nt.hpp>
#include <fiscal/grupo_tributacao_cofins_outros.hpp>
#include <fiscal/grupo_tributacao_icms_00.hpp>
#include <fiscal/grupo_tributacao_icms_02.hpp>
#include <fiscal/grupo_tributacao_icms_10.hpp>
#include <fiscal/grupo_tributacao_icms_101.hpp>
#include <fiscal/grupo_tributacao_icms_102.hpp>
#include <fiscal/grupo_tributacao_icms_15.hpp>
#include <fiscal/grupo_tributacao_icms_20.hpp>
#include <fiscal/grupo_tributacao_icms_201.hpp>
#include <fiscal/grupo_tributacao_icms_202.hpp>
#include <fiscal/grupo_tributacao_icms_30.hpp>
#include <fiscal/grupo_tributacao_icms_40.hpp>
#include <fiscal/grupo_tributacao_icms_500.hpp>
#include <fiscal/grupo_tributacao_icms_51.hpp>
#include <fiscal/grupo_tributacao_icms_53.hpp>
#include <fiscal/grupo_tributacao_icms_60.hpp>
#include <fiscal/grupo_tributacao_icms_61.hpp>
#include <fiscal/grupo_tributacao_icms_70.hpp>
#include <fiscal/grupo_tributacao_icms_90.hpp>
#include <fiscal/grupo_tributacao_icms_900.hpp>
#include <fiscal/grupo_tributacao_pis_aliquota.hpp>
#include <fiscal/grupo_tributacao_pis_nt.hpp>
#include <fiscal/grupo_tributacao_pis_outros.hpp>
#include <fiscal/grupo_tributacao_regular.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/ibs_cbs.hpp>
#include <fiscal/imposto_seletivo.hpp>
#include <fiscal/indicador_origem_combustivel.hpp>
#include <fiscal/informacoes_cide_combustiveis.hpp>
#include <fiscal/informacoes_combustivel_glp.hpp>
#include <fiscal/informacoes_icms_efetivo.hpp>
#include <fiscal/informacoes_rastreabilidade.hpp>
#include <fiscal/ipi_devolvido.hpp>
#include <fiscal/issqn.hpp>
#include <fiscal/medicamento.hpp>
#include <fiscal/medicamento_isento.hpp>
#include <fiscal/sequencia_cred_pres.hpp>
#include <fiscal/sequencia_ibs_cbs.hpp>
#include <fiscal/tributacao_credito_sn_icms_900.hpp>
#include <fiscal/tributacao_icms_uf_destino.hpp>
#include <fiscal/tributacao_imposto_importacao.hpp>
#include <fiscal/tributacao_ipi.hpp>
#include <fiscal/tributacao_ipi_calculo_aliquota.hpp>
#include <fiscal/tributacao_ipi_calculo_valor.hpp>
#include <fiscal/tributacao_normal_icms_90.hpp>
#include <fiscal/tributacao_normal_icms_900.hpp>
#include <fiscal/tributacao_pis_cofins.hpp>
#include <fiscal/tributacao_st_icms_90.hpp>
#include <fiscal/tributacao_st_icms_900.hpp>
#include <fiscal/tributavel_imposto_seletivo.hpp>
#include <fiscal/tributos_devolvidos.hpp>
#include <fiscal/types.hpp>
#include <fiscal/valor_cred_pres.hpp>
#include <fiscal/valor_imposto_seletivo.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace kivo::erp::v12::fiscal {

/// An item of the invoice: product and taxes (det).
/// Eager: failures and moved-from objects follow eager_handle; a copy that fails in its IBS and
/// CBS, its selective tax, a monophasic ICMS or the origins of its fuel ends the process, in an
/// accessor or a copy of the whole too.
class KIVO_ERP_FISCAL_EXPORT produto {
public:
    /// Whether the amount of an item is part of the total of the invoice (indTot).
    enum class indicador_item_compoe_valor_total : std::uint32_t {
        nao_compoe = 0, ///< left out of the total
        compoe = 1,     ///< part of the total
    };

    /// The ICMS of an item, in index order: first the groups of the normal regime, then those of
    /// the Simples Nacional, the pass-on of ICMS-ST, and last the monophasic fuel groups.
    using icms =
        variant<grupo_tributacao_icms_00, grupo_tributacao_icms_10, grupo_tributacao_icms_20,
                grupo_tributacao_icms_30, grupo_tributacao_icms_40, grupo_tributacao_icms_51,
                grupo_tributacao_icms_60, grupo_tributacao_icms_70, grupo_tributacao_icms_90,
                grupo_tributacao_icms_101, grupo_tributacao_icms_102, grupo_tributacao_icms_201,
                grupo_tributacao_icms_202, grupo_tributacao_icms_500, grupo_tributacao_icms_900,
                grupo_repasse_icms_st, grupo_tributacao_icms_02, grupo_tributacao_icms_15,
                grupo_tributacao_icms_53, grupo_tributacao_icms_61>;

    /// The tax on the operation: ICMS (index 0) or, for a service, ISSQN (index 1).
    using tributacao = variant<icms, issqn>;

    produto();
    produto(const produto& other);
    produto(produto&& other);
    produto& operator=(const produto& other);
    produto& operator=(produto&& other);
    ~produto();

    /// Code of the product or service at the issuer, 1 to 60 characters (cProd).
    std::string get_codigo_produto() const;
    void set_codigo_produto(const std::string& value);

    /// GTIN of the commercial unit, 8, 12, 13 or 14 digits as text, SEM GTIN or nothing (cEAN).
    std::string get_codigo_de_barras() const;
    void set_codigo_de_barras(const std::string& value);

    /// Description, 1 to 120 characters (xProd).
    std::string get_descricao() const;
    void set_descricao(const std::string& value);

    /// Mercosur classification, 8 digits as a number, or its chapter alone, 2 digits; 0 for a
    /// service (NCM).
    std::uint32_t get_ncm() const;
    void set_ncm(std::uint32_t value);

    /// Fiscal code of the operation, 4 digits as a number (CFOP).
    std::uint16_t get_cfop() const;
    void set_cfop(std::uint16_t value);

    /// Code of goods under tax substitution, 7 digits as a number (CEST).
    optional<std::uint32_t> get_cest() const;
    void set_cest(const optional<std::uint32_t>& value);

    /// Exception of the IPI table, 2 or 3 digits as a number (EXTIPI).
    optional<std::uint16_t> get_extipi() const;
    void set_extipi(const optional<std::uint16_t>& value);

    /// Whether the goods are made at a relevant scale, S or N (indEscala).
    optional<std::string> get_indicador_escala_relevante() const;
    void set_indicador_escala_relevante(const optional<std::string>& value);

    /// Taxpayer number of the manufacturer (CNPJFab).
    optional<cnpj> get_cnpj_fabricante() const;
    void set_cnpj_fabricante(const optional<cnpj>& value);

    /// Tax benefit of the state, 8 or 10 characters, SEM CBENEF or nothing (cBenef).
    optional<std::string> get_codigo_beneficio_fiscal_uf() const;
    void set_codigo_beneficio_fiscal_uf(const optional<std::string>& value);

    /// Commercial unit, 1 to 6 characters (uCom).
    std::string get_unidade_comercial() const;
    void set_unidade_comercial(const std::string& value);

    /// Quantity in the commercial unit (qCom).
    decimal get_quantidade_comercial() const;
    void set_quantidade_comercial(const decimal& value);

    /// Price of one commercial unit, in R$, up to 10 decimals (vUnCom).
    decimal get_valor_unitario_comercial() const;
    void set_valor_unitario_comercial(const decimal& value);

    /// Amount before discount and charges, in R$ (vProd).
    decimal get_valor_total_bruto() const;
    void set_valor_total_bruto(const decimal& value);

    /// GTIN of the taxable unit, 8, 12, 13 or 14 digits as text, SEM GTIN or nothing (cEANTrib).
    std::string get_codigo_de_barras_tributavel() const;
    void set_codigo_de_barras_tributavel(const std::string& value);

    /// Taxable unit, 1 to 6 characters (uTrib).
    std::string get_unidade_tributavel() const;
    void set_unidade_tributavel(const std::string& value);

    /// Quantity in the taxable unit; the layout demands it (qTrib).
    optional<decimal> get_quantidade_tributavel() const;
    void set_quantidade_tributavel(const optional<decimal>& value);

    /// Price of one taxable unit, in R$, up to 10 decimals (vUnTrib).
    decimal get_valor_unitario_tributavel() const;
    void set_valor_unitario_tributavel(const decimal& value);

    /// Share of the freight, in R$ (vFrete).
    optional<decimal> get_valor_frete() const;
    void set_valor_frete(const optional<decimal>& value);

    /// Discount, in R$ (vDesc).
    optional<decimal> get_valor_desconto() const;
    void set_valor_desconto(const optional<decimal>& value);

    /// Other charges, in R$ (vOutro).
    optional<decimal> get_valor_despesas_acessorias() const;
    void set_valor_despesas_acessorias(const optional<decimal>& value);

    /// Whether the amount of the item is part of the total of the invoice (indTot).
    indicador_item_compoe_valor_total get_indicador_item_compoe_valor_total() const;
    void set_indicador_item_compoe_valor_total(indicador_item_compoe_valor_total value);

    /// Purchase order of the customer, 1 to 15 characters (xPed).
    optional<std::string> get_pedido_ordem_de_compra() const;
    void set_pedido_ordem_de_compra(const optional<std::string>& value);

    /// Number of the line in the purchase order, 1 to 6 digits as a number (nItemPed).
    optional<std::uint32_t> get_codigo_do_produto_ordem_de_compra() const;
    void set_codigo_do_produto_ordem_de_compra(const optional<std::uint32_t>& value);

    /// Estimate of all taxes in the price, in R$ (vTotTrib).
    optional<decimal> get_valor_total_tributos() const;
    void set_valor_total_tributos(const optional<decimal>& value);

    /// Additional information on the item, 1 to 500 characters (infAdProd).
    optional<std::string> get_informacoes_adicionais() const;
    void set_informacoes_adicionais(const optional<std::string>& value);

    /// Import declarations of the product, up to 100 (DI).
    std::vector<declaracao_importacao> get_declaracao_importacao() const;
    void set_declaracao_importacao(const std::vector<declaracao_importacao>& value);

    /// Tax on industrialised products IPI (IPI).
    optional<tributacao_ipi> get_tributacao_ipi() const;
    void set_tributacao_ipi(const optional<tributacao_ipi>& value);

    /// Import tax (II).
    optional<tributacao_imposto_importacao> get_tributacao_importacao() const;
    void set_tributacao_importacao(const optional<tributacao_imposto_importacao>& value);

    /// Contributions PIS and COFINS (PIS, COFINS).
    optional<tributacao_pis_cofins> get_tributacao_pis_cofins() const;
    void set_tributacao_pis_cofins(const optional<tributacao_pis_cofins>& value);

    /// ICMS due to the state of destination (ICMSUFDest).
    optional<tributacao_icms_uf_destino> get_tributacao_icms_uf_destino() const;
    void set_tributacao_icms_uf_destino(const optional<tributacao_icms_uf_destino>& value);

    /// Fuel data (comb). An item holds fuel data, medicines or firearms, never two of them: setting
    /// one removes the others, and so does setting an absent one. When copying fuel data in the
    /// place of medicines or firearms fails, the item is left with none of the three.
    optional<combustiveis> get_combustiveis() const;
    void set_combustiveis(const optional<combustiveis>& value);

    /// Medicines, instead of fuel data or firearms; the layout takes only one (med). When copying
    /// them in the place of either fails, the item keeps what it held.
    optional<std::vector<medicamento>> get_medicamentos() const;
    void set_medicamentos(const optional<std::vector<medicamento>>& value);

    /// Firearms, instead of fuel data or medicines, up to 500 (arma). When copying them in the
    /// place of either fails, the item keeps what it held.
    optional<std::vector<arma>> get_armas() const;
    void set_armas(const optional<std::vector<arma>>& value);

    /// Drawbacks and indirect exports, up to 500 (detExport).
    std::vector<grupo_exportacao> get_grupo_exportacao() const;
    void set_grupo_exportacao(const std::vector<grupo_exportacao>& value);

    /// Share of the insurance, in R$ (vSeg).
    optional<decimal> get_valor_seguro() const;
    void set_valor_seguro(const optional<decimal>& value);

    /// Batches that the item is taken from, up to 500 (rastro).
    std::vector<informacoes_rastreabilidade> lista_informacoes_rastreabilidade() const;
    void
    set_lista_informacoes_rastreabilidade(const std::vector<informacoes_rastreabilidade>& value);

    /// Presumed ICMS credits, one per tax benefit, up to 4 (gCred).
    std::vector<grupo_credito_presumido> get_grupo_credito_presumido() const;
    void set_grupo_credito_presumido(const std::vector<grupo_credito_presumido>& value);

    /// Tax given back with returned goods (impostoDevol).
    optional<fiscal::tributos_devolvidos> tributos_devolvidos() const;
    void set_tributos_devolvidos(const optional<fiscal::tributos_devolvidos>& value);

    /// ICMS or ISSQN (ICMS, ISSQN). When copying a group in the place of another kind fails, the
    /// old one is gone: what is returned is present, but the variant, or the one inside it, holds
    /// nothing.
    optional<tributacao> get_tributacao() const;
    void set_tributacao(const optional<tributacao>& value);

    /// Selective tax IS (IS).
    optional<imposto_seletivo> get_imposto_seletivo() const;
    void set_imposto_seletivo(const optional<imposto_seletivo>& value);

    /// Taxes IBS and CBS (IBSCBS).
    optional<ibs_cbs> get_ibs_cbs() const;
    void set_ibs_cbs(const optional<ibs_cbs>& value);

    /// Amount of the item in the total of the invoice, in R$ (vItem).
    optional<decimal> get_total_item() const;
    void set_total_item(const optional<decimal>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
