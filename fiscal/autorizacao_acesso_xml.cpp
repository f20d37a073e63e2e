#include <fiscal/autorizacao_acesso_xml.hpp>

namespace kivo::erp::v12::fiscal {

struct autorizacao_acesso_xml::record {
    optional<fiscal::cnpj> cnpj;
    optional<std::string> cpf;
};

autorizacao_acesso_xml::autorizacao_acesso_xml() = default;
autorizacao_acesso_xml::autorizacao_acesso_xml(const autorizacao_acesso_xml&) = default;
autorizacao_acesso_xml::autorizacao_acesso_xml(autorizacao_acesso_xml&&) = default;
autorizacao_acesso_xml& autorizacao_acesso_xml::operator=(const autorizacao_acesso_xml&) = default;
autorizacao_acesso_xml& autorizacao_acesso_xml::operator=(autorizacao_acesso_xml&&) = default;
autorizacao_acesso_xml::~autorizacao_acesso_xml() = default;

optional<cnpj> autorizacao_acesso_xml::get_cnpj() const { return record_->cnpj; }
void autorizacao_acesso_xml::set_cnpj(const optional<cnpj>& value) { record_->cnpj = value; }

optional<std::string> autorizacao_acesso_xml::get_cpf() const { return record_->cpf; }
void autorizacao_acesso_xml::set_cpf(const optional<std::string>& value) { record_->cpf = value; }

} // namespace kivo::erp::v12::fiscal
