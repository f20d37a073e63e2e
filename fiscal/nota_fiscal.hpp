#pragma once

#include <fiscal/autorizacao_acesso_xml.hpp>
#include <fiscal/cobranca.hpp>
#include <fiscal/cupom_referenciado.hpp>
#include <fiscal/defensivos_agricolas.hpp>
#include <fiscal/destinatario.hpp>
#include <fiscal/detalhes_pagamento.hpp>
#include <fiscal/duplicata.hpp>
#include <fiscal/emitente.hpp>
#include <fiscal/endereco.hpp>
#include <fiscal/export.hpp>
#include <fiscal/grupo_agropecuario.hpp>
#include <fiscal/grupo_processo_referenciado.hpp>
#include <fiscal/guia_de_transito.hpp>
#include <fiscal/handle.hpp>
#include <fiscal/informacoes_adicionais.hpp>
#include <fiscal/informacoes_codigo_seguranca.hpp>
#include <fiscal/informacoes_comercio_exterior.hpp>
#include <fiscal/informacoes_intermediador.hpp>
#include <fiscal/informacoes_pagamento.hpp>
#include <fiscal/informacoes_responsavel_tecnico.hpp>
#include <fiscal/informacoes_transporte.hpp>
#include <fiscal/local_entrega.hpp>
#include <fiscal/nf_referenciada.hpp>
#include <fiscal/nfe_referenciada.hpp>
#include <fiscal/nfp_referenciada.hpp>
#include <fiscal/produto.hpp>
#include <fiscal/tipo_emissao.hpp>
#include <fiscal/total_grupo_cbs.hpp>
#include <fiscal/total_grupo_ibs.hpp>
#include <fiscal/total_grupo_ibs_municipio.hpp>
#include <fiscal/total_grupo_ibs_uf.hpp>
#include <fiscal/total_grupo_monofasia.hpp>
#include <fiscal/total_ibs_cbs.hpp>
#include <fiscal/total_is.hpp>
#include <fiscal/total_nfe.hpp>
#include <fiscal/total_nfe_icms.hpp>
#include <fiscal/total_nfe_issqn.hpp>
#include <fiscal/total_nfe_retencao_tributos.hpp>
#include <fiscal/transacao_pagamento.hpp>
#include <fiscal/transacao_tef.hpp>
#include <fiscal/transportador.hpp>
#include <fiscal/types.hpp>
#include <fiscal/veiculo_transporte.hpp>
#include <fiscal/volume.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace kivo::erp::v12::fiscal {

/// An electronic invoice: NF-e (model 55) or NFC-e (model 65) (infNFe).
/// Eager: failures and moved-from objects follow eager_handle; where a copy of an item or of the
/// additional information ends the process when it fails, so does one of the invoice.
class KIVO_ERP_FISCAL_EXPORT nota_fiscal {
public:
    /// Terms of payment (no element in layout 4.00, which tells them of each payment). The codes
    /// are those of layout 3.10.
    enum class indice_pagamento : std::uint32_t {
        a_vista = 0, ///< at sight
        a_prazo = 1, ///< on credit
        outros = 2,  ///< other
    };

    /// Whether a sale is to a final consumer (indFinal).
    enum class operacao_consumidor_final : std::uint32_t {
        normal = 0,           ///< not to a final consumer
        consumidor_final = 1, ///< to a final consumer
    };

    /// Whether goods enter or leave (tpNF).
    enum class tipo_operacao : std::uint32_t {
        entrada = 0, ///< inbound
        saida = 1,   ///< outbound
    };

    /// Where goods go (idDest).
    enum class indicador_operacao : std::uint32_t {
        nao_informado = 0, ///< never set; not a code of the layout
        interna = 1,       ///< within the state
        interestadual = 2, ///< to another state
        exterior = 3,      ///< abroad
    };

    /// How a buyer took part in a sale (indPres).
    enum class indicador_presenca : std::uint32_t {
        nao_se_aplica = 0,        ///< does not apply, as to a complementary invoice
        presencial = 1,           ///< present at the establishment
        internet = 2,             ///< not present, over the internet
        teleatendimento = 3,      ///< not present, by telephone service
        entrega_em_domicilio = 4, ///< home delivery by NFC-e; since 2026: not present, with an
                                  ///< NFC-e or an NF-e with the simplified DANFE type 2
        presencial_fora_do_estabelecimento = 5, ///< present, away from the establishment
        nao_presencial_outros = 9,              ///< not present, otherwise
    };

    /// Whether a sale went through the platform of another (indIntermed).
    enum class indicador_intermediador : std::uint32_t {
        sem_intermediador = 0, ///< the seller's own site or platform
        com_intermediador = 1, ///< site or platform of another (marketplace)
    };

    /// Purpose of an invoice (finNFe).
    enum class indicador_finalidade_emissao : std::uint32_t {
        nao_informado = 0, ///< never set; not a code of the layout
        normal = 1,        ///< regular invoice
        complementar = 2,  ///< complementary invoice
        ajuste = 3,        ///< adjustment
        devolucao = 4,     ///< return of goods
        nota_credito = 5,  ///< credit note (IBS and CBS)
        nota_debito = 6,   ///< debit note (IBS and CBS)
    };

    /// Reason of a debit note (tpNFDebito).
    enum class tipo_nota_debito : std::uint16_t {
        nao_informado = 0,                          ///< never set; not a code of the layout
        transferencia_credito_cooperativas = 1,     ///< transfer of credits to a cooperative
        anulacao_credito_saidas_imunes_isentas = 2, ///< annulled credits of immune or exempt sales
        debitos_de_notas_nao_processadas = 3,       ///< debits of invoices that were not assessed
        multa_e_juros = 4,                          ///< fine and interest
        transferencia_credito_sucessao = 5,         ///< transfer of credits in a succession
        pagamento_antecipado = 6,                   ///< payment in advance
        perda_em_estoque = 7,                       ///< loss of stock
        desenquadramento_simples_nacional = 8,      ///< exit from the Simples Nacional
    };

    /// Reason of a credit note (tpNFCredito).
    enum class tipo_nota_credito : std::uint16_t {
        nao_informado = 0,                         ///< never set; not a code of the layout
        multa_e_juros = 1,                         ///< fine and interest
        credito_presumido_ibs_zfm = 2,             ///< presumed IBS credit, Manaus free-trade zone
        retorno_por_recusa_ou_nao_localizacao = 3, ///< return: all refused, or recipient not found
        reducao_de_valores = 4,                    ///< reduction of amounts or quantities
        transferencia_credito_sucessao = 5,        ///< transfer of credits in a succession
        retorno_por_recusa_parcial = 6,            ///< return: refused in part; schema of July 2026
    };

    /// Environment that authorises an invoice (tpAmb).
    enum class indicador_ambiente : std::uint32_t {
        nao_informado = 0, ///< never set; not a code of the layout
        producao = 1,      ///< production
        homologacao = 2,   ///< homologation: tests without fiscal value
    };

    nota_fiscal();
    nota_fiscal(const nota_fiscal& other);
    nota_fiscal(nota_fiscal&& other);
    nota_fiscal& operator=(const nota_fiscal& other);
    nota_fiscal& operator=(nota_fiscal&& other);
    ~nota_fiscal();

    /// Model, 55 or 65, as text (mod).
    std::string get_modelo_emissao() const;
    void set_modelo_emissor(const std::string& value);

    /// Series, 0 to 999 as text, 0 where there is none (serie).
    std::string get_serie() const;
    void set_serie(const std::string& value);

    /// Number in the series, 1 to 9 digits (nNF).
    std::uint32_t get_numero() const;
    void set_numero(std::uint32_t value);

    /// Access key, 44 characters, without the NFe that the layout puts before it (attribute Id).
    std::string get_chave_44_digitos() const;
    void set_chave_44_digitos(const std::string& value);

    /// When the goods left or entered the establishment (dhSaiEnt).
    optional<datetime> get_data_saida_entrada() const;
    void set_data_saida_entrada(const optional<datetime>& value);

    /// When the invoice was issued (dhEmi).
    datetime get_data_emissao() const;
    void set_data_emissao(const datetime& value);

    /// State of the issuer, IBGE code of 2 digits (cUF).
    std::uint16_t get_ibge_uf_emissao() const;
    void set_ibge_uf_emissao(std::uint16_t value);

    /// Municipality where ICMS became due, IBGE code of 7 digits (cMunFG).
    std::uint32_t get_ibge_municipio_emissao() const;
    void set_ibge_municipio_emissao(std::uint32_t value);

    /// Terms of payment (no element in layout 4.00).
    indice_pagamento get_indice_pagamento() const;
    void set_indice_pagamento(indice_pagamento value);

    /// Whether the sale is to a final consumer (indFinal).
    operacao_consumidor_final get_operacao_consumidor_final() const;
    void set_operacao_consumidor_final(operacao_consumidor_final value);

    /// Random number in the access key, 8 digits (cNF).
    std::uint32_t get_codigo_nf() const;
    void set_codigo_nf(std::uint32_t value);

    /// Whether the goods enter or leave (tpNF).
    tipo_operacao get_tipo_operacao() const;
    void set_tipo_operacao(tipo_operacao value);

    /// Where the goods go (idDest).
    indicador_operacao get_indicador_operacao() const;
    void set_indicador_operacao(indicador_operacao value);

    /// Nature of the operation, such as sale or return, 1 to 60 characters (natOp).
    std::string get_natureza_operacao() const;
    void set_natureza_operacao(const std::string& value);

    /// How the buyer took part in the sale (indPres).
    indicador_presenca get_indicador_presenca() const;
    void set_indicador_presenca(indicador_presenca value);

    /// Whether the sale went through the platform of another (indIntermed).
    optional<indicador_intermediador> get_indicador_intermediador() const;
    void set_indicador_intermediador(optional<indicador_intermediador> value);

    /// Purpose (finNFe).
    indicador_finalidade_emissao get_indicador_finalidade_emissao() const;
    void set_indicador_finalidade_emissao(indicador_finalidade_emissao value);

    /// Reason of a debit note (tpNFDebito).
    optional<tipo_nota_debito> get_tipo_nota_debito() const;
    void set_tipo_nota_debito(optional<tipo_nota_debito> value);

    /// Reason of a credit note (tpNFCredito).
    optional<tipo_nota_credito> get_tipo_nota_credito() const;
    void set_tipo_nota_credito(optional<tipo_nota_credito> value);

    /// Environment that authorises the invoice (tpAmb).
    indicador_ambiente get_indicador_ambiente() const;
    void set_indicador_ambiente(indicador_ambiente value);

    /// Items in their order, 1 to 990 (det).
    std::vector<produto> get_produtos() const;
    void set_produtos(const std::vector<produto>& value);

    /// Totals (total).
    total_nfe get_total_nfe() const;
    void set_total_nfe(const total_nfe& value);

    /// Recipient (dest).
    optional<destinatario> get_destinatario() const;
    void set_destinatario(const optional<destinatario>& value);

    /// Issuer (emit).
    emitente get_emitente() const;
    void set_emitente(const emitente& value);

    /// Electronic invoices that this one refers to; the layout takes 999 references of all kinds
    /// together (NFref/refNFe).
    std::vector<nfe_referenciada> get_nfe_referenciadas() const;
    void set_nfe_referenciadas(const std::vector<nfe_referenciada>& value);

    /// Paper invoices that this one refers to (NFref/refNF).
    std::vector<nf_referenciada> get_nf_referenciadas() const;
    void set_nf_referenciadas(const std::vector<nf_referenciada>& value);

    /// Rural producers' paper invoices that this one refers to (NFref/refNFP).
    std::vector<nfp_referenciada> get_nfp_referenciadas() const;
    void set_nfp_referenciadas(const std::vector<nfp_referenciada>& value);

    /// Receipts that this invoice refers to (NFref/refECF).
    std::vector<cupom_referenciado> get_cupons_referenciados() const;
    void set_cupons_referenciados(const std::vector<cupom_referenciado>& value);

    /// Transport (transp).
    informacoes_transporte get_informacoes_transporte() const;
    void set_informacoes_transporte(const informacoes_transporte& value);

    /// Payments (pag).
    informacoes_pagamento get_informacoes_pagamento() const;
    void set_informacoes_pagamento(const informacoes_pagamento& value);

    /// Bill and its instalments (cobr).
    optional<cobranca> get_cobranca() const;
    void set_cobranca(const optional<cobranca>& value);

    /// Additional information (infAdic).
    optional<informacoes_adicionais> get_informacoes_adicionais() const;
    void set_informacoes_adicionais(const optional<informacoes_adicionais>& value);

    /// Where exported goods leave the country (exporta).
    optional<informacoes_comercio_exterior> get_comercio_exterior() const;
    void set_comercio_exterior(const optional<informacoes_comercio_exterior>& value);

    /// How the invoice was issued (tpEmis).
    tipo_emissao get_tipo_emissao() const;
    void set_tipo_emissao(tipo_emissao value);

    /// Why the issue went into contingency, 15 to 256 characters (xJust).
    optional<std::string> get_justificativa_entrada_contingencia() const;
    void set_justificativa_entrada_contingencia(const optional<std::string>& value);

    /// When the issue went into contingency (dhCont).
    optional<datetime> get_data_contingencia() const;
    void set_data_contingencia(const optional<datetime>& value);

    /// Place of delivery, where it is not the recipient's address (entrega).
    optional<local_entrega> get_local_entrega() const;
    void set_local_entrega(const optional<local_entrega>& value);

    /// Who may obtain the XML of the invoice, up to 10 (autXML).
    std::vector<autorizacao_acesso_xml> get_autorizacoes_acesso_xml() const;
    void set_autorizacoes_acesso_xml(const std::vector<autorizacao_acesso_xml>& value);

    /// Company that answers for the issuing software (infRespTec).
    optional<informacoes_responsavel_tecnico> get_informacoes_responsavel_tecnico() const;
    void
    set_informacoes_responsavel_tecnico(const optional<informacoes_responsavel_tecnico>& value);

    /// Intermediary of the sale (infIntermed).
    optional<informacoes_intermediador> get_informacoes_intermediador() const;
    void set_informacoes_intermediador(const optional<informacoes_intermediador>& value);

    /// Papers of an agricultural load (agropecuario).
    optional<grupo_agropecuario> get_grupo_agropecuario() const;
    void set_grupo_agropecuario(const optional<grupo_agropecuario>& value);

private:
    struct record;
    eager_handle<record> record_;
};

} // namespace kivo::erp::v12::fiscal
