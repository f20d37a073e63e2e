#include <fiscal/informacoes_responsavel_tecnico.hpp>

#include <fiscal/informacoes_codigo_seguranca.hpp>

#include <utility>

namespace kivo::erp::v12::fiscal {

struct informacoes_responsavel_tecnico::record {
    fiscal::cnpj cnpj;
    std::string nome_pessoa_contatada;
    std::string email;
    std::string telefone;
    optional<fiscal::informacoes_codigo_seguranca> informacoes_codigo_seguranca;
};

informacoes_responsavel_tecnico::informacoes_responsavel_tecnico() = default;
informacoes_responsavel_tecnico::informacoes_responsavel_tecnico(
    const informacoes_responsavel_tecnico&) = default;
informacoes_responsavel_tecnico::informacoes_responsavel_tecnico(
    informacoes_responsavel_tecnico&&) = default;
informacoes_responsavel_tecnico&
informacoes_responsavel_tecnico::operator=(const informacoes_responsavel_tecnico&) = default;
informacoes_responsavel_tecnico&
informacoes_responsavel_tecnico::operator=(informacoes_responsavel_tecnico&&) = default;
informacoes_responsavel_tecnico::~informacoes_responsavel_tecnico() = default;

cnpj informacoes_responsavel_tecnico::get_cnpj() const { return record_->cnpj; }
void informacoes_responsavel_tecnico::set_cnpj(const cnpj& value) { record_->cnpj = value; }

std::string informacoes_responsavel_tecnico::get_nome_pessoa_contatada() const {
    return record_->nome_pessoa_contatada;
}
void informacoes_responsavel_tecnico::set_nome_pessoa_contatada(const std::string& value) {
    record_->nome_pessoa_contatada = value;
}

std::string informacoes_responsavel_tecnico::get_email() const { return record_->email; }
void informacoes_responsavel_tecnico::set_email(const std::string& value) {
    record_->email = value;
}

std::string informacoes_responsavel_tecnico::get_telefone() const { return record_->telefone; }
void informacoes_responsavel_tecnico::set_telefone(std::string value) {
    record_->telefone = std::move(value);
}

optional<informacoes_codigo_seguranca>
informacoes_responsavel_tecnico::get_informacoes_codigo_seguranca() const {
    return record_->informacoes_codigo_seguranca;
}
void informacoes_responsavel_tecnico::set_informacoes_codigo_seguranca(
    const optional<informacoes_codigo_seguranca>& value) {
    record_->informacoes_codigo_seguranca = value;
}

} // namespace kivo::erp::v12::fiscal
