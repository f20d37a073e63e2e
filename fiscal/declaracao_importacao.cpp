#include <fiscal/declaracao_importacao.hpp>

#include <fiscal/adicao.hpp>
#include <fiscal/choice.hpp>

namespace kivo::erp::v12::fiscal {

struct declaracao_importacao::record {
    std::string numero_documento_importacao;
    date data_registro;
    std::string local_desembaraco;
    std::string uf_desembaraco;
    date data_desembaraco;
    declaracao_importacao::via_transporte via_transporte = {};
    optional<decimal> valor_afrmm;
    declaracao_importacao::forma_intermedio_importacao forma_intermedio_importacao = {};
    optional<variant<cnpj, cpf>> documento_importador;
    optional<std::string> uf_importador;
    std::string codigo_exportador;
    std::vector<adicao> adicoes;
};

declaracao_importacao::declaracao_importacao() = default;
declaracao_importacao::declaracao_importacao(const declaracao_importacao&) = default;
declaracao_importacao::declaracao_importacao(declaracao_importacao&&) = default;
declaracao_importacao& declaracao_importacao::operator=(const declaracao_importacao&) = default;
declaracao_importacao& declaracao_importacao::operator=(declaracao_importacao&&) = default;
declaracao_importacao::~declaracao_importacao() = default;

std::string declaracao_importacao::get_numero_documento_importacao() const {
    return record_->numero_documento_importacao;
}
void declaracao_importacao::set_numero_documento_importacao(const std::string& value) {
    record_->numero_documento_importacao = value;
}

date declaracao_importacao::get_data_registro() const { return record_->data_registro; }
void declaracao_importacao::set_data_registro(const date& value) { record_->data_registro = value; }

std::string declaracao_importacao::get_local_desembaraco() const {
    return record_->local_desembaraco;
}
void declaracao_importacao::set_local_desembaraco(const std::string& value) {
    record_->local_desembaraco = value;
}

std::string declaracao_importacao::get_uf_desembaraco() const { return record_->uf_desembaraco; }
void declaracao_importacao::set_uf_desembaraco(const std::string& value) {
    record_->uf_desembaraco = value;
}

date declaracao_importacao::get_data_desembaraco() const { return record_->data_desembaraco; }
void declaracao_importacao::set_data_desembaraco(const date& value) {
    record_->data_desembaraco = value;
}

declaracao_importacao::via_transporte declaracao_importacao::get_via_transporte() const {
    return record_->via_transporte;
}
void declaracao_importacao::set_via_transporte(const via_transporte& value) {
    record_->via_transporte = value;
}

optional<decimal> declaracao_importacao::get_valor_afrmm() const { return record_->valor_afrmm; }
void declaracao_importacao::set_valor_afrmm(const optional<decimal>& value) {
    record_->valor_afrmm = value;
}

declaracao_importacao::forma_intermedio_importacao
declaracao_importacao::get_forma_intermedio_importacao() const {
    return record_->forma_intermedio_importacao;
}
void declaracao_importacao::set_forma_intermedio_importacao(
    const forma_intermedio_importacao& value) {
    record_->forma_intermedio_importacao = value;
}

optional<variant<cnpj, cpf>> declaracao_importacao::get_documento_importador() const {
    return record_->documento_importador;
}
void declaracao_importacao::set_documento_importador(const optional<variant<cnpj, cpf>>& value) {
    replace_choice(record_->documento_importador, value);
}

optional<std::string> declaracao_importacao::get_uf_importador() const {
    return record_->uf_importador;
}
void declaracao_importacao::set_uf_importador(const optional<std::string>& value) {
    record_->uf_importador = value;
}

std::string declaracao_importacao::get_codigo_exportador() const {
    return record_->codigo_exportador;
}
void declaracao_importacao::set_codigo_exportador(const std::string& value) {
    record_->codigo_exportador = value;
}

std::vector<adicao> declaracao_importacao::get_adicoes() const { return record_->adicoes; }
void declaracao_importacao::set_adicoes(const std::vector<adicao>& value) {
    record_->adicoes = value;
}

} // namespace kivo::erp::v12::fiscal
