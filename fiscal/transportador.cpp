#include <fiscal/transportador.hpp>

#include <fiscal/choice.hpp>

namespace kivo::erp::v12::fiscal {

struct transportador::record {
    optional<variant<cpf, cnpj>> documento;
    optional<std::string> razao_social;
    optional<std::string> ie;
    optional<std::string> endereco;
    optional<std::string> municipio;
    optional<std::string> uf;
};

transportador::transportador() = default;
transportador::transportador(const transportador&) = default;
transportador::transportador(transportador&&) = default;
transportador& transportador::operator=(const transportador&) = default;
transportador& transportador::operator=(transportador&&) = default;
transportador::~transportador() = default;

optional<variant<cpf, cnpj>> transportador::get_documento() const { return record_->documento; }
void transportador::set_documento(const optional<variant<cpf, cnpj>>& value) {
    replace_choice(record_->documento, value);
}

optional<std::string> transportador::get_razao_social() const { return record_->razao_social; }
void transportador::set_razao_social(const optional<std::string>& value) {
    record_->razao_social = value;
}

optional<std::string> transportador::get_ie() const { return record_->ie; }
void transportador::set_ie(const optional<std::string>& value) { record_->ie = value; }

optional<std::string> transportador::get_endereco() const { return record_->endereco; }
void transportador::set_endereco(const optional<std::string>& value) { record_->endereco = value; }

optional<std::string> transportador::get_municipio() const { return record_->municipio; }
void transportador::set_municipio(const optional<std::string>& value) {
    record_->municipio = value;
}

optional<std::string> transportador::get_uf() const { return record_->uf; }
void transportador::set_uf(const optional<std::string>& value) { record_->uf = value; }

} // namespace kivo::erp::v12::fiscal
