#include <fiscal/destinatario.hpp>

#include <fiscal/endereco.hpp>

namespace kivo::erp::v12::fiscal {

struct destinatario::record {
    destinatario::indicador_de_ie indicador_de_ie = {};
    optional<fiscal::cnpj> cnpj;
    optional<std::string> cpf;
    optional<std::string> razao_social;
    optional<fiscal::endereco> endereco;
    optional<std::string> telefone;
    optional<std::string> email;
    optional<std::string> ie;
    optional<std::string> indicador_estrangeiro;
    optional<std::string> inscricao_suframa;
};

destinatario::destinatario() = default;
destinatario::destinatario(const destinatario&) = default;
destinatario::destinatario(destinatario&&) = default;
destinatario& destinatario::operator=(const destinatario&) = default;
destinatario& destinatario::operator=(destinatario&&) = default;
destinatario::~destinatario() = default;

destinatario::indicador_de_ie destinatario::get_indicador_de_ie() const {
    return record_->indicador_de_ie;
}
void destinatario::set_indicador_de_ie(indicador_de_ie value) { record_->indicador_de_ie = value; }

optional<cnpj> destinatario::get_cnpj() const { return record_->cnpj; }
void destinatario::set_cnpj(const optional<cnpj>& value) { record_->cnpj = value; }

optional<std::string> destinatario::get_cpf() const { return record_->cpf; }
void destinatario::set_cpf(const optional<std::string>& value) { record_->cpf = value; }

optional<std::string> destinatario::get_razao_social() const { return record_->razao_social; }
void destinatario::set_razao_social(const optional<std::string>& value) {
    record_->razao_social = value;
}

optional<endereco> destinatario::get_endereco() const { return record_->endereco; }
void destinatario::set_endereco(const optional<endereco>& value) { record_->endereco = value; }

optional<std::string> destinatario::get_telefone() const { return record_->telefone; }
void destinatario::set_telefone(const optional<std::string>& value) { record_->telefone = value; }

optional<std::string> destinatario::get_email() const { return record_->email; }
void destinatario::set_email(const optional<std::string>& value) { record_->email = value; }

optional<std::string> destinatario::get_ie() const { return record_->ie; }
void destinatario::set_ie(const optional<std::string>& value) { record_->ie = value; }

optional<std::string> destinatario::get_indicador_estrangeiro() const {
    return record_->indicador_estrangeiro;
}
void destinatario::set_indicador_estrangeiro(const optional<std::string>& value) {
    record_->indicador_estrangeiro = value;
}

optional<std::string> destinatario::get_inscricao_suframa() const {
    return record_->inscricao_suframa;
}
void destinatario::set_inscricao_suframa(const optional<std::string>& value) {
    record_->inscricao_suframa = value;
}

} // namespace kivo::erp::v12::fiscal
