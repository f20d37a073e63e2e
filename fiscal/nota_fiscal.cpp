#include <fiscal/nota_fiscal.hpp>

namespace kivo::erp::v12::fiscal {

struct nota_fiscal::record {
    std::string modelo_emissao;
    std::string serie;
    std::uint32_t numero = 0;
    std::string chave_44_digitos;
    optional<datetime> data_saida_entrada;
    datetime data_emissao;
    std::uint16_t ibge_uf_emissao = 0;
    std::uint32_t ibge_municipio_emissao = 0;
    nota_fiscal::indice_pagamento indice_pagamento = {};
    nota_fiscal::operacao_consumidor_final operacao_consumidor_final = {};
    std::uint32_t codigo_nf = 0;
    nota_fiscal::tipo_operacao tipo_operacao = {};
    nota_fiscal::indicador_operacao indicador_operacao = {};
    std::string natureza_operacao;
    nota_fiscal::indicador_presenca indicador_presenca = {};
    optional<nota_fiscal::indicador_intermediador> indicador_intermediador;
    nota_fiscal::indicador_finalidade_emissao indicador_finalidade_emissao = {};
    optional<nota_fiscal::tipo_nota_debito> tipo_nota_debito;
    optional<nota_fiscal::tipo_nota_credito> tipo_nota_credito;
    nota_fiscal::indicador_ambiente indicador_ambiente = {};
    std::vector<produto> produtos;
    fiscal::total_nfe total_nfe;
    optional<fiscal::destinatario> destinatario;
    fiscal::emitente emitente;
    std::vector<nfe_referenciada> nfe_referenciadas;
    std::vector<nf_referenciada> nf_referenciadas;
    std::vector<nfp_referenciada> nfp_referenciadas;
    std::vector<cupom_referenciado> cupons_referenciados;
    fiscal::informacoes_transporte informacoes_transporte;
    fiscal::informacoes_pagamento informacoes_pagamento;
    optional<fiscal::cobranca> cobranca;
    optional<fiscal::informacoes_adicionais> informacoes_adicionais;
    optional<informacoes_comercio_exterior> comercio_exterior;
    fiscal::tipo_emissao tipo_emissao = {};
    optional<std::string> justificativa_entrada_contingencia;
    optional<datetime> data_contingencia;
    optional<fiscal::local_entrega> local_entrega;
    std::vector<autorizacao_acesso_xml> autorizacoes_acesso_xml;
    optional<fiscal::informacoes_responsavel_tecnico> informacoes_responsavel_tecnico;
    optional<fiscal::informacoes_intermediador> informacoes_intermediador;
    optional<fiscal::grupo_agropecuario> grupo_agropecuario;
};

nota_fiscal::nota_fiscal() = default;
nota_fiscal::nota_fiscal(const nota_fiscal&) = default;
nota_fiscal::nota_fiscal(nota_fiscal&&) = default;
nota_fiscal& nota_fiscal::operator=(const nota_fiscal&) = default;
nota_fiscal& nota_fiscal::operator=(nota_fiscal&&) = default;
nota_fiscal::~nota_fiscal() = default;

std::string nota_fiscal::get_modelo_emissao() const { return record_->modelo_emissao; }
void nota_fiscal::set_modelo_emissor(const std::string& value) { record_->modelo_emissao = value; }

std::string nota_fiscal::get_serie() const { return record_->serie; }
void nota_fiscal::set_serie(const std::string& value) { record_->serie = value; }

std::uint32_t nota_fiscal::get_numero() const { return record_->numero; }
void nota_fiscal::set_numero(std::uint32_t value) { record_->numero = value; }

std::string nota_fiscal::get_chave_44_digitos() const { return record_->chave_44_digitos; }
void nota_fiscal::set_chave_44_digitos(const std::string& value) {
    record_->chave_44_digitos = value;
}

optional<datetime> nota_fiscal::get_data_saida_entrada() const {
    return record_->data_saida_entrada;
}
void nota_fiscal::set_data_saida_entrada(const optional<datetime>& value) {
    record_->data_saida_entrada = value;
}

datetime nota_fiscal::get_data_emissao() const { return record_->data_emissao; }
void nota_fiscal::set_data_emissao(const datetime& value) { record_->data_emissao = value; }

std::uint16_t nota_fiscal::get_ibge_uf_emissao() const { return record_->ibge_uf_emissao; }
void nota_fiscal::set_ibge_uf_emissao(std::uint16_t value) { record_->ibge_uf_emissao = value; }

std::uint32_t nota_fiscal::get_ibge_municipio_emissao() const {
    return record_->ibge_municipio_emissao;
}
void nota_fiscal::set_ibge_municipio_emissao(std::uint32_t value) {
    record_->ibge_municipio_emissao = value;
}

nota_fiscal::indice_pagamento nota_fiscal::get_indice_pagamento() const {
    return record_->indice_pagamento;
}
void nota_fiscal::set_indice_pagamento(indice_pagamento value) {
    record_->indice_pagamento = value;
}

nota_fiscal::operacao_consumidor_final nota_fiscal::get_operacao_consumidor_final() const {
    return record_->operacao_consumidor_final;
}
void nota_fiscal::set_operacao_consumidor_final(operacao_consumidor_final value) {
    record_->operacao_consumidor_final = value;
}

std::uint32_t nota_fiscal::get_codigo_nf() const { return record_->codigo_nf; }
void nota_fiscal::set_codigo_nf(std::uint32_t value) { record_->codigo_nf = value; }

nota_fiscal::tipo_operacao nota_fiscal::get_tipo_operacao() const { return record_->tipo_operacao; }
void nota_fiscal::set_tipo_operacao(tipo_operacao value) { record_->tipo_operacao = value; }

nota_fiscal::indicador_operacao nota_fiscal::get_indicador_operacao() const {
    return record_->indicador_operacao;
}
void nota_fiscal::set_indicador_operacao(indicador_operacao value) {
    record_->indicador_operacao = value;
}

std::string nota_fiscal::get_natureza_operacao() const { return record_->natureza_operacao; }
void nota_fiscal::set_natureza_operacao(const std::string& value) {
    record_->natureza_operacao = value;
}

nota_fiscal::indicador_presenca nota_fiscal::get_indicador_presenca() const {
    return record_->indicador_presenca;
}
void nota_fiscal::set_indicador_presenca(indicador_presenca value) {
    record_->indicador_presenca = value;
}

optional<nota_fiscal::indicador_intermediador> nota_fiscal::get_indicador_intermediador() const {
    return record_->indicador_intermediador;
}
void nota_fiscal::set_indicador_intermediador(optional<indicador_intermediador> value) {
    record_->indicador_intermediador = value;
}

nota_fiscal::indicador_finalidade_emissao nota_fiscal::get_indicador_finalidade_emissao() const {
    return record_->indicador_finalidade_emissao;
}
void nota_fiscal::set_indicador_finalidade_emissao(indicador_finalidade_emissao value) {
    record_->indicador_finalidade_emissao = value;
}

optional<nota_fiscal::tipo_nota_debito> nota_fiscal::get_tipo_nota_debito() const {
    return record_->tipo_nota_debito;
}
void nota_fiscal::set_tipo_nota_debito(optional<tipo_nota_debito> value) {
    record_->tipo_nota_debito = value;
}

optional<nota_fiscal::tipo_nota_credito> nota_fiscal::get_tipo_nota_credito() const {
    return record_->tipo_nota_credito;
}
void nota_fiscal::set_tipo_nota_credito(optional<tipo_nota_credito> value) {
    record_->tipo_nota_credito = value;
}

nota_fiscal::indicador_ambiente nota_fiscal::get_indicador_ambiente() const {
    return record_->indicador_ambiente;
}
void nota_fiscal::set_indicador_ambiente(indicador_ambiente value) {
    record_->indicador_ambiente = value;
}

std::vector<produto> nota_fiscal::get_produtos() const { return record_->produtos; }
void nota_fiscal::set_produtos(const std::vector<produto>& value) { record_->produtos = value; }

total_nfe nota_fiscal::get_total_nfe() const { return record_->total_nfe; }
void nota_fiscal::set_total_nfe(const total_nfe& value) { record_->total_nfe = value; }

optional<destinatario> nota_fiscal::get_destinatario() const { return record_->destinatario; }
void nota_fiscal::set_destinatario(const optional<destinatario>& value) {
    record_->destinatario = value;
}

emitente nota_fiscal::get_emitente() const { return record_->emitente; }
void nota_fiscal::set_emitente(const emitente& value) { record_->emitente = value; }

std::vector<nfe_referenciada> nota_fiscal::get_nfe_referenciadas() const {
    return record_->nfe_referenciadas;
}
void nota_fiscal::set_nfe_referenciadas(const std::vector<nfe_referenciada>& value) {
    record_->nfe_referenciadas = value;
}

std::vector<nf_referenciada> nota_fiscal::get_nf_referenciadas() const {
    return record_->nf_referenciadas;
}
void nota_fiscal::set_nf_referenciadas(const std::vector<nf_referenciada>& value) {
    record_->nf_referenciadas = value;
}

std::vector<nfp_referenciada> nota_fiscal::get_nfp_referenciadas() const {
    return record_->nfp_referenciadas;
}
void nota_fiscal::set_nfp_referenciadas(const std::vector<nfp_referenciada>& value) {
    record_->nfp_referenciadas = value;
}

std::vector<cupom_referenciado> nota_fiscal::get_cupons_referenciados() const {
    return record_->cupons_referenciados;
}
void nota_fiscal::set_cupons_referenciados(const std::vector<cupom_referenciado>& value) {
    record_->cupons_referenciados = value;
}

informacoes_transporte nota_fiscal::get_informacoes_transporte() const {
    return record_->informacoes_transporte;
}
void nota_fiscal::set_informacoes_transporte(const informacoes_transporte& value) {
    record_->informacoes_transporte = value;
}

informacoes_pagamento nota_fiscal::get_informacoes_pagamento() const {
    return record_->informacoes_pagamento;
}
void nota_fiscal::set_informacoes_pagamento(const informacoes_pagamento& value) {
    record_->informacoes_pagamento = value;
}

optional<cobranca> nota_fiscal::get_cobranca() const { return record_->cobranca; }
void nota_fiscal::set_cobranca(const optional<cobranca>& value) { record_->cobranca = value; }

optional<informacoes_adicionais> nota_fiscal::get_informacoes_adicionais() const {
    return record_->informacoes_adicionais;
}
void nota_fiscal::set_informacoes_adicionais(const optional<informacoes_adicionais>& value) {
    record_->informacoes_adicionais = value;
}

optional<informacoes_comercio_exterior> nota_fiscal::get_comercio_exterior() const {
    return record_->comercio_exterior;
}
void nota_fiscal::set_comercio_exterior(const optional<informacoes_comercio_exterior>& value) {
    record_->comercio_exterior = value;
}

tipo_emissao nota_fiscal::get_tipo_emissao() const { return record_->tipo_emissao; }
void nota_fiscal::set_tipo_emissao(tipo_emissao value) { record_->tipo_emissao = value; }

optional<std::string> nota_fiscal::get_justificativa_entrada_contingencia() const {
    return record_->justificativa_entrada_contingencia;
}
void nota_fiscal::set_justificativa_entrada_contingencia(const optional<std::string>& value) {
    record_->justificativa_entrada_contingencia = value;
}

optional<datetime> nota_fiscal::get_data_contingencia() const { return record_->data_contingencia; }
void nota_fiscal::set_data_contingencia(const optional<datetime>& value) {
    record_->data_contingencia = value;
}

optional<local_entrega> nota_fiscal::get_local_entrega() const { return record_->local_entrega; }
void nota_fiscal::set_local_entrega(const optional<local_entrega>& value) {
    record_->local_entrega = value;
}

std::vector<autorizacao_acesso_xml> nota_fiscal::get_autorizacoes_acesso_xml() const {
    return record_->autorizacoes_acesso_xml;
}
void nota_fiscal::set_autorizacoes_acesso_xml(const std::vector<autorizacao_acesso_xml>& value) {
    record_->autorizacoes_acesso_xml = value;
}

optional<informacoes_responsavel_tecnico> nota_fiscal::get_informacoes_responsavel_tecnico() const {
    return record_->informacoes_responsavel_tecnico;
}
void nota_fiscal::set_informacoes_responsavel_tecnico(
    const optional<informacoes_responsavel_tecnico>& value) {
    record_->informacoes_responsavel_tecnico = value;
}

optional<informacoes_intermediador> nota_fiscal::get_informacoes_intermediador() const {
    return record_->informacoes_intermediador;
}
void nota_fiscal::set_informacoes_intermediador(const optional<informacoes_intermediador>& value) {
    record_->informacoes_intermediador = value;
}

optional<grupo_agropecuario> nota_fiscal::get_grupo_agropecuario() const {
    return record_->grupo_agropecuario;
}
void nota_fiscal::set_grupo_agropecuario(const optional<grupo_agropecuario>& value) {
    record_->grupo_agropecuario = value;
}

} // namespace kivo::erp::v12::fiscal
