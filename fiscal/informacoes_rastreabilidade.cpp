#include <fiscal/informacoes_rastreabilidade.hpp>

namespace kivo::erp::v12::fiscal {

struct informacoes_rastreabilidade::record {
    std::string numero_lote;
    decimal quantidade_de_produto_no_lote;
    date data_fabricacao;
    date data_validade;
    optional<std::string> codigo_agregacao;
};

informacoes_rastreabilidade::informacoes_rastreabilidade() = default;
informacoes_rastreabilidade::informacoes_rastreabilidade(const informacoes_rastreabilidade&) =
    default;
informacoes_rastreabilidade::informacoes_rastreabilidade(informacoes_rastreabilidade&&) = default;
informacoes_rastreabilidade&
informacoes_rastreabilidade::operator=(const informacoes_rastreabilidade&) = default;
informacoes_rastreabilidade&
informacoes_rastreabilidade::operator=(informacoes_rastreabilidade&&) = default;
informacoes_rastreabilidade::~informacoes_rastreabilidade() = default;

std::string informacoes_rastreabilidade::numero_lote() const { return record_->numero_lote; }
void informacoes_rastreabilidade::set_numero_lote(const std::string& value) {
    record_->numero_lote = value;
}

decimal informacoes_rastreabilidade::quantidade_de_produto_no_lote() const {
    return record_->quantidade_de_produto_no_lote;
}
void informacoes_rastreabilidade::set_quantidade_de_produto_no_lote(const decimal& value) {
    record_->quantidade_de_produto_no_lote = value;
}

date informacoes_rastreabilidade::data_fabricacao() const { return record_->data_fabricacao; }
void informacoes_rastreabilidade::set_data_fabricacao(const date& value) {
    record_->data_fabricacao = value;
}

date informacoes_rastreabilidade::data_validade() const { return record_->data_validade; }
void informacoes_rastreabilidade::set_data_validade(const date& value) {
    record_->data_validade = value;
}

optional<std::string> informacoes_rastreabilidade::codigo_agregacao() const {
    return record_->codigo_agregacao;
}
void informacoes_rastreabilidade::set_codigo_agregacao(const optional<std::string>& value) {
    record_->codigo_agregacao = value;
}

} // namespace kivo::erp::v12::fiscal
