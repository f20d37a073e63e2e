#include <fiscal/combustiveis.hpp>

#include <fiscal/encerrante_bomba_combustiveis.hpp>
#include <fiscal/indicador_origem_combustivel.hpp>
#include <fiscal/informacoes_cide_combustiveis.hpp>
#include <fiscal/informacoes_combustivel_glp.hpp>

namespace kivo::erp::v12::fiscal {

struct combustiveis::record {
    std::uint32_t codigo_produto_anp = 0;
    std::string descricao_produto_anp;
    optional<std::string> codigo_autorizacao_codif;
    optional<decimal> quantidade_faturada_temperatura_ambiente;
    std::string uf_consumo;
    optional<informacoes_combustivel_glp> informacoes_glp;
    optional<fiscal::informacoes_cide_combustiveis> informacoes_cide_combustiveis;
    optional<fiscal::encerrante_bomba_combustiveis> encerrante_bomba_combustiveis;
    std::vector<fiscal::indicador_origem_combustivel> indicador_origem_combustivel;
};

combustiveis::combustiveis() = default;
combustiveis::combustiveis(const combustiveis&) = default;
combustiveis::combustiveis(combustiveis&&) = default;
combustiveis& combustiveis::operator=(const combustiveis&) = default;
combustiveis& combustiveis::operator=(combustiveis&&) = default;
combustiveis::~combustiveis() = default;

std::uint32_t combustiveis::get_codigo_produto_anp() const { return record_->codigo_produto_anp; }
void combustiveis::set_codigo_produto_anp(std::uint32_t value) {
    record_->codigo_produto_anp = value;
}

std::string combustiveis::get_descricao_produto_anp() const {
    return record_->descricao_produto_anp;
}
void combustiveis::set_descricao_produto_anp(const std::string& value) {
    record_->descricao_produto_anp = value;
}

optional<std::string> combustiveis::get_codigo_autorizacao_codif() const {
    return record_->codigo_autorizacao_codif;
}
void combustiveis::set_codigo_autorizacao_codif(const optional<std::string>& value) {
    record_->codigo_autorizacao_codif = value;
}

optional<decimal> combustiveis::get_quantidade_faturada_temperatura_ambiente() const {
    return record_->quantidade_faturada_temperatura_ambiente;
}
void combustiveis::set_quantidade_faturada_temperatura_ambiente(const optional<decimal>& value) {
    record_->quantidade_faturada_temperatura_ambiente = value;
}

std::string combustiveis::get_uf_consumo() const { return record_->uf_consumo; }
void combustiveis::set_uf_consumo(const std::string& value) { record_->uf_consumo = value; }

optional<informacoes_combustivel_glp> combustiveis::get_informacoes_glp() const {
    return record_->informacoes_glp;
}
void combustiveis::set_informacoes_glp(const optional<informacoes_combustivel_glp>& value) {
    record_->informacoes_glp = value;
}

optional<informacoes_cide_combustiveis> combustiveis::get_informacoes_cide_combustiveis() const {
    return record_->informacoes_cide_combustiveis;
}
void combustiveis::set_informacoes_cide_combustiveis(
    const optional<informacoes_cide_combustiveis>& value) {
    record_->informacoes_cide_combustiveis = value;
}

optional<encerrante_bomba_combustiveis> combustiveis::get_encerrante_bomba_combustiveis() const {
    return record_->encerrante_bomba_combustiveis;
}
void combustiveis::set_encerrante_bomba_combustiveis(
    const optional<encerrante_bomba_combustiveis>& value) {
    record_->encerrante_bomba_combustiveis = value;
}

std::vector<indicador_origem_combustivel> combustiveis::get_indicador_origem_combustivel() const {
    return record_->indicador_origem_combustivel;
}
void combustiveis::set_indicador_origem_combustivel(
    const std::vector<indicador_origem_combustivel>& value) {
    record_->indicador_origem_combustivel = value;
}

} // namespace kivo::erp::v12::fiscal
